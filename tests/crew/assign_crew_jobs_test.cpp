#include "game/crew/assign_crew_jobs.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "game/console/scripted.h"
#include "game/crew/crew_bio.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

constexpr int kResearch = 4, kMaintenance = 28, kOther = 52;  // list columns
constexpr int kCarried = 225;

class AssignCrewJobsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    crew.clear();
  }

  // Adds members of a race, each with a name nobody else aboard has, so
  // that a test can follow them by name. Povolnians start in RESEARCH,
  // Makos in MAINTENANCE, Mududus in OTHER.
  void board(int race, int count) {
    for (int added = 0; added < count;) {
      crew.add(race, 0);
      const std::string name(crew.at(crew.getCount() - 1).name());
      if (names.insert(name).second) {
        ++added;
      } else {
        crew.remove(crew.at(crew.getCount() - 1));
      }
    }
  }
  std::string nameAt(int index) { return std::string(crew.at(index).name()); }
  // The roster's names in order.
  std::vector<std::string> roster() {
    std::vector<std::string> out;
    for (int i = 0; i < crew.getCount(); ++i) out.push_back(nameAt(i));
    return out;
  }
  // Runs the screen on a key script; true if the script ran out first.
  bool play(const std::string& keys) {
    scripted::addKeys(keys);
    return scripted::run(assignCrewJobs);
  }
  std::string shown(int column, int row) {
    std::string text = scripted::textAt(column, row, 22);
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }
  int titleColour(int column) { return scripted::colourAt(column, 2); }

  CrewList& crew = theMothership().crew();
  std::set<std::string> names;
};

TEST_F(AssignCrewJobsTest, OneMemberCarriedThroughAllThreeLists) {
  board(kRacePovolnian, 1);
  const std::string me = nameAt(0);
  ASSERT_TRUE(play("Right Left Right"));
  EXPECT_EQ(titleColour(kResearch), kCarried) << "browsing never lands on an empty list";

  struct Step {
    const char* keys;
    int job, column;
  };
  for (const Step& step :
       {Step{"Enter Right", 7, kMaintenance}, Step{"Enter Right Right", 0, kOther},
        Step{"Enter Right Right Right", 3, kResearch}, Step{"Enter Left", 0, kOther}}) {
    SCOPED_TRACE(step.keys);
    crew.at(0).setJob(3);
    ASSERT_TRUE(play(step.keys));
    EXPECT_EQ(crew.at(0).getJob(), step.job);
    EXPECT_EQ(titleColour(step.column), kCarried);
    EXPECT_EQ(shown(step.column, 4), me);
    EXPECT_EQ(scripted::colourAt(step.column, 4), kCarried) << "still carried";
    for (int column : {kResearch, kMaintenance, kOther}) {
      if (column != step.column) {
        EXPECT_EQ(shown(column, 4), "") << "emptied lists are blank";
      }
    }
  }
}

TEST_F(AssignCrewJobsTest, SidewaysMovesLandOnTheSameScreenRow) {
  board(kRaceMako, 3);       // roster 0..2, MAINTENANCE
  board(kRacePovolnian, 5);  // roster 3..7, RESEARCH
  const std::vector<std::string> before = roster();

  // From row 3 onto a list of three: below its last row, so last in the
  // roster and last in the list.
  ASSERT_FALSE(play("Down Down Down Enter Right Enter Esc"));
  std::vector<std::string> expected = before;
  expected.erase(expected.begin() + 6);
  expected.push_back(before[6]);
  EXPECT_EQ(roster(), expected);
  EXPECT_EQ(crew.at(7).getJob(), 7);

  // From the first row onto a list that is not scrolled: the head of the
  // roster.
  ASSERT_FALSE(play("Enter Right Enter Esc"));
  EXPECT_EQ(nameAt(0), before[3]);
  EXPECT_EQ(crew.at(0).getJob(), 7);

  // From row 1 onto row 1 of the target: just before the member there.
  ASSERT_TRUE(play("Down Enter Right"));
  EXPECT_EQ(roster(), (std::vector<std::string>{before[3], before[5], before[0], before[1],
                                                before[2], before[4], before[7], before[6]}));
  EXPECT_EQ(shown(kMaintenance, 5), before[5]);
  EXPECT_EQ(scripted::colourAt(kMaintenance, 5), kCarried);
  EXPECT_EQ(shown(kMaintenance, 6), before[0]) << "pushed one row down";
  EXPECT_EQ(shown(kResearch, 5), before[7]) << "the list it left closes up";
}

