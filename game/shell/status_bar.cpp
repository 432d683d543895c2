#include "game/shell/status_bar.h"

#include "game/console/console.h"
#include "game/console/text.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kTopRow = 23;
constexpr int kBottomRow = 24;
constexpr char kCredits[] = " of 5500         \x9BO$MI\x9B \x9BREDIT$: ";
constexpr char kMakersLine[] = " For the Povolnians!";  // 20 cells

void putStore(std::int32_t value, int column, int colour) {
  Console::putText(leftAlignedNumber(value, 9), column, kBottomRow, colour);
}

}  // namespace

void drawStatusBar(int colour) {
  const Mothership& ship = theMothership();
  const GlobalValues& g = globals();
  Console::putText(" DAY: ", 0, kTopRow, colour);
  Console::putText(formatNumber(g.day, 4, false), 6, kTopRow, colour);
  Console::putText(kCredits, 10, kTopRow, colour);
  Console::putText(leftAlignedNumber(g.cosmicCredits, 17), 43, kTopRow, colour);
  Console::putText(kMakersLine, 60, kTopRow, colour);
  // Columns 0 and 79 of the last row are never written: they are the bar's
  // corners, and 79 is the one cell of the screen nothing touches.
  Console::putChar(220, 1, kBottomRow, colour);
  Console::putText("    FUEL: ", 2, kBottomRow, colour);
  putStore(ship.fuel(), 12, colour);
  Console::putText("         MATERIALS: ", 21, kBottomRow, colour);
  putStore(ship.materials(), 41, colour);
  Console::putText("         FOOD: ", 50, kBottomRow, colour);
  putStore(static_cast<std::int32_t>(ship.food()), 65, colour);
  Console::putText("    ", 74, kBottomRow, colour);
  Console::putChar(220, 78, kBottomRow, colour);
}

void refreshFuel(int colour) { putStore(theMothership().fuel(), 12, colour); }
void refreshMaterials(int colour) { putStore(theMothership().materials(), 41, colour); }
void refreshFood(int colour) {
  putStore(static_cast<std::int32_t>(theMothership().food()), 65, colour);
}
