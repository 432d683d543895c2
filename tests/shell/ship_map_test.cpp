// Entering a room flashes it three times and a half, 80 ms a frame. The
// map's screens are in the goldens.
#include "game/shell/ship_map.h"

#include <gtest/gtest.h>

#include <vector>

#include "game/console/scripted.h"
#include "tests/support/fresh_game.h"

namespace {

TEST(ShipMap, EnterFlashesTheRoomThreeTimesAndAHalf) {
  startFreshRun();
  std::vector<int> colours;
  scripted::watchSleeps([&](int ms) {
    colours.push_back(scripted::colourAt(6, 3));
    EXPECT_EQ(ms, 80);
  });
  scripted::addKeys("Enter");
  scripted::run([] {
    drawShipMap();
    runShipMap(kDeckNav);
  });
  EXPECT_EQ(colours, (std::vector<int>{12, 14, 12, 14, 12, 14, 12}));
}

}  // namespace
