// The ship map's pictures: the Mothership seen from above.
//
// kShipPicture is the plain form: 19 rows of 80 cells drawn at (0, 0), the
// hull with the seven fixed rooms in it, joined by short corridors. The
// shielded form is the same hull with the rooms' cells left blank; the map
// draws it in green and puts the rooms on it one by one.
//
// A room is redrawn in a colour of its own (at rest, selected, flashing) by
// writing again the cells of its outline and name: kRoomOutlines gives those
// writes, room by room. The cells a room's writes pass over are corridor
// joints that belong to the hull. Rooms 0 to 6 take their cells from
// kShipPicture; room 7, the Super Freighter's, only shows while the freighter
// is docked and takes them from kFreighterRoomPicture.
#pragma once

#include "game/art/picture.h"

extern const Picture kShipPicture;
extern const Picture kFreighterRoomPicture;
inline constexpr int kFreighterRoomColumn = 3;
inline constexpr int kFreighterRoomRow = 15;

struct RoomWrite {
  int column;
  int row;
  int length;
};

struct RoomOutline {
  RoomWrite writes[7];
  int count;
};

// Rooms by deck number: 0 NAV COM, 1 LIBRARY, 2 SCIENTIFIC RESEARCH STATION,
// 3 ENGINEERING, 4 LIVING QUARTERS, 5 CARGO SPACE, 6 DOCKING BAY,
// 7 SUPER FREIGHTER.
inline constexpr RoomOutline kRoomOutlines[8] = {
    {{{3, 2, 9}, {3, 3, 9}, {3, 4, 9}, {3, 5, 9}}, 4},
    {{{13, 9, 5}, {19, 9, 4}, {13, 10, 10}, {13, 11, 10}, {13, 12, 10}}, 5},
    {{{14, 4, 10}, {14, 5, 10}, {14, 6, 22}, {37, 6, 9}, {14, 7, 32}, {14, 8, 4}, {19, 8, 27}}, 7},
    {{{25, 10, 21}, {25, 11, 21}, {25, 12, 21}}, 3},
    {{{30, 1, 15}, {28, 2, 19}, {26, 3, 23}, {26, 4, 23}, {26, 5, 10}, {37, 5, 12}}, 6},
    {{{48, 7, 28}, {48, 8, 28}, {48, 9, 28}, {48, 10, 14}, {63, 10, 13}}, 5},
    {{{48, 11, 14}, {63, 11, 13}, {48, 12, 28}, {48, 13, 28}, {48, 14, 28}, {48, 15, 28}}, 6},
    {{{3, 15, 19}, {3, 16, 19}, {3, 17, 19}}, 3},
};
