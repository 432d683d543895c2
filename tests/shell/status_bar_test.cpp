#include "game/shell/status_bar.h"

#include <gtest/gtest.h>

#include "game/console/console.h"
#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

TEST(StatusBar, TheDayAndTheStoresOnTheirColumnsAndOneNumberRefreshed) {
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
  for (int column = 1; column < 79; ++column) EXPECT_EQ(scripted::colourAt(column, 24), 32);
  EXPECT_EQ(scripted::colourAt(79, 24), 7) << "the bar's corners are never written";
  theMothership().setFuel(51);
  refreshFuel(48);
  EXPECT_EQ(scripted::textAt(12, 24, 9), "51       ");
  EXPECT_EQ(scripted::colourAt(12, 24), 48);
  EXPECT_EQ(scripted::colourAt(21, 24), 32);
}

}  // namespace
