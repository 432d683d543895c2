#include "game/shell/endings.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class EndingsTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  // Shows a screen; a key pressed before it must not end it, the next must.
  void show(void (*screen)()) {
    scripted::addBusy({KeyEvent::enter()});
    scripted::addKeys("x");
    Console::sleep(1);
    EXPECT_FALSE(scripted::run(screen));
    EXPECT_EQ(scripted::stepsLeft(), 0);
    EXPECT_EQ(scripted::textAt(0, 23, 27), "<Press Any Key To End Game>");
  }
  void expectLine(int column, int row, int colour, const std::string& text) {
    EXPECT_EQ(scripted::textAt(column, row, static_cast<int>(text.size())), text);
    EXPECT_EQ(scripted::colourAt(column, row), colour) << text;
  }
};

TEST_F(EndingsTest, TheMutinyChoosesItsWordsByTheFoodLeft) {
  theMothership().setFood(1);
  show(showMutinyEnding);
  expectLine(2, 2, 12, "Unfortunately your crew hates you and you are killed in your sleep");
  expectLine(0, 21, 14, "YOU ARE DEAD CAPTAIN! KRYPTAL KICKED YOUR SEAT REGION!");
  theMothership().setFood(0);
  show(showMutinyEnding);
  expectLine(3, 3, 12, "Your crew decides to eat you because they are hungry! YUM YUM!");
  expectLine(0, 22, 14, "KRYPTAL DRINK BLOOD...LITERALY!! NEXT TIME REMEMBER TO FEED YOUR CREW!");
}

TEST_F(EndingsTest, FuelVictoryAndTheFamineWarning) {
  show(showFuelEnding);
  expectLine(10, 4, 15, "SHIP GO BOOM");
  show(showVictoryEnding);
  expectLine(10, 6, 15, "PAT YOURSELF ON THE BACK! GREAT JOB!");
  EXPECT_EQ(scripted::textAt(10, 4, 12), std::string(12, ' ')) << "the screen was cleared";
  show(showFamineWarning);
  expectLine(1, 1, 12, "Carolla says, \"Captain, we are running low on food.\"");
  expectLine(0, 22, 14, "at the hands of your crew! They'll turn you to Stew!");
  EXPECT_FALSE(isGameOver());
}

}  // namespace
