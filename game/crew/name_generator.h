// Names for new crew members, built from each race's tables of name parts.
// Each race's rule makes all of its draws first, in a fixed order, then
// joins the parts; a race without a rule keeps the name it was given.
#pragma once

#include <cstdint>

#include "game/crew/crew_member.h"

// `name` already holds the race name; the rule may replace it.
void generateCrewName(std::int32_t race, CrewName& name, std::uint8_t sex);
