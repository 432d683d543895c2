#include "game/fleet/aircraft.h"

#include <cassert>
#include <climits>
#include <utility>

namespace {

struct TypeRow {
  const char* name;
  std::int32_t crewCapacity, cargoCapacity, dockSpace;
};

constexpr TypeRow kTypes[kAircraftTypeCount] = {
    {"Saucer Transport", 10, 10000, 40000},
    {"Stealth Fighter", 2, 3000, 30000},
    {"Hulk Bomber", 3, 10000, 100000},
    {"Cargo Barge", 3, 75000, 100000},
};
constexpr TypeRow kBadType = {"BAD!", 0, 0, 0};

const TypeRow& typeRow(std::int32_t type) {
  return type >= 0 && type < kAircraftTypeCount ? kTypes[type] : kBadType;
}

}  // namespace

std::string_view missionLabel(std::int32_t mission) {
  static constexpr const char* kLabels[kMissionCount] = {
      "Inactive",       "Scouting",         "Attacking", "Defending", "Traveling",
      "Abducting Cows", "Abducting Humans", "Shuttling", "Escorting", "No Job yet Assigned"};
  assert(mission >= 0 && mission < kMissionCount);
  if (mission < 0 || mission >= kMissionCount) return "BAD!";
  return kLabels[mission];
}

std::int32_t dockSpaceOf(std::int32_t type) { return typeRow(type).dockSpace; }

Aircraft::Aircraft(std::int32_t crewCapacity) : crewCapacity_(crewCapacity), crew_(crewCapacity) {}

void Aircraft::setUp(std::int32_t type, std::int32_t location) {
  const TypeRow& row = typeRow(type);
  fuel_ = food_ = materials_ = artifacts_ = 0;
  crewCapacity_ = row.crewCapacity;
  cargoCapacity_ = row.cargoCapacity;
  dockSpace_ = row.dockSpace;
  name_.assign(row.name);
  type_ = type;
  location_ = destination_ = location;
  crew_.setCapacity(crewCapacity_);
  // The Hulk Bomber is built with one bomb aboard; a craft's bombs are not
  // weighed against the ship's hold.
  if (type == kHulkBomber) bombs_.add(kBombFlack, INT32_MAX);
  getCargoUsed();
}

std::int32_t Aircraft::getCargoUsed() {
  cargoUsed_ = fuel_ + food_ + materials_ + artifacts_ + kBombWeight * bombs_.count();
  return cargoUsed_;
}

AircraftList::AircraftList(const AircraftList& other) {
  craft_.reserve(other.craft_.size());
  for (const auto& craft : other.craft_) craft_.push_back(std::make_unique<Aircraft>(*craft));
}

AircraftList& AircraftList::operator=(const AircraftList& other) {
  if (this != &other) {
    AircraftList copy(other);
    *this = std::move(copy);
  }
  return *this;
}

bool AircraftList::add(std::int32_t type, std::int32_t dockRoomLeft, std::int32_t location) {
  if (dockSpaceOf(type) > dockRoomLeft) return false;
  auto craft = std::make_unique<Aircraft>();
  craft->setUp(type, location);
  craft_.push_back(std::move(craft));
  return true;
}

bool AircraftList::addFront(const Aircraft& craft) {
  craft_.insert(craft_.begin(), std::make_unique<Aircraft>(craft));
  return true;
}

bool AircraftList::remove(const Aircraft& craft) {
  for (auto it = craft_.begin(); it != craft_.end(); ++it) {
    if (it->get() == &craft) {
      craft_.erase(it);
      return !craft_.empty();
    }
  }
  return false;
}

Aircraft& AircraftList::at(std::int32_t index) {
  assert(index >= 0 && index < count());
  return *craft_[static_cast<std::size_t>(index)];
}

const Aircraft& AircraftList::at(std::int32_t index) const {
  assert(index >= 0 && index < count());
  return *craft_[static_cast<std::size_t>(index)];
}
