// Where craft and crew can be: location 0 is the Mothership, 1 to 24 the
// bunker of that sector.
#pragma once

#include <cstdint>
#include <string>

#include "game/crew/crew_list.h"
#include "game/fleet/aircraft.h"

inline constexpr std::int32_t kMothershipLocation = 0;
inline constexpr std::int32_t kLastLocation = 24;

inline bool isSector(std::int32_t location) { return location >= 1 && location <= kLastLocation; }

// The craft and the crew standing at a location.
AircraftList& aircraftAt(std::int32_t location);
CrewList& crewAt(std::int32_t location);
// "Mothership", or "Sector " and the sector's letter.
std::string placeName(std::int32_t location);
