#include "game/console/widgets.h"

#include <gtest/gtest.h>

#include <vector>

#include "game/console/scripted.h"
#include "tests/support/fresh_game.h"

namespace {

class WidgetsTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  bool ask(const std::string& keys) {
    scripted::addKeys(keys);
    bool answer = false;
    EXPECT_FALSE(scripted::run([&] { answer = askYesNo("Fire Ion Cannon?", 45, 10, 44); }));
    return answer;
  }
};

TEST_F(WidgetsTest, FrameWithAndWithoutTheEscapeLine) {
  drawFrame(78, true);
  EXPECT_EQ(scripted::rowText(0).substr(21, 39), "Press Escape To Return To Previous Menu");
  EXPECT_EQ(scripted::colourAt(0, 0), 78);
  EXPECT_EQ(scripted::colourAt(79, 22), 78);
  EXPECT_EQ(scripted::colourAt(2, 10), 15) << "the inside is plain";
  EXPECT_EQ(scripted::colourAt(0, 23), 78) << "the status bar takes the frame's colour";
  drawFrame(2, false);
  EXPECT_EQ(scripted::rowText(0), std::string(80, ' '));
}

TEST_F(WidgetsTest, AButtonIsItsLabelInAFrameOfShades) {
  drawMenuButton(2, "  End Turn Factor 6        ", 241);  // rows 5 to 9
  EXPECT_EQ(scripted::textAt(38, 8, 38),
            "\xB0\xB1\xB1\xB2\xB2  End Turn Factor 6        \xB2\xB2\xB1\xB1\xB0\xB0");
  EXPECT_EQ(scripted::colourAt(43, 8), 241);
  EXPECT_EQ(scripted::codeAt(38, 7), 220);
  EXPECT_EQ(scripted::codeAt(38, 9), 223);
  EXPECT_EQ(scripted::textAt(76, 7, 2), "\xB0 ") << "the upper strip ends in a blank";
  drawMenuButton(4, "  Have Coffee with Emerson   ", 31);
  EXPECT_EQ(scripted::codeAt(70, 16), 178) << "the strip cuts the longer label";
}

TEST_F(WidgetsTest, YesNo) {
  EXPECT_FALSE(ask("Enter")) << "No is the first choice";
  EXPECT_TRUE(ask("Right Enter"));
  EXPECT_FALSE(ask("Left Left Enter"));
  EXPECT_TRUE(ask("x Space Esc y"));
  EXPECT_FALSE(ask("Right N")) << "N answers whichever word is lit";
  ask("Right Y");
  EXPECT_EQ(scripted::textAt(44, 11, 10), " Yes   No ");
  EXPECT_EQ(scripted::colourAt(44, 11), 240);
  EXPECT_EQ(scripted::colourAt(50, 11), 15);
}

std::vector<int> entered;

TEST_F(WidgetsTest, MenuWrapsRunsItsHandlersAndEnds) {
  entered.clear();
  DeckMenu menu{{"  One                      ", "  Two                      ",
                 "  Three                    ", "  Four                     ", kReturnLabel}};
  menu.onEnter = [](DeckMenu&, int button) {
    entered.push_back(button);
    return button == 2 ? MenuResult::Redraw : MenuResult::Stay;
  };
  scripted::addKeys("Down Enter Down Enter Up Up Up Down Down");
  scripted::run([&] { showMenu(menu); });
  EXPECT_EQ(entered, (std::vector<int>{2, 3}));
  EXPECT_EQ(menu.selected, 2) << "Up from 1 is 5, Down from 5 is 1";
  EXPECT_EQ(scripted::colourAt(43, 8), 241);
  EXPECT_EQ(scripted::rowText(0), std::string(80, ' ')) << "a redraw has no escape line";

  scripted::addKeys({KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown)});
  scripted::run([&] { showMenu(menu); });
  EXPECT_EQ(menu.selected, 2) << "a burst moves once";
  menu.flushAfterKey = false;
  scripted::addKeys({KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown)});
  scripted::run([&] { showMenu(menu); });
  EXPECT_EQ(menu.selected, 3) << "the cargo deck's menu keeps keys";

  scripted::addKeys("Esc");
  EXPECT_FALSE(scripted::run([&] { showMenu(menu); }));
  scripted::addKeys("Up Enter");
  EXPECT_FALSE(scripted::run([&] { showMenu(menu); }));
  EXPECT_EQ(scripted::rowText(3), std::string(80, ' '));
}

}  // namespace
