// The land tiles: the zoomed view of one sector shows its 16 sub-sectors as
// tiles of 9 x 4 cells, one picture per land code. Every cell of a tile is
// drawn, so a tile covers whatever stood there before.
#pragma once

#include "game/art/picture.h"

inline constexpr int kLandTileWidth = 9;
inline constexpr int kLandTileHeight = 4;

// By land code: 0 Farm Land, 1 City, 2 Military Base, 3 Mountains, 4 Desert,
// 5 Farm Land (the fields strewn with stray symbols), 6 Rubble. Code 7, the
// Nuclear Wasteland, is noise drawn cell by cell and has no picture.
extern const Picture kLandTiles[7];

// A sub-sector nobody has mapped yet: a big yellow question mark.
extern const Picture kUnknownTile;
