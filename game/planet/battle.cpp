#include "game/planet/battle.h"

#include <string>

#include "game/console/random.h"
#include "game/console/text.h"
#include "game/fleet/locations.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {

// A day of bombing costs the place the bomber stands at this much.
constexpr std::int32_t kBombingMaterials = 7;

struct BombDamage {
  int peopleMod, peopleBase;
  int structuresMod, structuresBase;  // a mod of 0: no structures fall
};

constexpr BombDamage kBombDamage[kBombTypeCount] = {
    {50, 80, 10, 10},
    {100, 160, 20, 20},
    {25, 40, 30, 30},
    {150, 240, 0, 0},
};

double fieldOf(const SubSector& sub, RaidField field) {
  switch (field) {
    case RaidField::Population: return sub.population();
    case RaidField::Fighters: return sub.fighters();
    case RaidField::Structures: return sub.structures();
  }
  return 0;
}

// A figure of a battle report: plain digits, no blanks.
std::string reportNumber(std::int32_t value, int width) {
  return cutAtBlank(leftAlignNumber(formatNumber(value, width, false), width));
}

std::string sectorWord(std::int32_t sector) {
  return std::string("Sector ") + thePlanet().sector(sector).letter();
}

// The pilot (crew 0) and the gunner (crew 1) decide a raid.
std::int32_t firepower(const Aircraft& craft) {
  const CrewMember& gunner = craft.getCrew().at(1);
  return gunner.getMilitary() * gunner.getPerformance();
}

// The loss roll: a skilful pilot flies closer and is lost more often. A
// pilot with no skill at all (a captive) is never lost.
bool lostInRaid(const Aircraft& craft) {
  const CrewMember& pilot = craft.getCrew().at(0);
  const std::int32_t pilotSkill = pilot.getNavigation() * pilot.getPerformance();
  const int first = gameRand();
  const int jitter = gameRand() % 10 - 5;
  if (pilotSkill <= 0) return false;
  int divisor = 5000 / pilotSkill + jitter;
  if (divisor < 1) divisor = 1;
  return first % divisor == 0;
}

// Craft that cannot raid are passed over: a job aimed at the ship's dock,
// or a craft without both a pilot and a gunner aboard.
bool canRaid(const Aircraft& craft) {
  return isSector(craft.getDestination()) && craft.getCrew().getCount() >= 2;
}

// The store may run below 0: a night of bombing takes its 7 all the same.
void takeBombingMaterials(std::int32_t location) {
  if (location == kMothershipLocation) {
    theMothership().addMaterials(-kBombingMaterials);
  } else {
    thePlanet().sector(location).bunker().addMaterials(-kBombingMaterials);
  }
}

}  // namespace

int pickRaidTarget(std::int32_t sector, RaidField field) {
  const Sector& s = thePlanet().sector(sector);
  int target = 0;
  for (int k = 0; k < kSubSectorCount; ++k) {
    if (fieldOf(s.subSector(k), field) > 0) target = k;
  }
  return target;
}

bool fighterRaid(std::int32_t sector, const Aircraft& craft, FighterTally& tally) {
  SubSector& target = thePlanet().subSector(sector, pickRaidTarget(sector, RaidField::Fighters));
  const std::int32_t kills = firepower(craft) / 10 + gameRand() % 4 - 2;
  if (kills > 0) {
    if (target.fighters() > 0) {
      target.addFighters(-kills);
      tally.fightersDestroyed += kills;
    } else {
      theMessageLog().post(
          sectorWord(sector) + " reports that there are no remaining enemy air defences left!", 4);
    }
  }
  const bool lost = lostInRaid(craft);
  if (lost) ++tally.casualties;
  return lost;
}

bool bomberRaid(std::int32_t sector, const Aircraft& craft, BomberTally& tally) {
  const BombList& bombs = craft.getBombs();
  int byType[kBombTypeCount] = {};
  for (std::int32_t i = 0; i < bombs.count(); ++i) {
    const std::int32_t type = bombs.at(i);
    if (type >= 0 && type < kBombTypeCount) ++byType[type];
  }
  // Napalm outnumbering every other kind goes for the buildings.
  const bool forBuildings = byType[kBombLiquifernoNapalm] > byType[kBombFlack] &&
                            byType[kBombLiquifernoNapalm] > byType[kBombPlasmaFusion] &&
                            byType[kBombLiquifernoNapalm] > byType[kBombNeuronutralizerGas];
  SubSector& target = thePlanet().subSector(
      sector, pickRaidTarget(sector, forBuildings ? RaidField::Structures : RaidField::Population));

  std::int32_t peopleKills = 0;
  std::int32_t structureKills = 0;
  const std::int32_t first = bombs.count() > 0 ? bombs.at(0) : -1;
  if (first >= 0 && first < kBombTypeCount) {
    const BombDamage& damage = kBombDamage[first];
    const std::int32_t power = firepower(craft);
    peopleKills = power * (gameRand() % damage.peopleMod + damage.peopleBase);
    if (damage.structuresMod > 0) {
      structureKills = power * (gameRand() % damage.structuresMod + damage.structuresBase);
    }
  }
  const std::string where = sectorWord(sector);
  if (peopleKills > 0) {
    if (target.population() > 0) {
      target.addPopulation(-peopleKills);
      tally.populationKilled += peopleKills;
    } else {
      theMessageLog().post(
          where + " reports that there are no remaining enemy ground defences left!", 4);
    }
  }
  if (structureKills > 0) {
    if (target.structures() > 0) {
      target.addStructures(-structureKills);
      tally.structuresDestroyed += structureKills;
    } else {
      theMessageLog().post(where + " reports that there are no remaining enemy structures left!",
                           4);
    }
  }
  const bool lost = lostInRaid(craft);
  if (lost) ++tally.casualties;
  return lost;
}

void resolveRaids() {
  FighterTally fighters;
  BomberTally bombers;
  for (std::int32_t location = 0; location <= kLastLocation; ++location) {
    AircraftList& list = aircraftAt(location);
    std::int32_t i = 0;
    while (i < list.count()) {
      Aircraft& craft = list.at(i);
      bool lost = false;
      if (craft.getMission() == kMissionAttacking && craft.getType() == kStealthFighter &&
          canRaid(craft)) {
        ++fighters.raids;
        lost = fighterRaid(craft.getDestination(), craft, fighters);
      } else if (craft.getMission() == kMissionBombing && canRaid(craft)) {
        takeBombingMaterials(location);
        ++bombers.raids;
        lost = bomberRaid(craft.getDestination(), craft, bombers);
      }
      // A lost craft goes down with its crew; the next one takes its row.
      if (lost) {
        list.remove(craft);
      } else {
        ++i;
      }
    }
  }
  if (fighters.raids > 0) {
    theMessageLog().post(
        "Battle Report: Fighers have destroyed " + reportNumber(fighters.fightersDestroyed, 4) +
            " enemy fighters, and taken " + reportNumber(fighters.casualties, 4) + " casualties",
        5);
  }
  if (bombers.raids > 0) {
    theMessageLog().post(
        "Battle Report: Bombers have destroyed " + reportNumber(bombers.populationKilled, 9) +
            " enemy soilders, destroyed " + reportNumber(bombers.structuresDestroyed, 9) +
            " structures, and taken " + reportNumber(bombers.casualties, 3) + " casualties",
        5);
  }
}
