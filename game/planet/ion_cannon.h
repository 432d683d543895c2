// The Super Ion Cannon: from a Mothership hovering over a sector, one shot
// wipes out one sub-sector: its people and troops die and the land turns to
// Rubble, while a live feed shows it happen. A shot costs 50,000 fuel, and
// a shot that takes the last of it ends the game.
#pragma once

inline constexpr int kIonShotFuel = 50000;

void runIonCannonControl();

// The shot at sub-sector k below the ship: the feed, the news, the effect.
void fireIonCannon(int k);
