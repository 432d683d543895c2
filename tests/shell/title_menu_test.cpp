// The title menu's keys as the screen cannot show them, and the program's
// way out. Its screens are in the goldens.
#include "game/shell/title_menu.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/shell/program.h"
#include "tests/support/fresh_game.h"
#include "tests/support/golden.h"

namespace {

TEST(TitleMenu, ABurstOfKeysMovesTheSelectionOnce) {
  startFreshRun();
  scripted::addKeys({KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown)});
  scripted::addCall([] { EXPECT_TRUE(screenMatches("shell/title_load_game")); });
  scripted::run(runTitleMenu);
}

TEST(TitleMenu, ExitEndsTheProgramWithThePromptOnTheLastRow) {
  startFreshRun();
  scripted::addKeys("Up Enter");
  int code = -1;
  EXPECT_FALSE(scripted::run([&] { code = runProgram(); }));
  EXPECT_EQ(code, 0);
  EXPECT_EQ(Console::screen().row, 24);
  EXPECT_EQ(Console::screen().column, 0);
}

}  // namespace
