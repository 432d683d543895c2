// The end screens: a full screen of text, sometimes a portrait, and a wait
// for a key. Raising the game-over flag is the caller's act, right after.
// The famine warning looks like an ending and is not: the game goes on.
#pragma once

// The crew kill the captain: in his sleep while there is food, by eating
// him when there is none.
void showMutinyEnding();
void showFuelEnding();
void showVictoryEnding();
void showFamineWarning();
// The Ion Cannon drank the last of the fuel.
void showCannonFuelEnding();

// Portraits, 40 cells by 17 rows with their top left corner at the place.
void drawKryptalPortrait(int column, int row);
void drawCarollaPortrait(int column, int row);
