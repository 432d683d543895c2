// Drawing the war: the sector map (6 x 4 cells of 9 x 5, sharing borders:
// 49 x 17 in all), the orbit box below it, the zoomed view of one sector
// (4 x 4 cells of 11 x 6: 41 x 21) with a picture of each sub-sector's land,
// and the panel lines that tell what is known. Only what the player has seen
// is shown; the rest is blank, a question mark or "???".
//
// Places are given as the top left corner of what is drawn. A map cursor on
// the orbit box holds kOrbitCursor; it never enters a game record.
#pragma once

#include <string_view>

inline constexpr int kOrbitCursor = 407;

// The frame of the war's screens (the maps, the cannon, the pickers).
inline constexpr int kWarFrameColour = 48;

// Border colours: at rest and highlighted.
inline constexpr int kBorderAtRest = 2;
inline constexpr int kBorderLit = 12;

// The sector map.
void drawSectorCell(int sector, int column, int row, int borderColour, int letterColour);
void drawSectorMap(int column, int row, int borderColour, bool showOrbit, int letterColour);
void drawOrbitBox(int column, int row, int colour);
// The box below the map in which the orbit (or the ship's dock) stands.
void drawBoxUnderMap(int column, int row, int colour, std::string_view label);
void moveSectorHighlight(int column, int row, int newSector, int oldSector);
void moveOrbitHighlight(int column, int row, int newCursor, int oldCursor);
// The known land of a sector, squeezed into the 7 x 3 inside of its cell.
void drawSectorTerrain(int sector, int column, int row);
// The known land of every sector, for a map at (column, row).
void drawMapTerrain(int column, int row);
// "Sector:" and the place: a sector's letter, or `orbitName` for 0 and the
// orbit box.
void drawSectorLine(int column, int row, int labelColour, int valueColour, int place,
                    std::string_view orbitName = "Orbit");

// The zoomed view of one sector, its grid at (2, 1).
inline constexpr int kSectorViewColumn = 2;
inline constexpr int kSectorViewRow = 1;
int tileColumn(int k);
int tileRow(int k);
void drawSubSectorCell(int k, int column, int row, int colour);
void drawSubSectorGrid(int column, int row, int colour);
void moveSubSectorHighlight(int column, int row, int newK, int oldK);
void drawLandTile(int landType, int column, int row);
void drawUnknownTile(int column, int row);
void drawSectorViewTiles(int sector);
void drawLandName(int column, int row, int labelColour, int valueColour, int k, int sector);
void drawKnownPop(int column, int row, int labelColour, int valueColour, int k, int sector);
// The view's panel for sub-sector k: its land and its known people.
void drawSubSectorPanel(int k, int sector);
// The view of a sector: its grid with sub-sector 0 lit, and its tiles.
void drawSectorView(int sector);
// Moves the view's cursor on an arrow key, wrapping in rows and columns,
// and moves its highlight; false for any other key.
bool moveSubSectorCursor(int& cursor, int virtualKey);
