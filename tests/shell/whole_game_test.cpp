// Whole games through the real screens, from the title menu to an ending
// and back, with a player who follows a plan and reads the morning reports.
#include <gtest/gtest.h>

#include <deque>
#include <sstream>
#include <string>

#include "game/console/scripted.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "game/shell/title_menu.h"
#include "tests/support/fresh_game.h"

namespace {

class WholeGameTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    scripted::setPlayer([this](KeyEvent& key) {
      // This game is about the cannon: the larder is kept full.
      theMothership().setFood(1000);
      if (scripted::rowText(2).rfind("  Corolla says, 'Good Morning captain", 0) == 0) {
        ++reportsRead;
        key = KeyEvent::escape();
        return true;
      }
      if (plan.empty()) return false;
      key = plan.front();
      plan.pop_front();
      return true;
    });
  }

  void press(const std::string& names, int times = 1) {
    for (int i = 0; i < times; ++i) {
      std::istringstream in(names);
      for (std::string name; in >> name;) plan.push_back(scripted::keyNamed(name));
    }
  }
  // From the Navigation deck's first button: set course for sector n and
  // walk into the Library.
  void setCourse(int n) {
    press("Down Enter");
    press("Right", (n - 1) % 6);
    press("Down", (n - 1) / 6);
    press("Enter Esc Esc Right Down");
  }
  // From the Library room: end the days, then into the Navigation deck.
  void endDays(int days) {
    press("Enter Down Enter y", days);
    press("Up Left Enter");
  }
  bool play() { return scripted::run(runTitleMenu); }

  std::deque<KeyEvent> plan;
  int reportsRead = 0;
};

TEST_F(WholeGameTest, LevelEverySectorAndWin) {
  press("Enter Enter");  // NEW GAME, into the Navigation deck
  int at = 0;
  for (int n = 1; n <= kSectorCount; ++n) {
    setCourse(n);
    endDays(travelDays(at, n));
    // Fire on all 16 sub-sectors, a tank of fuel before each shot.
    press("Down Down Down Enter");
    for (int k = 0; k < 16; ++k)
      press(k % 4 == 3 ? "Tab Enter y x Right Down" : "Tab Enter y x Right");
    press("Esc Up Up Up");
    at = n;
  }
  press("Esc Right Down Enter Down Enter y x");  // the last day, and the victory screen
  press("Idle");
  EXPECT_TRUE(play());
  EXPECT_EQ(thePlanet().enemyTotal(), 0);
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(17, 15, 8), "NEW GAME") << "back on the title";
  EXPECT_GE(reportsRead, 24) << "every day of shots had its report";
}

TEST_F(WholeGameTest, TheCannonDrinksTheLastOfTheFuel) {
  press("Enter Enter");
  setCourse(1);
  endDays(1);  // 140,000 fuel over sector I
  press("Down Down Down Enter");
  press("Enter y x Right", 3);  // 90,000, 40,000, then dry
  press("x Idle");
  EXPECT_TRUE(play());
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(theMothership().fuel(), 0);
  EXPECT_EQ(scripted::textAt(17, 15, 8), "NEW GAME");
  EXPECT_EQ(thePlanet().subSector(1, 2).landType(), kRubble);
  EXPECT_EQ(thePlanet().subSector(1, 3).landType(), kDesert) << "no fourth shot";
}

}  // namespace
