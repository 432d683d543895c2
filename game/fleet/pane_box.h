// The double-line box of the docking bay's screens: tabs over panes side by
// side, a dividing line, an empty footer and the bottom line on row 22.
#pragma once

#include <initializer_list>

// `borders` are the columns of the vertical lines from left to right, the
// first and last the box's sides; the tabs stand on rows tabRow to
// tabRow + 2 and the panes run down to row 17.
void drawPaneBox(std::initializer_list<int> borders, int tabRow, int colour);

// The tab labels: the active one lit, the others plain.
inline constexpr int kTabActive = 225;
inline constexpr int kTabPlain = 15;
// A row chosen in a column that is no longer active.
inline constexpr int kChosenRow = 241;

// One column of such a screen: its tab's label and place, and its list's
// place and width.
struct ColumnShape {
  const char* tab;
  int tabColumn, listColumn, width;
};
