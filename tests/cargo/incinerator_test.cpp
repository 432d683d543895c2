#include "game/cargo/incinerator.h"

#include <gtest/gtest.h>

#include <string>

#include "game/cargo/cargo_deck.h"
#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/cargo/working_folder.h"
#include "tests/support/fresh_game.h"

namespace {

std::string padded(std::string_view text) {
  std::string s(text);
  s.resize(35, ' ');
  return s;
}

class IncineratorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    ship.crew().clear();
  }
  // True if the screen ended by itself.
  bool play(const std::string& keys) {
    scripted::reset();
    scripted::addKeys(keys);
    return !scripted::run(runIncinerator);
  }
  int total(int column) { return std::stoi(scripted::textAt(column, 19, 5)); }
  // Whether the list at this column has the highlight.
  bool lit(int column) {
    for (int r = 5; r < 18; ++r) {
      if (scripted::colourAt(column, r) == 241) return true;
    }
    return false;
  }
  Mothership& ship = theMothership();
};

TEST_F(IncineratorTest, EveryItemAcrossAndBackTheSidesChangingByThemselves) {
  WorkingFolder folder;
  folder.write("Golden Idol\n");
  ship.addArtifacts(2);
  ship.eggs().add(1, ship.cargoRoomLeft());
  ship.crew().add(3, 0);
  ship.crew().add(6, 1);
  std::string keys;  // each Enter moves the top row of the list that has the keys
  for (int moved = 0; moved <= 10; ++moved, keys += "Enter ") {
    EXPECT_FALSE(play(keys));
    const int burnt = moved <= 5 ? moved : 10 - moved;
    EXPECT_EQ(total(29), 5 - burnt) << moved;
    EXPECT_EQ(total(70), burnt) << moved;
    EXPECT_EQ(lit(40), moved >= 5 && moved < 10) << moved;
    EXPECT_EQ(lit(3), moved < 5 || moved == 10) << moved;
    EXPECT_EQ(scripted::textAt(20, 21, 42), "Total Fuel Gained From Destroying Items: 0");
  }
  // Artifacts, then eggs, then the crew by name.
  const std::string rows[5] = {"Golden Idol", "Golden Idol", "Povolnian Eggs",
                               std::string(ship.crew().at(0).name()),
                               std::string(ship.crew().at(1).name())};
  for (int r = 0; r < 5; ++r) EXPECT_EQ(scripted::textAt(3, 5 + r, 35), padded(rows[r])) << r;
}

TEST_F(IncineratorTest, LeavingAsksOnlyWithSomethingMarkedAndBurnsNothing) {
  EXPECT_TRUE(play("")) << "nothing to sort: the visit ends";
  ship.addArtifacts(3);
  ship.crew().add(3, 0);
  EXPECT_TRUE(play("Right Left Esc")) << "nothing marked: no question";
  EXPECT_EQ(scripted::textAt(8, 11, 24), std::string(24, ' '));
  const auto fuel = ship.fuel();
  EXPECT_TRUE(play("Enter Down Enter Right Esc y"));
  EXPECT_EQ(scripted::textAt(8, 11, 24), "Burn Resources for Fuel?");
  EXPECT_EQ(scripted::textAt(2, 6, 36), std::string(36, ' ')) << "the left side wiped";
  EXPECT_EQ(ship.fuel(), fuel);
  EXPECT_EQ(ship.artifacts(), 3);
  EXPECT_EQ(ship.crew().getCount(), 1);
  EXPECT_FALSE(play("")) << "the next visit starts with everything in the cargo";
  EXPECT_EQ(total(29), 4);
}

TEST_F(IncineratorTest, MoreItemsThanTheScreenWasLaidOutFor) {
  ship.addArtifacts(5);  // 265 items in all
  for (int i = 0; i < 20; ++i) ship.eggs().add(1, ship.cargoRoomLeft());
  for (int i = 0; i < 240; ++i) ship.crew().add(3, i % 2);
  std::string toTheEnd;
  for (int i = 0; i < 264; ++i) toTheEnd += "Down ";
  EXPECT_FALSE(play(toTheEnd + "Enter"));
  EXPECT_EQ(total(29), 264);
  EXPECT_EQ(scripted::textAt(40, 5, 35), padded(ship.crew().at(239).name()));
  EXPECT_FALSE(play("Enter Enter Enter Enter Enter Enter Enter Enter Enter Enter Right Enter"));
  EXPECT_EQ(scripted::textAt(42, 19, 33), "Total Items In Incinerator: 9    ");
  EXPECT_EQ(scripted::textAt(7, 19, 27), "Total Items In Cargo: 256  ");
}

TEST_F(IncineratorTest, EachVisitBringsAnEggThroughTheDeck) {
  scripted::addKeys("Up Up Enter Esc Enter Esc Esc");
  scripted::run(runCargoDeck);
  EXPECT_EQ(ship.eggs().count(), 2);
  EXPECT_EQ(ship.eggs().at(1).race, 1);
}

}  // namespace
