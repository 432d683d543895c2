#include "game/shell/title_menu.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "game/shell/program.h"
#include "tests/support/fresh_game.h"

namespace {

class TitleMenuTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  // A fresh title menu played with the keys.
  void play(const std::string& keys) {
    startFreshRun();
    scripted::addKeys(keys);
    scripted::run(runTitleMenu);
  }
  bool creditsShown() { return scripted::colourAt(43, 15) == 14; }
  int lit(int row) {
    int count = 0;
    for (int c = 2; c <= 39; ++c) count += scripted::codeAt(c, row) == 249;
    return count;
  }
};

TEST_F(TitleMenuTest, TheTrackGoesRoundTheFrameIn94Steps) {
  TrackPosition p{2, 14, 14};
  std::set<std::pair<int, int>> cells;
  for (int i = 0; i < 94; ++i) {
    cells.insert({p.column, p.row});
    p = stepTrack(p);
    EXPECT_TRUE(p.column == 2 || p.column == 39 || p.row == 14 || p.row == 24);
  }
  EXPECT_EQ(cells.size(), 94u) << "every cell of the frame once";
  EXPECT_EQ(p.column, 2);
  EXPECT_EQ(p.row, 14);
}

TEST_F(TitleMenuTest, FirstScreenAndTheRunners) {
  play("Idle:28");  // 29 passes: no runner has moved
  EXPECT_EQ(scripted::textAt(3, 15, 22), std::string(14, '\xB0') + "NEW GAME");
  EXPECT_EQ(scripted::colourAt(17, 15), 79);
  EXPECT_EQ(scripted::colourAt(16, 17), 78);
  EXPECT_EQ(scripted::colourAt(38, 23), 12);
  EXPECT_EQ(scripted::codeAt(2, 20), 250);
  EXPECT_EQ(scripted::colourAt(20, 14), 8);
  EXPECT_EQ(lit(14) + lit(24), 0);
  play("Idle:29");  // the 30th pass moves runner 0
  int heads = 0;
  for (int r = 14; r <= 24; ++r) heads += lit(r);
  EXPECT_EQ(heads, 1);
}

TEST_F(TitleMenuTest, TheSweepRunsOutToTheLabelAndBackInMirror) {
  for (int move = 1; move <= 14; ++move) {
    play("Idle:" + std::to_string(600 * move));
    const int column = 2 + move;  // entry 1 spans columns 3 to 16
    EXPECT_EQ(scripted::codeAt(column, 15), 178) << move;
    EXPECT_EQ(scripted::codeAt(41 - column, 15), 178) << move;
    if (move > 1) {
      EXPECT_EQ(scripted::codeAt(42 - column, 15), 176) << move;
    }
  }
  play("Idle:" + std::to_string(600 * 15));
  EXPECT_EQ(scripted::textAt(15, 15, 2), "\xB2\xB0") << "on its way back";
  EXPECT_EQ(scripted::textAt(25, 15, 2), "\xB0\xB2");
}

TEST_F(TitleMenuTest, SelectionCreditsAndDummyEntries) {
  play("Up");
  EXPECT_EQ(scripted::colourAt(19, 23), 79) << "Up from NEW GAME is EXIT";
  EXPECT_FALSE(creditsShown());
  play("Up Up");
  EXPECT_TRUE(creditsShown());
  play("Up Up Down");
  EXPECT_FALSE(creditsShown());
  EXPECT_EQ(scripted::textAt(43, 20, 35), std::string(35, ' '));
  play("Down Down Down");
  std::string without = scripted::dump();
  play("Down Enter Down Enter Down Enter");
  EXPECT_EQ(scripted::dump(), without) << "LOAD, OPTIONS and CREDITS do nothing";
  startFreshRun();
  scripted::addKeys({KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown)});
  scripted::run(runTitleMenu);
  EXPECT_EQ(scripted::colourAt(16, 17), 79) << "a burst of keys moves the selection once";
}

TEST_F(TitleMenuTest, NewGameAndExit) {
  play("Enter Idle:1");
  EXPECT_EQ(scripted::textAt(0, 19, 12), " NAVIGATION:");
  startFreshRun();
  scripted::addKeys("Up Enter");
  int code = -1;
  EXPECT_FALSE(scripted::run([&] { code = runProgram(); }));
  EXPECT_EQ(code, 0);
  EXPECT_EQ(Console::screen().row, 24) << "the shell's prompt comes on the last row";
  EXPECT_EQ(Console::screen().column, 0);
}

}  // namespace
