// The ship's rooms are the cells the map redraws when a room is lit: each
// must hold exactly its outline and its name, and the corridor joints
// between a room's writes belong to the hull.
#include <gtest/gtest.h>

#include <string>

#include "game/art/ship.h"

namespace {

struct Name {
  int room, column, row;
  const char* text;
};

constexpr Name kNames[] = {
    {0, 6, 3, "NAV"},
    {0, 6, 4, "COM"},
    {1, 15, 10, "LIBRARY"},
    {2, 16, 7, "SCIENTIFIC RESEARCH STATION"},
    {3, 30, 11, "ENGINEERING"},
    {4, 34, 2, "LIVING"},
    {4, 33, 3, "QUARTERS"},
    {5, 60, 8, "CARGO"},
    {5, 60, 9, "SPACE"},
    {6, 57, 13, "DOCKING BAY"},
    {7, 5, 16, "SUPER FREIGHTER"},
};

unsigned char cell(int room, int column, int row) {
  if (room == 7) {
    return static_cast<unsigned char>(
        pictureRow(kFreighterRoomPicture, row - kFreighterRoomRow)[column - kFreighterRoomColumn]);
  }
  return static_cast<unsigned char>(pictureRow(kShipPicture, row)[column]);
}

bool isRoomGlyph(unsigned char c) {
  return c == ' ' || c == 201 || c == 187 || c == 200 || c == 188 || c == 205 || c == 186 ||
         (c >= 'A' && c <= 'Z');
}

TEST(ShipArt, RoomsHoldTheirOutlineAndNameAndTheJointsBelongToTheHull) {
  for (const Name& name : kNames) {
    std::string text;
    for (int i = 0; name.text[i] != '\0'; ++i)
      text += static_cast<char>(cell(name.room, name.column + i, name.row));
    EXPECT_EQ(text, name.text);
  }
  for (int room = 0; room < 8; ++room) {
    const RoomOutline& outline = kRoomOutlines[room];
    for (int i = 0; i < outline.count; ++i) {
      const RoomWrite& w = outline.writes[i];
      EXPECT_EQ(cell(room, w.column, w.row) == ' ', false) << "a room's row starts at its wall";
      for (int x = w.column; x < w.column + w.length; ++x) {
        EXPECT_TRUE(isRoomGlyph(cell(room, x, w.row))) << room << " at " << x << "," << w.row;
      }
      // A gap to the next write on the same row is a corridor joint.
      for (int j = 0; j < outline.count; ++j) {
        const RoomWrite& next = outline.writes[j];
        if (next.row == w.row && next.column > w.column + w.length) {
          EXPECT_NE(cell(room, w.column + w.length, w.row), ' ') << "joint of room " << room;
          EXPECT_FALSE(isRoomGlyph(cell(room, w.column + w.length, w.row)));
        }
      }
    }
  }
}

}  // namespace
