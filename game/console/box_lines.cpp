#include "game/console/box_lines.h"

#include <algorithm>
#include <cassert>
#include <cstdint>

#include "game/console/console.h"

namespace {

enum : std::uint8_t { kLeft = 1, kRight = 2, kUp = 4, kDown = 8 };

// The double-line glyph that joins the given directions.
std::uint8_t junction(std::uint8_t links) {
  switch (links) {
    case kRight | kDown: return 201;
    case kLeft | kDown: return 187;
    case kRight | kUp: return 200;
    case kLeft | kUp: return 188;
    case kLeft | kRight | kDown: return 203;
    case kLeft | kRight | kUp: return 202;
    case kUp | kDown | kRight: return 204;
    case kUp | kDown | kLeft: return 185;
    case kLeft | kRight | kUp | kDown: return 206;
    default: return (links & (kUp | kDown)) != 0 && (links & (kLeft | kRight)) == 0 ? 186 : 205;
  }
}

}  // namespace

void drawDoubleLines(std::initializer_list<BoxLine> lines, int colour) {
  std::uint8_t links[kScreenHeight][kScreenWidth] = {};
  for (const BoxLine& line : lines) {
    assert(line.row0 == line.row1 || line.column0 == line.column1);
    const int c0 = std::min(line.column0, line.column1), c1 = std::max(line.column0, line.column1);
    const int r0 = std::min(line.row0, line.row1), r1 = std::max(line.row0, line.row1);
    assert(c0 >= 0 && c1 < kScreenWidth && r0 >= 0 && r1 < kScreenHeight);
    for (int r = r0; r <= r1; ++r) {
      for (int c = c0; c <= c1; ++c) {
        if (r0 == r1) {
          links[r][c] |= (c > c0 ? kLeft : 0) | (c < c1 ? kRight : 0);
        } else {
          links[r][c] |= (r > r0 ? kUp : 0) | (r < r1 ? kDown : 0);
        }
      }
    }
  }
  for (int r = 0; r < kScreenHeight; ++r) {
    for (int c = 0; c < kScreenWidth; ++c) {
      if (links[r][c] != 0) Console::putChar(junction(links[r][c]), c, r, colour);
    }
  }
}
