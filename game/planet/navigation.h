// The bridge: the Navigation deck, the Navigate Mothership screen on which
// the player picks where the ship goes, and what a trip costs.
//
// The ship is in orbit (sector 0) or hovers over a sector. It moves only at
// the end of a day, one step of a king's move on the 6 x 4 map (a trip
// between orbit and any sector is one day), and pays for it in fuel.
#pragma once

inline constexpr int kOrbitTripFuel = 10000;  // orbit to a sector or back
inline constexpr int kStepFuel = 1000;        // a step between sectors
inline constexpr int kHoverFuel = 100;        // a day over a sector
inline constexpr int kShieldFuel = 200;       // a day with the shield on

void runNavigationDeck();
void runNavigateScreen();

// Days and fuel of a trip; 0 (or the orbit cursor) is orbit.
int travelDays(int from, int to);
int travelFuel(int from, int to);
// "ETA:" and "Fuel Req:" for a trip from where the ship is to `place`.
void drawTravelFigures(int column, int row, int place);

// Four pointers round a sector's letter, or five above and below the
// letters of the orbit (or dock) box, on a map at (15, 1). Place 0 or the
// orbit cursor is the box.
void drawMapMarks(int place, int colour);

// Where the Navigate cursor goes from `cursor` on an arrow. `cameThrough`
// remembers by which sector (3, 4, 21 or 22) the cursor entered the orbit
// box, to leave it by the same side.
int navigateCursorAfter(int cursor, int virtualKey, int& cameThrough);
