#include "game/shell/mothership.h"

#include <utility>

namespace {
// What the day's work schedule (0 to 4) does to morale.
constexpr float kScheduleMorale[5] = {5.0f, 1.0f, 0.0f, -3.0f, -15.0f};
constexpr float kFamineMorale = -15.0f;
}  // namespace

namespace {
std::int32_t clampToInt32(std::int64_t value) {
  if (value > INT32_MAX) return INT32_MAX;
  if (value < INT32_MIN) return INT32_MIN;
  return static_cast<std::int32_t>(value);
}
}  // namespace

std::int32_t Mothership::cargoUsed() const {
  const std::int64_t used = static_cast<std::int64_t>(food_) + fuel_ + materials_ + artifacts_ +
                            static_cast<std::int64_t>(kBombWeight) * bombs_.count() +
                            static_cast<std::int64_t>(kEggWeight) * eggs_.count();
  return clampToInt32(used);
}

std::int32_t Mothership::dockSpaceUsed() const {
  std::int64_t used = static_cast<std::int64_t>(kCapsuleDockSpace) * readyCapsules_;
  for (std::int32_t i = 0; i < aircraft_.count(); ++i) used += aircraft_.at(i).getDockSpace();
  return clampToInt32(used);
}

bool Mothership::addAdvisor(int id) {
  static constexpr const char* kNames[9] = {"Carolla", "Emerson",         "Pinsky",
                                            "Scruggs", "Blobby the Blob", "Hyde",
                                            "Kryptal", "Zorblax",         "Quenta"};
  if (static_cast<int>(advisors_.size()) >= kAdvisorCapacity) return false;
  Advisor advisor;
  advisor.name.assign(id >= 0 && id < 9 ? kNames[id] : "");
  advisor.id = id;
  advisors_.push_back(advisor);
  return true;
}

void Mothership::eatFood() {
  // The captain eats too. Crew aboard craft eat nothing.
  auto use = static_cast<std::uint32_t>(crew_.getCount()) +
             static_cast<std::uint32_t>(advisors_.size()) + 1;
  food_ = food_ > use ? food_ - use : 0;
}

void Mothership::updateMorale() {
  if (food_ == 0) {
    morale_ += kFamineMorale;
  } else if (workSchedule_ >= 0 && workSchedule_ <= 4) {
    morale_ += kScheduleMorale[workSchedule_];
  }
  if (morale_ >= 100.0f) morale_ = 100.0f;
  if (morale_ <= 0.0f) morale_ = 0.0f;
}

void Mothership::reset() {
  // A whole new ship, so that no field of a new game can be missed; then
  // what a new game keeps is carried over by name: the work schedule and
  // the lists, which the new-game reset empties and fills itself.
  Mothership fresh;
  fresh.aircraft_ = std::move(aircraft_);
  fresh.crew_ = std::move(crew_);
  fresh.advisors_ = std::move(advisors_);
  fresh.bombs_ = std::move(bombs_);
  fresh.eggs_ = std::move(eggs_);
  fresh.workSchedule_ = workSchedule_;
  *this = std::move(fresh);
}

void advanceDay() { ++globals().day; }

void advanceFreighter() {
  GlobalValues& g = globals();
  if (--g.freighterCountdown < -6) g.freighterCountdown = 30;
}
