#include "game/planet/navigation.h"

#include <gtest/gtest.h>

#include <vector>

#include "game/console/scripted.h"
#include "game/planet/ground_map.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class NavigationTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  void navigate(const std::string& keys) {
    scripted::addKeys(keys);
    EXPECT_FALSE(scripted::run(runNavigateScreen));
  }
  Mothership& ship = theMothership();
};

TEST_F(NavigationTest, TheCursorPassesThroughTheOrbitBoxAndLeavesByItsSide) {
  int through = 0;
  const int steps[][3] = {
      {3, kKeyUp, kOrbitCursor},
      {kOrbitCursor, kKeyUp, 21},
      {kOrbitCursor, kKeyDown, 3},
      {22, kKeyDown, kOrbitCursor},
      {kOrbitCursor, kKeyDown, 4},
      {kOrbitCursor, kKeyUp, 22},
      {kOrbitCursor, kKeyLeft, kOrbitCursor},
      {7, kKeyLeft, 12},
  };
  for (const auto& step : steps) {
    EXPECT_EQ(navigateCursorAfter(step[0], step[1], through), step[2]) << step[0];
  }
}

TEST_F(NavigationTest, TheShipMovesAsTheFiguresSay) {
  EXPECT_EQ(travelDays(1, 24), 5);
  EXPECT_EQ(travelFuel(1, 24), 5000);
  EXPECT_EQ(travelFuel(0, kOrbitCursor), 10000);
  ship.setDestination(1);
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 140000);
  ship.setDestination(24);
  std::vector<int> passed;
  while (ship.currentSector() != 24) {
    ship.moveOneDay();
    passed.push_back(ship.currentSector());
  }
  EXPECT_EQ(passed, (std::vector<int>{8, 15, 22, 23, 24}));
  EXPECT_EQ(ship.fuel(), 135000);
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 134900) << "hovering costs 100 a day";
  ship.setDestination(0);
  ship.moveOneDay();
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 124900) << "up to orbit 10,000, and orbit is free";
  ship.toggleShields();
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 124700) << "the shield costs 200 anywhere";
  ship.setDestination(5);
  ship.moveOneDay();
  ship.setFuel(60);
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 0);
}

TEST_F(NavigationTest, TheScreenShowsTheCursorsTripAndTheDestination) {
  navigate("Esc");
  EXPECT_EQ(scripted::textAt(3, 19, 13), "Sector: I    ");
  EXPECT_EQ(scripted::textAt(3, 20, 6), "ETA: 1");
  EXPECT_EQ(scripted::textAt(3, 21, 16), "Fuel Req: 10,000");
  EXPECT_EQ(scripted::textAt(49, 19, 28), " There is currently no      ");
  EXPECT_EQ(scripted::colourAt(33, 18), 13) << "the ship's marks round the orbit box";
  navigate("Right Down Enter Up Right Up Esc");
  EXPECT_EQ(ship.destinationSector(), 8);
  EXPECT_EQ(scripted::textAt(49, 19, 13), "Sector: A    ");
  EXPECT_EQ(scripted::codeAt(27, 6), 30);
  EXPECT_EQ(scripted::colourAt(27, 6), 14) << "the destination's marks";
  EXPECT_EQ(scripted::textAt(3, 19, 13), "Sector: Orbit") << "the cursor went up through V";
  EXPECT_EQ(scripted::colourAt(31, 18), 12) << "the orbit box is lit";
}

TEST_F(NavigationTest, OverTheCursorsSectorTheTripIsNothingAndChoosingItStopsTheShip) {
  ship.setDestination(9);
  ship.moveOneDay();
  ship.setDestination(24);
  navigate("Right Right Down Enter Esc");
  EXPECT_EQ(scripted::textAt(3, 20, 6), "ETA: 0");
  EXPECT_EQ(scripted::textAt(3, 21, 11), "Fuel Req: 0");
  EXPECT_EQ(scripted::colourAt(34, 7), 13) << "the ship hovers over T";
  EXPECT_EQ(scripted::textAt(49, 19, 28), " There is currently no      ");
}

TEST_F(NavigationTest, TheRadioIsSilentAndTheCannonRefusesInOrbit) {
  scripted::addKeys("Down Down Enter");
  scripted::run(runNavigationDeck);
  EXPECT_EQ(scripted::colourAt(43, 12), 241) << "Radio still selected";
  EXPECT_EQ(scripted::rowText(0).substr(21, 12), "Press Escape");
  scripted::addKeys("Down Down Down Enter");
  scripted::run(runNavigationDeck);
  EXPECT_EQ(scripted::textAt(10, 10, 27), "You are currently in orbit.");
}

}  // namespace
