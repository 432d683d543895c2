#include "game/shell/mothership.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "game/console/random.h"
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
  // 33 crew, nine advisors and the captain eat; food for exactly one
  // meal is no longer "more than the meal".
  for (auto [before, after] : {std::pair{100u, 57u}, {44u, 1u}, {43u, 0u}, {42u, 0u}}) {
    ship.setFood(before);
    ship.eatFood();
    EXPECT_EQ(ship.food(), after) << before;
  }
  ship.crew().clear();
  ship.setFood(100);
  ship.eatFood();
  EXPECT_EQ(ship.food(), 90u) << "the crew, not a fixed count, sits at the table";
}

TEST_F(MothershipTest, MoraleFollowsTheScheduleOrTheFamineWithinItsBounds) {
  // From 50, where no bound hides a wrong step.
  const float after[5] = {55, 51, 50, 47, 35};
  for (int schedule = 0; schedule < 5; ++schedule) {
    ship.setMorale(50);
    ship.setWorkSchedule(schedule);
    ship.updateMorale();
    EXPECT_EQ(ship.morale(), after[schedule]) << schedule;
  }
  ship.setMorale(100);
  for (int morale : {85, 70, 55, 40, 25, 10, 0}) {
    ship.updateMorale();
    EXPECT_EQ(ship.moraleWhole(), morale) << "schedule 4 from a full ship: 0 on the seventh day";
  }
  ship.updateMorale();
  EXPECT_EQ(ship.morale(), 0) << "and it stays at 0";
  ship.setMorale(98);
  ship.setWorkSchedule(0);
  ship.updateMorale();
  EXPECT_EQ(ship.morale(), 100) << "a party stops at 100";
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
  ship.setFood(UINT32_MAX - 5);
  ship.addFood(400);
  EXPECT_EQ(ship.food(), UINT32_MAX) << "food stops at the top too, never wraps to nothing";
}

TEST_F(MothershipTest, ANewGameResetsTheShipsStores) {
  ship.setFuel(3);
  ship.toggleShields();
  ship.setDestination(5);
  ship.setWorkSchedule(4);
  for (int i = 0; i < 8; ++i) ship.upgradeEngine();
  EXPECT_EQ(ship.engineLevel(), 5);
  resetGame();
  EXPECT_EQ(ship.fuel(), 150000);
  EXPECT_FALSE(ship.shieldsOn());
  EXPECT_EQ(ship.destinationSector(), 0);
  EXPECT_EQ(ship.engineLevel(), 0);
  EXPECT_EQ(ship.advisors().size(), 9u) << "cleared and boarded again, not doubled";
}

TEST_F(MothershipTest, TheStartUpCrewDrawsEachSexBeforeItsName) {
  // Each Povolnian's sex is drawn before the six draws of its name.
  seedRandom(99);
  int draws[8];
  for (int& d : draws) d = gameRand();
  ship.crew().clear();
  seedRandom(99);
  layStartingContents();
  const CrewList& crew = ship.crew();
  ASSERT_EQ(crew.getCount(), 33);
  EXPECT_EQ(crew.at(0).getSex(), draws[0] % 2);
  EXPECT_EQ(crew.at(1).getSex(), draws[7] % 2);
  std::string races;
  for (int i = 0; i < crew.getCount(); ++i) {
    races += static_cast<char>('0' + crew.at(i).getRace());
    if (crew.at(i).getRace() != kRacePovolnian)
      races += static_cast<char>('0' + crew.at(i).getSex());
  }
  EXPECT_EQ(races, std::string(20, '1') + "6061606160" + "4140414041" + "313031");
}

}  // namespace
