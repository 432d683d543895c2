#include "game/messages/library_deck.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/shell/mothership.h"
#include "game/shell/title_menu.h"
#include "tests/support/fresh_game.h"

namespace {

class LibraryDeckTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  // True if the deck ended by itself.
  bool play(const std::string& keys) {
    scripted::addKeys(keys);
    return !scripted::run(runLibraryDeck);
  }
};

TEST_F(LibraryDeckTest, TheDayQuestionOnItsGreenFrame) {
  EXPECT_FALSE(play("Down Enter"));
  EXPECT_EQ(scripted::textAt(35, 10, 8), "End Day?");
  EXPECT_EQ(scripted::colourAt(0, 5), 2);
  EXPECT_FALSE(play("Down Enter Enter Idle:1"));
  EXPECT_EQ(globals().day, 1) << "No changes nothing";
  EXPECT_EQ(scripted::colourAt(43, 8), 241) << "End Turn still selected";
  EXPECT_EQ(scripted::colourAt(0, 0), 78);
  EXPECT_TRUE(play("Down Enter y"));
  EXPECT_EQ(globals().day, 2);
}

TEST_F(LibraryDeckTest, TheMorningReportOnlyWhenThereIsNewsAndTheGameGoesOn) {
  theMessageLog().post("Something happened", 4);
  EXPECT_TRUE(play("Down Enter y Esc"));
  EXPECT_EQ(scripted::textAt(3, 4, 18), "Something happened");
  EXPECT_EQ(theMessageLog().count(), 0);
  theMessageLog().post("Unread", 4);
  theMothership().setFuel(0);
  EXPECT_TRUE(play("Down Enter y x"));
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(theMessageLog().count(), 2) << "a lost game's news is neither shown nor emptied";
}

TEST_F(LibraryDeckTest, DummyButtonsAndThePersonnelScreen) {
  play("Idle:1");
  std::string before = scripted::dump();
  EXPECT_FALSE(play("Enter Up Up Enter Down Down Idle:1"));
  EXPECT_EQ(scripted::dump(), before) << "Interglactanet and Summon do nothing";
  play("Down Down Enter");
  EXPECT_EQ(scripted::textAt(8, 22, 28), "|+Back+|  |+MENU+|  |+Next+|");
  EXPECT_EQ(scripted::colourAt(8, 22), 4);
  EXPECT_EQ(scripted::colourAt(9, 22), 3);
  EXPECT_EQ(scripted::codeAt(40, 20), 236);
  EXPECT_EQ(scripted::colourAt(4, 1), 2);
  EXPECT_FALSE(play("Down Down Enter x Idle:1"));
  EXPECT_EQ(scripted::colourAt(43, 12), 241) << "Personel Bios selected again";
}

TEST_F(LibraryDeckTest, FromTheTitleToTheSecondDay) {
  scripted::addKeys("Enter Right Down Enter Down Enter y Idle:1");
  scripted::run(runTitleMenu);
  EXPECT_EQ(scripted::textAt(0, 23, 10), " DAY:    2");
  EXPECT_EQ(scripted::colourAt(15, 10), 14) << "the Library room is selected";
}

}  // namespace
