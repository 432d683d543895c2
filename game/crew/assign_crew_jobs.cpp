#include "game/crew/assign_crew_jobs.h"

#include <cassert>
#include <memory>

#include "game/art/living_quarters.h"
#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/crew/crew_bio.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kBoxColour = 2;
constexpr int kActiveTitleColour = 225;
constexpr int kTitleColour = 15;
constexpr int kCarriedColour = 225;
constexpr int kTitleRow = 2;
constexpr int kListTop = 4;
constexpr int kCarriedWidth = 22;

struct ListPlace {
  const char* title;
  int column;
  int width;
  std::int32_t job;  // the job a member carried into this list takes
};

constexpr ListPlace kLists[kJobListCount] = {
    {"  RESEARCH   ", 4, 22, kJobResearch},
    {" MAINTENANCE ", 28, 22, kJobRepairing},
    {"    OTHER    ", 52, 23, kJobRelaxing},
};

int previousList(int list) { return list == 0 ? kJobListCount - 1 : list - 1; }
int followingList(int list) { return list == kJobListCount - 1 ? 0 : list + 1; }

void drawTitles(int active) {
  for (int list = 0; list < kJobListCount; ++list) {
    Console::putText(kLists[list].title, kLists[list].column, kTitleRow,
                     list == active ? kActiveTitleColour : kTitleColour);
  }
}

int runList(JobLists& lists, int list, bool displayOnly) {
  assert(list >= 0 && list < kJobListCount);
  return ListBox::run(lists.rows[list], kLists[list].column, kListTop, kLists[list].width,
                      kJobListRows, lists.counts[list], true, lists.states[list], displayOnly,
                      true);
}

// The next list with members in the given direction, wrapping; the list
// itself when the others are empty.
int nextNonEmpty(const JobLists& lists, int active, int (*step)(int)) {
  int list = step(active);
  while (list != active && lists.counts[list] == 0) list = step(list);
  return list;
}

}  // namespace

void fillCrewLists(JobLists& lists) {
  for (std::int32_t& count : lists.counts) count = 0;
  const CrewList& crew = theMothership().crew();
  for (std::int32_t i = 0; i < crew.getCount(); ++i) {
    const int list = jobGroup(crew.at(i).getJob());
    std::int32_t& count = lists.counts[list];
    assert(count < kShipCrewCapacity);
    lists.rows[list][count].text.assign(crew.at(i).name());
    lists.indices[list][count] = i;
    ++count;
  }
}

void assignCrewJobs() {
  auto lists = std::make_unique<JobLists>();
  fillCrewLists(*lists);
  drawFrame(kDeckFrameColour, true);
  drawPicture(kCrewJobsBox, 3, 1, kBoxColour);

  // The last list drawn with members starts active: RESEARCH if it has any.
  int active = kGroupOther;
  for (int list : {kGroupOther, kGroupMaintenance, kGroupResearch}) {
    if (lists->counts[list] == 0) continue;
    runList(*lists, list, true);
    active = list;
  }
  int sharedRow = 0;
  bool moving = false;

  for (int result = 0; result != kListEscape;) {
    drawTitles(active);
    // One highlighted row for all three lists: a step sideways keeps it.
    lists->states[active].cursor = sharedRow;
    result = runList(*lists, active, moving);
    if (moving) result = kListStepEnter;
    sharedRow = lists->states[active].cursor;

    if (result >= 0) {
      assert(result < lists->counts[active]);
      showCrewBio(lists->indices[active][result], theMothership().crew());
    } else if (result == kListStepEnter) {
      const int began = active;
      moving = moveCrewMember(lists->counts, lists->indices, lists->states, active);
      sharedRow = lists->states[began].cursor;
      fillCrewLists(*lists);
      runList(*lists, began, true);
    } else if (result == kListLeft) {
      active = nextNonEmpty(*lists, active, previousList);
    } else if (result == kListRight) {
      active = nextNonEmpty(*lists, active, followingList);
    }
  }
}

bool moveCrewMember(const std::int32_t counts[kJobListCount],
                    const std::int32_t indices[kJobListCount][kShipCrewCapacity],
                    ListBoxState states[kJobListCount], int& active) {
  assert(active >= 0 && active < kJobListCount);
  CrewList& crew = theMothership().crew();
  ListBoxState& state = states[active];
  const std::int32_t count = counts[active];
  const std::int32_t selected = state.top + state.cursor;
  assert(selected >= 0 && selected < count);
  const std::int32_t me = indices[active][selected];
  assert(me >= 0 && me < crew.getCount());
  Console::putTextPadded(crew.at(me).name(), kLists[active].column, state.cursor + kListTop,
                         kCarriedColour, kCarriedWidth);

  for (;;) {
    const KeyEvent key = Console::readKey();
    if (!key.isKey || !key.keyDown) continue;
    switch (key.virtualKey) {
      case kKeyEnter:
      case kKeyEscape: return false;
      case kKeyUp:
        if (selected == 0) break;
        crew.swapMembers(me, indices[active][selected - 1]);
        if (state.cursor == 0) {
          --state.top;
        } else {
          --state.cursor;
        }
        return true;
      case kKeyDown:
        if (selected >= count - 1) break;
        crew.swapMembers(me, indices[active][selected + 1]);
        if (state.cursor + 1 >= kJobListRows) {
          ++state.top;
        } else {
          ++state.cursor;
        }
        return true;
      case kKeyLeft:
      case kKeyRight: {
        const int target =
            key.virtualKey == kKeyLeft ? previousList(active) : followingList(active);
        const ListBoxState& there = states[target];
        crew.at(me).setJob(kLists[target].job);
        // The member lands on the same screen row of the target.
        if (state.cursor == 0 && there.top == 0) {
          if (me != 0) crew.moveBefore(me, 0);
        } else if (state.cursor < counts[target]) {
          const std::int32_t row = state.cursor + there.top;
          assert(row >= 0 && row < counts[target]);
          crew.moveBefore(me, indices[target][row]);
        } else {
          crew.moveBefore(me, crew.getCount());
        }
        if (state.top >= count - kJobListRows && state.top > 0) --state.top;
        active = target;
        return true;
      }
      default: break;
    }
  }
}
