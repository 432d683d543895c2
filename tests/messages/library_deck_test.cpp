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

TEST_F(LibraryDeckTest, HiddenKeysBringThingsAboardAtOnce) {
  Mothership& ship = theMothership();
  ship.aircraft().clear();
  ship.crew().clear();
  play("Down");
  const std::string before = scripted::dump();
  EXPECT_FALSE(play("Down 5 6 7 8 k v Idle:1"));
  ASSERT_EQ(ship.aircraft().count(), 4);
  const int types[4] = {0, 3, 1, 2};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(ship.aircraft().at(i).getType(), types[i]) << i;
  EXPECT_EQ(ship.readyCapsules(), 3);
  ASSERT_EQ(ship.crew().getCount(), 1);
  EXPECT_EQ(ship.crew().at(0).getRace(), 1);
  EXPECT_EQ(ship.crew().at(0).getSex(), 0);
  EXPECT_EQ(scripted::dump(), before) << "nothing shown, End Turn still selected";

  // The stores, each in its own place on the status bar, in the deck's colour.
  EXPECT_FALSE(play("d h h r r r"));
  EXPECT_EQ(ship.food(), 1400u);
  EXPECT_EQ(ship.fuel(), 150800);
  EXPECT_EQ(ship.materials(), 11200);
  EXPECT_EQ(scripted::textAt(0, 24, 78),
            std::string(" \xDC    FUEL: 150,800           MATERIALS: 11,200            FOOD: "
                        "1,400        "));
  EXPECT_EQ(scripted::colourAt(65, 24), 78);
  EXPECT_EQ(scripted::colourAt(43, 4), 241) << "still on the first button";
}

TEST_F(LibraryDeckTest, HiddenKeysDropWhatDoesNotFit) {
  Mothership& ship = theMothership();
  ship.aircraft().clear();
  ship.addCapsules(-ship.readyCapsules());
  // 59 barges, a saucer and a fighter leave 30000: room for a fighter only.
  for (int i = 0; i < 59; ++i) ship.aircraft().add(3, ship.dockRoomLeft(), 0);
  ship.aircraft().add(0, ship.dockRoomLeft(), 0);
  ship.aircraft().add(1, ship.dockRoomLeft(), 0);
  ASSERT_EQ(ship.dockRoomLeft(), 30000);
  EXPECT_FALSE(play("5 6 8"));
  EXPECT_EQ(ship.aircraft().count(), 61);
  EXPECT_FALSE(play("7"));
  EXPECT_EQ(ship.aircraft().count(), 62) << "a craft that exactly fits is taken";
  EXPECT_EQ(ship.dockRoomLeft(), 0);
  EXPECT_FALSE(play("7 5"));
  EXPECT_EQ(ship.aircraft().count(), 62);

  ship.crew().clear();
  for (int i = 0; i < 249; ++i) ship.crew().add(3, 0);
  EXPECT_FALSE(play("v"));
  EXPECT_EQ(ship.crew().getCount(), 250);
  EXPECT_FALSE(play("v v"));
  EXPECT_EQ(ship.crew().getCount(), 250);
  EXPECT_EQ(ship.crew().at(249).getRace(), 1);
}

}  // namespace
