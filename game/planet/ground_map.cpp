#include "game/planet/ground_map.h"

#include <cmath>
#include <cstdint>
#include <string>

#include "game/art/land_tiles.h"
#include "game/console/console.h"
#include "game/console/random.h"
#include "game/console/text.h"
#include "game/planet/planet.h"

namespace {

constexpr std::uint8_t kHyphen = '-';
constexpr std::uint8_t kBar = '|';
constexpr char kBadLand[] = "sUX0Rz! U'v3 3nC0un73R3d 4N 3Rr0R !!111";

// One cell of a grid of cells that share their borders: the sector map
// (inside 7 x 3, junctions 232) and the sector view (inside 9 x 4,
// junctions 15) are drawn by the same rules.
struct GridShape {
  int columns;
  int rows;
  int insideWidth;
  int insideHeight;
  std::uint8_t junction;
};

constexpr GridShape kMapGrid{kMapColumns, kMapRows, 7, 3, 232};
constexpr GridShape kViewGrid{4, 4, 9, 4, 15};

// An edge between two rows of cells, or the map's top or bottom.
std::string edge(const GridShape& g, int gridColumn, int gridRow, bool top) {
  const bool first = gridColumn == 0;
  const bool last = gridColumn == g.columns - 1;
  const bool outer = top ? gridRow == 0 : gridRow == g.rows - 1;
  std::string s;
  if (outer) {
    s += static_cast<char>(top ? (first ? 201 : 203) : (first ? 200 : 202));
    s.append(static_cast<std::size_t>(g.insideWidth), '\xCD');
    s += static_cast<char>(top ? (last ? 187 : 203) : (last ? 188 : 202));
  } else if (first) {
    s += "\xCC\xB5";
    s.append(static_cast<std::size_t>(g.insideWidth - 1), kHyphen);
    s += static_cast<char>(g.junction);
  } else if (last) {
    s += static_cast<char>(g.junction);
    s.append(static_cast<std::size_t>(g.insideWidth - 1), kHyphen);
    s += "\xC6\xB9";
  } else {
    s += static_cast<char>(g.junction);
    s.append(static_cast<std::size_t>(g.insideWidth), kHyphen);
    s += static_cast<char>(g.junction);
  }
  return s;
}

// A side of a cell, row i of its inside rows.
std::uint8_t side(const GridShape& g, int gridRow, bool outer, int i) {
  if (outer) return 186;
  if (i == 0 && gridRow == 0) return 208;
  if (i == g.insideHeight - 1 && gridRow == g.rows - 1) return 210;
  return kBar;
}

void drawGridCell(const GridShape& g, int gridColumn, int gridRow, int x, int y, int colour) {
  const int width = g.insideWidth + 2;
  Console::putText(edge(g, gridColumn, gridRow, true), x, y, colour);
  for (int i = 0; i < g.insideHeight; ++i) {
    Console::putChar(side(g, gridRow, gridColumn == 0, i), x, y + 1 + i, colour);
    Console::putChar(side(g, gridRow, gridColumn == g.columns - 1, i), x + width - 1, y + 1 + i,
                     colour);
  }
  Console::putText(edge(g, gridColumn, gridRow, false), x, y + g.insideHeight + 1, colour);
}

// The two cells of a land code on the map, and their colours.
struct Terrain {
  std::uint8_t first;
  int firstColour;
  std::uint8_t second;
  int secondColour;
};

constexpr Terrain kTerrain[8] = {
    {178, 32, 177, 32}, {206, 128, 187, 128}, {240, 96, 240, 96}, {127, 135, 30, 135},
    {19, 104, 19, 104}, {'@', 32, 21, 38},    {176, 8, 177, 8},   {176, 10, 177, 10},
};

void drawTerrainPlace(const SubSector* s, bool wide, int column, int row) {
  if (s == nullptr) {
    Console::putText(wide ? "  " : " ", column, row, 15);
    return;
  }
  const int code = s->landType();
  if (code < 0 || code > kNuclearWasteland) {
    Console::putText(kBadLand, column, row, 14);
    return;
  }
  const Terrain& t = kTerrain[code];
  Console::putChar(t.first, column, row, t.firstColour);
  if (wide) Console::putChar(t.second, column + 1, row, t.secondColour);
}

int mapCellColumn(int x, int sector) { return x + 8 * thePlanet().sector(sector).column(); }
int mapCellRow(int y, int sector) { return y + 4 * thePlanet().sector(sector).row(); }

bool isSector(int place) { return place >= 1 && place <= kSectorCount; }

void drawPlaceOnMap(int x, int y, int place, int colour) {
  if (isSector(place)) {
    drawSectorCell(place, mapCellColumn(x, place), mapCellRow(y, place), colour, 15);
  } else if (place == kOrbitCursor) {
    drawOrbitBox(x + 16, y + 17, colour);
  }
}

}  // namespace

