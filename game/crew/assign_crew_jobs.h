// Assign Crew Jobs: the ship's crew in three lists by job (RESEARCH,
// MAINTENANCE, OTHER), each in roster order, with the biography panel of
// the member last selected. Enter picks a member up; the arrows then carry
// them up and down their list (swapping places in the roster) or across to
// the next list (a new job, and a new place in the roster on the same screen
// row); Enter or Escape puts them down. Escape while browsing leaves.
#pragma once

#include <cstdint>

#include "game/console/list_box.h"
#include "game/crew/crew_list.h"

inline constexpr int kJobListCount = 3;
inline constexpr int kJobListRows = 14;

// The three lists as the screen shows them: names, each row's crew index,
// and where each list box stands.
struct JobLists {
  std::int32_t counts[kJobListCount] = {};
  std::int32_t indices[kJobListCount][kShipCrewCapacity] = {};
  ListBoxState states[kJobListCount] = {};
  ListRow rows[kJobListCount][kShipCrewCapacity];
};

// Sorts the ship's crew into the three lists, in roster order.
void fillCrewLists(JobLists& lists);

void assignCrewJobs();

// One step of move mode on the active list's selected member: false when
// Enter or Escape puts the member down, true after a move. A move sideways
// makes the target list the active one.
bool moveCrewMember(const std::int32_t counts[kJobListCount],
                    const std::int32_t indices[kJobListCount][kShipCrewCapacity],
                    ListBoxState states[kJobListCount], int& active);
