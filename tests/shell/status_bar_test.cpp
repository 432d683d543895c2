#include "game/shell/status_bar.h"

#include <gtest/gtest.h>

#include "game/console/console.h"
#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

TEST(StatusBar, ShowsTheDayAndTheStoresOnTheirColumns) {
  startFreshRun();
  Console::setColour(7);
  Console::clearScreen();
  globals().day = 37;
  theMothership().setFuel(1234567);
  drawStatusBar(32);
  EXPECT_EQ(scripted::textAt(0, 23, 60),
            " DAY:   37 of 5500         \x9BO$MI\x9B \x9BREDIT$: 5,000            ");
  EXPECT_EQ(scripted::textAt(1, 24, 78),
            "\xDC    FUEL: 1,234,567         MATERIALS: 10,000            FOOD: 1,000        \xDC");
  for (int column = 0; column < 80; ++column) EXPECT_EQ(scripted::colourAt(column, 23), 32);
  for (int column = 1; column < 79; ++column) EXPECT_EQ(scripted::colourAt(column, 24), 32);
  EXPECT_EQ(scripted::colourAt(0, 24), 7) << "the bar's corners are never written";
  EXPECT_EQ(scripted::colourAt(79, 24), 7);
}

TEST(StatusBar, RefreshRewritesOneNumberAlone) {
  startFreshRun();
  drawStatusBar(78);
  theMothership().setFuel(51);
  theMothership().setFood(7);
  refreshFuel(48);
  EXPECT_EQ(scripted::textAt(12, 24, 9), "51       ");
  EXPECT_EQ(scripted::colourAt(12, 24), 48);
  EXPECT_EQ(scripted::colourAt(21, 24), 78);
  EXPECT_EQ(scripted::textAt(65, 24, 9), "1,000    ") << "food was not refreshed";
  refreshFood(78);
  EXPECT_EQ(scripted::textAt(65, 24, 9), "7        ");
}

}  // namespace
