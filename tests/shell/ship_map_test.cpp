#include "game/shell/ship_map.h"

#include <gtest/gtest.h>

#include <vector>

#include "game/console/console.h"
#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class ShipMapTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  void play(int deck, const std::string& keys) {
    scripted::addKeys(keys);
    drawShipMap();
    EXPECT_TRUE(scripted::run([&] { runShipMap(deck); }));
  }
};

TEST_F(ShipMapTest, EveryArrowOfEveryRoom) {
  // Left, Up, Right, Down from each room; -1 is a dead end.
  const int moves[8][4] = {
      {-1, -1, 2, -1}, {-1, 2, 3, -1}, {0, 4, 5, 1},   {1, -1, 6, -1},
      {-1, -1, -1, 2}, {2, -1, -1, 6}, {3, 5, -1, -1}, {-1, 1, -1, -1},
  };
  for (int deck = 0; deck < kDeckCount; ++deck) {
    for (int key = kKeyLeft; key <= kKeyDown; ++key) {
      EXPECT_EQ(deckAfterMove(deck, key), moves[deck][key - kKeyLeft]) << deck << " " << key;
    }
  }
  globals().freighterCountdown = 0;
  EXPECT_EQ(deckAfterMove(kDeckLibrary, kKeyDown), kDeckSuperFreighter);
  theMothership().setDestination(3);
  EXPECT_TRUE(freighterAvailable()) << "a destination alone does not move the ship";
}

TEST_F(ShipMapTest, WalkingLightsTheRoomAndItsPanel) {
  play(kDeckNav, "Idle:1");
  EXPECT_EQ(scripted::colourAt(6, 3), kRoomSelected);
  EXPECT_EQ(scripted::rowText(19), " NAVIGATION:" + std::string(68, ' '));
  EXPECT_EQ(scripted::colourAt(0, 19), 32);
  EXPECT_EQ(scripted::textAt(2, 20, 76),
            "This is the bridge of the super mothership. You can navigate the mothership ");
  EXPECT_EQ(scripted::colourAt(2, 20), 128);
  EXPECT_EQ(scripted::colourAt(79, 22), 32);
  EXPECT_EQ(scripted::colourAt(0, 23), 32);
  startFreshRun();
  play(kDeckNav, "Right Down Right Esc x Tab");
  EXPECT_EQ(scripted::colourAt(30, 11), kRoomSelected) << "ENGINEERING";
  EXPECT_EQ(scripted::colourAt(15, 10), kRoomAtRest) << "LIBRARY";
  EXPECT_EQ(scripted::textAt(0, 19, 13), " ENGINEERING:");
}

TEST_F(ShipMapTest, EnterFlashesTheRoomThreeTimesAndAHalf) {
  std::vector<int> colours;
  scripted::watchSleeps([&](int ms) {
    colours.push_back(scripted::colourAt(6, 3));
    EXPECT_EQ(ms, 80);
  });
  play(kDeckNav, "Enter Esc Idle:1");
  EXPECT_EQ(colours, (std::vector<int>{12, 14, 12, 14, 12, 14, 12}));
  EXPECT_EQ(scripted::clockMicros(), 560000);
  EXPECT_EQ(scripted::colourAt(6, 3), kRoomSelected) << "back on the map, still selected";
}

TEST_F(ShipMapTest, TheFreighterRoomAndTheShield) {
  globals().freighterCountdown = 0;
  drawShipMap();
  EXPECT_EQ(scripted::textAt(5, 16, 15), "SUPER FREIGHTER");
  theMothership().toggleShields();
  theMothership().setDestination(4);
  theMothership().moveOneDay();
  drawShipMap();
  EXPECT_NE(scripted::textAt(5, 16, 15), "SUPER FREIGHTER") << "the ship left orbit";
  EXPECT_EQ(scripted::textAt(15, 10, 7), "LIBRARY");
  EXPECT_EQ(scripted::colourAt(15, 10), kRoomAtRest);
  EXPECT_EQ(scripted::colourAt(18, 9), 10) << "under the shield the hull is green";
}

}  // namespace
