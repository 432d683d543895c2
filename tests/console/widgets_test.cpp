#include "game/console/widgets.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "tests/support/fresh_game.h"

namespace {

class WidgetsTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  bool ask(const std::string& keys) {
    scripted::addKeys(keys);
    bool answer = false;
    EXPECT_FALSE(scripted::run([&] { answer = askYesNo("End Day?", 35, 10, 34); }));
    return answer;
  }
};

TEST_F(WidgetsTest, FrameWithAndWithoutTheEscapeLine) {
  drawFrame(78, true);
  EXPECT_EQ(scripted::rowText(0),
            "                     Press Escape To Return To Previous Menu                    ");
  EXPECT_EQ(scripted::colourAt(0, 0), 78);
  EXPECT_EQ(scripted::colourAt(1, 22), 78);
  EXPECT_EQ(scripted::colourAt(79, 22), 78);
  EXPECT_EQ(scripted::colourAt(2, 10), 15) << "the inside is plain";
  EXPECT_EQ(scripted::textAt(0, 23, 5), " DAY:");
  EXPECT_EQ(scripted::colourAt(0, 23), 78);
  drawFrame(2, false);
  EXPECT_EQ(scripted::rowText(0), std::string(80, ' '));
  EXPECT_EQ(scripted::colourAt(40, 0), 2);
}

TEST_F(WidgetsTest, AButtonIsItsLabelInAFrameOfShades) {
  drawMenuButton(2, "  End Turn Factor 6        ", 241);
  // Button 2 spans rows 5 to 9.
  EXPECT_EQ(scripted::textAt(43, 8, 27), "  End Turn Factor 6        ");
  EXPECT_EQ(scripted::colourAt(43, 8), 241);
  EXPECT_EQ(scripted::textAt(38, 8, 5), "\xB0\xB1\xB1\xB2\xB2");
  EXPECT_EQ(scripted::textAt(70, 8, 6), "\xB2\xB2\xB1\xB1\xB0\xB0");
  EXPECT_EQ(scripted::codeAt(38, 7), 220);
  EXPECT_EQ(scripted::codeAt(38, 9), 223);
  EXPECT_EQ(scripted::colourAt(38, 9), 4);
  EXPECT_EQ(scripted::codeAt(76, 7), 176);
  EXPECT_EQ(scripted::codeAt(77, 7), ' ') << "the upper strip ends in a blank";
  EXPECT_EQ(scripted::codeAt(73, 9), 176);
  EXPECT_EQ(scripted::colourAt(77, 5), 78);
}

TEST_F(WidgetsTest, TheCoffeeLabelIsCutByTheStrip) {
  drawMenuButton(4, "  Have Coffee with Emerson   ", 31);
  EXPECT_EQ(scripted::textAt(43, 16, 27), "  Have Coffee with Emerson ");
  EXPECT_EQ(scripted::codeAt(70, 16), 178);
}

TEST_F(WidgetsTest, YesNoAnswers) {
  EXPECT_FALSE(ask("Enter")) << "No is the first choice";
  EXPECT_TRUE(ask("Right Enter"));
  EXPECT_FALSE(ask("Left Left Enter"));
  EXPECT_TRUE(ask("y"));
  EXPECT_TRUE(ask("Y"));
  EXPECT_FALSE(ask("Right n")) << "N answers whichever word is lit";
  EXPECT_TRUE(ask("x Space Esc Y"));
}

TEST_F(WidgetsTest, YesNoDrawsItsWordsAndLightsTheChoice) {
  scripted::addKeys("Right");
  scripted::run([] { askYesNo("Fire Ion Cannon?", 45, 10, 44); });
  EXPECT_EQ(scripted::textAt(45, 10, 16), "Fire Ion Cannon?");
  EXPECT_EQ(scripted::colourAt(45, 10), 14);
  EXPECT_EQ(scripted::textAt(44, 11, 10), " Yes   No ");
  EXPECT_EQ(scripted::colourAt(44, 11), 240);
  EXPECT_EQ(scripted::colourAt(50, 11), 15);
}

// A menu that records which buttons were entered.
std::vector<int> entered;

DeckMenu testMenu(bool escapeLine) {
  DeckMenu menu{{"  One                      ", "  Two                      ",
                 "  Three                    ", "  Four                     ", kReturnLabel}};
  menu.showEscapeLine = escapeLine;
  menu.onEnter = [](DeckMenu&, int button) {
    entered.push_back(button);
    return button == 2 ? MenuResult::Redraw : MenuResult::Stay;
  };
  return menu;
}

TEST_F(WidgetsTest, MenuWrapsAndRunsItsHandlers) {
  entered.clear();
  DeckMenu menu = testMenu(true);
  scripted::addKeys("Down Enter Down Enter Up Up Up Down Down");
  scripted::run([&] { showMenu(menu); });
  EXPECT_EQ(entered, (std::vector<int>{2, 3}));
  EXPECT_EQ(menu.selected, 2) << "Down from 5 wraps to 1, then on to 2";
  EXPECT_EQ(scripted::colourAt(43, 8), 241);
  EXPECT_EQ(scripted::colourAt(43, 12), 31);
  EXPECT_EQ(scripted::rowText(0), std::string(80, ' '))
      << "a redraw after a handler's screen has no escape line";
}

TEST_F(WidgetsTest, MenuEndsOnEscapeAndOnTheFifthButton) {
  DeckMenu menu = testMenu(true);
  scripted::addKeys("Esc");
  EXPECT_FALSE(scripted::run([&] { showMenu(menu); }));
  scripted::addKeys("Up Enter");
  EXPECT_FALSE(scripted::run([&] { showMenu(menu); }));
  EXPECT_EQ(scripted::rowText(3), std::string(80, ' ')) << "the screen is cleared";
}

TEST_F(WidgetsTest, MenuDropsKeysTypedAheadUnlessItIsTheCargoMenu) {
  entered.clear();
  DeckMenu menu = testMenu(false);
  scripted::addKeys({KeyEvent::enter(), KeyEvent::arrow(kKeyDown)});
  scripted::run([&] { showMenu(menu); });
  EXPECT_EQ(menu.selected, 1);
  menu.flushAfterKey = false;
  scripted::addKeys({KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown)});
  scripted::run([&] { showMenu(menu); });
  EXPECT_EQ(menu.selected, 3);
}

}  // namespace
