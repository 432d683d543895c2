// The biography panel: one crew member's name, race, sex, skills and job on
// rows 19 to 21, under the job lists (and under the capsule launch screen).
#pragma once

#include <cstdint>

#include "game/crew/crew_list.h"

// The panel for member `index` of `list`.
void showCrewBio(std::int32_t index, const CrewList& list);

// What the panel calls a race: a Hampster of sex 0 is a "Widow".
const char* bioRaceText(std::int32_t race, std::uint8_t sex);
