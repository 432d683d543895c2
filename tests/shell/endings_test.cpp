#include "game/shell/endings.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class EndingsTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  // Shows a screen and answers its wait with one key; false if the screen
  // did not wait for it.
  bool show(void (*screen)()) {
    scripted::addBusy({KeyEvent::enter()});  // pressed before: must not count
    scripted::addKeys("x");
    Console::sleep(1);
    bool ended = scripted::run(screen);
    return !ended && scripted::stepsLeft() == 0;
  }

  void expectLine(int column, int row, int colour, const std::string& text) {
    EXPECT_EQ(scripted::textAt(column, row, static_cast<int>(text.size())), text);
    EXPECT_EQ(scripted::colourAt(column, row), colour) << text;
  }
};

TEST_F(EndingsTest, MutinyInHisSleepWhileThereIsFood) {
  theMothership().setFood(1);
  ASSERT_TRUE(show(showMutinyEnding));
  expectLine(2, 2, 12, "Unfortunately your crew hates you and you are killed in your sleep");
  expectLine(0, 21, 14, "YOU ARE DEAD CAPTAIN! KRYPTAL KICKED YOUR SEAT REGION!");
  expectLine(0, 23, 15, "<Press Any Key To End Game>");
}

TEST_F(EndingsTest, MutinyByHungerEatsTheCaptain) {
  theMothership().setFood(0);
  ASSERT_TRUE(show(showMutinyEnding));
  expectLine(1, 1, 12, "You go sleep that night in your warm comfy bed.");
  expectLine(3, 3, 12, "Your crew decides to eat you because they are hungry! YUM YUM!");
  expectLine(0, 22, 14, "KRYPTAL DRINK BLOOD...LITERALY!! NEXT TIME REMEMBER TO FEED YOUR CREW!");
}

TEST_F(EndingsTest, OutOfFuelAndVictory) {
  ASSERT_TRUE(show(showFuelEnding));
  expectLine(10, 4, 15, "SHIP GO BOOM");
  expectLine(0, 22, 14, "YOUR PRETTY MOTHERSHIP CRASHED INTO THE GROUND! GOOD BYE!");
  ASSERT_TRUE(show(showVictoryEnding));
  expectLine(1, 1, 12, "You destroyed America!");
  expectLine(10, 6, 15, "PAT YOURSELF ON THE BACK! GREAT JOB!");
  expectLine(0, 21, 14, "YOU WIN THE GAME!");
  EXPECT_EQ(scripted::textAt(10, 4, 12), std::string(12, ' ')) << "the screen was cleared";
}

TEST_F(EndingsTest, TheFamineWarningEndsNothing) {
  ASSERT_TRUE(show(showFamineWarning));
  expectLine(1, 1, 12, "Carolla says, \"Captain, we are running low on food.\"");
  expectLine(0, 21, 14, "Hurry Find some food... Or prepare to die");
  expectLine(0, 23, 15, "<Press Any Key To End Game>");
  EXPECT_FALSE(isGameOver());
}

}  // namespace
