#include "game/research/research_station.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/research/tech_tree.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class ResearchStationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    theMothership().crew().clear();
  }
  void researchers(int povolnians) {
    for (int i = 0; i < povolnians; ++i) theMothership().crew().add(kRacePovolnian, 0);
  }
  // The assignments screen, played to the end of the keys.
  void assign(const std::string& keys) {
    scripted::addKeys(keys);
    scripted::run(researchAssignments);
  }
  std::string turns() { return scripted::textAt(72, 21, 4); }
  TechTree& tree = theTechTree();
};

TEST_F(ResearchStationTest, TurnsFollowTheShareOfTheCrew) {
  researchers(20);
  assign("Idle:1");
  EXPECT_EQ(scripted::textAt(5, 20, 30), "Total Research Capablility: 66");
  EXPECT_EQ(scripted::textAt(45, 20, 30), "Total available assignments: 5");
  EXPECT_EQ(turns(), "N/A ");
  EXPECT_EQ(scripted::rowText(4).substr(4, 28), "CARGO EXPANSION             ");
  assign("Right Right Right Right Right Right Right Right Right Right");
  EXPECT_EQ(tree.find("A1")->getPercentOfCrew(), 50);
  assign("Idle:1");
  EXPECT_EQ(turns(), "15  ") << "500 / (66 x 50 / 100)";
  EXPECT_EQ(scripted::textAt(35, 4, 5), "  50%");
  EXPECT_EQ(scripted::colourAt(35, 4), 241);
  assign("Right Right Right Right Right Right Right Right Right Right Right");
  EXPECT_EQ(tree.find("A1")->getPercentOfCrew(), 100) << "no further once the shares make 100";
  assign("Idle:1");
  EXPECT_EQ(turns(), "7   ");
  // A share moved to another row must first come back from the first.
  assign("Down Right");
  EXPECT_EQ(tree.find("B1")->getPercentOfCrew(), 0);
  assign("Up Left Down Right");
  EXPECT_EQ(tree.find("A1")->getPercentOfCrew(), 95);
  EXPECT_EQ(tree.find("B1")->getPercentOfCrew(), 5);
}

TEST_F(ResearchStationTest, FinishingAnItemFreesItsShareAndOpensTheNext) {
  researchers(20);
  tree.find("A1")->changePercentOfCrew(50);
  tree.find("B1")->changePercentOfCrew(50);
  assign("Down Right");
  EXPECT_EQ(tree.find("B1")->getPercentOfCrew(), 50);
  assign("Down Enter Idle:1");
  EXPECT_TRUE(tree.find("B1")->isComplete());
  EXPECT_EQ(scripted::textAt(4, 5, 20), "Mothership Engine #2");
  EXPECT_EQ(scripted::textAt(4, 6, 20), "Barge Ship          ");
  assign("Right");
  EXPECT_EQ(tree.find("A1")->getPercentOfCrew(), 55) << "B1's half went back to the pool";
}

TEST_F(ResearchStationTest, AnEmptyListSaysSoAndOnlyEscapeActs) {
  researchers(20);
  while (tree.researchableCount() > 0) {
    TechItem* item = tree.researchableItems().front();
    item->setProgress(100.0);
    tree.finishItem(*item);
  }
  assign("Enter Right Left Down Idle:1");
  EXPECT_EQ(scripted::textAt(4, 4, 28), "List is empty.              ");
  EXPECT_EQ(scripted::textAt(35, 4, 4), "N/A ");
  EXPECT_EQ(scripted::textAt(23, 21, 6), " N/A  ");
  EXPECT_EQ(turns(), "N/A ");
  scripted::addKeys("Esc");
  EXPECT_FALSE(scripted::run(researchAssignments));
}

TEST_F(ResearchStationTest, ASmallShareOfASmallCrewShowsAFigureInsteadOfFailing) {
  researchers(2);  // capability 6: a share of 5 makes 0 points a turn
  tree.find("A1")->changePercentOfCrew(5);
  assign("Idle:1");
  EXPECT_EQ(turns(), "999 ");
}

TEST_F(ResearchStationTest, TheSixteenthRowScrollsNamesAndSharesTogether) {
  researchers(20);
  for (const char* code :
       {"B1", "B2", "B3", "B4", "B7", "D1", "D2", "D6", "D7", "D8", "D9", "F1"}) {
    TechItem* item = tree.find(code);
    item->setProgress(100.0);
    tree.finishItem(*item);
  }
  ASSERT_EQ(tree.researchableCount(), 16);
  tree.researchableItems().back()->changePercentOfCrew(10);
  std::string downs;
  for (int i = 0; i < 15; ++i) downs += "Down ";
  assign(downs + "Idle:1");
  auto padded = [](std::string_view name) {
    return std::string(name) + std::string(28 - name.size(), ' ');
  };
  EXPECT_EQ(scripted::textAt(4, 18, 28), padded(tree.researchableItems().back()->getName()));
  EXPECT_EQ(scripted::textAt(35, 18, 5), "  10%") << "the share beside its name, highlighted";
  EXPECT_EQ(scripted::colourAt(35, 18), 241);
  EXPECT_EQ(scripted::textAt(4, 4, 28), padded(tree.researchableItems()[1]->getName()));
  EXPECT_EQ(scripted::textAt(35, 4, 5), "   0%") << "the shares scrolled with the names";
}

TEST_F(ResearchStationTest, TheDeckPanelSaysWhyTheScreenWillNotOpen) {
  scripted::addKeys("Idle:1");
  scripted::run(runResearchStation);
  EXPECT_EQ(scripted::textAt(4, 3, 34), "Go assign crew members to research");
  EXPECT_EQ(scripted::textAt(4, 7, 17), "tech to research!");
  scripted::addKeys("Enter Idle:1");
  scripted::run(runResearchStation);
  EXPECT_EQ(scripted::textAt(2, 1, 10), std::string(10, ' ')) << "Enter only redraws";
  researchers(20);
  scripted::addKeys("Down Up Idle:1");
  scripted::run(runResearchStation);
  EXPECT_EQ(scripted::textAt(4, 3, 30), "Total Research Capablility: 66");
  EXPECT_EQ(scripted::textAt(4, 5, 30), "Total available assignments: 5");
  scripted::addKeys("Down Idle:1");
  scripted::run(runResearchStation);
  EXPECT_EQ(scripted::textAt(4, 3, 34), std::string(34, ' ')) << "the panel belongs to button 1";
}

}  // namespace
