#include "game/crew/crew_list.h"

#include <cassert>
#include <utility>

JobGroup jobGroup(std::int32_t job) {
  if (job >= 3 && job <= 6) return kGroupResearch;
  if (job >= 7) return kGroupMaintenance;
  return kGroupOther;
}

std::string_view jobText(std::int32_t job) {
  static constexpr const char* kTexts[] = {
      "Maxin' & Relaxin'!",
      "Defending the mothership in a plasma gun turret.",
      "Special factor 6!!!!",
      "Researching new technologies.",
      "Error!!!!",
      "Error!!!!",
      "Error!!!!",
      "Repairing the mothership.",
      "Building a new ion cannon for the mothership.",
      "Upgrading the engine speed of the mothership.",
      "Building a Woot Woot robot.",
      "Building a space capsule.",
      "Building a scout saucer.",
      "Building a fighter jet.",
      "Building a hulk bomber.",
      "Building a cargo barge.",
      "Building a plasma fusion bombs.",
      "Building a liquiferno napalm bombs.",
      "Building a neronutralizer gas bombs.",
      "Building a crater-maker nuclear bombs.",
  };
  constexpr int kKnown = sizeof(kTexts) / sizeof(kTexts[0]);
  if (job < 0 || job >= kKnown) return "Error!!!!";
  return kTexts[job];
}

CrewList::CrewList(const CrewList& other) : capacity_(other.capacity_) {
  members_.reserve(other.members_.size());
  for (const auto& member : other.members_)
    members_.push_back(std::make_unique<CrewMember>(*member));
}

CrewList& CrewList::operator=(const CrewList& other) {
  if (this != &other) {
    CrewList copy(other);
    *this = std::move(copy);
  }
  return *this;
}

bool CrewList::add(std::int32_t race, std::uint8_t sex) {
  if (isFull()) return false;
  auto member = std::make_unique<CrewMember>();
  member->setUp(race, sex);
  members_.push_back(std::move(member));
  return true;
}

bool CrewList::addFront(const CrewMember& member) {
  if (isFull()) return false;
  members_.insert(members_.begin(), std::make_unique<CrewMember>(member));
  return true;
}

bool CrewList::remove(const CrewMember& member) {
  for (auto it = members_.begin(); it != members_.end(); ++it) {
    if (it->get() == &member) {
      members_.erase(it);
      return !members_.empty();
    }
  }
  return false;
}

CrewMember& CrewList::at(std::int32_t index) {
  assert(index >= 0 && index < getCount());
  return *members_[static_cast<std::size_t>(index)];
}

const CrewMember& CrewList::at(std::int32_t index) const {
  assert(index >= 0 && index < getCount());
  return *members_[static_cast<std::size_t>(index)];
}

void CrewList::swapMembers(std::int32_t i, std::int32_t j) { std::swap(at(i), at(j)); }

void CrewList::moveBefore(std::int32_t i, std::int32_t j) {
  assert(i >= 0 && i < getCount() && j >= 0);
  const CrewMember* before = j < getCount() ? members_[static_cast<std::size_t>(j)].get() : nullptr;
  if (before == members_[static_cast<std::size_t>(i)].get()) return;
  auto moving = std::move(members_[static_cast<std::size_t>(i)]);
  members_.erase(members_.begin() + i);
  auto place = members_.end();
  if (j == 0) {
    place = members_.begin();
  } else if (before != nullptr) {
    for (place = members_.begin(); place->get() != before; ++place) {
    }
  }
  members_.insert(place, std::move(moving));
}

void CrewList::transferTo(CrewList& other) {
  for (std::int32_t i = getCount() - 1; i >= 2; --i) {
    if (other.addFront(at(i))) remove(at(i));
  }
}
