#include "game/console/list_box.h"

#include <algorithm>

#include "game/console/console.h"

namespace ListBox {
namespace {

constexpr int kPlain = 15;
constexpr int kHighlight = 241;

struct Box {
  const ListRow* rows;
  int column, row, width, visibleRows, totalRows;
};

void drawScrollBar(const Box& box, int top, int sel) {
  const int barColumn = box.column + box.width;
  const int bottom = box.row + box.visibleRows - 1;
  for (int r = box.row + 1; r < bottom; ++r) Console::putChar(176, barColumn, r, kPlain);
  Console::putChar(top < box.totalRows - box.visibleRows ? 25 : 22, barColumn, bottom, kPlain);
  Console::putChar(top > 0 ? 24 : 22, barColumn, box.row, kPlain);
  // The thumb sits on the bottom cell for the last row, elsewhere in
  // proportion to the selection.
  int thumb = sel == box.totalRows - 1
                  ? box.visibleRows - 1
                  : static_cast<int>(sel * (static_cast<double>(box.visibleRows) / box.totalRows));
  Console::putChar(254, barColumn, box.row + thumb, kPlain);
}

void drawRows(const Box& box, int top, int cursorRow, bool displayOnly) {
  const int shown = std::min(box.totalRows, box.visibleRows);
  for (int i = 0; i < box.visibleRows; ++i) {
    const int index = top + i;
    const int screenRow = box.row + i;
    if (i < shown && index < box.totalRows) {
      int colour = screenRow == cursorRow && !displayOnly ? kHighlight : kPlain;
      Console::putTextPadded(box.rows[index].text.view(), box.column, screenRow, colour, box.width);
    } else {
      Console::putTextPadded("", box.column, screenRow, kPlain, box.width);
    }
  }
}

void unlight(const Box& box, int sel, int cursorRow) {
  if (sel >= 0 && sel < box.totalRows) {
    Console::putTextPadded(box.rows[sel].text.view(), box.column, cursorRow, kPlain, box.width);
  }
}

}  // namespace

int run(const ListRow* rows, int column, int row, int width, int visibleRows, int totalRows,
        bool leftRightLeaves, ListBoxState& state, bool displayOnly, bool singleStep) {
  const Box box{rows, column, row, width, visibleRows, std::max(totalRows, 0)};
  const int total = box.totalRows;
  const int shown = std::min(total, visibleRows);
  // The state is kept as it is given, even where the last page is not full
  // (top 7 of 19 rows in a box of 13: the rows below the last are blank).
  // Only a state left by a longer list, whose highlight would fall past the
  // end, is brought inside this one.
  int top = std::max(state.top, 0);
  int cursorRow = std::min(row + state.cursor, row + total - 1);
  // A list left while it was empty keeps a cursor above its first row: it
  // comes back on the first row once it has some.
  if (total > 0 && cursorRow < row) cursorRow = row;
  if (top + cursorRow - row > total - 1) {
    top = std::clamp(top, 0, std::max(0, total - shown));
    if (top + cursorRow - row > total - 1) cursorRow = row + total - 1 - top;
  }
  int sel = top + cursorRow - row;

  bool firstPass = true;
  bool handled = false;
  for (;;) {
    if (displayOnly && !firstPass) return kListEscape;
    firstPass = false;
    state.cursor = cursorRow - row;
    state.top = top;
    if (singleStep && handled) return sel;
    drawScrollBar(box, top, sel);
    drawRows(box, top, cursorRow, displayOnly);
    if (displayOnly) continue;

    KeyEvent key = Console::readKey();
    handled = true;
    if (!key.keyDown) continue;
    switch (key.virtualKey) {
      case kKeyEnter: return singleStep ? kListStepEnter : sel;
      case kKeyEscape: unlight(box, sel, cursorRow); return kListEscape;
      case kKeyUp:
        if (sel > 0) {
          --sel;
          if (--cursorRow < row) {
            cursorRow = row;
            --top;
          }
        }
        break;
      case kKeyDown:
        if (sel < total - 1) {
          ++sel;
          if (++cursorRow > row + shown - 1) {
            cursorRow = row + shown - 1;
            if (total >= visibleRows) ++top;
          }
        }
        break;
      case kKeyPageUp:
        if (total == 0) break;
        if (total <= visibleRows) {
          sel = 0;
          cursorRow = row;
        } else {
          top = std::max(0, top - visibleRows);
          sel = std::max(0, sel - visibleRows);
          cursorRow = row + sel - top;
        }
        break;
      case kKeyPageDown:
        if (total == 0) break;
        if (total <= visibleRows) {
          sel = total - 1;
          cursorRow = row + sel - top;
        } else if (top + visibleRows < total - visibleRows) {
          top += visibleRows;
          sel += visibleRows;
          cursorRow = row + sel - top;
        } else {
          top = total - visibleRows;
          sel = top;
          cursorRow = row;
        }
        break;
      case kKeyLeft:
      case kKeyRight:
        if (leftRightLeaves) {
          unlight(box, sel, cursorRow);
          return key.virtualKey == kKeyLeft ? kListLeft : kListRight;
        }
        break;
      default: break;
    }
  }
}

}  // namespace ListBox
