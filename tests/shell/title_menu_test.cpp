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

  void play(const std::string& keys) {
    scripted::addKeys(keys);
    scripted::run(runTitleMenu);
  }
  bool creditsShown() { return scripted::colourAt(43, 15) == 14; }
};

TEST_F(TitleMenuTest, TheTrackClosesAfterNinetyFourSteps) {
  TrackPosition start{2, 14, 14};
  TrackPosition p = start;
  std::set<std::pair<int, int>> cells;
  for (int i = 0; i < 94; ++i) {
    cells.insert({p.column, p.row});
    p = stepTrack(p);
    EXPECT_TRUE(p.column >= 2 && p.column <= 39 && p.row >= 14 && p.row <= 24);
    EXPECT_TRUE(p.column == 2 || p.column == 39 || p.row == 14 || p.row == 24);
  }
  EXPECT_EQ(cells.size(), 94u) << "every cell of the frame once";
  EXPECT_EQ(p.column, start.column);
  EXPECT_EQ(p.row, start.row);
  EXPECT_EQ(stepTrack({2, 24, 8}).column, 3) << "the bottom left corner turns right";
  EXPECT_EQ(stepTrack({39, 24, 8}).row, 23);
  EXPECT_EQ(stepTrack({39, 14, 8}).column, 38);
}

TEST_F(TitleMenuTest, FirstScreenHasTheEntriesAndTheDottedFrame) {
  play("Idle:1");
  EXPECT_EQ(scripted::textAt(17, 15, 8), "NEW GAME");
  EXPECT_EQ(scripted::colourAt(17, 15), 79);
  EXPECT_EQ(scripted::textAt(16, 17, 10), "LOAD  GAME");
  EXPECT_EQ(scripted::colourAt(16, 17), 78);
  EXPECT_EQ(scripted::textAt(3, 23, 16), std::string(16, '\xB0'));
  EXPECT_EQ(scripted::colourAt(38, 23), 12);
  EXPECT_EQ(scripted::codeAt(2, 20), 250);
  EXPECT_EQ(scripted::codeAt(39, 24), 250);
  EXPECT_EQ(scripted::colourAt(20, 14), 8);
  EXPECT_FALSE(creditsShown());
}

TEST_F(TitleMenuTest, TheSweepRunsOutToTheLabelAndBackInMirror) {
  // One sweep move every 600 passes; entry 1 spans columns 3 to 16.
  for (int move = 1; move <= 14; ++move) {
    startFreshRun();
    play("Idle:" + std::to_string(600 * move));
    int column = 2 + move;
    EXPECT_EQ(scripted::codeAt(column, 15), 178) << move;
    EXPECT_EQ(scripted::codeAt(41 - column, 15), 178) << move;
    if (move > 1) {
      EXPECT_EQ(scripted::codeAt(column - 1, 15), 176) << move;
      EXPECT_EQ(scripted::codeAt(42 - column, 15), 176) << move;
    }
  }
  startFreshRun();
  play("Idle:" + std::to_string(600 * 15));
  EXPECT_EQ(scripted::codeAt(15, 15), 178) << "on its way back";
  EXPECT_EQ(scripted::codeAt(16, 15), 176);
  EXPECT_EQ(scripted::codeAt(26, 15), 178);
  EXPECT_EQ(scripted::codeAt(25, 15), 176);
}

TEST_F(TitleMenuTest, RunnersStepEveryThirtyPasses) {
  play("Idle:28");  // the 29th pass ends the script
  int litBefore = 0;
  for (int c = 2; c <= 39; ++c)
    litBefore += scripted::codeAt(c, 24) == 249 || scripted::codeAt(c, 14) == 249;
  EXPECT_EQ(litBefore, 0);
  startFreshRun();
  play("Idle:29");
  int lit = 0;
  for (int r = 14; r <= 24; ++r) {
    for (int c = 2; c <= 39; ++c)
      lit += scripted::codeAt(c, r) == 249 && scripted::colourAt(c, r) == 14;
  }
  EXPECT_EQ(lit, 1);
}

TEST_F(TitleMenuTest, CreditsFollowTheFourthEntry) {
  play("Up");
  EXPECT_EQ(scripted::colourAt(19, 23), 79) << "EXIT";
  EXPECT_FALSE(creditsShown());
  startFreshRun();
  play("Up Up");
  EXPECT_EQ(scripted::colourAt(15, 21), 79);
  EXPECT_TRUE(creditsShown());
  EXPECT_EQ(scripted::colourAt(19, 23), 78);
  startFreshRun();
  play("Up Up Down");
  EXPECT_FALSE(creditsShown());
  EXPECT_EQ(scripted::textAt(43, 20, 35), std::string(35, ' '));
}

TEST_F(TitleMenuTest, ABurstOfKeysMovesTheSelectionOnce) {
  scripted::addKeys(
      {KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown)});
  scripted::run(runTitleMenu);
  EXPECT_EQ(scripted::colourAt(16, 17), 79);
  EXPECT_EQ(scripted::colourAt(15, 19), 78);
}

TEST_F(TitleMenuTest, EnterOnTheDummyEntriesChangesNothing) {
  play("Down Down Down");
  std::string without = scripted::dump();
  startFreshRun();
  play("Down Enter Down Enter Down Enter");
  EXPECT_EQ(scripted::dump(), without);
  EXPECT_TRUE(creditsShown());
}

TEST_F(TitleMenuTest, ExitLeavesTheProgram) {
  scripted::addKeys("Up Enter");
  int code = -1;
  EXPECT_FALSE(scripted::run([&] { code = runProgram(); }));
  EXPECT_EQ(code, 0);
  EXPECT_EQ(Console::screen().row, 24) << "the shell's prompt comes on the last row";
  EXPECT_EQ(Console::screen().column, 0);
}

TEST_F(TitleMenuTest, NewGameReachesTheShipMap) {
  play("Enter Idle:1");
  EXPECT_EQ(scripted::textAt(6, 3, 3), "NAV");
  EXPECT_EQ(scripted::textAt(0, 19, 12), " NAVIGATION:");
}

}  // namespace
