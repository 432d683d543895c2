// A bunker: the player's base on the ground. Every sector holds one from the
// start, built or not; a capsule brings crew, food and materials to it and
// the crew build it day by day.
#pragma once

#include <cstdint>

#include "game/cargo/bomb_list.h"
#include "game/crew/crew_list.h"
#include "game/fleet/aircraft.h"

class Bunker {
 public:
  std::int32_t getFood() const { return food_; }
  std::int32_t materials() const { return materials_; }
  std::int32_t getSubSector() const { return subSector_; }
  bool isBuilt() const { return built_; }
  double progress() const { return progress_; }
  char sectorLetter() const { return sectorLetter_; }
  AircraftList& getAircraft() { return aircraft_; }
  const AircraftList& getAircraft() const { return aircraft_; }
  CrewList& getCrew() { return crew_; }
  const CrewList& getCrew() const { return crew_; }
  BombList& getBombs() { return bombs_; }
  const BombList& getBombs() const { return bombs_; }

  void addFood(std::int32_t amount) { food_ += amount; }
  void addMaterials(std::int32_t amount) { materials_ += amount; }
  // The site, 0 to 15: set at each capsule landing.
  void setSubSector(std::int32_t subSector) { subSector_ = subSector; }
  void setSectorLetter(char letter) { sectorLetter_ = letter; }
  // The crew have finished the work.
  void markBuilt() {
    built_ = true;
    progress_ = 100.0;
  }

  // One day of the crew's work: materials used at the crew's rate (half a
  // day's work when they run out), progress made, built at 100. Returns the
  // days still needed, 0 when finished today or due tomorrow.
  std::int32_t buildOneDay();

  // Empties the bunker for a new game: its stores, craft, crew and bombs,
  // and it is no longer built. The site and the work done stay.
  void clear();

 private:
  std::int32_t food_ = 0;
  std::int32_t fuel_ = 0;  // nothing changes it
  std::int32_t materials_ = 0;
  std::int32_t artifacts_ = 0;  // nothing changes it
  AircraftList aircraft_;
  CrewList crew_{kBunkerCrewCapacity};
  BombList bombs_;  // nothing adds to it
  bool built_ = false;
  std::int32_t subSector_ = -1;  // -1 until a capsule has been aimed here
  double progress_ = 0.0;        // percent of the work done
  char sectorLetter_ = '?';
};
