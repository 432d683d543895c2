// Where a bunker may stand, and the screen on which the player picks the
// spot. A sector has one site; once chosen it is permanent, and later
// capsules to that sector land on it.
#pragma once

#include <cstdint>

// A bunker stands only on mapped Mountains, Desert, Rubble or Ruins.
bool isBunkerSite(std::int32_t sector, int k);

// The sector's view with a cursor: Enter on a fitting sub-sector returns
// it, Escape returns -1.
int pickBunkerSite(std::int32_t sector);
