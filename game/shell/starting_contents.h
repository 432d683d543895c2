// What lies in the ship when a game starts, and the clearing of a finished
// game for the next NEW GAME of the same run.
#pragma once

// Called once at start-up, among the global objects.
void layStartingContents();

// Called by NEW GAME from the second game of a run on: the ship and the
// calendar as a new game has them, and every bunker emptied. The land, its
// forces, the message log and the famine flag stay as the last game left
// them.
void resetGame();
