#include "game/planet/navigation.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "game/console/console.h"
#include "game/console/text.h"
#include "game/console/widgets.h"
#include "game/planet/ground_campaign_status.h"
#include "game/planet/ground_map.h"
#include "game/planet/ion_cannon.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kMapColumn = 15;
constexpr int kMapRow = 1;
constexpr int kDestinationColour = 14;
constexpr int kCurrentColour = 13;

int orbitOrSector(int place) { return place == kOrbitCursor ? 0 : place; }

}  // namespace

void drawMapMarks(int place, int colour) {
  if (place == 0 || place == kOrbitCursor) {
    for (int i = 0; i < 5; ++i) {
      Console::putChar(30, kMapColumn + 18 + 3 * i, kMapRow + 17, colour);
      Console::putChar(31, kMapColumn + 18 + 3 * i, kMapRow + 19, colour);
    }
    return;
  }
  const Sector& s = thePlanet().sector(place);
  const int c = kMapColumn + 8 * s.column();
  const int r = kMapRow + 4 * s.row();
  Console::putChar(30, c + 4, r + 1, colour);
  Console::putChar(17, c + 3, r + 2, colour);
  Console::putChar(16, c + 5, r + 2, colour);
  Console::putChar(31, c + 4, r + 3, colour);
}

namespace {

// The map's terrain, the ship's marks and the destination panel: drawn on
// entering and after each choice of destination.
void drawNavigationState() {
  const Mothership& ship = theMothership();
  drawMapTerrain(kMapColumn, kMapRow);
  drawMapMarks(0, 0);
  drawMapMarks(ship.destinationSector(), kDestinationColour);
  drawMapMarks(ship.currentSector(), kCurrentColour);
  Console::putText("Mothership's Destination", 49, 18, 15);
  if (ship.currentSector() != ship.destinationSector()) {
    for (int row = 19; row <= 21; ++row) Console::putText(std::string(28, ' '), 49, row, 14);
    drawSectorLine(49, 19, 15, 14, ship.destinationSector());
    drawTravelFigures(49, 20, ship.destinationSector());
  } else {
    Console::putText(" There is currently no      ", 49, 19, 14);
    Console::putText(" destination selected.      ", 49, 20, 14);
    Console::putText(std::string(28, ' '), 49, 21, 14);
  }
}

MenuResult onNavigationButton(DeckMenu&, int button) {
  switch (button) {
    case 1:
      Console::clearScreen();
      runGroundCampaignStatus();
      return MenuResult::Redraw;
    case 2:
      Console::clearScreen();
      runNavigateScreen();
      return MenuResult::Redraw;
    case 4:
      Console::clearScreen();
      runIonCannonControl();
      return MenuResult::Redraw;
    default:  // the radio is silent
      return MenuResult::Stay;
  }
}

}  // namespace

int travelDays(int from, int to) {
  from = orbitOrSector(from);
  to = orbitOrSector(to);
  if (from == 0 || to == 0) return 1;
  const Sector& a = thePlanet().sector(from);
  const Sector& b = thePlanet().sector(to);
  return std::max(std::abs(a.column() - b.column()), std::abs(a.row() - b.row()));
}

int travelFuel(int from, int to) {
  const bool orbit = orbitOrSector(from) == 0 || orbitOrSector(to) == 0;
  return travelDays(from, to) * (orbit ? kOrbitTripFuel : kStepFuel);
}

void drawTravelFigures(int column, int row, int place) {
  const int from = theMothership().currentSector();
  Console::putText("ETA: ", column, row, 15);
  Console::putText(leftAlignNumber(formatNumber(travelDays(from, place), 1, false), 1), column + 5,
                   row, 14);
  Console::putText("Fuel Req: ", column, row + 1, 15);
  Console::putText(leftAlignedNumber(travelFuel(from, place), 7), column + 10, row + 1, 14);
}

int navigateCursorAfter(int cursor, int virtualKey, int& cameThrough) {
  if (cursor == kOrbitCursor) {
    const bool leftSide = cameThrough == 3 || cameThrough == 21;
    if (virtualKey == kKeyUp) return leftSide ? 21 : 22;
    if (virtualKey == kKeyDown) return leftSide ? 3 : 4;
    return cursor;
  }
  // The orbit box lies above V and O and below D and G; elsewhere the map
  // wraps as on the ground map.
  if ((virtualKey == kKeyUp && (cursor == 3 || cursor == 4)) ||
      (virtualKey == kKeyDown && (cursor == 21 || cursor == 22))) {
    cameThrough = cursor;
    return kOrbitCursor;
  }
  return groundCursorAfter(cursor, virtualKey);
}

void runNavigateScreen() {
  drawFrame(kWarFrameColour, false);
  drawSectorMap(kMapColumn, kMapRow, kBorderAtRest, true, 15);
  drawSectorCell(1, kMapColumn, kMapRow, kBorderLit, 15);
  int cursor = 1;
  int cameThrough = 3;
  drawNavigationState();
  for (;;) {
    Console::putText("Highlighted Selection", 3, 18, 15);
    drawSectorLine(3, 19, 15, 14, cursor);
    drawTravelFigures(3, 20, cursor);
    KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown) {
      if (key.virtualKey >= kKeyLeft && key.virtualKey <= kKeyDown) {
        int next = navigateCursorAfter(cursor, key.virtualKey, cameThrough);
        if (next != cursor) {
          if (next == kOrbitCursor || cursor == kOrbitCursor) {
            moveOrbitHighlight(kMapColumn, kMapRow, next, cursor);
          } else {
            moveSectorHighlight(kMapColumn, kMapRow, next, cursor);
          }
          cursor = next;
        }
      } else if (key.ascii == 13) {
        theMothership().setDestination(orbitOrSector(cursor));
        drawNavigationState();
      } else if (key.ascii == 27) {
        Console::flushKeys();
        return;
      }
    }
    Console::flushKeys();
  }
}

void runNavigationDeck() {
  DeckMenu menu{{"  Ground Campaign Status   ", "  Navigate Mothership      ",
                 "  Radio Communications     ", "  Super Ion Cannon Control ", kReturnLabel}};
  menu.onEnter = onNavigationButton;
  showMenu(menu);
}

void Mothership::moveOneDay() {
  if (shieldsOn_) chargeFuel(kShieldFuel);
  if (currentSector_ == destinationSector_) {
    if (currentSector_ != 0) chargeFuel(kHoverFuel);
    return;
  }
  if (currentSector_ == 0 || destinationSector_ == 0) {
    currentSector_ = destinationSector_;
    chargeFuel(kOrbitTripFuel);
    return;
  }
  // Column and row each move one step toward the target, in the same day.
  const int step = engineLevel_ + 1;
  const Sector& from = thePlanet().sector(currentSector_);
  const Sector& to = thePlanet().sector(destinationSector_);
  // A faster engine stops at the target's column or row, not past it.
  auto toward = [step](int at, int target) {
    if (at < target) return std::min(at + step, target);
    if (at > target) return std::max(at - step, target);
    return at;
  };
  currentSector_ = static_cast<std::int32_t>(
      thePlanet()
          .sectorAt(toward(from.row(), to.row()), toward(from.column(), to.column()))
          .number());
  chargeFuel(step * kStepFuel);
}
