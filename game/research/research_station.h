// The SCIENTIFIC RESEARCH STATION: where the player spreads the research
// crew over the open technologies and finishes them. Nothing here spends a
// day; the turns shown are an estimate that nothing counts down.
#pragma once

#include <cstdint>

void runResearchStation();
void researchAssignments();

// The side panel of the deck's first button: the crew's research figure
// and the open technologies, or why there is nothing to do.
void drawResearchPanel();
void clearResearchPanel();

// Members of the ship's crew on job 3.
std::int32_t researchersAboard();
