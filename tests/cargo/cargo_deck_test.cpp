#include "game/cargo/cargo_deck.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/cargo/working_folder.h"
#include "tests/support/fresh_game.h"

namespace {

constexpr int kHighlight = 241;

class CargoDeckTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    hivesListState() = {};
  }
  void open(void (*screen)(), const std::string& keys = "Esc") {
    scripted::addKeys(keys);
    EXPECT_FALSE(scripted::run(screen)) << "the screen left by itself";
  }
  // Walks a list from its top with Down until a Down changes nothing, and
  // gives the number of rows so found.
  int rowsByWalking(void (*screen)()) {
    std::string last;
    int rows = 0;
    scripted::setPlayer([&](KeyEvent& key) {
      std::string now = screenWithColours();
      if (now == last) {
        key = KeyEvent::escape();
        return true;
      }
      last = now;
      ++rows;
      key = scripted::keyNamed("Down");
      return true;
    });
    scripted::run(screen);
    scripted::setPlayer(nullptr);
    return rows;
  }
  static std::string screenWithColours() {
    std::string all = scripted::dump();
    for (int r = 0; r < 25; ++r) {
      for (int c = 0; c < 80; ++c) all += static_cast<char>(scripted::colourAt(c, r));
    }
    return all;
  }
  // Room left in the hold made exactly `room` by the food store.
  void leaveRoom(std::int32_t room) {
    Mothership& ship = theMothership();
    ship.setFood(static_cast<std::uint32_t>(ship.cargoRoomLeft() - room) + ship.food());
    ASSERT_EQ(ship.cargoRoomLeft(), room);
  }
  int highlightedRow(int column, int top, int rows) {
    for (int r = top; r < top + rows; ++r) {
      if (scripted::colourAt(column, r) == kHighlight) return r;
    }
    return -1;
  }
  Mothership& ship = theMothership();
};

TEST_F(CargoDeckTest, EachOpeningBringsFiveArtifactsNamedFromTheFile) {
  WorkingFolder folder;
  folder.write("Golden Idol\r\nSecond\n");
  const std::string name = std::string("Golden Idol") + std::string(29, ' ');
  for (int visit = 1; visit <= 2; ++visit) {
    open(viewArtifacts);
    const int count = 5 * visit;
    EXPECT_EQ(ship.artifacts(), count);
    EXPECT_EQ(scripted::textAt(2, 1, 20),
              "Total Artifacts: " + std::to_string(count) + (count < 10 ? "  " : " "));
    EXPECT_EQ(scripted::textAt(2, 2, 42), std::string(41, '*') + " ");
    for (int r = 0; r < 12; ++r) {
      EXPECT_EQ(scripted::textAt(2, 3 + r, 40), r < count ? name : std::string(40, ' '))
          << "visit " << visit << " row " << r;
    }
    EXPECT_EQ(scripted::colourAt(0, 5), 96);
  }
  EXPECT_EQ(folder.read(), "Golden Idol\r\nSecond\n");
  folder.write("\x80\xE9t\xE9\n");
  open(viewArtifacts);
  EXPECT_EQ(scripted::codeAt(2, 3), 0x80) << "a high byte is its code page glyph";
  EXPECT_EQ(scripted::codeAt(3, 14), 0xE9);
  std::filesystem::remove(folder.path() / "artifacts.txt");
  open(viewArtifacts, "Enter");
  EXPECT_EQ(scripted::textAt(2, 17, 40), std::string(40, ' ')) << "blank rows without the file";
}

TEST_F(CargoDeckTest, ListsLongerThanTwoHundredRowsShowEveryRow) {
  for (int i = 0; i < 40; ++i) open(viewArtifacts);
  std::string toTheEnd;
  for (int i = 0; i < 20; ++i) toTheEnd += "PgDn ";
  for (int i = 0; i < 12; ++i) toTheEnd += "Down ";
  open(viewArtifacts, toTheEnd + "Esc");
  EXPECT_EQ(scripted::textAt(2, 1, 20), "Total Artifacts: 205");
  EXPECT_EQ(scripted::codeAt(42, 3), 24) << "scrolled down to the end";
  // Every artifact shows the same name; the bombs alternate, so that a
  // walk down the list sees every step.
  for (int i = 0; i < 100; ++i) open(viewBombs);
  EXPECT_EQ(rowsByWalking(viewBombs), 202);
  EXPECT_EQ(scripted::textAt(2, 1, 16), "Total Bombs: 202");
  EXPECT_EQ(scripted::textAt(2, 13, 22), "Liquiferno Napalm Bomb");
  EXPECT_EQ(scripted::textAt(2, 12, 22), "Plasma Fusion Bomb    ");
}

TEST_F(CargoDeckTest, BombsComeAboardWhileTheHoldHasRoom) {
  struct Case {
    std::int32_t room;
    int added;
  };
  for (Case c : {Case{4000, 2}, Case{3999, 1}, Case{2000, 1}, Case{1999, 0}}) {
    startFreshRun();
    leaveRoom(c.room);
    open(viewBombs, "Enter");
    EXPECT_EQ(ship.bombs().count(), c.added) << c.room;
    EXPECT_EQ(scripted::textAt(2, 1, 15), "Total Bombs: " + std::to_string(c.added) + " ");
    EXPECT_EQ(scripted::textAt(2, 2, 22),
              c.added > 0 ? "Plasma Fusion Bomb    " : std::string(22, ' '));
    EXPECT_EQ(scripted::textAt(2, 3, 22),
              c.added > 1 ? "Liquiferno Napalm Bomb" : std::string(22, ' '));
  }
}

TEST_F(CargoDeckTest, TheHiveListOpensWhereItWasLeft) {
  open(viewHives, "Enter");
  EXPECT_EQ(scripted::textAt(2, 1, 14), "Total Eggs: 0 ");
  for (int i = 0; i < 20; ++i) ship.eggs().add(1, ship.cargoRoomLeft());
  // Through the deck: the third button, seven rows down, out and in again.
  scripted::addKeys("Down Down Enter Down Down Down Down Down Down Down Esc Enter");
  scripted::run(runCargoDeck);
  EXPECT_EQ(highlightedRow(2, 2, 20), 2 + 7);
  EXPECT_EQ(scripted::textAt(2, 9, 40), "Povolnian Eggs" + std::string(26, ' '));
  EXPECT_EQ(scripted::textAt(2, 1, 14), "Total Eggs: 20");
}

TEST_F(CargoDeckTest, TheMenuKeepsKeysTypedAhead) {
  // All at once: Enter opens the artifacts, Escape closes them, and the keys
  // after it still reach the menu, which opens the bombs.
  scripted::addKeys({KeyEvent::enter(), KeyEvent::escape(), scripted::keyNamed("Down"),
                     KeyEvent::enter(), KeyEvent::escape()});
  scripted::run(runCargoDeck);
  EXPECT_EQ(ship.artifacts(), 5);
  EXPECT_EQ(ship.bombs().count(), 2);
  EXPECT_EQ(scripted::colourAt(43, 8), kHighlight) << "back on the bombs button";
}

}  // namespace
