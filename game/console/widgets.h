// Screen pieces that all decks share: the frame around the status bar, the
// five-button deck menu, the yes/no question and the pause. The list box is
// in list_box.h.
#pragma once

#include "game/console/console.h"

// Clears the screen and draws the frame in `colour`: the top row (with the
// "Press Escape" line when asked), two cells at each side of rows 1 to 22,
// and the status bar. The inside is columns 2 to 77, rows 1 to 22.
void drawFrame(int colour, bool showEscapeLine);

// One button of a deck menu, slot 1 (top) to 5, its 27-cell label in
// `colour`: 241 when selected, 31 when not.
void drawMenuButton(int slot, const char* label, int colour);

inline constexpr int kButtonSelected = 241;
inline constexpr int kButtonAtRest = 31;
inline constexpr int kDeckFrameColour = 78;

// What a deck does after Enter on one of its buttons.
enum class MenuResult {
  Stay,    // nothing more: the menu goes on as it is
  Redraw,  // the deck showed a screen of its own: frame and buttons again
  Leave,   // the deck ends
};

// A deck's menu: five labels, the fifth always "Return to Main Deck", and
// what Enter does on the first four. A deck may change its labels while the
// menu runs (the shield button follows the shield).
struct DeckMenu {
  const char* labels[5];
  bool showEscapeLine = true;
  MenuResult (*onEnter)(DeckMenu& menu, int button) = nullptr;
  // The deck's side panel: drawn when the menu opens, each time the
  // selection changes, and after a screen of the deck has been redrawn.
  void (*onSelect)(DeckMenu& menu) = nullptr;
  // Keys the menu does not use itself, for decks with keys of their own.
  void (*onOtherKey)(const KeyEvent& key) = nullptr;
  // The cargo deck's menu leaves keys in the queue; all others flush.
  bool flushAfterKey = true;
  int selected = 1;
};

inline constexpr const char* kReturnLabel = "  Return to Main Deck      ";

// Runs the menu until Escape, button 5, a handler's Leave, or the end of
// the game.
void showMenu(DeckMenu& menu);

// Draws all five buttons, the selected one lit.
void drawMenuButtons(const DeckMenu& menu);

// The prompt in yellow and " Yes " / " No " under it, No chosen at first.
// Left and Right flip the choice, Enter takes it, Y and N answer at once.
// The words stay on the screen: the caller wipes them.
bool askYesNo(const char* prompt, int promptColumn, int promptRow, int yesColumn);

// Waits for any key; draws no prompt of its own.
void pauseForKey();
