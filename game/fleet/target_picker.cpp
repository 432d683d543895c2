// SELECT A TARGET SECTOR FOR THIS AIRCRAFT: the war map with the ship's
// dock below it. The cursor starts where the craft stands; Enter aims the
// craft at the place under it, as often as the player likes, and Escape
// leaves with the last aim.
#include <cassert>
#include <string>

#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/fleet/location_table.h"
#include "game/fleet/missions.h"
#include "game/planet/ground_map.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"

namespace {

constexpr int kMapColumn = 15;
constexpr int kMapRow = 1;
constexpr int kDockColumn = kMapColumn + 16;
constexpr int kDockRow = kMapRow + 17;
constexpr int kTitleColour = 62;
constexpr int kLetterPlain = 15;
constexpr int kLetterBunker = 14;
constexpr int kTargetColour = 14;
constexpr int kHereColour = 13;

int letterColour(int sector) {
  return thePlanet().sector(sector).bunker().isBuilt() ? kLetterBunker : kLetterPlain;
}

int cellColumn(int column, int sector) { return column + 8 * thePlanet().sector(sector).column(); }
int cellRow(int row, int sector) { return row + 4 * thePlanet().sector(sector).row(); }

void drawPlace(int column, int row, int place, int colour) {
  if (isSector(place)) {
    drawSectorCell(place, cellColumn(column, place), cellRow(row, place), colour,
                   letterColour(place));
  } else if (place == kOrbitCursor) {
    drawDockBox(column + 16, row + 17, colour);
  }
}

// The land as far as it is known, the marks of the aim and of the craft's
// place, and the panel of the aim.
void drawTargetState(const Aircraft& craft) {
  drawMapTerrain(kMapColumn, kMapRow);
  Console::putText(std::string(15, ' '), kDockColumn + 1, kDockRow, kLetterPlain);
  Console::putText(std::string(15, ' '), kDockColumn + 1, kDockRow + 2, kLetterPlain);
  drawMapMarks(craft.getDestination(), kTargetColour);
  drawMapMarks(craft.getLocation(), kHereColour);
  Console::putText("Ship's Target", 49, 18, 15);
  if (craft.getDestination() != craft.getLocation()) {
    for (int row = 19; row <= 21; ++row) Console::putText(std::string(28, ' '), 49, row, 14);
    drawSectorLine(49, 19, 15, 14, craft.getDestination(), "Mothership");
  } else {
    Console::putText(" There is currently no      ", 49, 19, 14);
    Console::putText(" target selected.      ", 49, 20, 14);
    Console::putText(std::string(28, ' '), 49, 21, 14);
  }
}

}  // namespace

void drawDockBox(int column, int row, int colour) {
  drawBoxUnderMap(column, row, colour, " D   O   C   K  ");
}

void moveTargetHighlight(int column, int row, int newCursor, int oldCursor) {
  // The old place first, so that the lit cell keeps the borders it shares.
  drawPlace(column, row, oldCursor, kBorderAtRest);
  drawPlace(column, row, newCursor, kBorderLit);
}

int targetCursorAfter(int cursor, int virtualKey, bool& cameThroughLeft) {
  int through = cameThroughLeft ? 3 : 4;
  const int next = navigateCursorAfter(cursor, virtualKey, through);
  cameThroughLeft = through == 3 || through == 21;
  return next;
}

void drawTargetMap(const char* title, int dockColour) {
  drawFrame(kWarFrameColour, false);
  Console::putText(title, 20, 0, kTitleColour);
  for (int n = 1; n <= kSectorCount; ++n) {
    drawSectorCell(n, cellColumn(kMapColumn, n), cellRow(kMapRow, n), kBorderAtRest,
                   letterColour(n));
  }
  drawDockBox(kDockColumn, kDockRow, dockColour);
}

void drawHighlightedSelection(const TargetCursor& cursor) {
  Console::putText("Highlighted Selection", 3, 18, 15);
  // A letter is shorter than "Mothership": the line is cleared first.
  Console::putText(std::string(10, ' '), 11, 19, 14);
  drawSectorLine(3, 19, 15, 14, cursor.place, "Mothership");
}

bool moveTargetCursor(TargetCursor& cursor, int virtualKey) {
  if (virtualKey < kKeyLeft || virtualKey > kKeyDown) return false;
  const int next = targetCursorAfter(cursor.place, virtualKey, cursor.cameThroughLeft);
  if (next != cursor.place) {
    moveTargetHighlight(kMapColumn, kMapRow, next, cursor.place);
    cursor.place = next;
  }
  return true;
}

bool pickTarget(std::int32_t location, std::int32_t craftRow, bool anySector) {
  assert(location >= kMothershipLocation && location <= kLastLocation);
  Aircraft& craft = aircraftAt(location).at(craftRow);
  drawTargetMap("SELECT A TARGET SECTOR FOR THIS AIRCRAFT",
                location == kMothershipLocation ? kBorderLit : kBorderAtRest);
  if (isSector(location)) drawPlace(kMapColumn, kMapRow, location, kBorderLit);

  TargetCursor cursor{location == kMothershipLocation ? kOrbitCursor : location};
  // Any earlier aim is forgotten.
  craft.setDestination(location);
  drawTargetState(craft);
  for (;;) {
    drawHighlightedSelection(cursor);
    const KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown && !moveTargetCursor(cursor, key.virtualKey)) {
      if (key.ascii == kKeyEnter) {
        if (cursor.place == kOrbitCursor) {
          craft.setDestination(kMothershipLocation);
        } else if (anySector || thePlanet().sector(cursor.place).bunker().isBuilt()) {
          craft.setDestination(cursor.place);
        }
        drawTargetState(craft);
      } else if (key.ascii == kKeyEscape) {
        Console::flushKeys();
        break;
      }
    }
    Console::flushKeys();
  }
  return craft.getDestination() != craft.getLocation();
}
