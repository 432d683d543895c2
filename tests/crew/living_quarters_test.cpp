// The LIVING QUARTERS deck, the schedule screen and the coffee with Emerson.
#include "game/crew/living_quarters.h"

#include <gtest/gtest.h>

#include <string>

#include "game/art/living_quarters.h"
#include "game/art/picture.h"
#include "game/console/scripted.h"
#include "game/crew/coffee_with_emerson.h"
#include "game/crew/work_schedules.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class LivingQuartersTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  bool play(const std::string& keys, void (*screen)()) {
    scripted::addKeys(keys);
    return scripted::run(screen);
  }
  Mothership& ship = theMothership();
};

TEST_F(LivingQuartersTest, TheDeckWithAndWithoutCrew) {
  ASSERT_TRUE(play("Enter", runLivingQuarters));
  EXPECT_EQ(scripted::textAt(4, 2, 13), "  RESEARCH   ") << "the job screen opened";
  ship.crew().clear();
  ASSERT_TRUE(play("Enter Down Enter", runLivingQuarters));
  EXPECT_EQ(scripted::textAt(4, 12, 25), "There are no crewmembers!");
  EXPECT_EQ(scripted::colourAt(43, 8), 241) << "Auto Assign did nothing and the menu goes on";
}

TEST_F(LivingQuartersTest, EnterAndEscapeBothTakeTheScheduleUnderTheCursor) {
  struct Case {
    const char* keys;
    int schedule;
  };
  for (const Case& c :
       {Case{"Esc", 2}, Case{"Enter", 2}, Case{"Down Esc", 3}, Case{"Down Down Down Enter", 0},
        Case{"Up Up Up Esc", 4}, Case{"Up Up Enter", 0}}) {
    ship.setWorkSchedule(2);
    ASSERT_FALSE(play(c.keys, [] { chooseWorkSchedule(theMothership().workSchedule() + 1); }))
        << c.keys;
    EXPECT_EQ(ship.workSchedule(), c.schedule) << c.keys;
  }
  ship.setWorkSchedule(1);
  ASSERT_TRUE(play("Down Down Enter Up", runLivingQuarters));
  EXPECT_EQ(scripted::textAt(22, 6, 23), "1) All Ship Party Mode ");
  EXPECT_EQ(scripted::colourAt(22, 6), 12) << "the deck opens it on the current schedule";
  EXPECT_EQ(scripted::colourAt(22, 7), 15);
}

TEST_F(LivingQuartersTest, EmersonSaysHowTheCrewFeel) {
  struct Case {
    int morale;
    const char* says;  // the words after "Word on the street is "
  };
  for (const Case& c : {Case{100, "the morale is at"}, Case{91, "the morale is at"},
                        Case{90, "the crew is really"}, Case{81, "the crew is really"},
                        Case{80, "life is wonderful"}, Case{61, "the crew is enthu"},
                        Case{51, "everyone is conten"}, Case{50, "everything seems t"},
                        Case{31, "some of the crew a"}, Case{30, "everyone is really"},
                        Case{20, "everyone is down a"}, Case{11, "everyone is down a"},
                        Case{10, "the crew members a"}, Case{1, "the crew members a"}}) {
    ship.setMorale(static_cast<float>(c.morale));
    ASSERT_TRUE(play("", coffeeWithEmerson));
    const std::string says = std::string("Emerson says, \"Word on the street is ") + c.says;
    EXPECT_EQ(scripted::textAt(1, 19, static_cast<int>(says.size())), says) << c.morale;
    EXPECT_EQ(scripted::colourAt(1, 19), 14);
  }
  EXPECT_TRUE(emersonMoraleLine(61).ends_with("winks at you and smiles."));
  ship.setMorale(0.9f);
  ASSERT_TRUE(play("", coffeeWithEmerson));
  EXPECT_EQ(scripted::rowText(19), std::string(80, ' ')) << "at 0 he says nothing";
  EXPECT_EQ(scripted::textAt(1, 1, 30), "You walk into the main lounge,");
  EXPECT_EQ(scripted::textAt(26, 24, 29), "<<PRESS ANY KEY TO CONTINUE>>");
}

TEST_F(LivingQuartersTest, UnderThePartyScheduleTheLoungeIsAPartyWhateverTheMorale) {
  // Where the picture's top row stands: the first cell drawn on it is
  // looked for on rows 0 and 1.
  auto pictureTop = [] {
    int x = 0;
    while (pictureColour(kEmersonPicture, x, 0, -1) < 0) ++x;
    const auto glyph = static_cast<unsigned char>(pictureRow(kEmersonPicture, 0)[x]);
    for (int row = 0; row < 2; ++row) {
      if (scripted::codeAt(40 + x, row) == glyph) return row;
    }
    return -1;
  };
  ship.setMorale(0);
  ship.setWorkSchedule(0);
  ASSERT_TRUE(play("", coffeeWithEmerson));
  EXPECT_EQ(scripted::textAt(1, 1, 25), "Loud music blares across ");
  EXPECT_EQ(scripted::textAt(1, 20, 46), "Emerson says, \"Word on the street is....WOO-HO");
  EXPECT_EQ(scripted::colourAt(1, 20), 14);
  EXPECT_EQ(pictureTop(), 1) << "one row lower";
  ship.setWorkSchedule(1);
  ship.setMorale(50);
  ASSERT_TRUE(play("", coffeeWithEmerson));
  EXPECT_EQ(pictureTop(), 0);
}

}  // namespace
