#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "game/art/ship.h"

namespace {

using Cell = std::pair<int, int>;                           // column, row
const Cell kSteps[4] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}};  // up, down, left, right
Cell step(Cell c, int d) { return {c.first + kSteps[d].first, c.second + kSteps[d].second}; }

struct Label {
  int column, row;
  std::string text;
};
const std::vector<Label> kNames[8] = {
    {{6, 3, "NAV"}, {6, 4, "COM"}},
    {{15, 10, "LIBRARY"}},
    {{16, 7, "SCIENTIFIC RESEARCH STATION"}},
    {{30, 11, "ENGINEERING"}},
    {{34, 2, "LIVING"}, {33, 3, "QUARTERS"}},
    {{60, 8, "CARGO"}, {60, 9, "SPACE"}},
    {{57, 13, "DOCKING BAY"}},
    {{5, 16, "SUPER FREIGHTER"}},
};

// The arms of a double-line wall glyph, one bit per step direction; 0 for others.
int wallArms(unsigned char glyph) {
  switch (glyph) {
    case 205: return 4 | 8;  // ═
    case 186: return 1 | 2;  // ║
    case 201: return 2 | 8;  // ╔
    case 187: return 2 | 4;  // ╗
    case 200: return 1 | 8;  // ╚
    case 188: return 1 | 4;  // ╝
  }
  return 0;
}

// What the player sees at a cell of the map; room 7 comes from its own picture.
unsigned char glyph(Cell c, int room = 0) {
  if (room == 7) {
    return pictureRow(kFreighterRoomPicture, c.second - kFreighterRoomRow)
        .at(c.first - kFreighterRoomColumn);
  }
  return pictureRow(kShipPicture, c.second).at(c.first);
}

std::set<Cell> roomCells(int room) {
  std::set<Cell> cells;
  for (int i = 0; i < kRoomOutlines[room].count; ++i) {
    const RoomWrite& w = kRoomOutlines[room].writes[i];
    for (int x = w.column; x < w.column + w.length; ++x) cells.insert({x, w.row});
  }
  return cells;
}

std::set<Cell> allRoomCells(int rooms) {
  std::set<Cell> cells;
  for (int room = 0; room < rooms; ++room) cells.merge(roomCells(room));
  return cells;
}

// Cells skipped between two writes of one row: the hull's passages through a wall.
std::set<Cell> passages(int room) {
  std::set<Cell> gaps;
  const RoomOutline& o = kRoomOutlines[room];
  for (int i = 0; i < o.count; ++i) {
    for (int j = 0; j < o.count; ++j) {
      if (o.writes[i].row != o.writes[j].row) continue;
      for (int x = o.writes[i].column + o.writes[i].length; x < o.writes[j].column; ++x) {
        gaps.insert({x, o.writes[i].row});
      }
    }
  }
  return gaps;
}

}  // namespace

TEST(ShipArt, PicturesAreSound) {
  EXPECT_TRUE(pictureFaults(kShipPicture).empty());
  EXPECT_TRUE(pictureFaults(kFreighterRoomPicture).empty());
  EXPECT_EQ(kShipPicture.width, 80);
  EXPECT_EQ(kShipPicture.height, 19);
  EXPECT_EQ(kFreighterRoomPicture.width, 19);
  EXPECT_EQ(kFreighterRoomPicture.height, 3);
  EXPECT_EQ(kShipPicture.colours, nullptr);
  EXPECT_EQ(kFreighterRoomPicture.colours, nullptr);
}

// Each room is a closed double-line box whose cells are exactly its writes:
// every wall arm meets a wall of the room (or a passage), every other cell is
// blank or a letter of its name, and nothing inside leaks out.
TEST(ShipArt, RoomsAreClosedBoxesWithTheirNames) {
  std::set<Cell> rooms = allRoomCells(8);
  for (int room = 0; room < 8; ++room) {
    std::set<Cell> cells = roomCells(room), doors = passages(room), letters;
    for (const Label& label : kNames[room]) {
      for (int i = 0; i < static_cast<int>(label.text.size()); ++i) {
        Cell c{label.column + i, label.row};
        ASSERT_TRUE(cells.count(c)) << "room " << room;
        if (label.text[i] != ' ') letters.insert(c);
        EXPECT_EQ(glyph(c, room), static_cast<unsigned char>(label.text[i])) << "room " << room;
      }
    }
    for (Cell c : cells) {
      int arms = wallArms(glyph(c, room));
      for (int d = 0; d < 4; ++d) {
        Cell n = step(c, d);
        if (doors.count(n) || (arms != 0 && !(arms & (1 << d)))) continue;
        bool met = cells.count(n) && (arms == 0 || (wallArms(glyph(n, room)) & (1 << (d ^ 1))));
        EXPECT_TRUE(met) << "room " << room << " open at " << c.first << "," << c.second;
      }
      if (arms == 0 && !letters.count(c)) {
        EXPECT_EQ(glyph(c, room), ' ') << "room " << room << " at " << c.first << "," << c.second;
      }
    }
    for (Cell p : doors) {
      EXPECT_NE(glyph(p), ' ') << "passage " << p.first << "," << p.second;
      EXPECT_FALSE(rooms.count(p)) << "passage " << p.first << "," << p.second;
    }
  }
}

// With the rooms blanked (the shielded map) no wall or letter may be left.
TEST(ShipArt, HullAloneHoldsNoWallsOrLetters) {
  std::set<Cell> rooms = allRoomCells(7);
  for (int y = 0; y < kShipPicture.height; ++y) {
    for (int x = 0; x < kShipPicture.width; ++x) {
      unsigned char g = glyph({x, y});
      if (rooms.count({x, y})) continue;
      EXPECT_TRUE(wallArms(g) == 0 && !std::isalnum(g)) << x << "," << y;
    }
  }
}

// Neighbouring rooms are joined by a corridor of at most two hull cells.
TEST(ShipArt, CorridorsJoinNeighbouringRooms) {
  std::set<Cell> rooms = allRoomCells(8);
  auto spread = [&](const std::set<Cell>& from) {
    std::set<Cell> reached;
    for (Cell c : from) {
      for (int d = 0; d < 4; ++d) {
        Cell n = step(c, d);
        bool inside = n.first >= 0 && n.first < 80 && n.second >= 0 && n.second < 19;
        if (inside && !rooms.count(n) && glyph(n) != ' ') reached.insert(n);
      }
    }
    return reached;
  };
  const std::pair<int, int> pairs[] = {{0, 2}, {2, 4}, {2, 1}, {2, 5},
                                       {1, 3}, {3, 6}, {5, 6}, {1, 7}};
  for (auto [from, to] : pairs) {
    std::set<Cell> corridor = spread(roomCells(from)), target = roomCells(to);
    corridor.merge(spread(corridor));
    bool joined = false;
    for (Cell c : corridor) {
      for (int d = 0; d < 4; ++d) joined = joined || target.count(step(c, d));
    }
    EXPECT_TRUE(joined) << "rooms " << from << " and " << to;
  }
}
