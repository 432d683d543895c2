#include "game/shell/ship_map.h"

#include <array>
#include <string>
#include <string_view>

#include "game/art/ship.h"
#include "game/cargo/cargo_deck.h"
#include "game/console/console.h"
#include "game/crew/living_quarters.h"
#include "game/fleet/docking_bay.h"
#include "game/freighter/super_freighter.h"
#include "game/messages/library_deck.h"
#include "game/planet/navigation.h"
#include "game/research/engineering_deck.h"
#include "game/research/research_station.h"
#include "game/shell/mothership.h"
#include "game/shell/status_bar.h"

namespace {

constexpr int kPanelTitleRow = 19;
constexpr int kPanelColour = 32;
constexpr int kHelpColour = 128;
constexpr int kShieldedColour = 10;
constexpr int kFlashMs = 80;

struct HelpPanel {
  const char* title;
  const char* lines[3];
};

constexpr HelpPanel kHelp[kDeckCount] = {
    {" NAVIGATION:",
     {"This is the bridge of the super mothership. You can navigate the mothership",
      "from this room. You can also check on the status of the sectors on the", "ground below."}},
    {" LIBRARY:",
     {"This is the captain's quarters where you can look up information about",
      "anything using the intergalactinet. You can also look up information about",
      "your crew members. This is also where you can summon your advisors for help."}},
    {" RESEARCH:",
     {"This is the Scientific Research Facility. You can start, check on and end",
      "scientific research. You can also send and recieve radio transmissions from",
      "the enemy forces."}},
    {" ENGINEERING:",
     {"This is the Engineering Department. You can check the status of your ships",
      "and order the maintenance and repair of them. You can also do really cool",
      "stuff like build new ships and weapons."}},
    {" LIVING:",
     {"This is the crew's living quarters. Here you can assign your crew different",
      "jobs and positions. You can also have a few cups of coffee with your crew",
      "and see the status of their morale."}},
    {" CARGO:",
     {"This is the Cargo Space. You can check on the inventory of the mothership",
      "here, including fuel, food, material resources, weaponry, bowling shoes and", "more!"}},
    {" DOCKING:",
     {"This is the Docking Bay. Here you can launch ships, saucers and capsules to",
      "the planet below. This area is also the staging area for loading the ships",
      "with supplies and crew. This place is thursday like grapes."}},
    {" SUPER FREIGHTER:",
     {"The super freighter is in orbit! You can shuttle across and purchase and",
      "recruit new mercinaries. You can also schmooz with the sleeze of the galaxy.",
      "You can also make money here either by gambling or selling your artifacts."}},
};

// Where each arrow leads, by deck: Left, Up, Right, Down; -1 goes nowhere.
// Down from the Library reaches the Super Freighter only while it is there.
constexpr int kMoves[kDeckCount][4] = {
    {-1, -1, 2, -1}, {-1, 2, 3, 7},  {0, 4, 5, 1},   {1, -1, 6, -1},
    {-1, -1, -1, 2}, {2, -1, -1, 6}, {3, 5, -1, -1}, {-1, 1, -1, -1},
};

// The routine behind each room, entered with Enter. A room whose deck is
// not aboard yet only flashes.
using DeckRoutine = void (*)();
constexpr DeckRoutine kDeckRoutines[kDeckCount] = {
    runNavigationDeck,   // NAV COM
    runLibraryDeck,      // LIBRARY
    runResearchStation,  // SCIENTIFIC RESEARCH STATION
    runEngineeringDeck,  // ENGINEERING
    runLivingQuarters,   // LIVING QUARTERS
    runCargoDeck,        // CARGO SPACE
    runDockingBay,       // DOCKING BAY
    runFreighter,        // SUPER FREIGHTER
};

// The plain drawing with the rooms' cells blanked: the hull under the shield.
const std::array<std::string, 19>& shieldedRows() {
  static const std::array<std::string, 19> rows = [] {
    std::array<std::string, 19> result;
    for (int r = 0; r < kShipPicture.height; ++r) result[r] = pictureRow(kShipPicture, r);
    for (int deck = 0; deck < kDeckSuperFreighter; ++deck) {
      const RoomOutline& room = kRoomOutlines[deck];
      for (int i = 0; i < room.count; ++i) {
        const RoomWrite& w = room.writes[i];
        result[w.row].replace(w.column, w.length, w.length, ' ');
      }
    }
    return result;
  }();
  return rows;
}

void drawHelpPanel(int deck) {
  const HelpPanel& panel = kHelp[deck];
  Console::putTextPadded(panel.title, 0, kPanelTitleRow, kPanelColour, 80);
  for (int i = 0; i < 3; ++i) {
    int row = kPanelTitleRow + 1 + i;
    Console::putText("  ", 0, row, kPanelColour);
    Console::putTextPadded(panel.lines[i], 2, row, kHelpColour, 76);
    Console::putText("  ", 78, row, kPanelColour);
  }
}

void flashRoom(int deck) {
  for (int i = 0; i < 3; ++i) {
    drawDeckLabel(deck, kRoomFlashing);
    Console::sleep(kFlashMs);
    drawDeckLabel(deck, kRoomSelected);
    Console::sleep(kFlashMs);
  }
  drawDeckLabel(deck, kRoomFlashing);
  Console::sleep(kFlashMs);
}

void enterDeck(int deck) {
  flashRoom(deck);
  if (kDeckRoutines[deck] != nullptr) kDeckRoutines[deck]();
  if (!isGameOver()) drawShipMap();
}

}  // namespace

