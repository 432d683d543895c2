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
    for (int r = 0; r < kBox; ++r) {
      if (scripted::colourAt(kColumn, kRow + r) == 241) return r;
    }
    return -1;
  }
  int bar(int r) { return scripted::codeAt(kBar, kRow + r); }

  std::vector<ListRow> rows;
  ListBoxState state;
};

TEST_F(ListBoxTest, AShortListPagesToItsEnds) {
  fill(5);
  EXPECT_EQ(run("PgDn Enter"), 4);
  EXPECT_EQ(run("PgUp Up Enter"), 0);
  EXPECT_EQ(run("Down Down Enter"), 2);
  EXPECT_EQ(bar(0) + bar(kBox - 1), 22 + 22) << "no arrows: everything is shown";
  EXPECT_EQ(bar(5), 254);
}

TEST_F(ListBoxTest, ALongListScrollsAndPages) {
  fill(30);
  std::string downs;
  for (int i = 0; i < 15; ++i) downs += "Down ";
  EXPECT_EQ(run(downs + "Enter"), 15);
  EXPECT_EQ(state.top, 3);
  EXPECT_EQ(state.cursor, 12);
  EXPECT_EQ(bar(0), 24);
  state = {};
  EXPECT_EQ(run("PgDn Enter"), 13);
  EXPECT_EQ(run("PgDn Enter"), 17) << "the last page: top 17";
  EXPECT_EQ(highlightedRow(), 0);
  state = {17, 9};
  EXPECT_EQ(run("PgDn Enter"), 17) << "Page Down on the last page lands on its first row";
  EXPECT_EQ(run("PgUp PgUp Enter"), 0);
  state = {17, 12};
  EXPECT_EQ(run("Down Enter"), 29);
  EXPECT_EQ(bar(kBox - 1), 254) << "the thumb covers the bottom arrow on the last row";
}

TEST_F(ListBoxTest, LeavingKeysAndStepsReturnTheirCodes) {
  fill(5);
  EXPECT_EQ(run("Down Right", true), kListRight);
  EXPECT_EQ(highlightedRow(), -1) << "the row is drawn plain on leaving";
  EXPECT_EQ(run("Left", true), kListLeft);
  EXPECT_EQ(run("Left Right Down Enter"), 2) << "without leaving, left and right do nothing";
  EXPECT_EQ(run("Esc"), kListEscape);
  EXPECT_EQ(run("Down", false, true), 3);
  EXPECT_EQ(run("Enter", false, true), kListStepEnter);
}

TEST_F(ListBoxTest, AStateWithAShortLastPageIsKept) {
  fill(19);
  state = {7, 5};
  EXPECT_EQ(run("Enter"), 12);
  EXPECT_EQ(highlightedRow(), 5);
  EXPECT_EQ(scripted::textAt(kColumn, kRow, 6), "row 7 ");
  EXPECT_EQ(scripted::textAt(kColumn, kRow + 11, 6), "row 18");
  EXPECT_EQ(scripted::textAt(kColumn, kRow + kBox - 1, kWidth), std::string(kWidth, ' '))
      << "nothing is drawn past the end of the list";
  EXPECT_EQ(run("Down Down Down Down Down Down Down Enter"), 18) << "Down stops on the last row";
  EXPECT_EQ(highlightedRow(), 11);
  state = {15, 5};
  EXPECT_EQ(run("Enter"), 11) << "a state left by a longer list comes back inside this one";
}

TEST_F(ListBoxTest, OddStatesAndEvents) {
  fill(3);
  state = {0, 8};
  EXPECT_EQ(run("Enter"), 2) << "a cursor beyond a shrunk list comes to its last row";
  Console::putText("XXXX", kColumn, kRow, 15);
  EXPECT_EQ(run("Release Enter"), 2);
  EXPECT_EQ(scripted::textAt(kColumn, kRow, 4), "row ") << "a release redraws, moves nothing";
  rows.clear();
  EXPECT_EQ(run("Down PgDn PgUp Up Enter"), -1) << "an empty list gives nothing";
  EXPECT_EQ(bar(kBox - 1), 254);
  fill(4);
  EXPECT_EQ(run("Enter"), 0) << "the list has rows again: the highlight is back on the first";
  EXPECT_EQ(highlightedRow(), 0);
}

TEST_F(ListBoxTest, DisplayOnlyDrawsOnceWithoutAHighlightOrAKey) {
  fill(20);
  state = {6, 5};
  scripted::addKeys("Down");
  int result = 0;
  scripted::run([&] {
    result = ListBox::run(rows.data(), kColumn, kRow, kWidth, kBox, 20, true, state, true, true);
  });
  EXPECT_EQ(result, kListEscape);
  EXPECT_EQ(scripted::stepsLeft(), 1) << "no key read";
  EXPECT_EQ(highlightedRow(), -1);
  EXPECT_EQ(scripted::textAt(kColumn, kRow, 5), "row 6");
  EXPECT_EQ(scripted::textAt(kColumn, kRow + kBox - 1, 6), "row 18");
  EXPECT_EQ(bar(kBox - 1), 25) << "more below";
  EXPECT_EQ(bar(7), 254) << "row 11 of 20";
  EXPECT_EQ(state.top, 6);
  EXPECT_EQ(state.cursor, 5);
  // A list that shrank under a kept state: the highlight comes to its end.
  state = {0, 13};
  fill(4);
  scripted::run([&] {
    result = ListBox::run(rows.data(), kColumn, kRow, kWidth, kBox, 4, true, state, true, true);
  });
  EXPECT_EQ(state.cursor, 3);
  EXPECT_EQ(scripted::textAt(kColumn, kRow + 4, kWidth), std::string(kWidth, ' '));
}

}  // namespace
