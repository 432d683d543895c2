#include "game/cargo/cargo_deck.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/cargo/working_folder.h"
#include "tests/support/fresh_game.h"

namespace {

std::string padded(std::string text, std::size_t width = 40) {
  text.resize(width, ' ');
  return text;
}

class CargoDeckTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    hivesListState() = {};
  }
  void open(void (*screen)(), const std::string& keys = "Esc") {
    scripted::addKeys(keys);
    EXPECT_FALSE(scripted::run(screen)) << "the screen leaves by itself";
  }
  Mothership& ship = theMothership();
};

TEST_F(CargoDeckTest, EachOpeningBringsFiveArtifactsNamedFromTheFile) {
  WorkingFolder folder;
  folder.write("Caf\xE9 Idol\r\nSecond\n");
  for (int count : {5, 10}) {
    open(viewArtifacts);
    EXPECT_EQ(scripted::textAt(2, 1, 20), padded("Total Artifacts: " + std::to_string(count), 20));
    EXPECT_EQ(scripted::textAt(2, 2, 42), padded(std::string(41, '*'), 42));
    for (int r = 0; r < 12; ++r) {
      EXPECT_EQ(scripted::textAt(2, 3 + r, 40), padded(r < count ? "Caf\xE9 Idol" : "")) << r;
    }
  }
  EXPECT_EQ(ship.artifacts(), 10);
  EXPECT_EQ(scripted::colourAt(0, 5), 96);
  // 41 openings: past the 200 rows the screen was first laid out for.
  std::filesystem::remove(folder.path / "artifacts.txt");
  for (int i = 0; i < 38; ++i) open(viewArtifacts);
  std::string toTheEnd;
  for (int i = 0; i < 20; ++i) toTheEnd += "PgDn Down ";
  open(viewArtifacts, toTheEnd + "Esc");
  EXPECT_EQ(scripted::textAt(2, 1, 20), "Total Artifacts: 205");
  EXPECT_EQ(scripted::codeAt(42, 3), 24) << "scrolled to the end";
  EXPECT_EQ(scripted::textAt(2, 14, 40), padded("")) << "blank rows without the file";
}

TEST_F(CargoDeckTest, BombsComeAboardWhileTheHoldHasRoom) {
  for (auto [room, added] : {std::pair{4000, 2}, {3999, 1}, {2000, 1}, {1999, 0}}) {
    startFreshRun();
    ship.setFood(ship.food() + static_cast<std::uint32_t>(ship.cargoRoomLeft() - room));
    ASSERT_EQ(ship.cargoRoomLeft(), room);
    open(viewBombs, "Enter");
    EXPECT_EQ(ship.bombs().count(), added) << room;
    EXPECT_EQ(scripted::textAt(2, 1, 15), padded("Total Bombs: " + std::to_string(added), 15));
    EXPECT_EQ(scripted::textAt(2, 2, 40), padded(added > 0 ? "Plasma Fusion Bomb" : ""));
    EXPECT_EQ(scripted::textAt(2, 3, 40), padded(added > 1 ? "Liquiferno Napalm Bomb" : ""));
  }
  startFreshRun();
  for (int i = 0; i < 101; ++i) open(viewBombs);
  EXPECT_EQ(scripted::textAt(2, 1, 16), "Total Bombs: 202");
}

TEST_F(CargoDeckTest, TheHiveListOpensWhereItWasLeft) {
  open(viewHives, "Enter");
  EXPECT_EQ(scripted::textAt(2, 1, 14), "Total Eggs: 0 ");
  for (int i = 0; i < 20; ++i) ship.eggs().add(1, ship.cargoRoomLeft());
  // Through the deck: the third button, seven rows down, out and in again.
  scripted::addKeys("Down Down Enter Down Down Down Down Down Down Down Esc Enter");
  scripted::run(runCargoDeck);
  for (int r = 0; r < 20; ++r) EXPECT_EQ(scripted::colourAt(2, 2 + r), r == 7 ? 241 : 15) << r;
  EXPECT_EQ(scripted::textAt(2, 9, 40), padded("Povolnian Eggs"));
  EXPECT_EQ(scripted::textAt(2, 1, 14), "Total Eggs: 20");
}

TEST_F(CargoDeckTest, TheMenuKeepsKeysTypedAhead) {
  // All at once: the keys after the Escape that closes the artifacts still
  // reach the menu, which opens the bombs.
  scripted::addKeys({KeyEvent::enter(), KeyEvent::escape(), scripted::keyNamed("Down"),
                     KeyEvent::enter(), KeyEvent::escape()});
  scripted::run(runCargoDeck);
  EXPECT_EQ(ship.artifacts(), 5);
  EXPECT_EQ(ship.bombs().count(), 2);
}

}  // namespace
