// Whole games through the real screens, from the title menu to an ending
// and back, with a player who follows a plan and reads the morning reports.
#include <gtest/gtest.h>

#include <deque>
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

  void press(const std::string& names) {
    std::string name;
    for (std::size_t i = 0; i <= names.size(); ++i) {
      if (i == names.size() || names[i] == ' ') {
        if (!name.empty()) plan.push_back(named(name));
        name.clear();
      } else {
        name += names[i];
      }
    }
  }
  static KeyEvent named(const std::string& name) {
    if (name == "Up") return KeyEvent::arrow(kKeyUp);
    if (name == "Down") return KeyEvent::arrow(kKeyDown);
    if (name == "Left") return KeyEvent::arrow(kKeyLeft);
    if (name == "Right") return KeyEvent::arrow(kKeyRight);
    if (name == "Enter") return KeyEvent::enter();
    if (name == "Esc") return KeyEvent::escape();
    if (name == "Tab") return KeyEvent::press(kKeyTab, 9);
    return KeyEvent::typed(name[0]);
  }
  void repeat(const std::string& key, int times) {
    for (int i = 0; i < times; ++i) press(key);
  }

  // On the ship map in the Library: walk to NAV COM and enter its deck.
  void libraryToNavigation() { press("Up Left Enter"); }
  // From the Navigation deck's first button: choose sector n as the
  // destination and go back to the map, in NAV COM.
  void setCourse(int n) {
    press("Down Enter");
    repeat("Right", (n - 1) % 6);
    repeat("Down", (n - 1) / 6);
    press("Enter Esc Esc");
  }
  // From NAV COM on the map: into the Library, then end `days` days.
  void endDays(int days) {
    press("Right Down");
    for (int i = 0; i < days; ++i) press("Enter Down Enter y");
  }
  // From the Navigation deck's first button: fire on all 16 sub-sectors,
  // with a tank of fuel before each shot, and back to the map.
  void levelTheSector() {
    press("Down Down Down Enter");
    for (int k = 0; k < 16; ++k) {
      press("Tab Enter y x");
      press(k % 4 == 3 ? "Right Down" : "Right");
    }
    press("Esc Esc");
  }
  bool play() { return scripted::run(runTitleMenu); }

  std::deque<KeyEvent> plan;
  int reportsRead = 0;
};

TEST_F(WholeGameTest, LevelEverySectorAndWin) {
  press("Enter");  // NEW GAME, on the map in NAV COM
  press("Enter");
  int at = 0;
  for (int n = 1; n <= kSectorCount; ++n) {
    setCourse(n);
    endDays(travelDays(at, n));
    libraryToNavigation();
    levelTheSector();
    press("Enter");  // back into the Navigation deck for the next course
    at = n;
  }
  press("Esc");
  endDays(1);
  press("x");  // the victory screen
  press("Idle");
  EXPECT_TRUE(play());
  EXPECT_EQ(thePlanet().enemyTotal(), 0);
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(17, 15, 8), "NEW GAME") << "back on the title\n" << scripted::dump();
  EXPECT_GE(reportsRead, 24) << "every day of shots had its report";
  for (int n = 1; n <= kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) {
      EXPECT_EQ(thePlanet().subSector(n, k).landType(), kRubble);
      EXPECT_TRUE(thePlanet().subSector(n, k).mapped());
    }
  }
}

TEST_F(WholeGameTest, TheCannonDrinksTheLastOfTheFuel) {
  press("Enter Enter");
  setCourse(1);
  endDays(1);  // 140,000 fuel over sector I
  libraryToNavigation();
  press("Down Down Down Enter");
  press("Enter y x Right Enter y x Right Enter y x");  // 90,000, 40,000, then dry
  press("x Idle");
  EXPECT_TRUE(play());
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(theMothership().fuel(), 0);
  EXPECT_EQ(scripted::textAt(17, 15, 8), "NEW GAME");
  EXPECT_EQ(thePlanet().subSector(1, 2).landType(), kRubble);
  EXPECT_EQ(thePlanet().subSector(1, 3).landType(), kDesert) << "no fourth shot";
}

}  // namespace
