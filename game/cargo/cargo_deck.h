// CARGO SPACE: what lies in the hold beside the stores. Opening the
// artifact and bomb screens brings more of them aboard; a visit to the
// incinerator brings an egg.
#pragma once

#include <cstdint>
#include <vector>

#include "game/console/list_box.h"

void runCargoDeck();

// The three lists of the hold. Each returns on Enter or Escape.
void viewArtifacts();
void viewBombs();
void viewHives();

// The hive list opens where it was left, for as long as the program runs.
ListBoxState& hivesListState();

// The rows of a list, one for each item, as many as there are: a list may
// pass the 200 rows a screen was first laid out for.
std::vector<ListRow> listRows(std::int32_t count);
