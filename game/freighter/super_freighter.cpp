#include "game/freighter/super_freighter.h"

#include <cassert>
#include <string_view>

#include "game/art/freighter.h"
#include "game/console/console.h"
#include "game/shell/mothership.h"
#include "game/shell/status_bar.h"

namespace {

constexpr int kStatusColour = 32;
constexpr int kFlashMs = 80;

// Where each arrow leads, by spot: Left, Up, Right, Down; 0 goes nowhere.
constexpr int kMoves[kFreighterSpotCount][4] = {
    {0, 0, 2, 3}, {1, 0, 0, 4}, {0, 1, 4, 5}, {3, 2, 0, 6}, {0, 3, 6, 0}, {5, 4, 0, 0},
};

// Knocking on a spot: three flashes and a half, then it stays lit red until
// the player walks away.
void flashSpot(int spot) {
  for (int i = 0; i < 3; ++i) {
    drawFreighterSpot(spot, kSpotFlashing);
    Console::sleep(kFlashMs);
    drawFreighterSpot(spot, kSpotSelected);
    Console::sleep(kFlashMs);
  }
  drawFreighterSpot(spot, kSpotFlashing);
  Console::sleep(kFlashMs);
}

}  // namespace

int spotAfterMove(int spot, int virtualKey) {
  assert(spot >= 1 && spot <= kFreighterSpotCount);
  if (virtualKey < kKeyLeft || virtualKey > kKeyDown) return spot;
  int next = kMoves[spot - 1][virtualKey - kKeyLeft];
  return next == 0 ? spot : next;
}

int spotColourAtRest(int spot) {
  if (spot == kSpotMothership && theMothership().shieldsOn()) return kShieldedShipColour;
  return kSpotAtRest;
}

void drawFreighterSpot(int spot, int colour) {
  assert(spot >= 1 && spot <= kFreighterSpotCount);
  const Picture& art = kFreighterSpots[spot - 1];
  const SpotPlace place = kFreighterSpotPlaces[spot - 1];
  for (int y = 0; y < art.height; ++y) {
    const std::string_view glyphs = pictureRow(art, y);
    const auto first = glyphs.find_first_not_of(' ');
    if (first == std::string_view::npos) continue;
    const auto last = glyphs.find_last_not_of(' ');
    Console::putText(glyphs.substr(first, last - first + 1), place.column + static_cast<int>(first),
                     place.row + y, colour);
  }
}

void drawFreighter(int selected) {
  drawPicture(kFreighterHull, 0, 0);
  for (int spot = 1; spot <= kFreighterSpotCount; ++spot) {
    drawFreighterSpot(spot, spot == selected ? kSpotSelected : spotColourAtRest(spot));
  }
}

void runFreighter() {
  Console::setColour(15);
  Console::clearScreen();
  int selected = kSpotMothership;
  drawFreighter(selected);
  for (;;) {
    drawStatusBar(kStatusColour);
    if (Console::keyWaiting()) {
      KeyEvent key = Console::readKey();
      if (key.virtualKey >= kKeyLeft && key.virtualKey <= kKeyDown) {
        int next = spotAfterMove(selected, key.virtualKey);
        if (next != selected) {
          drawFreighterSpot(selected, spotColourAtRest(selected));
          drawFreighterSpot(next, kSpotSelected);
          selected = next;
        }
      } else if (key.ascii == 13) {
        flashSpot(selected);
        if (selected == kSpotMothership) return;
      }
    }
    Console::flushKeys();
  }
}
