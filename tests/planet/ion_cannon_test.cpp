#include "game/planet/ion_cannon.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/planet/ground_map.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class IonCannonTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    hoverOver(1);
  }
  void hoverOver(int sector) {
    ship.setDestination(sector);
    while (ship.currentSector() != sector) ship.moveOneDay();
    ship.setFuel(150000);
  }
  // Fires on k from the control screen; true if the screen is left.
  bool fire(int k, const std::string& after = "Esc") {
    std::string keys;
    for (int i = 0; i < k % 4; ++i) keys += "Right ";
    for (int i = 0; i < k / 4; ++i) keys += "Down ";
    scripted::addKeys(keys + "Enter y x " + after);
    return !scripted::run(runIonCannonControl);
  }
  std::string news() { return std::string(theMessageLog().at(0)->text.view()); }
  SubSector& sub(int k) { return thePlanet().subSector(ship.currentSector(), k); }
  Mothership& ship = theMothership();
};

TEST_F(IonCannonTest, AShotWipesOutTheSubSectorAndCostsFiftyThousand) {
  sub(5).markMapped();
  const double fighters = sub(0).fighters();
  const double structures = sub(5).structures();
  EXPECT_TRUE(fire(5));
  EXPECT_EQ(sub(5).population(), 0);
  EXPECT_EQ(sub(5).troops(), 0);
  EXPECT_EQ(sub(5).landType(), kRubble);
  EXPECT_EQ(sub(5).structures(), structures) << "buildings are left alone";
  EXPECT_EQ(sub(0).fighters(), fighters);
  EXPECT_EQ(ship.fuel(), 100000);
  EXPECT_EQ(news(), "A City in Sector I has been decimated by your glorious Ion Cannon.");
  EXPECT_EQ(theMessageLog().at(0)->priority, 4);
}

TEST_F(IonCannonTest, FiftyThousandIsTheLastShotFiftyThousandAndOneIsNot) {
  ship.setFuel(50001);
  EXPECT_TRUE(fire(0));
  EXPECT_EQ(ship.fuel(), 1);
  EXPECT_FALSE(isGameOver());
  ship.setFuel(50000);
  scripted::addKeys("Enter y x x");
  EXPECT_FALSE(scripted::run(runIonCannonControl));
  EXPECT_EQ(ship.fuel(), 0);
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(10, 6, 33), "AT LEAST YA WENT OUT WITH A BANG!");
  EXPECT_EQ(scripted::textAt(0, 23, 27), "<Press Any Key To End Game>");
}

TEST_F(IonCannonTest, AnUnseenTargetIsShotBlindAndThenKnownAsRubble) {
  int deadFrames = 0;
  scripted::watchSleeps([&](int) { deadFrames += scripted::textAt(56, 22, 9) == "NO VISUAL"; });
  EXPECT_TRUE(fire(2));
  EXPECT_EQ(deadFrames, 120) << "the dead channel runs until the shot is done";
  EXPECT_TRUE(sub(2).mapped());
  EXPECT_EQ(sub(2).landType(), kRubble);
  EXPECT_EQ(news(),
            "A SubSector of an unknown land type in Sector I has been leveled by your Ion Cannon. "
            "Whatever was there before isn't there now.");
}

TEST_F(IonCannonTest, TheWastelandAndASecondShotOnRubble) {
  hoverOver(14);
  sub(12).markMapped();
  EXPECT_TRUE(fire(12));
  EXPECT_EQ(news(),
            "The Radioactive Elements in a Nuclear Wasteland in Sector J have been obliterated by "
            "the environmentally friendly Ion Cannon.");
  EXPECT_EQ(sub(12).landType(), kRubble);
  theMessageLog().clear();
  EXPECT_TRUE(fire(12));
  EXPECT_EQ(news(),
            "A SubSector that has already been destroyed by your hands in Sector J has been given "
            "a lethal dose of destruction from the Ion Cannon.");
  EXPECT_EQ(ship.fuel(), 50000);
}

TEST_F(IonCannonTest, ABunkerStandsUnharmed) {
  Bunker& bunker = thePlanet().sector(1).bunker();
  bunker.setSubSector(3);
  bunker.markBuilt();
  bunker.addFood(40);
  EXPECT_TRUE(fire(3));
  EXPECT_TRUE(bunker.isBuilt());
  EXPECT_EQ(bunker.getFood(), 40);
}

TEST_F(IonCannonTest, NoAtThePromptAndTheHiddenFuelKey) {
  scripted::addKeys("Enter n Tab Enter Right Right Enter Esc");
  EXPECT_FALSE(scripted::run(runIonCannonControl));
  EXPECT_EQ(ship.fuel(), 250000);
  EXPECT_EQ(sub(0).landType(), kMilitaryBase);
  EXPECT_EQ(scripted::textAt(45, 10, 16), std::string(16, ' ')) << "the question is wiped";
  EXPECT_EQ(scripted::textAt(12, 24, 7), "250,000");
  EXPECT_EQ(scripted::colourAt(12, 24), 48);
}

TEST_F(IonCannonTest, TheFeedTakesItsTime) {
  sub(0).markMapped();
  scripted::addKeys("Enter y");
  scripted::run(runIonCannonControl);
  EXPECT_EQ(scripted::clockMicros(), 7206000) << "with a picture: about 7.2 seconds";
  EXPECT_EQ(scripted::textAt(23, 22, 20), "<<FIRE COMPLETED>>  ");
  EXPECT_EQ(scripted::textAt(56, 22, 9), "LIVE FEED");
  EXPECT_EQ(scripted::textAt(45, 2, 14), "Sector: Rubble");
  startFreshRun();
  hoverOver(1);
  scripted::addKeys("Enter y");
  scripted::run(runIonCannonControl);
  EXPECT_EQ(scripted::clockMicros(), 1200000) << "without one: 1.2 seconds";
}

TEST_F(IonCannonTest, TheTargetsTileBurnsFromItsMiddle) {
  sub(0).markMapped();
  std::vector<int> stageCells;
  scripted::watchSleeps([&](int) {
    int burnt = 0;
    for (int y = 0; y < 4; ++y) {
      for (int x = 0; x < 9; ++x)
        burnt += scripted::colourAt(tileColumn(0) + x, tileRow(0) + y) == 112;
    }
    stageCells.push_back(burnt);
  });
  scripted::addKeys("Enter y");
  scripted::run(runIonCannonControl);
  ASSERT_GT(stageCells.size(), 40u);
  EXPECT_GE(stageCells.back(), 28) << "all four stages: 7 x 4 cells";
  EXPECT_EQ(scripted::textAt(45 + 13, 6, 4), scripted::textAt(45 + 13, 6, 4));
}

}  // namespace