bool freighterAvailable() {
  return globals().freighterCountdown <= 0 && theMothership().currentSector() == 0;
}

int deckAfterMove(int deck, int virtualKey) {
  if (deck < 0 || deck >= kDeckCount || virtualKey < kKeyLeft || virtualKey > kKeyDown) return -1;
  int next = kMoves[deck][virtualKey - kKeyLeft];
  if (next == kDeckSuperFreighter && !freighterAvailable()) return -1;
  return next;
}

void drawDeckLabel(int deck, int colour) {
  if (deck < 0 || deck >= kDeckCount) return;
  const RoomOutline& room = kRoomOutlines[deck];
  for (int i = 0; i < room.count; ++i) {
    const RoomWrite& w = room.writes[i];
    std::string_view cells =
        deck == kDeckSuperFreighter
            ? std::string_view(pictureRow(kFreighterRoomPicture, w.row - kFreighterRoomRow))
                  .substr(w.column - kFreighterRoomColumn, w.length)
            : std::string_view(pictureRow(kShipPicture, w.row)).substr(w.column, w.length);
    Console::putText(cells, w.column, w.row, colour);
  }
}

void drawShipMap() {
  Console::setColour(15);
  Console::clearScreen();
  Console::hideCursor();
  Console::home();
  if (!theMothership().shieldsOn()) {
    drawPicture(kShipPicture, 0, 0, kRoomAtRest);
  } else {
    const auto& rows = shieldedRows();
    for (int r = 0; r < kShipPicture.height; ++r) Console::putText(rows[r], 0, r, kShieldedColour);
    for (int deck : {kDeckNav, kDeckLiving, kDeckResearch, kDeckLibrary, kDeckEngineering,
                     kDeckCargo, kDeckDocking}) {
      drawDeckLabel(deck, kRoomAtRest);
    }
  }
  if (freighterAvailable()) drawDeckLabel(kDeckSuperFreighter, kRoomAtRest);
}

void runShipMap(int startDeck) {
  int deck = startDeck;
  while (!isGameOver()) {
    if (deck != kDeckSuperFreighter || freighterAvailable()) {
      drawDeckLabel(deck, kRoomSelected);
      drawHelpPanel(deck);
    }
    drawStatusBar(kPanelColour);
    if (Console::keyWaiting()) {
      KeyEvent key = Console::readKey();
      if (key.virtualKey >= kKeyLeft && key.virtualKey <= kKeyDown) {
        int next = deckAfterMove(deck, key.virtualKey);
        if (next >= 0) {
          drawDeckLabel(deck, kRoomAtRest);
          drawDeckLabel(next, kRoomSelected);
          deck = next;
        }
      } else if (key.ascii == 13) {
        enterDeck(deck);
      }
    }
    Console::flushKeys();
  }
}
