// The status bar on rows 23 and 24 of nearly every screen: the day, the
// money, and the ship's fuel, materials and food.
#pragma once

void drawStatusBar(int colour);

// Each rewrites one number of the bar alone, for a deck that has just
// changed a store while its frame stays on the screen.
void refreshFuel(int colour);
void refreshFood(int colour);
void refreshMaterials(int colour);
