#include "game/cargo/incinerator.h"

#include <gtest/gtest.h>

#include <string>

#include "game/cargo/cargo_deck.h"
#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/cargo/working_folder.h"
#include "tests/support/fresh_game.h"

namespace {

constexpr int kHighlight = 241;
constexpr int kCargoColumn = 3;
constexpr int kBurnColumn = 40;
constexpr int kListTop = 5;

std::string padded(std::string_view text, std::size_t width = 35) {
  std::string s(text);
  s.resize(width, ' ');
  return s;
}

class IncineratorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    ship.crew().clear();
  }
  // Runs the screen on these keys; true if it ended by itself.
  bool play(const std::string& keys) {
    scripted::reset();
    scripted::addKeys(keys);
    return !scripted::run(runIncinerator);
  }
  int cargoTotal() { return std::stoi(scripted::textAt(29, 19, 5)); }
  int burnTotal() { return std::stoi(scripted::textAt(70, 19, 6)); }
  // Whether a row of the list at this column is highlighted.
  bool lit(int column) {
    for (int r = kListTop; r < kListTop + 13; ++r) {
      if (scripted::colourAt(column, r) == kHighlight) return true;
    }
    return false;
  }
  Mothership& ship = theMothership();
};

TEST_F(IncineratorTest, EveryItemMovedAcrossAndBackWithTheSidesChangingByThemselves) {
  WorkingFolder folder;
  folder.write("Golden Idol\n");
  ship.addArtifacts(2);
  ship.eggs().add(1, ship.cargoRoomLeft());
  ship.crew().add(3, 0);
  ship.crew().add(6, 1);
  // Each Enter moves the top row of the list that has the keys.
  std::string keys;
  for (int moved = 0; moved <= 10; ++moved) {
    EXPECT_FALSE(play(keys));
    const int burnt = moved <= 5 ? moved : 10 - moved;
    EXPECT_EQ(cargoTotal(), 5 - burnt) << moved;
    EXPECT_EQ(burnTotal(), burnt) << moved;
    const bool burnSide = moved >= 5 && moved < 10;
    EXPECT_EQ(lit(kBurnColumn), burnSide) << moved;
    EXPECT_EQ(lit(kCargoColumn), !burnSide) << moved;
    EXPECT_EQ(scripted::textAt(20, 21, 42), "Total Fuel Gained From Destroying Items: 0");
    keys += "Enter ";
  }
  play("");
  // Artifacts, then eggs, then crew by name.
  const std::string expected[5] = {padded("Golden Idol"), padded("Golden Idol"),
                                   padded("Povolnian Eggs"), padded(ship.crew().at(0).name()),
                                   padded(ship.crew().at(1).name())};
  for (int r = 0; r < 5; ++r) {
    EXPECT_EQ(scripted::textAt(kCargoColumn, kListTop + r, 35), expected[r]) << r;
  }
  EXPECT_NE(expected[3], padded("")) << "crew members have names";
}

TEST_F(IncineratorTest, LeavingAsksOnlyWithSomethingMarkedAndBurnsNothing) {
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
  EXPECT_EQ(cargoTotal(), 4);
  EXPECT_EQ(burnTotal(), 0);
}

TEST_F(IncineratorTest, NothingToSortEndsTheVisit) {
  EXPECT_TRUE(play(""));
  EXPECT_EQ(scripted::textAt(3, 2, 45), "Burn Resources In The Cargo Hold to make Fuel");
}

TEST_F(IncineratorTest, MoreItemsThanTheScreenWasLaidOutFor) {
  // 265 items, 265 in one list: the last crew member goes across and back.
  ship.addArtifacts(5);
  for (int i = 0; i < 20; ++i) ship.eggs().add(1, ship.cargoRoomLeft());
  for (int i = 0; i < 240; ++i) ship.crew().add(3, i % 2);
  std::string toTheEnd;
  for (int i = 0; i < 25; ++i) toTheEnd += "PgDn ";
  for (int i = 0; i < 13; ++i) toTheEnd += "Down ";
  EXPECT_FALSE(play(toTheEnd + "Enter"));
  EXPECT_EQ(cargoTotal(), 264);
  EXPECT_EQ(burnTotal(), 1);
  EXPECT_EQ(scripted::textAt(kBurnColumn, kListTop, 35), padded(ship.crew().at(239).name()));
  EXPECT_FALSE(play(toTheEnd + "Enter Right Enter"));
  EXPECT_EQ(cargoTotal(), 265);
  EXPECT_TRUE(lit(kCargoColumn)) << "the burn list emptied: back on the cargo side";
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
