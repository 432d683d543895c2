// Jobs for craft: the mission menu of each craft type, the Assign Aircraft
// Missions screen and the target picker on which a job is aimed.
//
// A job is a mission code and a destination. The craft stays where it is and
// works on its destination day after day; only Travel moves it.
#pragma once

#include <cstdint>

#include "game/planet/ground_map.h"

// Where a row of the mission menu may aim.
enum class TargetKind {
  None,       // no picker
  Bunkers,    // built bunkers and the ship's dock
  AnySector,  // any sector, and the dock
};

struct MissionRow {
  const char* label;
  std::int32_t mission;
  std::int32_t leastCrew;
  TargetKind target;
};

inline constexpr int kInactiveRow = 0;
inline constexpr int kTravelRow = 1;

// The rows offered to a craft of this type: five for a saucer and a
// fighter, three for a bomber and a barge, two for an unknown type.
int missionRowCount(std::int32_t type);
const MissionRow& missionRow(std::int32_t type, int row);

// The menu row of a craft's present job; `previous` for a mission that its
// type does not offer.
int presentJobRow(std::int32_t type, std::int32_t mission, int previous);

// Takes a row of the menu for the craft at that row of the location's list:
// nothing if the craft is short of crew; else the picker where the row aims
// and then the mission. True if the picker ran (the screen must be drawn
// again).
bool takeMissionRow(std::int32_t location, std::int32_t craftRow, int menuRow);

// The screen: LOCATION, AIRCRAFT and MISSION side by side.
void assignAircraftMissions();

// The picker: the sector map over the dock box. Writes the craft's
// destination (its own location until the player aims elsewhere) and
// returns whether it now differs from the location.
bool pickTarget(std::int32_t location, std::int32_t craftRow, bool anySector);

// Where the picker's cursor goes on an arrow. The dock box lies above
// sectors 3 and 4 and below 21 and 22; `cameThroughLeft` remembers whether
// the cursor came to it through 3 or 21 (true) or 4 or 22 (false), to leave
// it on the same side.
int targetCursorAfter(int cursor, int virtualKey, bool& cameThroughLeft);

// The picker's cursor: a sector, or kOrbitCursor on the dock box, and the
// side by which it came to the dock box.
struct TargetCursor {
  int place = kOrbitCursor;
  bool cameThroughLeft = true;
};
// The war map of the pickers with its title, every sector at rest (a
// letter yellow where a bunker is built), and the dock box below.
void drawTargetMap(const char* title, int dockColour);
// "Highlighted Selection" and the place under the cursor.
void drawHighlightedSelection(const TargetCursor& cursor);
// Moves the cursor and its highlight on an arrow; false for other keys.
bool moveTargetCursor(TargetCursor& cursor, int virtualKey);

// The dock box: the orbit box of the war map with the word DOCK.
void drawDockBox(int column, int row, int colour);
// The old place of the cursor at rest, the new one lit; a sector's letter
// is yellow if its bunker is built, white if not.
void moveTargetHighlight(int column, int row, int newCursor, int oldCursor);
