// The ship map: the game's main screen and hub. The Mothership from above,
// one room per deck, a help panel and the status bar. The player walks from
// room to room with the arrows and enters a deck with Enter; the map is left
// only when the game ends.
#pragma once

enum DeckId {
  kDeckNav = 0,
  kDeckLibrary = 1,
  kDeckResearch = 2,
  kDeckEngineering = 3,
  kDeckLiving = 4,
  kDeckCargo = 5,
  kDeckDocking = 6,
  kDeckSuperFreighter = 7,
};

inline constexpr int kDeckCount = 8;

// Colours of a room: at rest, selected, flashing on entry.
inline constexpr int kRoomAtRest = 15;
inline constexpr int kRoomSelected = 14;
inline constexpr int kRoomFlashing = 12;

// The Super Freighter's room exists while the freighter and the ship are
// both in orbit.
bool freighterAvailable();

// The room reached from `deck` by an arrow key (virtual key 37 to 40), or -1.
int deckAfterMove(int deck, int virtualKey);

// Clears the screen and draws the ship: plain, or shielded in green.
void drawShipMap();

// Redraws one room's outline and name in a colour.
void drawDeckLabel(int deck, int colour);

// The map's loop, from `startDeck`, until the game is over.
void runShipMap(int startDeck);
