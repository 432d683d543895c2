#include "game/research/engineering_deck.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "game/shell/ship_map.h"
#include "game/shell/title_menu.h"
#include "tests/support/fresh_game.h"

namespace {

constexpr int kShieldRow = 16;  // label row of button 4

class EngineeringDeckTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  bool play(const std::string& keys) {
    scripted::addKeys(keys);
    return scripted::run(runEngineeringDeck);
  }
  Mothership& ship = theMothership();
};

TEST_F(EngineeringDeckTest, TheShieldCostsFiftyToSwitchOnAndItsButtonFollowsIt) {
  play("Enter Down Enter Down Enter Idle:1");
  EXPECT_EQ(scripted::textAt(43, kShieldRow, 27), " Shields (Current:OFF)     ");
  EXPECT_EQ(ship.fuel(), 150000) << "the first three buttons do nothing";
  play("Up Up Enter Enter Enter Up Down");
  EXPECT_TRUE(ship.shieldsOn());
  EXPECT_EQ(ship.fuel(), 149900) << "on, off (free), on";
  EXPECT_EQ(scripted::textAt(43, kShieldRow, 27), " Shields (Current:ON)      ");
  EXPECT_EQ(scripted::textAt(12, 24, 9), "149,900  ");
  ship.setFuel(51);
  play("Up Up Enter Enter");
  EXPECT_EQ(ship.fuel(), 1);
  EXPECT_FALSE(isGameOver());
}

TEST_F(EngineeringDeckTest, TheLastFiftyFuelEndTheGameInTheDeck) {
  ship.setFuel(50);
  EXPECT_FALSE(play("Up Up Enter x"));
  EXPECT_EQ(ship.fuel(), 0);
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(10, 4, 12), "SHIP GO BOOM");
}

TEST_F(EngineeringDeckTest, AShieldedShipOnTheMapThenDeathAndAFreshSecondGame) {
  scripted::addKeys("Enter Right Down Right Enter Up Up Enter Esc Idle:1");
  scripted::run(runTitleMenu);
  EXPECT_EQ(scripted::colourAt(3, 2), 15) << "NAV COM in white on the shielded hull";
  EXPECT_EQ(scripted::colourAt(30, 11), kRoomSelected);

  startFreshRun();
  ship.setFuel(50);
  scripted::addKeys("Enter Right Down Right Enter Up Up Enter x Idle:1");
  scripted::run(runTitleMenu);
  EXPECT_EQ(scripted::colourAt(17, 15), 79) << "the title is back with NEW GAME lit";
  EXPECT_EQ(scripted::codeAt(20, 24), ' ') << "no dotted frame until the lights draw it";
  scripted::addKeys("Enter Idle:1");
  scripted::run(runTitleMenu);
  EXPECT_EQ(ship.fuel(), 150000);
  EXPECT_FALSE(ship.shieldsOn());
  EXPECT_EQ(scripted::textAt(6, 3, 3), "NAV");
}

}  // namespace