void drawSectorCell(int sector, int column, int row, int borderColour, int letterColour) {
  const Sector& s = thePlanet().sector(sector);
  drawGridCell(kMapGrid, s.column(), s.row(), column, row, borderColour);
  Console::putChar(static_cast<std::uint8_t>(s.letter()), column + 4, row + 2, letterColour);
}

void drawSectorMap(int column, int row, int borderColour, bool showOrbit, int letterColour) {
  for (int n = 1; n <= kSectorCount; ++n) {
    drawSectorCell(n, mapCellColumn(column, n), mapCellRow(row, n), borderColour, letterColour);
  }
  if (showOrbit) drawOrbitBox(column + 16, row + 17, borderColour);
}

void drawBoxUnderMap(int column, int row, int colour, std::string_view label) {
  Console::putChar(214, column, row, colour);
  Console::putChar(183, column + 16, row, colour);
  Console::putChar(186, column, row + 1, colour);
  Console::putText(label, column + 1, row + 1, 15);
  Console::putChar(186, column + 16, row + 1, colour);
  Console::putChar(211, column, row + 2, colour);
  Console::putChar(189, column + 16, row + 2, colour);
}

void drawOrbitBox(int column, int row, int colour) {
  drawBoxUnderMap(column, row, colour, " O  R  B  I  T ");
}

void moveSectorHighlight(int column, int row, int newSector, int oldSector) {
  if (isSector(oldSector)) {
    drawSectorCell(oldSector, mapCellColumn(column, oldSector), mapCellRow(row, oldSector),
                   kBorderAtRest, 15);
  }
  if (isSector(newSector)) {
    drawSectorCell(newSector, mapCellColumn(column, newSector), mapCellRow(row, newSector),
                   kBorderLit, 15);
  }
}

void moveOrbitHighlight(int column, int row, int newCursor, int oldCursor) {
  drawPlaceOnMap(column, row, oldCursor, kBorderAtRest);
  drawPlaceOnMap(column, row, newCursor, kBorderLit);
}

void drawSectorTerrain(int sector, int column, int row) {
  const Sector& s = thePlanet().sector(sector);
  auto seen = [&](int k) -> const SubSector* {
    return s.subSector(k).mapped() ? &s.subSector(k) : nullptr;
  };
  // The middle row stands for two rows of sub-sectors: the upper one where
  // it is seen, else the lower one. Offset 3 of that row is the letter's.
  auto either = [&](int upper) { return seen(upper) != nullptr ? seen(upper) : seen(upper + 4); };
  drawTerrainPlace(seen(0), true, column, row);
  drawTerrainPlace(seen(1), true, column + 2, row);
  drawTerrainPlace(seen(2), true, column + 4, row);
  drawTerrainPlace(seen(3), false, column + 6, row);
  drawTerrainPlace(either(4), true, column, row + 1);
  drawTerrainPlace(either(5), false, column + 2, row + 1);
  drawTerrainPlace(either(6), true, column + 4, row + 1);
  drawTerrainPlace(either(7), false, column + 6, row + 1);
  drawTerrainPlace(seen(12), true, column, row + 2);
  drawTerrainPlace(seen(13), true, column + 2, row + 2);
  drawTerrainPlace(seen(14), true, column + 4, row + 2);
  drawTerrainPlace(seen(15), false, column + 6, row + 2);
}

void drawMapTerrain(int column, int row) {
  for (int n = 1; n <= kSectorCount; ++n) {
    const Sector& s = thePlanet().sector(n);
    drawSectorTerrain(n, column + 1 + 8 * s.column(), row + 1 + 4 * s.row());
  }
}

