#include "game/shell/mothership.h"

#include <gtest/gtest.h>

#include "game/shell/starting_contents.h"
#include "tests/support/fresh_game.h"

namespace {

class MothershipTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  Mothership& ship = theMothership();
};

TEST_F(MothershipTest, StartsWithItsStores) {
  EXPECT_EQ(ship.food(), 1000u);
  EXPECT_EQ(ship.fuel(), 150000);
  EXPECT_EQ(ship.materials(), 10000);
  EXPECT_EQ(ship.readyCapsules(), 2);
  EXPECT_EQ(ship.advisors().size(), 9u);
  EXPECT_EQ(ship.advisors()[6].name.view(), "Kryptal");
  EXPECT_EQ(ship.cargoUsed(), 1000 + 150000 + 10000);
  EXPECT_EQ(ship.dockSpaceUsed(), 80000);
  EXPECT_EQ(ship.moraleWhole(), 100);
  EXPECT_EQ(globals().day, 1);
  EXPECT_EQ(globals().freighterCountdown, 30);
}

TEST_F(MothershipTest, EatingEmptiesTheLarderWithoutGoingBelowZero) {
  ship.setFood(100);
  ship.eatFood();  // nine advisors and the captain
  EXPECT_EQ(ship.food(), 90u);
  ship.setFood(10);
  ship.eatFood();
  EXPECT_EQ(ship.food(), 0u) << "exactly the day's use leaves nothing";
  ship.eatFood();
  EXPECT_EQ(ship.food(), 0u);
}

TEST_F(MothershipTest, MoraleFollowsTheScheduleWithinItsBounds) {
  const float expected[5] = {100, 100, 100, 97, 85};
  for (int schedule = 0; schedule < 5; ++schedule) {
    ship.setMorale(100);
    ship.setWorkSchedule(schedule);
    ship.updateMorale();
    EXPECT_EQ(ship.morale(), expected[schedule]) << schedule;
  }
  ship.setMorale(50);
  ship.setWorkSchedule(0);
  ship.updateMorale();
  EXPECT_EQ(ship.morale(), 55);
  ship.setMorale(10);
  ship.setWorkSchedule(4);
  ship.updateMorale();
  ship.updateMorale();
  EXPECT_EQ(ship.morale(), 0) << "stays at 0";
}

TEST_F(MothershipTest, FamineTakesFifteenWhateverTheSchedule) {
  ship.setFood(0);
  ship.setWorkSchedule(0);
  ship.updateMorale();
  EXPECT_EQ(ship.moraleWhole(), 85);
  ship.setMorale(0.9f);
  EXPECT_EQ(ship.moraleWhole(), 0) << "cut towards zero";
}

TEST_F(MothershipTest, FuelChargesStopAtZero) {
  ship.setFuel(60);
  ship.chargeFuel(200);
  EXPECT_EQ(ship.fuel(), 0);
}

TEST_F(MothershipTest, TheFreighterComesEveryThirtySevenDays) {
  globals().freighterCountdown = 1;
  const int expected[] = {0, -1, -2, -3, -4, -5, -6, 30, 29};
  for (int value : expected) {
    advanceFreighter();
    EXPECT_EQ(globals().freighterCountdown, value);
  }
}

TEST_F(MothershipTest, ResetGivesBackANewShipButKeepsTheSchedule) {
  ship.setFuel(3);
  ship.setFood(7);
  ship.toggleShields();
  ship.setDestination(5);
  ship.setWorkSchedule(4);
  ship.upgradeEngine();
  ship.setMorale(12);
  globals().day = 99;
  resetGame();
  EXPECT_EQ(ship.fuel(), 150000);
  EXPECT_EQ(ship.food(), 1000u);
  EXPECT_FALSE(ship.shieldsOn());
  EXPECT_EQ(ship.destinationSector(), 0);
  EXPECT_EQ(ship.engineLevel(), 0);
  EXPECT_EQ(ship.moraleWhole(), 100);
  EXPECT_EQ(ship.workSchedule(), 4);
  EXPECT_EQ(ship.advisors().size(), 9u) << "cleared and boarded again, not doubled";
  EXPECT_EQ(globals().day, 1);
}

TEST_F(MothershipTest, EngineStopsAtLevelFive) {
  for (int i = 0; i < 8; ++i) ship.upgradeEngine();
  EXPECT_EQ(ship.engineLevel(), 5);
}

}  // namespace
