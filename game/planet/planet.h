// The planet: the ground of the war. A fixed grid of 24 sectors, 6 columns
// by 4 rows, numbered 1 to 24 row by row from the top left; each sector a
// grid of 16 sub-sectors, 4 by 4, numbered 0 to 15; and a bunker in every
// sector. The world is the same in every game: it is built once from the
// world table, and after that only the player's cannon and craft change it.
//
// The enemy is the people and troops of every sub-sector; the game is won on
// the day their sum over the whole planet is 0.
#pragma once

#include <array>
#include <cassert>
#include <cstdint>
#include <string_view>

#include "game/fleet/bunker.h"

enum LandType : std::int32_t {
  kFarmLand = 0,
  kCity = 1,
  kMilitaryBase = 2,
  kMountains = 3,
  kDesert = 4,
  kFarmLandStrewn = 5,  // a second farm picture; nothing produces it
  kRubble = 6,          // what the Ion Cannon leaves
  kNuclearWasteland = 7,
  kRuins = 8,  // nothing produces it
};

inline constexpr int kSectorCount = 24;
inline constexpr int kSubSectorCount = 16;
inline constexpr int kMapColumns = 6;
inline constexpr int kMapRows = 4;

class SubSector {
 public:
  SubSector();

  std::int32_t landType() const { return landType_; }
  double population() const { return population_; }
  double troops() const { return troops_; }
  double fighters() const { return fighters_; }
  double structures() const { return structures_; }
  bool mapped() const { return mapped_; }

  void setLandType(std::int32_t code) { landType_ = code; }
  // Once seen, a sub-sector stays seen.
  void markMapped() { mapped_ = true; }
  // Every change to the forces goes through these; a loss is a negative delta.
  void addPopulation(std::int32_t delta) { population_ += delta; }
  void addTroops(std::int32_t delta) { troops_ += delta; }
  void addFighters(std::int32_t delta) { fighters_ += delta; }
  void addStructures(std::int32_t delta) { structures_ += delta; }

 private:
  std::int32_t landType_ = kNuclearWasteland;
  double population_ = 0;
  double troops_ = 100;
  double fighters_ = 0;
  double structures_ = 0;
  bool mapped_ = false;
};

class Sector {
 public:
  std::uint32_t number() const { return number_; }
  char letter() const { return letter_; }
  int column() const { return static_cast<int>(number_ - 1) % kMapColumns; }
  int row() const { return static_cast<int>(number_ - 1) / kMapColumns; }

  SubSector& subSector(int k) {
    assert(k >= 0 && k < kSubSectorCount);
    return subSectors_[k / 4][k % 4];
  }
  const SubSector& subSector(int k) const {
    assert(k >= 0 && k < kSubSectorCount);
    return subSectors_[k / 4][k % 4];
  }
  Bunker& bunker() { return bunker_; }
  const Bunker& bunker() const { return bunker_; }

  // People and troops of the sub-sectors the player has seen.
  double knownEnemy() const;

  // Lays out the sector from its row of the world table: the land of each
  // sub-sector (16 codes, in number order) and its share of `base` people,
  // troops, fighters and structures.
  void setUp(std::uint32_t number, char letter, double base, std::string_view landCodes);

 private:
  std::uint32_t number_ = 0;
  char letter_ = '?';
  SubSector subSectors_[4][4];
  Bunker bunker_;
};

class Planet {
 public:
  // Built from the world table.
  Planet();

  Sector& sector(int number) {
    assert(number >= 1 && number <= kSectorCount);
    return sectors_[static_cast<std::size_t>(number - 1)];
  }
  const Sector& sector(int number) const {
    assert(number >= 1 && number <= kSectorCount);
    return sectors_[static_cast<std::size_t>(number - 1)];
  }
  Sector& sectorAt(int row, int column) {
    assert(row >= 0 && row < kMapRows && column >= 0 && column < kMapColumns);
    return sectors_[static_cast<std::size_t>(row * kMapColumns + column)];
  }
  SubSector& subSector(int number, int k) { return sector(number).subSector(k); }

  // People and troops over all 384 sub-sectors, seen or not.
  double enemyTotal() const;

 private:
  std::array<Sector, kSectorCount> sectors_;
};

Planet& thePlanet();

// A sector of the world table, as set-up is given it.
struct WorldRow {
  char letter;
  double base;
  const char* landCodes;  // four groups of four codes, one group a row
};

extern const WorldRow kWorldTable[kSectorCount];

// The name a land code is shown by.
std::string_view landName(std::int32_t code);