void drawSectorLine(int column, int row, int labelColour, int valueColour, int place,
                    std::string_view orbitName) {
  Console::putText("Sector:", column, row, labelColour);
  if (isSector(place)) {
    std::string value(1, thePlanet().sector(place).letter());
    Console::putText(value + "    ", column + 8, row, valueColour);
  } else {
    Console::putText(orbitName, column + 8, row, valueColour);
  }
}

int tileColumn(int k) { return kSectorViewColumn + 1 + 10 * (k % 4); }
int tileRow(int k) { return kSectorViewRow + 1 + 5 * (k / 4); }

void drawSubSectorCell(int k, int column, int row, int colour) {
  drawGridCell(kViewGrid, k % 4, k / 4, column + 10 * (k % 4), row + 5 * (k / 4), colour);
}

void drawSubSectorGrid(int column, int row, int colour) {
  for (int k = 0; k < kSubSectorCount; ++k) drawSubSectorCell(k, column, row, colour);
}

void moveSubSectorHighlight(int column, int row, int newK, int oldK) {
  drawSubSectorCell(oldK, column, row, kBorderAtRest);
  drawSubSectorCell(newK, column, row, kBorderLit);
}

void drawLandTile(int landType, int column, int row) {
  if (landType >= 0 && landType < 7) {
    drawPicture(kLandTiles[landType], column, row);
  } else if (landType == kNuclearWasteland) {
    // The wasteland seethes: new colours at every drawing.
    static constexpr int kColours[7] = {112, 96, 118, 106, 112, 96, 118};
    for (int y = 0; y < 4; ++y) {
      for (int x = 0; x < 9; ++x)
        Console::putChar(178, column + x, row + y, kColours[gameRand() % 7]);
    }
  } else {
    Console::putText(kBadLand, column, row, 14);
  }
}

void drawUnknownTile(int column, int row) { drawPicture(kUnknownTile, column, row); }

void drawSectorViewTiles(int sector) {
  const Sector& s = thePlanet().sector(sector);
  for (int k = 0; k < kSubSectorCount; ++k) {
    if (s.subSector(k).mapped()) {
      drawLandTile(s.subSector(k).landType(), tileColumn(k), tileRow(k));
    } else {
      drawUnknownTile(tileColumn(k), tileRow(k));
    }
  }
}

void drawLandName(int column, int row, int labelColour, int valueColour, int k, int sector) {
  const SubSector& s = thePlanet().subSector(sector, k);
  Console::putText("Sector:", column, row, labelColour);
  Console::putText(s.mapped() ? landName(s.landType()) : "???", column + 8, row, valueColour);
}

void drawKnownPop(int column, int row, int labelColour, int valueColour, int k, int sector) {
  const SubSector& s = thePlanet().subSector(sector, k);
  Console::putText("Known Enemy Pop:", column, row, labelColour);
  if (s.mapped()) {
    auto whole = static_cast<std::int32_t>(std::trunc(s.population() + s.troops()));
    Console::putText(leftAlignedNumber(whole, 13), column + 17, row, valueColour);
  } else {
    Console::putText("???", column + 17, row, valueColour);
  }
}

void drawSectorView(int sector) {
  drawSubSectorGrid(kSectorViewColumn, kSectorViewRow, kBorderAtRest);
  drawSubSectorCell(0, kSectorViewColumn, kSectorViewRow, kBorderLit);
  drawSectorViewTiles(sector);
}

bool moveSubSectorCursor(int& cursor, int virtualKey) {
  int next;
  switch (virtualKey) {
    case kKeyLeft: next = cursor / 4 * 4 + (cursor + 3) % 4; break;
    case kKeyRight: next = cursor / 4 * 4 + (cursor + 1) % 4; break;
    case kKeyUp: next = (cursor + 12) % 16; break;
    case kKeyDown: next = (cursor + 4) % 16; break;
    default: return false;
  }
  moveSubSectorHighlight(kSectorViewColumn, kSectorViewRow, next, cursor);
  cursor = next;
  return true;
}

void drawSubSectorPanel(int k, int sector) {
  const std::string blanks(32, ' ');
  Console::putText(blanks, 45, 2, 0);
  drawLandName(45, 2, 12, 14, k, sector);
  Console::putText(blanks, 45, 3, 0);
  drawKnownPop(45, 3, 12, 14, k, sector);
}