TEST_F(AssignCrewJobsTest, UpAndDownStopAtTheEndsAndEscapeKeepsTheMoves) {
  board(kRacePovolnian, 3);
  const std::vector<std::string> before = roster();
  // Up at the first row waits for another key; Down then swaps.
  ASSERT_TRUE(play("Enter Up Down"));
  EXPECT_EQ(roster(), (std::vector<std::string>{before[1], before[0], before[2]}));
  EXPECT_EQ(scripted::colourAt(kResearch, 5), kCarried);
  // Down at the last row waits too; Escape ends the move and keeps it.
  ASSERT_FALSE(play("Enter Down Down Down Down Esc Esc"));
  EXPECT_EQ(roster(), (std::vector<std::string>{before[0], before[2], before[1]}));
}

TEST_F(AssignCrewJobsTest, AListLongerThanTheBoxScrolls) {
  board(kRaceMududu, 2);
  board(kRacePovolnian, 20);  // roster 2..21
  std::string keys = "Enter";
  for (int i = 0; i < 19; ++i) keys += " Down";
  // The first member carried to the bottom: the list scrolls under it.
  const std::string first = nameAt(2);
  ASSERT_TRUE(play(keys));
  EXPECT_EQ(nameAt(21), first);
  EXPECT_EQ(shown(kResearch, 17), nameAt(21));
  EXPECT_EQ(scripted::colourAt(kResearch, 17), kCarried);
  EXPECT_EQ(shown(kResearch, 4), nameAt(2 + 6)) << "top 6: rows 6 to 19 shown";
  // On to OTHER, below its last row: the list it left scrolls back by one.
  ASSERT_TRUE(play(keys + " Left Enter Right"));
  EXPECT_EQ(crew.at(21).getJob(), 0);
  EXPECT_EQ(shown(kResearch, 4), nameAt(2 + 5));
  EXPECT_EQ(shown(kOther, 6), nameAt(21)) << "last in OTHER";
}

TEST_F(AssignCrewJobsTest, TheBiographyFollowsTheHighlight) {
  board(kRacePovolnian, 2);
  crew.add(kRaceHuman, 1);
  crew.at(2).setJob(3);
  ASSERT_TRUE(play("Down Down"));
  const std::string name = nameAt(2);
  EXPECT_EQ(scripted::textAt(4, 19, 6 + static_cast<int>(name.size())), "NAME: " + name);
  EXPECT_EQ(scripted::rowText(20).substr(4, 74),
            "RACE: Human             PERFORMANCE: 0    MILITARY: 4   NAVIGATION:  4  \xBA ");
  EXPECT_EQ(scripted::rowText(21).substr(4, 64),
            "JOB: Jibbering in a corner, screaming in fear.                  ");
  ASSERT_TRUE(play("Down Up"));
  EXPECT_EQ(scripted::rowText(20).substr(4, 74),
            "RACE: Povolnian         PERFORMANCE: 50   MILITARY: 1   NAVIGATION:  5  \xBA ");
  EXPECT_EQ(scripted::rowText(21).substr(4, 64),
            "JOB: Researching new technologies.                              ");
}

TEST(CrewBio, RaceTexts) {
  EXPECT_STREQ(bioRaceText(kRaceHampster, 0), "Widow");
  EXPECT_STREQ(bioRaceText(kRaceHampster, 1), "Hampster");
  EXPECT_STREQ(bioRaceText(kRaceHampster, 2), "Hampster");
  EXPECT_STREQ(bioRaceText(kRaceOblivion, 0), "Oblivio");
  EXPECT_STREQ(bioRaceText(15, 0), "Error");
  EXPECT_STREQ(bioRaceText(-1, 0), "Error");
}

}  // namespace
