#include "game/messages/library_deck.h"

#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/messages/message_log.h"
#include "game/shell/day.h"
#include "game/shell/endings.h"
#include "game/shell/mothership.h"
#include "game/shell/status_bar.h"

namespace {

constexpr int kEndTurnButton = 2;
constexpr int kPersonnelButton = 3;
constexpr int kDayQuestionColour = 2;

// Ends the day if the player says so; the deck then closes, after the
// morning report when there is news and the game goes on.
MenuResult endTurn() {
  drawFrame(kDayQuestionColour, false);
  if (!askYesNo("End Day?", 35, 10, 34)) return MenuResult::Redraw;
  runDay();
  if (!isGameOver() && theMessageLog().count() != 0) runMorningReport();
  return MenuResult::Leave;
}

// A false button: a word between frame marks, drawn and never pressed.
void drawFalseButton(const char* word, int leftBar) {
  Console::putChar('|', leftBar, 22, 4);
  Console::putChar('+', leftBar + 1, 22, 3);
  Console::putText(word, leftBar + 2, 22, 15);
  Console::putChar('+', leftBar + 6, 22, 3);
  Console::putChar('|', leftBar + 7, 22, 4);
}

void drawRule(int row) {
  Console::putChar(236, 2, row, 14);
  Console::putChar(236, 40, row, 14);
  Console::putText(" -----------------------------------", 3, row, 2);
}

MenuResult showPersonnel() {
  Console::setColour(15);
  Console::clearScreen();
  drawFalseButton("Back", 8);
  drawFalseButton("MENU", 18);
  drawFalseButton("Next", 28);
  drawRule(1);
  drawRule(20);
  drawKryptalPortrait(2, 2);
  Console::waitAnyKey();
  return MenuResult::Redraw;
}

// Keys that stand nowhere on the screen: craft, capsules, stores and crew
// come aboard at once. What does not fit is dropped without a word.
constexpr std::int32_t kStoreGift = 400;

void addCraft(std::int32_t type) {
  Mothership& ship = theMothership();
  ship.aircraft().add(type, ship.dockRoomLeft(), 0);
}

void onHiddenKey(const KeyEvent& key) {
  Mothership& ship = theMothership();
  switch (key.ascii) {
    case '5': addCraft(kSaucerTransport); break;
    case '6': addCraft(kCargoBarge); break;
    case '7': addCraft(kStealthFighter); break;
    case '8': addCraft(kHulkBomber); break;
    case 'k': ship.addCapsules(1); break;
    case 'd':
      ship.addFood(kStoreGift);
      refreshFood(kDeckFrameColour);
      break;
    case 'h':
      ship.addFuel(kStoreGift);
      refreshFuel(kDeckFrameColour);
      break;
    case 'r':
      ship.addMaterials(kStoreGift);
      refreshMaterials(kDeckFrameColour);
      break;
    case 'v': ship.crew().add(kRacePovolnian, 0); break;
    default: break;
  }
}

}  // namespace

void runLibraryDeck() {
  DeckMenu menu{{"  Interglactanet           ", "  End Turn Factor 6        ",
                 "  Personel Bios            ", "  Summon Crew Member       ", kReturnLabel}};
  menu.showEscapeLine = false;
  menu.onEnter = [](DeckMenu&, int button) {
    if (button == kEndTurnButton) return endTurn();
    if (button == kPersonnelButton) return showPersonnel();
    return MenuResult::Stay;
  };
  menu.onOtherKey = onHiddenKey;
  showMenu(menu);
}
