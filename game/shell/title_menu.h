// The title menu: the program's outermost loop. An animated screen with
// five entries: NEW GAME plays a game on the ship map until it ends, EXIT
// leaves; the others are for show (VIEW CREDITS shows the makers while it
// is selected).
//
// The loop polls the keyboard with no delay of its own and counts its
// passes as its clock: a running light steps every 30 passes, the sweep
// along the selected entry every 600.
#pragma once

// A place on the dotted frame's track, and the colour it is lit in.
struct TrackPosition {
  int column;
  int row;
  int colour;
};

// The cell after a place on the 94-cell track: down the left side, right
// along the bottom, up the right side and left along the top.
TrackPosition stepTrack(TrackPosition position);

void runTitleMenu();
