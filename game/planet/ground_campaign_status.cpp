#include "game/planet/ground_campaign_status.h"

#include <cmath>
#include <cstdint>

#include "game/console/console.h"
#include "game/console/text.h"
#include "game/console/widgets.h"
#include "game/planet/ground_map.h"
#include "game/planet/planet.h"

namespace {

constexpr int kMapColumn = 2;
constexpr int kMapRow = 1;
constexpr int kBuiltLetterColour = 14;

void drawPanel(int cursor) {
  const Sector& sector = thePlanet().sector(cursor);
  drawSectorLine(2, 18, 12, 14, cursor);
  Console::putText("Known Enemy Population:", 2, 19, 12);
  auto known = static_cast<std::int32_t>(std::trunc(sector.knownEnemy()));
  Console::putText(leftAlignedNumber(known, 13), 26, 19, 14);
  Console::putText("Bunker Placed:", 2, 20, 12);
  Console::putText(sector.bunker().isBuilt() ? "Yes" : "No ", 26, 20, 14);
}

}  // namespace

int groundCursorAfter(int sector, int virtualKey) {
  const int index = sector - 1;
  const int column = index % kMapColumns;
  const int row = index / kMapColumns;
  switch (virtualKey) {
    case kKeyLeft: return row * kMapColumns + (column + kMapColumns - 1) % kMapColumns + 1;
    case kKeyRight: return row * kMapColumns + (column + 1) % kMapColumns + 1;
    case kKeyUp: return (index + kSectorCount - kMapColumns) % kSectorCount + 1;
    case kKeyDown: return (index + kMapColumns) % kSectorCount + 1;
    default: return sector;
  }
}

void runGroundCampaignStatus() {
  drawFrame(kWarFrameColour, false);
  for (int n = 1; n <= kSectorCount; ++n) {
    const Sector& s = thePlanet().sector(n);
    drawSectorCell(n, kMapColumn + 8 * s.column(), kMapRow + 4 * s.row(), kBorderAtRest,
                   s.bunker().isBuilt() ? kBuiltLetterColour : 15);
  }
  drawSectorCell(1, kMapColumn, kMapRow, kBorderLit, 15);
  int cursor = 1;
  bool terrainStale = true;
  for (;;) {
    drawPanel(cursor);
    if (terrainStale) {
      drawMapTerrain(kMapColumn, kMapRow);
      terrainStale = false;
    }
    KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown) {
      switch (key.virtualKey) {
        case kKeyLeft:
        case kKeyRight:
        case kKeyUp:
        case kKeyDown: {
          int next = groundCursorAfter(cursor, key.virtualKey);
          moveSectorHighlight(kMapColumn, kMapRow, next, cursor);
          cursor = next;
          break;
        }
        case kKeyEnter:
          runSectorView(cursor);
          drawFrame(kWarFrameColour, false);
          cursor = 1;
          drawSectorMap(kMapColumn, kMapRow, kBorderAtRest, false, 15);
          drawSectorCell(1, kMapColumn, kMapRow, kBorderLit, 15);
          terrainStale = true;
          break;
        case kKeyTab:  // hidden: the whole sector mapped at once
          for (int k = 0; k < kSubSectorCount; ++k) thePlanet().subSector(cursor, k).markMapped();
          terrainStale = true;
          break;
        case kKeyEscape: Console::flushKeys(); return;
        default: break;
      }
    }
    Console::flushKeys();
  }
}

void runSectorView(int sector) {
  drawFrame(kWarFrameColour, false);
  drawSectorView(sector);
  Bunker& bunker = thePlanet().sector(sector).bunker();
  if (bunker.isBuilt() && bunker.getSubSector() >= 0) {
    // The bunker's own ground is known; its mark goes on the tile as it is.
    const int site = bunker.getSubSector();
    thePlanet().subSector(sector, site).markMapped();
    Console::putText("\xF0\xF0", tileColumn(site) + 6, tileRow(site) + 2, 79);
  }
  int cursor = 0;
  for (;;) {
    drawSubSectorPanel(cursor, sector);
    KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown && !moveSubSectorCursor(cursor, key.virtualKey)) {
      switch (key.virtualKey) {
        case kKeyEnter: {
          SubSector& s = thePlanet().subSector(sector, cursor);
          s.markMapped();
          drawLandTile(s.landType(), tileColumn(cursor), tileRow(cursor));
          break;
        }
        case kKeyEscape: Console::flushKeys(); return;
        default: break;
      }
    }
    Console::flushKeys();
  }
}
