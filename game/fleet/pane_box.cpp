#include "game/fleet/pane_box.h"

#include <string>
#include <vector>

#include "game/console/console.h"

namespace {

constexpr int kPaneBottom = 17;
constexpr int kDividerRow = 18;
constexpr int kBottomRow = 22;

// A line across the box: `left`, then for each border after the first a
// run of double lines and the border's joint (`right` for the last).
std::string line(const std::vector<int>& borders, char left, char joint, char right) {
  std::string s(1, left);
  for (std::size_t i = 1; i < borders.size(); ++i) {
    s.append(static_cast<std::size_t>(borders[i] - borders[i - 1] - 1), '\xCD');
    s += i + 1 == borders.size() ? right : joint;
  }
  return s;
}

void sides(const std::vector<int>& borders, int row, int colour) {
  for (int column : borders) Console::putChar(186, column, row, colour);
}

}  // namespace

void drawPaneBox(std::initializer_list<int> list, int tabRow, int colour) {
  const std::vector<int> borders(list);
  const int left = borders.front();
  const std::vector<int> outer = {left, borders.back()};
  Console::putText(line(borders, '\xC9', '\xCB', '\xBB'), left, tabRow, colour);
  sides(borders, tabRow + 1, colour);
  Console::putText(line(borders, '\xCC', '\xCE', '\xB9'), left, tabRow + 2, colour);
  for (int row = tabRow + 3; row <= kPaneBottom; ++row) sides(borders, row, colour);
  Console::putText(line(borders, '\xCC', '\xCA', '\xB9'), left, kDividerRow, colour);
  for (int row = kDividerRow + 1; row < kBottomRow; ++row) sides(outer, row, colour);
  Console::putText(line(outer, '\xC8', '\xCA', '\xBC'), left, kBottomRow, colour);
}
