#include "game/crew/name_generator.h"

// Placeholder until the name tables land: every member keeps its race name.
void generateCrewName(std::int32_t, CrewName&, std::uint8_t) {}
