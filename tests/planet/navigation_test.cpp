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
  bool navigate(const std::string& keys) {
    scripted::addKeys(keys);
    return !scripted::run(runNavigateScreen);
  }
  Mothership& ship = theMothership();
};

TEST_F(NavigationTest, TheCursorPassesThroughTheOrbitBoxAndLeavesByItsSide) {
  int through = 0;
  EXPECT_EQ(navigateCursorAfter(3, kKeyUp, through), kOrbitCursor);
  EXPECT_EQ(navigateCursorAfter(kOrbitCursor, kKeyUp, through), 21);
  EXPECT_EQ(navigateCursorAfter(kOrbitCursor, kKeyDown, through), 3);
  EXPECT_EQ(navigateCursorAfter(22, kKeyDown, through), kOrbitCursor);
  EXPECT_EQ(navigateCursorAfter(kOrbitCursor, kKeyDown, through), 4);
  EXPECT_EQ(navigateCursorAfter(kOrbitCursor, kKeyUp, through), 22);
  EXPECT_EQ(navigateCursorAfter(kOrbitCursor, kKeyLeft, through), kOrbitCursor);
  EXPECT_EQ(navigateCursorAfter(kOrbitCursor, kKeyRight, through), kOrbitCursor);
  EXPECT_EQ(navigateCursorAfter(1, kKeyUp, through), 19) << "elsewhere the rows wrap";
  EXPECT_EQ(navigateCursorAfter(24, kKeyDown, through), 6);
  EXPECT_EQ(navigateCursorAfter(7, kKeyLeft, through), 12);
}

TEST_F(NavigationTest, TripFigures) {
  EXPECT_EQ(travelDays(1, 24), 5);
  EXPECT_EQ(travelFuel(1, 24), 5000);
  EXPECT_EQ(travelDays(0, 0), 1);
  EXPECT_EQ(travelFuel(0, kOrbitCursor), 10000);
  EXPECT_EQ(travelDays(9, 9), 0);
  EXPECT_EQ(travelFuel(17, 0), 10000);
}

TEST_F(NavigationTest, FromSectorOneToTwentyFourAlongTheDiagonal) {
  ship.setDestination(1);
  ship.moveOneDay();
  EXPECT_EQ(ship.currentSector(), 1);
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
  EXPECT_EQ(ship.currentSector(), 0);
  EXPECT_EQ(ship.fuel(), 124900);
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 124900) << "orbit is free";
}

TEST_F(NavigationTest, TheShieldAndADryTank) {
  ship.toggleShields();
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 149800) << "the shield costs 200 even in orbit";
  ship.setDestination(5);
  ship.moveOneDay();
  ship.setFuel(60);
  ship.moveOneDay();
  EXPECT_EQ(ship.fuel(), 0);
}

TEST_F(NavigationTest, TheScreenShowsTheCursorsTripAndTheDestination) {
  EXPECT_TRUE(navigate("Esc"));
  EXPECT_EQ(scripted::textAt(3, 18, 21), "Highlighted Selection");
  EXPECT_EQ(scripted::textAt(3, 19, 13), "Sector: I    ");
  EXPECT_EQ(scripted::textAt(3, 20, 6), "ETA: 1");
  EXPECT_EQ(scripted::textAt(3, 21, 16), "Fuel Req: 10,000");
  EXPECT_EQ(scripted::textAt(49, 19, 28), " There is currently no      ");
  EXPECT_EQ(scripted::colourAt(33, 18), 13) << "the ship's marks round the orbit box";

  EXPECT_TRUE(navigate("Right Down Enter Up Right Up Esc"));
  EXPECT_EQ(ship.destinationSector(), 8);
  EXPECT_EQ(scripted::textAt(49, 19, 13), "Sector: A    ");
  EXPECT_EQ(scripted::textAt(49, 20, 6), "ETA: 1");
  EXPECT_EQ(scripted::colourAt(27, 6), 14) << "the destination's marks";
  EXPECT_EQ(scripted::codeAt(27, 6), 30);
  EXPECT_EQ(scripted::textAt(3, 19, 13), "Sector: Orbit") << "the cursor went up through V";
  EXPECT_EQ(scripted::colourAt(31, 18), 12) << "the orbit box is lit";
}

TEST_F(NavigationTest, HoveringOverTheCursorsSectorCostsNothing) {
  ship.setDestination(9);
  ship.moveOneDay();
  EXPECT_TRUE(navigate("Right Right Down Esc"));
  EXPECT_EQ(scripted::textAt(3, 20, 6), "ETA: 0");
  EXPECT_EQ(scripted::textAt(3, 21, 11), "Fuel Req: 0");
  EXPECT_EQ(scripted::codeAt(34, 7), 17);
  EXPECT_EQ(scripted::colourAt(34, 7), 13) << "the ship hovers over T";
}

TEST_F(NavigationTest, ChoosingWhereTheShipIsStopsIt) {
  ship.setDestination(1);
  ship.moveOneDay();
  ship.setDestination(24);
  ship.moveOneDay();  // over A
  EXPECT_TRUE(navigate("Right Down Enter Esc"));
  EXPECT_EQ(ship.destinationSector(), 8);
  EXPECT_EQ(scripted::textAt(49, 19, 28), " There is currently no      ");
}

TEST_F(NavigationTest, TheRadioIsSilentAndTheCannonRefusesInOrbit) {
  scripted::addKeys("Down Down Enter");
  scripted::run(runNavigationDeck);
  EXPECT_EQ(scripted::colourAt(43, 12), 241) << "Radio still selected";
  EXPECT_EQ(scripted::rowText(0).substr(21, 38), "Press Escape To Return To Previous Men");
  scripted::addKeys("Down Down Down Enter");
  scripted::run(runNavigationDeck);
  EXPECT_EQ(scripted::textAt(10, 10, 27), "You are currently in orbit.");
  EXPECT_EQ(scripted::textAt(5, 14, 53), "<< Press Any Key To Go Back To The Navigation Menu >>");
}

}  // namespace
