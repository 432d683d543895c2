#include "game/console/list_box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "game/console/console.h"
#include "game/console/scripted.h"

namespace {

constexpr int kColumn = 4;
constexpr int kRow = 3;
constexpr int kWidth = 20;
constexpr int kBox = 13;
constexpr int kBar = kColumn + kWidth;

class ListBoxTest : public ::testing::Test {
 protected:
  void SetUp() override { scripted::reset(); }

  void fill(int count) {
    rows.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) rows[i].text.assign("row " + std::to_string(i));
  }

  // Runs the box with the keys; the result, or -99 if the keys ran out.
  int run(const std::string& keys, bool leftRightLeaves = false, bool singleStep = false) {
    scripted::addKeys(keys);
    int result = -99;
    scripted::run([&] {
      result = ListBox::run(rows.data(), kColumn, kRow, kWidth, kBox, static_cast<int>(rows.size()),
                            leftRightLeaves, state, false, singleStep);
    });
    return result;
  }

  int highlightedRow() {
    for (int r = kRow; r < kRow + kBox; ++r) {
      if (scripted::colourAt(kColumn, r) == 241) return r - kRow;
    }
    return -1;
  }

  std::vector<ListRow> rows;
  ListBoxState state;
};

TEST_F(ListBoxTest, AShortListPagesToItsEndsAndShowsNoArrows) {
  fill(5);
  EXPECT_EQ(run("PgDn Enter"), 4);
  EXPECT_EQ(run("PgUp Enter"), 0);
  EXPECT_EQ(run("Down Down Enter"), 2);
  EXPECT_EQ(scripted::codeAt(kBar, kRow), 22);
  EXPECT_EQ(scripted::codeAt(kBar, kRow + kBox - 1), 22);
  EXPECT_EQ(scripted::textAt(kColumn, kRow + 5, kWidth), std::string(kWidth, ' '));
}

TEST_F(ListBoxTest, ThumbCoversTheBottomArrowOnTheLastRow) {
  fill(30);
  state = {17, 12};  // row 29 at the bottom of the box
  run("Release");
  EXPECT_EQ(scripted::codeAt(kBar, kRow + kBox - 1), 254);
  EXPECT_EQ(scripted::codeAt(kBar, kRow), 24);
  state = {0, 0};
  run("Release");
  EXPECT_EQ(scripted::codeAt(kBar, kRow), 254) << "thumb over the top cell";
  EXPECT_EQ(scripted::codeAt(kBar, kRow + kBox - 1), 25);
  state = {0, 10};  // row 10: 10 * 13 / 30 = 4.33
  run("Release");
  EXPECT_EQ(scripted::codeAt(kBar, kRow + 4), 254);
}

TEST_F(ListBoxTest, ArrowsStopAtTheEndsAndScrollTheBox) {
  fill(30);
  EXPECT_EQ(run("Up Enter"), 0);
  state = {};
  std::string downs;
  for (int i = 0; i < 15; ++i) downs += "Down ";
  EXPECT_EQ(run(downs + "Enter"), 15);
  EXPECT_EQ(state.top, 3);
  EXPECT_EQ(state.cursor, 12);
  EXPECT_EQ(scripted::textAt(kColumn, kRow, 6), "row 3 ");
  state = {17, 12};
  EXPECT_EQ(run("Down Enter"), 29) << "Down on the last row does nothing";
}

TEST_F(ListBoxTest, PageDownOnTheLastPageLandsOnItsFirstRow) {
  fill(30);
  EXPECT_EQ(run("PgDn Enter"), 13);
  EXPECT_EQ(highlightedRow(), 0);
  EXPECT_EQ(run("PgDn Enter"), 17) << "top 13 + 13 is not below 17: the last page";
  EXPECT_EQ(state.top, 17);
  EXPECT_EQ(highlightedRow(), 0);
  state = {17, 9};
  EXPECT_EQ(run("PgDn Enter"), 17) << "even from lower down";
  EXPECT_EQ(run("PgUp Enter"), 4);
  EXPECT_EQ(run("PgUp Enter"), 0);
}

TEST_F(ListBoxTest, LeftAndRightLeaveOnlyWhenAllowed) {
  fill(5);
  EXPECT_EQ(run("Down Right", true), kListRight);
  EXPECT_EQ(highlightedRow(), -1) << "the row is drawn plain on leaving";
  EXPECT_EQ(run("Left", true), kListLeft);
  EXPECT_EQ(run("Left Right Down Enter", false), 2) << "state kept the cursor on row 1";
  EXPECT_EQ(run("Esc"), kListEscape);
}

TEST_F(ListBoxTest, AStateBeyondAShrunkListComesToItsLastRow) {
  fill(3);
  state = {0, 8};
  EXPECT_EQ(run("Enter"), 2);
  EXPECT_EQ(state.cursor, 2);
}

TEST_F(ListBoxTest, AReleaseRedrawsButMovesNothing) {
  fill(5);
  state = {0, 2};
  Console::putText("XXXX", kColumn, kRow, 15);
  EXPECT_EQ(run("Release Enter"), 2);
  EXPECT_EQ(scripted::textAt(kColumn, kRow, 4), "row ");
}

TEST_F(ListBoxTest, SingleStepReturnsAfterEachEvent) {
  fill(5);
  EXPECT_EQ(run("Down", false, true), 1);
  EXPECT_EQ(run("Enter", false, true), kListStepEnter);
  EXPECT_EQ(run("Release", false, true), 1);
}

TEST_F(ListBoxTest, DisplayOnlyDrawsWithoutHighlightOrKeys) {
  fill(5);
  int result = ListBox::run(rows.data(), kColumn, kRow, kWidth, kBox, 5, false, state, true, false);
  EXPECT_EQ(result, kListEscape);
  EXPECT_EQ(highlightedRow(), -1);
  EXPECT_EQ(scripted::textAt(kColumn, kRow + 4, 5), "row 4");
}

TEST_F(ListBoxTest, AnEmptyListHasItsThumbAtTheBottomAndEnterGivesNothing) {
  rows.clear();
  EXPECT_EQ(run("Down PgDn PgUp Up Enter"), -1);
  EXPECT_EQ(scripted::codeAt(kBar, kRow + kBox - 1), 254);
}

}  // namespace
