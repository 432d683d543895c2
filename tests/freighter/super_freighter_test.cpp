#include "game/freighter/super_freighter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "game/console/console.h"
#include "game/console/scripted.h"
#include "game/shell/day.h"
#include "game/shell/mothership.h"
#include "game/shell/ship_map.h"
#include "tests/support/fresh_game.h"

namespace {

// One cell of each spot that shows its colour: a letter of its sign, the
// Mothership's bow.
struct Probe {
  int column, row;
};
const Probe kProbes[7] = {{}, {18, 4}, {66, 3}, {27, 9}, {48, 9}, {3, 19}, {43, 14}};

int colourOf(int spot) { return scripted::colourAt(kProbes[spot].column, kProbes[spot].row); }

class FreighterTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  // Runs the screen on a script; true if it was still open when the script
  // ran out.
  bool visit(const std::string& keys) {
    scripted::addKeys(keys);
    return scripted::run([] { runFreighter(); });
  }
};

TEST_F(FreighterTest, EachSpotFillsItsPlaceWithItsSign) {
  struct Place {
    int left, top, right, bottom;
    std::vector<std::string> sign;
  };
  const Place places[7] = {
      {},
      {7, 1, 41, 6, {"ASTRONOMICAL", "AUCTION  HOUSE"}},
      {59, 2, 79, 7, {"COSMIC", "CAFE"}},
      {18, 8, 40, 14, {"BOB'S", "BIZARRE", "BAZAAR"}},
      {46, 8, 68, 11, {"MERCENARY    MARKET"}},
      {3, 17, 19, 20, {}},
      {37, 13, 74, 20, {"SAL'S  SELECT  SPACECRAFT"}},
  };
  for (int spot = 1; spot <= kFreighterSpotCount; ++spot) {
    SCOPED_TRACE(spot);
    Console::setColour(0);
    Console::clearScreen();
    drawFreighterSpot(spot, kSpotSelected);
    int left = 80, top = 25, right = -1, bottom = -1;
    for (int row = 0; row < kScreenHeight; ++row) {
      for (int column = 0; column < kScreenWidth; ++column) {
        if (scripted::colourAt(column, row) != kSpotSelected) continue;
        left = std::min(left, column), right = std::max(right, column);
        top = std::min(top, row), bottom = std::max(bottom, row);
      }
    }
    const Place& p = places[spot];
    EXPECT_EQ((std::vector<int>{left, top, right, bottom}),
              (std::vector<int>{p.left, p.top, p.right, p.bottom}));
    // Each line of the sign on a row of its own, inside the box's walls.
    int row = p.top;
    for (const std::string& line : p.sign) {
      while (row <= p.bottom &&
             scripted::rowText(row).find(" " + line + " ") == std::string::npos) {
        ++row;
      }
      ASSERT_LE(row, p.bottom) << line;
      EXPECT_EQ(scripted::codeAt(p.left, row), 186) << line;
      EXPECT_EQ(scripted::codeAt(p.right, row), 186) << line;
      ++row;
    }
  }
}

TEST_F(FreighterTest, EveryArrowFromEverySpot) {
  // Tries all four arrows on all six spots of the two-by-three grid.
  const std::string path =
      "Left Down Right Right Down Up Right Left Left Down Up Up Left Up Down Right Down Left Up Up "
      "Right Right Up Down Up Left";
  std::istringstream names(path);
  std::string name, last;
  int expected = kSpotMothership;
  int tried = 0;
  scripted::setPlayer([&](KeyEvent& key) {
    if (!last.empty()) {
      int column = (expected - 1) % 2, row = (expected - 1) / 2;
      if (last == "Left") --column;
      if (last == "Right") ++column;
      if (last == "Up") --row;
      if (last == "Down") ++row;
      if (column >= 0 && column < 2 && row >= 0 && row < 3) expected = row * 2 + column + 1;
      for (int spot = 1; spot <= kFreighterSpotCount; ++spot) {
        EXPECT_EQ(colourOf(spot), spot == expected ? kSpotSelected : kSpotAtRest)
            << "after " << last << " (key " << tried << "), spot " << spot;
      }
    }
    if (!(names >> name)) return false;
    last = name;
    ++tried;
    key = scripted::keyNamed(name);
    return true;
  });
  EXPECT_TRUE(scripted::run([] { runFreighter(); }));
  EXPECT_EQ(tried, 26);
}

