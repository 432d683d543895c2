#include "game/fleet/launch_space_capsule.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class CapsuleTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  // Plays the launch screen; true if it ended by itself.
  bool play(const std::string& keys) {
    scripted::reset();
    scripted::addKeys(keys);
    return !scripted::run(launchSpaceCapsule);
  }
  std::string digits(int row) { return scripted::textAt(61, row, 5); }
  int litDigit(int row) {
    for (int i = 0; i < 5; ++i) {
      if (scripted::colourAt(61 + i, row) == 241) return i;
    }
    return -1;
  }
  Mothership& ship = theMothership();
};

TEST(CapsuleLoadTest, LoadsStopAtTheCapsulesRoomAndTheStock) {
  struct Case {
    int foodStock, materialsLoad, step, foodBefore, foodAfter;
    bool add;
  } cases[] = {
      {1000, 0, 10000, 0, 1000, true},      // the stock, not the step
      {9000, 15000, 10000, 0, 5000, true},  // the capsule's 20000 in all
      {30000, 0, 10000, 10000, 20000, true}, {30000, 0, 1000, 20000, 20000, true},  // full
      {30000, 0, 100, 50, 0, false},                                                // stops at 0
      {30000, 0, 10, 50, 40, false},
  };
  for (const Case& c : cases) {
    CapsuleLoad load;
    load.foodStock = c.foodStock;
    load.materialsStock = 20000;
    load.materialsLoad = c.materialsLoad;
    load.foodLoad = c.foodBefore;
    load.step = c.step;
    stepLoad(load, true, c.add);
    EXPECT_EQ(load.foodLoad, c.foodAfter) << c.foodStock << " " << c.step;
  }
}

TEST_F(CapsuleTest, TheDigitsStepAndTheStatusBarFollowsTheLoad) {
  // Left from the crew to the panel, Enter on Food: the ten-thousands lit.
  EXPECT_FALSE(play("Left Enter Up Idle:1"));
  EXPECT_EQ(digits(4), "01000");
  EXPECT_EQ(litDigit(4), 0);
  EXPECT_EQ(scripted::textAt(68, 2, 5), "19000") << "the cargo room left";
  EXPECT_EQ(ship.food(), 0u) << "the status bar shows what stays aboard";
  EXPECT_FALSE(play("Left Enter Right Right Right Right Right Up Left"));
  EXPECT_EQ(litDigit(4), 3) << "past the last digit Left lights the tens";
  EXPECT_FALSE(play("Left Enter Right Down Left Left Down"));
  EXPECT_EQ(scripted::colourAt(50, 5), 241)
      << "Left past 10000 is back on the label, Down to Materials";
  startFreshRun();  // the runs above were cut off with their loads aboard
  EXPECT_TRUE(play("Left Enter Up Esc Esc"));
  EXPECT_EQ(ship.food(), 1000u) << "leaving puts the food back";
}

TEST_F(CapsuleTest, ALaunchCarriesCrewFoodAndMaterialsToTheSiteAtOnce) {
  auto desertSite = [] {
    thePlanet().subSector(2, 5).setLandType(kDesert);
    thePlanet().subSector(2, 5).markMapped();
  };
  desertSite();
  const int crew = ship.crew().getCount();
  // Two crew aboard, 2000 materials, then the target: down from the dock
  // box to sector 3, left to sector 2; its site is sub-sector 5.
  const std::string load = "Enter Enter Left Down Enter Right Up Up Enter Down Down ";
  const std::string target = "Enter Down Left Enter Right Down Enter ";
  EXPECT_FALSE(play(load + target + "Idle:1"));
  EXPECT_EQ(scripted::textAt(52, 11, 15),
            "Sector " + std::string(1, thePlanet().sector(2).letter()) + " Desert");
  EXPECT_EQ(scripted::colourAt(61, 13), 241) << "on LAUNCH";
  // A run cut off mid-screen never puts its load back: start afresh.
  startFreshRun();
  desertSite();
  EXPECT_TRUE(play(load + target + "Enter Down Left Enter x"))
      << "no keeps the target; yes launches";
  Bunker& bunker = thePlanet().sector(2).bunker();
  EXPECT_EQ(bunker.getSubSector(), 5);
  EXPECT_EQ(bunker.materials(), 2000);
  EXPECT_EQ(bunker.getCrew().getCount(), 2);
  EXPECT_EQ(ship.crew().getCount(), crew - 2);
  EXPECT_EQ(ship.materials(), 8000);
  EXPECT_EQ(ship.readyCapsules(), 1);
  EXPECT_EQ(scripted::textAt(56, 14, 16), "CAPSULE LAUNCHED");
}

}  // namespace
