#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "game/art/title.h"

namespace {

struct Placed {
  const char* name;
  const Picture& picture;
  int width, height, row;  // the title's pieces all stand at column 3
};

const Placed kTitlePieces[] = {
    {"top", kTitleTop, 70, 6, 1},
    {"middle", kTitleMiddle, 43, 6, 7},
    {"tail", kTitleTail, 16, 1, 13},
};

bool isBoxDrawing(unsigned char code) { return code >= 179 && code <= 218; }

// The arms of a box-drawing glyph, up/down/left/right: 0 none, 1 single,
// 2 double. Codes 179 to 218, in order.
const char* const kArms[] = {
    "1100", "1110", "1120", "2210", "0210", "0120", "2220", "2200", "0220", "2020",
    "2010", "1020", "0110", "1001", "1011", "0111", "1101", "0011", "1111", "1102",
    "2201", "2002", "0202", "2022", "0222", "2202", "0022", "2222", "1022", "2011",
    "0122", "0211", "2001", "1002", "0102", "0201", "2211", "1122", "1010", "0101",
};

int arm(unsigned char code, int direction) {
  return isBoxDrawing(code) ? kArms[code - 179][direction] - '0' : 0;
}

// The title's 13 rows as they stand on screen, from column 3.
std::vector<std::string> titleCells() {
  std::vector<std::string> cells(13, std::string(70, ' '));
  for (const Placed& piece : kTitlePieces) {
    for (int y = 0; y < piece.picture.height; ++y) {
      std::string codes = pictureRow(piece.picture, y);
      cells[piece.row - 1 + y].replace(0, codes.size(), codes);
    }
  }
  return cells;
}

}  // namespace

TEST(TitleArt, PicturesAreSoundAndOfTheirSizes) {
  const Placed all[] = {
      kTitlePieces[0], kTitlePieces[1], kTitlePieces[2], {"emblem", kEmblem, 21, 5, 8}};
  for (const Placed& piece : all) {
    SCOPED_TRACE(piece.name);
    EXPECT_EQ(pictureFaults(piece.picture), std::vector<std::string>{});
    EXPECT_EQ(piece.picture.width, piece.width);
    EXPECT_EQ(piece.picture.height, piece.height);
    EXPECT_EQ(piece.picture.colours, nullptr);
  }
}

TEST(TitleArt, GlyphsComeFromTheirOwnSets) {
  for (const Placed& piece : kTitlePieces) {
    for (int y = 0; y < piece.picture.height; ++y) {
      for (unsigned char code : pictureRow(piece.picture, y)) {
        EXPECT_TRUE(code == ' ' || isBoxDrawing(code))
            << piece.name << " row " << y << ": " << +code;
      }
    }
  }
  for (int y = 0; y < kEmblem.height; ++y) {
    for (unsigned char code : pictureRow(kEmblem, y)) {
      EXPECT_TRUE(code == ' ' || code == 219 || code == 220 || code == 223)
          << "row " << y << ": " << +code;
    }
  }
}

// Every double line in the title meets a double line in the next cell: the
// letters are closed outlines and the ribbon runs unbroken from the middle
// rows into the tail. (The single-lined word and the ribbon's curls end
// freely.)
TEST(TitleArt, DoubleLinesAreUnbroken) {
  std::vector<std::string> cells = titleCells();
  const int dx[] = {0, 0, -1, 1}, dy[] = {-1, 1, 0, 0}, opposite[] = {1, 0, 3, 2};
  for (int y = 0; y < 13; ++y) {
    for (int x = 0; x < 70; ++x) {
      unsigned char code = cells[y][x];
      for (int d = 0; d < 4; ++d) {
        if (arm(code, d) != 2) continue;
        int nx = x + dx[d], ny = y + dy[d];
        bool inside = nx >= 0 && nx < 70 && ny >= 0 && ny < 13;
        EXPECT_TRUE(inside && arm(cells[ny][nx], opposite[d]) == 2)
            << "row " << y + 1 << " column " << x + 3 << " (code " << +code << ")";
      }
    }
  }
}

TEST(TitleArt, CreditRowsHoldARoleAndAName) {
  for (const char* row : kCreditRows) {
    std::string text = row;
    SCOPED_TRACE(text);
    ASSERT_EQ(text.size(), 35u);
    for (char c : text) EXPECT_TRUE(c >= 32 && c < 127);
    EXPECT_NE(text.front(), ' ');
    EXPECT_NE(text.back(), ' ');
    // A dotted leader, set off by a blank on each side, parts role and name.
    std::size_t lead = text.find(" ..");
    ASSERT_NE(lead, std::string::npos);
    std::size_t end = text.find_first_not_of('.', lead + 1);
    EXPECT_EQ(text[end], ' ');
  }
}