TEST_F(FreighterTest, EnterFlashesTheSpotAndItStaysRedUntilLeft) {
  std::vector<int> colours;
  scripted::watchSleeps([&](int ms) {
    colours.push_back(colourOf(kSpotCosmicCafe));
    EXPECT_EQ(ms, 80);
  });
  EXPECT_TRUE(visit("Up Up Right Enter Enter Idle:2"));
  const std::vector<int> once{12, 14, 12, 14, 12, 14, 12};
  std::vector<int> twice = once;
  twice.insert(twice.end(), once.begin(), once.end());
  EXPECT_EQ(colours, twice);
  EXPECT_EQ(scripted::clockMicros(), 2 * 560000);
  EXPECT_EQ(colourOf(kSpotCosmicCafe), kSpotFlashing) << "a knocked front stays red";

  startFreshRun();
  EXPECT_TRUE(visit("Up Up Right Enter Down Idle:1"));
  EXPECT_EQ(colourOf(kSpotCosmicCafe), kSpotAtRest);
  EXPECT_EQ(colourOf(kSpotMercenaryMarket), kSpotSelected);
  startFreshRun();
  EXPECT_TRUE(visit("Up Up Right Enter Down Up Idle:1"));
  EXPECT_EQ(colourOf(kSpotCosmicCafe), kSpotSelected) << "back on it, lit as any selection";
}

TEST_F(FreighterTest, EscapeDoesNothingAndOnlyTheShipLeadsBack) {
  EXPECT_TRUE(visit("Idle:1"));
  const ScreenModel before = Console::screen();
  startFreshRun();
  EXPECT_TRUE(visit("Esc Esc Idle:2"));
  for (int row = 0; row < kScreenHeight; ++row) {
    for (int column = 0; column < kScreenWidth; ++column) {
      ASSERT_EQ(Console::screen().cells[row][column], before.cells[row][column])
          << column << "," << row;
    }
  }

  // A knock on every front keeps the player aboard; the Mothership ends the
  // visit, and nothing was bought or spent.
  startFreshRun();
  const Mothership ship = theMothership();
  EXPECT_FALSE(visit("Up Up Enter Right Enter Down Enter Left Enter Down Right Enter Left Enter"));
  EXPECT_EQ(scripted::stepsLeft(), 0);
  EXPECT_EQ(scripted::clockMicros(), 6 * 560000);
  EXPECT_EQ(globals().cosmicCredits, 5000);
  EXPECT_EQ(theMothership().fuel(), ship.fuel());
  EXPECT_EQ(theMothership().food(), ship.food());
  EXPECT_EQ(theMothership().materials(), ship.materials());
}

TEST_F(FreighterTest, TheShipStandsGreenWhileTheShieldsAreOn) {
  for (bool shields : {false, true}) {
    SCOPED_TRACE(shields);
    startFreshRun();
    if (shields) theMothership().toggleShields();
    EXPECT_TRUE(visit("Up Idle:1"));
    EXPECT_EQ(colourOf(kSpotMothership), shields ? kShieldedShipColour : kSpotAtRest);
    EXPECT_EQ(colourOf(kSpotSpacecraft), kSpotAtRest) << "the shops stay white";
  }
}

TEST_F(FreighterTest, TheRoomIsThereFromArrivalToTheLastDayInOrbit) {
  theMothership().setFood(100000);
  auto roomDrawn = [] {
    drawShipMap();
    return scripted::textAt(5, 16, 15) == "SUPER FREIGHTER";
  };
  while (globals().day < 30) runDay();
  EXPECT_EQ(globals().freighterCountdown, 1);
  EXPECT_FALSE(roomDrawn());
  runDay();
  EXPECT_EQ(globals().day, 31);
  EXPECT_TRUE(roomDrawn()) << "the day it arrives";
  while (globals().day < 37) runDay();
  EXPECT_EQ(globals().freighterCountdown, -6);
  EXPECT_TRUE(roomDrawn()) << "its last day in orbit";
  runDay();
  EXPECT_EQ(globals().freighterCountdown, 30);
  EXPECT_FALSE(roomDrawn()) << "gone the day after";
  EXPECT_EQ(deckAfterMove(kDeckLibrary, kKeyDown), -1);
}

TEST_F(FreighterTest, RoomSevenOpensTheFreighterAndLeadsBack) {
  globals().freighterCountdown = 0;
  drawShipMap();
  scripted::addKeys("Down Enter Idle:1");
  EXPECT_TRUE(scripted::run([] { runShipMap(kDeckLibrary); }));
  EXPECT_EQ(scripted::textAt(66, 3, 6), "COSMIC");
  EXPECT_EQ(colourOf(kSpotMothership), kSpotSelected);
  EXPECT_EQ(scripted::textAt(0, 23, 10), " DAY:    1");
  EXPECT_EQ(scripted::colourAt(0, 23), 32);

  startFreshRun();
  globals().freighterCountdown = 0;
  drawShipMap();
  scripted::addKeys("Down Enter Enter Idle:1");
  EXPECT_TRUE(scripted::run([] { runShipMap(kDeckLibrary); }));
  EXPECT_EQ(scripted::textAt(5, 16, 15), "SUPER FREIGHTER");
  EXPECT_EQ(scripted::colourAt(5, 16), kRoomSelected) << "back in the freighter's room";
  EXPECT_EQ(scripted::textAt(0, 19, 17), " SUPER FREIGHTER:");
}

}  // namespace
