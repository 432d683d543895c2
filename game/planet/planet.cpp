#include "game/planet/planet.h"

#include <cmath>
#include <ctime>

#include "game/console/random.h"

namespace {

constexpr double kPopulationScale = 1.564692867;
constexpr double kStructureDivisor = 3.6;
constexpr double kCityStructureFactor = 3.0;
constexpr int kBaseTroops = 10000;
constexpr int kBaseFighters = 100;

// Each land's share of a sector's people, by land code 0 to 4.
constexpr double kShare[5] = {0.08, 0.75, 0.1, 0.05, 0.02};

}  // namespace

SubSector::SubSector() {
  // The first sub-sector built seeds the game's random numbers, once a run.
  static bool seeded = false;
  if (!seeded) {
    seedRandom(static_cast<unsigned>(std::time(nullptr)));
    seeded = true;
  }
}

double Sector::knownEnemy() const {
  double sum = 0;
  for (int k = 0; k < kSubSectorCount; ++k) {
    const SubSector& s = subSector(k);
    if (s.mapped()) sum += s.population() + s.troops();
  }
  return sum;
}

void Sector::setUp(std::uint32_t number, char letter, double base, std::string_view landCodes) {
  number_ = number;
  letter_ = letter;
  bunker_.setSectorLetter(letter);
  int counts[5] = {};
  int k = 0;
  for (char c : landCodes) {
    if (c < '0' || c > '9' || k >= kSubSectorCount) continue;
    int code = c - '0';
    subSector(k++).setLandType(code);
    if (code <= kDesert) ++counts[code];
  }
  // A share whose land the sector lacks is lost; truncation drops the rest.
  for (k = 0; k < kSubSectorCount; ++k) {
    SubSector& s = subSector(k);
    const int code = s.landType();
    double factor = 1.0;
    if (code >= kFarmLand && code <= kDesert) {
      s.addPopulation(static_cast<std::int32_t>(
          std::trunc(kShare[code] * base * kPopulationScale / counts[code])));
    }
    if (code == kCity) factor = kCityStructureFactor;
    if (code == kMilitaryBase) {
      s.addTroops(kBaseTroops);
      s.addFighters(kBaseFighters);
    }
    s.addStructures(static_cast<std::int32_t>(
        std::trunc((s.population() + s.troops()) / kStructureDivisor * factor)));
  }
}

Planet::Planet() {
  for (int n = 1; n <= kSectorCount; ++n) {
    const WorldRow& row = kWorldTable[n - 1];
    sector(n).setUp(static_cast<std::uint32_t>(n), row.letter, row.base, row.landCodes);
  }
}

double Planet::enemyTotal() const {
  double sum = 0;
  for (const Sector& s : sectors_) {
    for (int k = 0; k < kSubSectorCount; ++k) {
      const SubSector& sub = s.subSector(k);
      sum += sub.population() + sub.troops();
    }
  }
  return sum;
}

std::string_view landName(std::int32_t code) {
  switch (code) {
    case kFarmLand:
    case kFarmLandStrewn: return "Farm Land";
    case kCity: return "City";
    case kMilitaryBase: return "Military Base";
    case kMountains: return "Mountains";
    case kDesert: return "Desert";
    case kRubble: return "Rubble";
    case kNuclearWasteland: return "Nuclear Wasteland";
    default: return "ERROR ERROR icecream";
  }
}
