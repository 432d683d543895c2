#include "game/planet/planet.h"

#include <gtest/gtest.h>

#include "tests/support/fresh_game.h"

namespace {

class PlanetTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  Planet& planet = thePlanet();
};

TEST_F(PlanetTest, EverySectorHoldsWhatTheWorldTableSays) {
  const char* letters = "ILVOUCMATBHPQJWRNFEXDGSK";
  int lands[9] = {};
  for (int n = 1; n <= kSectorCount; ++n) {
    const Sector& sector = planet.sector(n);
    const WorldRow& row = kWorldTable[n - 1];
    double sums[4] = {};
    for (int k = 0; k < kSubSectorCount; ++k) {
      const SubSector& s = sector.subSector(k);
      sums[0] += s.population();
      sums[1] += s.troops();
      sums[2] += s.fighters();
      sums[3] += s.structures();
      ++lands[s.landType()];
    }
    EXPECT_EQ(sector.letter(), letters[n - 1]);
    EXPECT_EQ(sector.bunker().sectorLetter(), letters[n - 1]);
    EXPECT_EQ(sums[0], row.population) << "sector " << n;
    EXPECT_EQ(sums[1], row.troops) << "sector " << n;
    EXPECT_EQ(sums[2], row.fighters) << "sector " << n;
    EXPECT_EQ(sums[3], row.structures) << "sector " << n;
  }
  EXPECT_EQ(planet.enemyTotal(), 286591127.0);
  const int expected[9] = {73, 82, 84, 66, 78, 0, 0, 1, 0};
  for (int code = 0; code < 9; ++code) EXPECT_EQ(lands[code], expected[code]) << code;
}

TEST_F(PlanetTest, SubSectorsOfTheFirstSectorAndTheWasteland) {
  const SubSector& base = planet.subSector(1, 0);
  EXPECT_EQ(base.landType(), kMilitaryBase);
  EXPECT_EQ(base.population(), 312938);
  EXPECT_EQ(base.troops(), 10100);
  EXPECT_EQ(base.fighters(), 100);
  EXPECT_EQ(base.structures(), 89732);
  EXPECT_EQ(planet.subSector(1, 5).population(), 2347039);
  EXPECT_EQ(planet.subSector(1, 5).structures(), 1955949) << "a city builds three times over";
  EXPECT_EQ(planet.subSector(1, 1).structures(), 43491);
  const SubSector& wasteland = planet.subSector(14, 12);
  EXPECT_EQ(wasteland.landType(), kNuclearWasteland);
  EXPECT_EQ(wasteland.population(), 0);
  EXPECT_EQ(wasteland.structures(), 27);
}

TEST_F(PlanetTest, KnownEnemyCountsOnlyWhatHasBeenSeen) {
  Sector& sector = planet.sector(1);
  EXPECT_EQ(sector.knownEnemy(), 0);
  sector.subSector(0).markMapped();
  sector.subSector(0).addPopulation(-400000);
  EXPECT_EQ(sector.knownEnemy(), 312938 + 10100 - 400000) << "an over-bombed sum counts";
  EXPECT_EQ(planet.sectorAt(3, 5).number(), 24u);
  EXPECT_EQ(planet.sector(8).column(), 1);
  EXPECT_EQ(landName(kFarmLandStrewn), "Farm Land");
  EXPECT_EQ(landName(kRuins), "ERROR ERROR icecream");
}

}  // namespace
