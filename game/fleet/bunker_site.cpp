#include "game/fleet/bunker_site.h"

#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/planet/ground_map.h"
#include "game/planet/planet.h"

namespace {
constexpr int kSiteTitleColour = 62;
}  // namespace

bool isBunkerSite(std::int32_t sector, int k) {
  const SubSector& sub = thePlanet().subSector(sector, k);
  const std::int32_t land = sub.landType();
  return sub.mapped() &&
         (land == kMountains || land == kDesert || land == kRubble || land == kRuins);
}

int pickBunkerSite(std::int32_t sector) {
  drawFrame(kWarFrameColour, true);
  drawSubSectorGrid(kSectorViewColumn, kSectorViewRow, kBorderAtRest);
  drawSubSectorCell(0, kSectorViewColumn, kSectorViewRow, kBorderLit);
  Console::putText("SELECT A PERMENANT LOCATION FOR THIS BUNKER", 20, 0, kSiteTitleColour);
  drawSectorViewTiles(sector);
  int cursor = 0;
  for (;;) {
    drawSubSectorPanel(cursor, sector);
    const KeyEvent key = Console::readKey();
    if (!key.isKey || !key.keyDown || moveSubSectorCursor(cursor, key.virtualKey)) continue;
    if (key.virtualKey == kKeyEnter && isBunkerSite(sector, cursor)) return cursor;
    if (key.virtualKey == kKeyEscape) return -1;
  }
}
