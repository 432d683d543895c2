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
  void SetUp() override { hoverOver(1); }
  void hoverOver(int sector) {
    startFreshRun();
    ship.setDestination(sector);
    while (ship.currentSector() != sector) ship.moveOneDay();
    ship.setFuel(150000);
  }
  // Fires on k from the control screen and leaves it.
  void fire(int k) {
    std::string keys;
    for (int i = 0; i < k % 4; ++i) keys += "Right ";
    for (int i = 0; i < k / 4; ++i) keys += "Down ";
    scripted::addKeys(keys + "Enter y x Esc");
    EXPECT_FALSE(scripted::run(runIonCannonControl));
  }
  std::string news() { return std::string(theMessageLog().at(0)->text.view()); }
  SubSector& sub(int k) { return thePlanet().subSector(ship.currentSector(), k); }
  Mothership& ship = theMothership();
};

TEST_F(IonCannonTest, AShotKillsPeopleAndTroopsAndLeavesTheRest) {
  sub(5).markMapped();
  const double structures = sub(5).structures();
  sub(5).addFighters(30);
  Bunker& bunker = thePlanet().sector(1).bunker();
  bunker.setSubSector(5);
  bunker.markBuilt();
  fire(5);
  EXPECT_EQ(sub(5).population(), 0);
  EXPECT_EQ(sub(5).troops(), 0);
  EXPECT_EQ(sub(5).landType(), kRubble);
  EXPECT_EQ(sub(5).structures(), structures);
  EXPECT_EQ(sub(5).fighters(), 30) << "fighters and buildings are left alone";
  EXPECT_TRUE(bunker.isBuilt()) << "a bunker stands unharmed";
  EXPECT_EQ(ship.fuel(), 100000);
  EXPECT_EQ(news(), "A City in Sector I has been decimated by your glorious Ion Cannon.");
  EXPECT_EQ(theMessageLog().at(0)->priority, 4);
  EXPECT_EQ(scripted::textAt(45, 2, 14), "Sector: Rubble");
}

TEST_F(IonCannonTest, FiftyThousandIsTheLastShotFiftyThousandAndOneIsNot) {
  scripted::addKeys("Enter n Enter Right Right Enter Tab Esc");  // no, no, and a tank of fuel
  EXPECT_FALSE(scripted::run(runIonCannonControl));
  EXPECT_EQ(ship.fuel(), 250000);
  EXPECT_EQ(scripted::textAt(45, 10, 16), std::string(16, ' ')) << "the question is wiped";
  EXPECT_EQ(scripted::colourAt(12, 24), 48);
  ship.setFuel(50001);
  fire(0);
  EXPECT_EQ(ship.fuel(), 1);
  ship.setFuel(50000);
  scripted::addKeys("Enter y x x");
  EXPECT_FALSE(scripted::run(runIonCannonControl));
  EXPECT_EQ(ship.fuel(), 0);
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(10, 6, 33), "AT LEAST YA WENT OUT WITH A BANG!");
}

TEST_F(IonCannonTest, AnUnseenTargetIsShotBlind) {
  int deadFrames = 0;
  scripted::watchSleeps([&](int) { deadFrames += scripted::textAt(56, 22, 9) == "NO VISUAL"; });
  fire(2);
  EXPECT_EQ(deadFrames, 120) << "the dead channel runs until the shot is done";
  EXPECT_TRUE(sub(2).mapped());
  EXPECT_EQ(news().substr(0, 49), "A SubSector of an unknown land type in Sector I h");
}

TEST_F(IonCannonTest, TheWastelandAndASecondShotOnRubble) {
  hoverOver(14);
  sub(12).markMapped();
  fire(12);
  EXPECT_EQ(news().substr(0, 62), "The Radioactive Elements in a Nuclear Wasteland in Sector J ha");
  EXPECT_EQ(sub(12).landType(), kRubble);
  theMessageLog().clear();
  fire(12);
  EXPECT_EQ(news().substr(0, 72),
            "A SubSector that has already been destroyed by your hands in Sector J ha");
  EXPECT_EQ(ship.fuel(), 50000);
}

TEST_F(IonCannonTest, TheFeedTakesItsTimeAndBurnsTheTile) {
  sub(0).markMapped();
  int burnt = 0;
  scripted::watchSleeps([&](int) {
    burnt = 0;
    for (int y = 0; y < 4; ++y) {
      for (int x = 0; x < 9; ++x)
        burnt += scripted::colourAt(tileColumn(0) + x, tileRow(0) + y) == 112;
    }
  });
  scripted::addKeys("Enter y");
  scripted::run(runIonCannonControl);
  EXPECT_EQ(scripted::clockMicros(), 7206000) << "with a picture: about 7.2 seconds";
  EXPECT_GE(burnt, 28) << "all four stages: 7 x 4 cells";
  EXPECT_EQ(scripted::textAt(23, 22, 20), "<<FIRE COMPLETED>>  ");
  hoverOver(1);
  scripted::addKeys("Enter y");
  scripted::run(runIonCannonControl);
  EXPECT_EQ(scripted::clockMicros(), 1200000) << "without one: 1.2 seconds";
}

}  // namespace
