// What the war's tests share.
#pragma once

#include "game/fleet/locations.h"
#include "game/shell/mothership.h"

// The ship brought down from orbit to hover over sector n (a day's trip).
inline void hoverOver(int n) { theMothership().setDestination(n), theMothership().moveOneDay(); }

// A craft of the ship or of a bunker on its raid, with a pilot and a gunner.
inline Aircraft& raider(int type, int target, int pilot, int gunner, int location = 0) {
  aircraftAt(location).add(type, 6000000, location);
  Aircraft& craft = aircraftAt(location).at(aircraftAt(location).count() - 1);
  craft.getCrew().add(pilot, 0), craft.getCrew().add(gunner, 0), craft.setDestination(target);
  craft.setMission(type == kStealthFighter ? kMissionAttacking : kMissionBombing);
  return craft;
}
