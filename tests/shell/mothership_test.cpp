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

TEST_F(MothershipTest, StartsWithItsStoresAndNineAdvisors) {
  EXPECT_EQ(ship.fuel(), 150000);
  EXPECT_EQ(ship.advisors().size(), 9u);
  EXPECT_EQ(ship.advisors()[6].name.view(), "Kryptal");
  EXPECT_EQ(ship.cargoUsed(), 1000 + 150000 + 10000);
  EXPECT_EQ(ship.dockSpaceUsed(), 350000) << "four craft and two capsules";
  ship.setFood(100);
  ship.eatFood();  // nine advisors and the captain
  EXPECT_EQ(ship.food(), 90u);
  ship.setFood(10);
  ship.eatFood();
  EXPECT_EQ(ship.food(), 0u);
}

TEST_F(MothershipTest, MoraleFollowsTheScheduleOrTheFamineWithinItsBounds) {
  const float after[5] = {100, 100, 100, 97, 85};
  for (int schedule = 0; schedule < 5; ++schedule) {
    ship.setMorale(100);
    ship.setWorkSchedule(schedule);
    ship.updateMorale();
    EXPECT_EQ(ship.morale(), after[schedule]) << schedule;
  }
  ship.setMorale(10);
  ship.updateMorale();
  EXPECT_EQ(ship.morale(), 0) << "schedule 4 stops at 0";
  ship.setMorale(50);
  ship.setWorkSchedule(0);
  ship.setFood(0);
  ship.updateMorale();
  EXPECT_EQ(ship.moraleWhole(), 35) << "no food: 15 whatever the schedule";
  ship.setMorale(0.9f);
  EXPECT_EQ(ship.moraleWhole(), 0);
}

TEST_F(MothershipTest, ChargesStopAtZeroAndAddsAtTheTop) {
  ship.setFuel(60);
  ship.chargeFuel(200);
  EXPECT_EQ(ship.fuel(), 0);
  ship.setFuel(INT32_MAX - 5);
  ship.addFuel(100000);
  EXPECT_EQ(ship.fuel(), INT32_MAX);
}

TEST_F(MothershipTest, ANewGameResetsTheShipButKeepsTheScheduleAndTheLand) {
  ship.setFuel(3);
  ship.toggleShields();
  ship.setDestination(5);
  ship.setWorkSchedule(4);
  for (int i = 0; i < 8; ++i) ship.upgradeEngine();
  EXPECT_EQ(ship.engineLevel(), 5);
  globals().day = 99;
  resetGame();
  EXPECT_EQ(ship.fuel(), 150000);
  EXPECT_FALSE(ship.shieldsOn());
  EXPECT_EQ(ship.destinationSector(), 0);
  EXPECT_EQ(ship.engineLevel(), 0);
  EXPECT_EQ(ship.workSchedule(), 4);
  EXPECT_EQ(ship.advisors().size(), 9u) << "cleared and boarded again, not doubled";
  EXPECT_EQ(globals().day, 1);
}

}  // namespace
