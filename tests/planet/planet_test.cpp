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
  for (int n = 1; n <= kSectorCount; ++n) {
    const Sector& sector = planet.sector(n);
    const WorldRow& row = kWorldTable[n - 1];
    double population = 0, troops = 0, fighters = 0, structures = 0;
    for (int k = 0; k < kSubSectorCount; ++k) {
      const SubSector& s = sector.subSector(k);
      population += s.population();
      troops += s.troops();
      fighters += s.fighters();
      structures += s.structures();
      EXPECT_FALSE(s.mapped());
    }
    EXPECT_EQ(sector.letter(), letters[n - 1]);
    EXPECT_EQ(sector.bunker().sectorLetter(), letters[n - 1]);
    EXPECT_EQ(population, row.population) << "sector " << n;
    EXPECT_EQ(troops, row.troops) << "sector " << n;
    EXPECT_EQ(fighters, row.fighters) << "sector " << n;
    EXPECT_EQ(structures, row.structures) << "sector " << n;
  }
}

TEST_F(PlanetTest, TheWholeMapAddsUp) {
  EXPECT_EQ(planet.enemyTotal(), 286591127.0);
  int lands[8] = {};
  double fighters = 0, structures = 0;
  for (int n = 1; n <= kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) {
      const SubSector& s = planet.subSector(n, k);
      ++lands[s.landType()];
      fighters += s.fighters();
      structures += s.structures();
      EXPECT_GE(s.troops(), 100);
    }
  }
  EXPECT_EQ(lands[kFarmLand], 73);
  EXPECT_EQ(lands[kCity], 82);
  EXPECT_EQ(lands[kMilitaryBase], 84);
  EXPECT_EQ(lands[kMountains], 66);
  EXPECT_EQ(lands[kDesert], 78);
  EXPECT_EQ(lands[kNuclearWasteland], 1);
  EXPECT_EQ(fighters, 8400);
  EXPECT_EQ(structures, 199898785);
}

TEST_F(PlanetTest, SubSectorsOfTheFirstSectorAndTheWasteland) {
  const SubSector& base = planet.subSector(1, 0);
  EXPECT_EQ(base.landType(), kMilitaryBase);
  EXPECT_EQ(base.population(), 312938);
  EXPECT_EQ(base.troops(), 10100);
  EXPECT_EQ(base.fighters(), 100);
  EXPECT_EQ(base.structures(), 89732);
  const SubSector& city = planet.subSector(1, 5);
  EXPECT_EQ(city.population(), 2347039);
  EXPECT_EQ(city.troops(), 100);
  EXPECT_EQ(city.structures(), 1955949);
  const SubSector& mountains = planet.subSector(1, 1);
  EXPECT_EQ(mountains.population(), 156469);
  EXPECT_EQ(mountains.structures(), 43491);
  const SubSector& wasteland = planet.subSector(14, 12);
  EXPECT_EQ(wasteland.landType(), kNuclearWasteland);
  EXPECT_EQ(wasteland.population(), 0);
  EXPECT_EQ(wasteland.troops(), 100);
  EXPECT_EQ(wasteland.structures(), 27);
}

TEST_F(PlanetTest, KnownEnemyCountsOnlyWhatHasBeenSeen) {
  Sector& sector = planet.sector(1);
  EXPECT_EQ(sector.knownEnemy(), 0);
  sector.subSector(0).markMapped();
  EXPECT_EQ(sector.knownEnemy(), 312938 + 10100);
  sector.subSector(0).addPopulation(-400000);
  EXPECT_EQ(sector.knownEnemy(), 312938 + 10100 - 400000)
      << "an over-bombed sum counts with its sign";
}

TEST_F(PlanetTest, PlacesOnTheGrid) {
  EXPECT_EQ(planet.sectorAt(3, 5).number(), 24u);
  EXPECT_EQ(planet.sectorAt(0, 0).number(), 1u);
  EXPECT_EQ(planet.sector(8).column(), 1);
  EXPECT_EQ(planet.sector(8).row(), 1);
  EXPECT_EQ(landName(kFarmLandStrewn), "Farm Land");
  EXPECT_EQ(landName(kRuins), "ERROR ERROR icecream");
}

}  // namespace
