#include "game/fleet/locations.h"

#include <cassert>

#include "game/planet/planet.h"
#include "game/shell/mothership.h"

AircraftList& aircraftAt(std::int32_t location) {
  assert(location >= 0 && location <= kLastLocation);
  if (location == kMothershipLocation) return theMothership().aircraft();
  return thePlanet().sector(location).bunker().getAircraft();
}

CrewList& crewAt(std::int32_t location) {
  assert(location >= 0 && location <= kLastLocation);
  if (location == kMothershipLocation) return theMothership().crew();
  return thePlanet().sector(location).bunker().getCrew();
}

std::string placeName(std::int32_t location) {
  if (location == kMothershipLocation) return "Mothership";
  return std::string("Sector ") + thePlanet().sector(location).letter();
}
