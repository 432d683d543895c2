// The Super Freighter's screen: the freighter's hull and its six spots.
//
// kFreighterHull is the whole picture, 80 x 23 drawn at (0, 0), above the
// status bar: the freighter seen from the side, bow to the left. An
// observatory dome rises from the front deck, a dish stands on the low waist
// and the stern tower carries the cafe at the top right. Cargo pods are
// stacked behind the bow, a darker stripe runs along the main deck, and the
// keel slopes up under the bow to the berth where the Mothership hangs on its
// boarding tube. Three engines fire at the stern. The outline is white (15),
// the plating and the stars dark grey (8), the engines' throats dark red (4)
// and their glow light red (12). The hull leaves blank the cells the spots
// cover.
//
// The spots stand over the hull, each a one-colour picture drawn at its
// place in the colour of the moment. A spot covers, on each of its rows, the
// cells from its first glyph to its last, so the hull shows round its shape
// (the auction house's dome, the bazaar's counter). By spot number less one:
// 1 ASTRONOMICAL AUCTION HOUSE, 2 COSMIC CAFE, 3 BOB'S BIZARRE BAZAAR,
// 4 MERCENARY MARKET, 5 the Mothership, 6 SAL'S SELECT SPACECRAFT.
#pragma once

#include "game/art/picture.h"

extern const Picture kFreighterHull;
extern const Picture kFreighterSpots[6];

struct SpotPlace {
  int column;
  int row;
};

inline constexpr SpotPlace kFreighterSpotPlaces[6] = {{7, 1},  {59, 2}, {18, 8},
                                                      {46, 8}, {3, 17}, {37, 13}};
