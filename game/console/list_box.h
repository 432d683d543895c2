// The scrolling list box that every list of the game uses: rows of text in a
// box with a scroll bar on its right, one row highlighted, moved with the
// arrows and the page keys.
//
// The caller owns the rows and a ListBoxState, so that a list comes back
// where it was left. Results: the index of the row on which Enter was
// pressed (or, with singleStep, the selected index after one event), -1 for
// Escape or a display-only drawing, -2 Right, -3 Left (when left and right
// leave the box), -4 Enter with singleStep.
#pragma once

#include <cstdint>

#include "game/console/text.h"

struct ListRow {
  FixedText<81> text;
};

struct ListBoxState {
  std::int32_t top = 0;     // index of the row shown first
  std::int32_t cursor = 0;  // the highlight's offset from the first row shown
};

inline constexpr int kListEscape = -1;
inline constexpr int kListRight = -2;
inline constexpr int kListLeft = -3;
inline constexpr int kListStepEnter = -4;

namespace ListBox {

int run(const ListRow* rows, int column, int row, int width, int visibleRows, int totalRows,
        bool leftRightLeaves, ListBoxState& state, bool displayOnly, bool singleStep);

}  // namespace ListBox
