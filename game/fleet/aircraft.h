// The player's craft. A craft lives in exactly one list, the ship's or a
// bunker's, and is told apart only by its row there: code that holds on to
// a craft holds a location number (0 the ship, 1 to 24 a sector) and a row.
//
// The order of a craft's crew means something: boarding puts a member at
// the front, so index 0 (the last to board) is the pilot and index 1 the
// gunner or bomb aimer.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "game/cargo/bomb_list.h"
#include "game/console/text.h"
#include "game/crew/crew_list.h"

enum AircraftType : std::int32_t {
  kSaucerTransport = 0,
  kStealthFighter = 1,
  kHulkBomber = 2,
  kCargoBarge = 3,
};
inline constexpr int kAircraftTypeCount = 4;

enum Mission : std::int32_t {
  kMissionInactive = 0,
  kMissionScouting = 1,
  kMissionAttacking = 2,
  kMissionDefending = 3,
  kMissionTraveling = 4,
  kMissionAbductingCows = 5,
  kMissionAbductingHumans = 6,
  kMissionShuttling = 7,
  kMissionEscorting = 8,
  kMissionBombing = 9,
};
inline constexpr int kMissionCount = 10;

// The label of the stat page ("Inactive", ..., "No Job yet Assigned").
std::string_view missionLabel(std::int32_t mission);

inline constexpr std::int32_t kBlankCraftCrew = 15;
inline constexpr std::int32_t kCapsuleDockSpace = 40000;

class Aircraft {
 public:
  // A blank craft: "BAD!", every figure 0.
  explicit Aircraft(std::int32_t crewCapacity = kBlankCraftCrew);

  // Everything from the type's row, aimed at where it stands, no crew, the
  // type's bomb aboard. An unknown type is "BAD!" with every figure 0.
  void setUp(std::int32_t type, std::int32_t location);
  void copyFrom(const Aircraft& other) { *this = other; }

  std::string_view getName() const { return name_.view(); }
  std::int32_t getType() const { return type_; }
  std::int32_t getFuel() const { return fuel_; }
  std::int32_t getFood() const { return food_; }
  std::int32_t getMaterials() const { return materials_; }
  std::int32_t getArtifacts() const { return artifacts_; }
  std::int32_t getCrewCapacity() const { return crewCapacity_; }
  std::int32_t getCargoCapacity() const { return cargoCapacity_; }
  std::int32_t getDockSpace() const { return dockSpace_; }
  std::int32_t getLocation() const { return location_; }
  std::int32_t getDestination() const { return destination_; }
  std::int32_t getMission() const { return mission_; }
  // The stores aboard plus 2000 a bomb, worked out afresh.
  std::int32_t getCargoUsed();

  CrewList& getCrew() { return crew_; }
  const CrewList& getCrew() const { return crew_; }
  BombList& getBombs() { return bombs_; }
  const BombList& getBombs() const { return bombs_; }

  void setLocation(std::int32_t location) { location_ = location; }
  void setDestination(std::int32_t destination) { destination_ = destination; }
  void setMission(std::int32_t mission) { mission_ = mission; }

 private:
  std::int32_t fuel_ = 0;
  std::int32_t food_ = 0;
  std::int32_t materials_ = 0;
  std::int32_t artifacts_ = 0;
  std::int32_t crewCapacity_;
  std::int32_t cargoUsed_ = 0;
  std::int32_t cargoCapacity_ = 0;
  std::int32_t dockSpace_ = 0;
  CrewList crew_;
  BombList bombs_;
  FixedText<20> name_{"BAD!"};
  std::int32_t location_ = 0;
  std::int32_t destination_ = 0;
  std::int32_t mission_ = kMissionInactive;
  std::int32_t type_ = kSaucerTransport;
};

// The room a craft of this type takes in the ship's dock (0 for an
// unknown type).
std::int32_t dockSpaceOf(std::int32_t type);

class AircraftList {
 public:
  AircraftList() = default;
  AircraftList(const AircraftList& other);
  AircraftList& operator=(const AircraftList& other);
  AircraftList(AircraftList&&) = default;
  AircraftList& operator=(AircraftList&&) = default;

  // A new craft of the type at the end; false and no change if it takes
  // more than the dock room left (a craft that exactly fits is taken).
  bool add(std::int32_t type, std::int32_t dockRoomLeft, std::int32_t location);
  // A copy of the craft at the front.
  bool addFront(const Aircraft& craft);
  // Takes out exactly this craft (by address); true if craft are left.
  bool remove(const Aircraft& craft);
  Aircraft& at(std::int32_t index);
  const Aircraft& at(std::int32_t index) const;
  std::int32_t count() const { return static_cast<std::int32_t>(craft_.size()); }
  void clear() { craft_.clear(); }

 private:
  std::vector<std::unique_ptr<Aircraft>> craft_;
};
