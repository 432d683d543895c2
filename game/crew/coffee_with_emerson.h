// Have Coffee with Emerson: Emerson tells the captain how the crew feel, or,
// under the party schedule, dances on the table.
#pragma once

#include <string_view>

void coffeeWithEmerson();

// What Emerson says at a morale (whole, 0 to 100); nothing at 0.
std::string_view emersonMoraleLine(int morale);
