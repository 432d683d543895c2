// The day's raids: every Stealth Fighter on Attack and every Hulk Bomber on
// Bomb strikes its destination sector, killing what it can in one
// sub-sector, then rolls on its pilot's skill to see whether it comes back.
// Raids never touch troops. The day's tallies become two battle reports.
#pragma once

#include <cstdint>

class Aircraft;

struct FighterTally {
  std::int32_t raids = 0;
  std::int32_t fightersDestroyed = 0;
  std::int32_t casualties = 0;
};

struct BomberTally {
  std::int32_t raids = 0;
  std::int32_t populationKilled = 0;
  std::int32_t structuresDestroyed = 0;
  std::int32_t casualties = 0;
};

// What a raid goes for in a sub-sector.
enum class RaidField { Population, Fighters, Structures };

void resolveRaids();

// One craft's raid on a sector; true if the craft is lost.
bool fighterRaid(std::int32_t sector, const Aircraft& craft, FighterTally& tally);
bool bomberRaid(std::int32_t sector, const Aircraft& craft, BomberTally& tally);

// The last sub-sector, from 0 to 15, whose field is above 0; 0 if none is.
int pickRaidTarget(std::int32_t sector, RaidField field);
