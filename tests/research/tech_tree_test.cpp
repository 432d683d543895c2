#include "game/research/tech_tree.h"

#include <gtest/gtest.h>

#include <string>

#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

std::string openCodes(TechTree& tree) {
  std::string codes;
  for (TechItem* item : tree.researchableItems()) codes += std::string(item->getCode()) + " ";
  return codes;
}

void finish(TechTree& tree, const char* code) {
  TechItem* item = tree.find(code);
  ASSERT_NE(item, nullptr) << code;
  item->setProgress(100.0);
  tree.finishItem(*item);
}

TEST(TechTree, OpensItemsOnlyWhenEveryCountDownIsIn) {
  TechTree tree;
  EXPECT_EQ(openCodes(tree), "A1 B1 C1 D1 F1 ");
  finish(tree, "F1");
  EXPECT_EQ(openCodes(tree), "A1 B1 C1 D1 F2 F3 F4 ");
  finish(tree, "B1");
  finish(tree, "B2");
  finish(tree, "B3");
  EXPECT_TRUE(tree.find("B4")->isResearchable());
  EXPECT_FALSE(tree.find("B8")->isResearchable());
  EXPECT_EQ(tree.find("B8")->prerequisitesLeft(), 2);
  // Finishing twice counts down only once.
  tree.finishItem(*tree.find("B3"));
  EXPECT_EQ(tree.find("B8")->prerequisitesLeft(), 2);
  // An unfinished item hands nothing on.
  tree.finishItem(*tree.find("A1"));
  EXPECT_FALSE(tree.find("A2")->isResearchable());
}

TEST(TechTree, ThirtySixItemsCanBeFinishedAndNeverMoreThanSixteenStandOpen) {
  TechTree tree;
  int finished = 0;
  int mostOpen = 0;
  while (tree.researchableCount() > 0) {
    mostOpen = std::max(mostOpen, tree.researchableCount());
    TechItem* item = tree.researchableItems().back();
    item->setProgress(100.0);
    tree.finishItem(*item);
    ++finished;
  }
  EXPECT_EQ(finished, 36);
  EXPECT_LE(mostOpen, 16);
  for (const char* closed : {"E1", "E2", "EG", "B8", "F5"}) {
    EXPECT_FALSE(tree.find(closed)->isComplete()) << closed;
  }
}

TEST(TechItem, ProgressAndSharesStayInTheirBounds) {
  TechTree tree;
  TechItem& a1 = *tree.find("A1");
  a1.changePercentOfCrew(-5);
  EXPECT_EQ(a1.getPercentOfCrew(), 0);
  a1.setProgress(99.9);
  EXPECT_EQ(a1.getPointsLeft(), 0) << "points count only at a whole 100";
  EXPECT_TRUE(a1.isResearchable());
  a1.setProgress(100.0);
  EXPECT_EQ(a1.getPointsLeft(), 500);
  EXPECT_TRUE(a1.isComplete());
  EXPECT_FALSE(a1.isResearchable());
}

TEST(TechTree, CapabilityCountsTheResearchersOnJobThreeOnly) {
  startFreshRun();
  CrewList& crew = theMothership().crew();
  crew.clear();
  TechTree tree;
  EXPECT_EQ(tree.researchCapability(), 0);
  for (int i = 0; i < 20; ++i) crew.add(kRacePovolnian, 0);
  EXPECT_EQ(tree.researchCapability(), 66) << "20 x 10 x 50 / 150";
  crew.add(kRaceHuman, 0);
  crew.at(20).setJob(kJobResearch);
  EXPECT_EQ(tree.researchCapability(), 66) << "a Human's performance is 0";
  crew.at(0).setJob(4);
  EXPECT_EQ(tree.researchCapability(), 63) << "job 4 shows as research but counts nothing";
}

}  // namespace
