// The Super Freighter: the travelling market of the galaxy. While it and the
// Mothership are both in orbit its room is on the ship map, and its screen
// shows the freighter with five shop fronts and, at the bottom left, the
// Mothership to go back by. The player walks from spot to spot with the
// arrows and knocks with Enter: the spot flashes. The shops are fronts only;
// Enter on the Mothership is the one way back to the ship.
#pragma once

// The six spots, in a grid of two columns and three rows.
enum FreighterSpot {
  kSpotAuctionHouse = 1,
  kSpotCosmicCafe = 2,
  kSpotBazaar = 3,
  kSpotMercenaryMarket = 4,
  kSpotMothership = 5,
  kSpotSpacecraft = 6,
};

inline constexpr int kFreighterSpotCount = 6;

// Colours of a spot: at rest, selected, flashing; the Mothership at rest
// stands in green while its shields are on.
inline constexpr int kSpotAtRest = 15;
inline constexpr int kSpotSelected = 14;
inline constexpr int kSpotFlashing = 12;
inline constexpr int kShieldedShipColour = 10;

// The spot reached from `spot` by an arrow key (virtual key 37 to 40); the
// same spot where the arrow leads nowhere.
int spotAfterMove(int spot, int virtualKey);

// A spot's colour when it is not selected.
int spotColourAtRest(int spot);

// Draws one spot over the hull in a colour.
void drawFreighterSpot(int spot, int colour);

// The whole picture: the hull and the six spots, `selected` lit.
void drawFreighter(int selected);

// The screen, from the ship map's room 7. Returns when the player goes back
// to the ship.
void runFreighter();
