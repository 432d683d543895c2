// Load Cargo And Crew: four columns side by side, LOCATION, AIRCRAFT, CREW
// and ONBOARD. The player picks a place and a craft standing there, then
// moves crew one at a time between the place and the craft. Every move is
// final when it is made; a list that is full takes nobody, in silence.
#include <algorithm>
#include <cassert>
#include <string>
#include <vector>

#include "game/console/console.h"
#include "game/console/list_box.h"
#include "game/console/widgets.h"
#include "game/fleet/docking_bay.h"
#include "game/fleet/location_table.h"
#include "game/fleet/pane_box.h"

namespace {

constexpr int kListTop = 4;
constexpr int kVisibleRows = 14;
constexpr int kBoxColour = 2;

enum Column { kLocationColumn, kAircraftColumn, kCrewColumn, kOnboardColumn, kColumnCount };

constexpr ColumnShape kColumns[kColumnCount] = {
    {" LOCATION ", 4, 4, 13},
    {" AIRCRAFT ", 19, 19, 16},
    {"   CREW   ", 37, 37, 18},
    {" ONBOARD  ", 57, 57, 18},
};

// A column's rows; `count` is 0 for a column that shows only its filler.
struct ColumnRows {
  std::vector<ListRow> rows;
  std::int32_t count = 0;
};

void fillFiller(ColumnRows& column, const char* filler) {
  if (column.count == 0) {
    column.rows.resize(1);
    column.rows[0].text.assign(filler);
  }
}

void fillCrew(ColumnRows& column, const CrewList& crew) {
  column.count = crew.getCount();
  column.rows.resize(static_cast<std::size_t>(column.count));
  for (std::int32_t i = 0; i < column.count; ++i) column.rows[i].text.assign(crew.at(i).name());
}

class CrewScreen {
 public:
  void run();

 private:
  std::int32_t location() const { return table_.location(selected(locationState_)); }
  static std::int32_t selected(const ListBoxState& state) { return state.top + state.cursor; }
  bool hasCraft() const { return aircraftAt(location()).count() != 0; }
  Aircraft& craft() const { return aircraftAt(location()).at(selected(aircraftState_)); }
  bool locationHasCrew() const { return crewAt(location()).getCount() != 0; }
  bool craftHasCrew() const { return craft().getCrew().getCount() != 0; }

  void fill();
  void draw();
  void paintChosen(Column column, const ListBoxState& state);
  void setActive(Column column);
  void moveMember();
  void wipeOnboard();
  bool onKey(int result);

  LocationTable table_;
  ColumnRows rows_[kColumnCount];
  ListBoxState locationState_;
  ListBoxState aircraftState_;
  ListBoxState sharedState_;  // CREW and ONBOARD share one cursor row
  Column active_ = kLocationColumn;
  bool onboardShown_ = false;
  bool aircraftEntered_ = false;
};

void CrewScreen::fill() {
  rows_[kLocationColumn].count = table_.count();
  rows_[kLocationColumn].rows.assign(table_.rows(), table_.rows() + table_.count());
  const AircraftList& fleet = aircraftAt(location());
  ColumnRows& craftRows = rows_[kAircraftColumn];
  craftRows.count = fleet.count();
  craftRows.rows.resize(static_cast<std::size_t>(craftRows.count));
  for (std::int32_t i = 0; i < craftRows.count; ++i)
    craftRows.rows[i].text.assign(fleet.at(i).getName());
  fillFiller(craftRows, "No Ships Here");
  fillCrew(rows_[kCrewColumn], crewAt(location()));
  fillFiller(rows_[kCrewColumn], "No Crew Here");
  if (hasCraft()) {
    fillCrew(rows_[kOnboardColumn], craft().getCrew());
  } else {
    rows_[kOnboardColumn] = ColumnRows{};
  }
}

void CrewScreen::paintChosen(Column column, const ListBoxState& state) {
  const ColumnShape& shape = kColumns[column];
  const ColumnRows& c = rows_[column];
  const std::int32_t row = selected(state);
  if (row >= c.count) return;
  Console::putTextPadded(c.rows[row].text.view(), shape.listColumn, kListTop + state.cursor,
                         kChosenRow, shape.width);
}

// Every column but the active one, as it stands; the active one is drawn
// by its list box.
void CrewScreen::draw() {
  for (int c = 0; c < kColumnCount; ++c) {
    Console::putText(kColumns[c].tab, kColumns[c].tabColumn, 2,
                     c == active_ ? kTabActive : kTabPlain);
  }
  const ListBoxState* states[kColumnCount] = {&locationState_, &aircraftState_, &sharedState_,
                                              &sharedState_};
  for (int c = 0; c < kColumnCount; ++c) {
    if (c == active_ || (c == kOnboardColumn && !onboardShown_)) continue;
    ListBoxState look = *states[c];
    const ColumnShape& shape = kColumns[c];
    ListBox::run(rows_[c].rows.data(), shape.listColumn, kListTop, shape.width, kVisibleRows,
                 static_cast<int>(rows_[c].rows.size()), true, look, true, true);
  }
  if (active_ != kLocationColumn) paintChosen(kLocationColumn, locationState_);
  if (active_ == kCrewColumn || active_ == kOnboardColumn)
    paintChosen(kAircraftColumn, aircraftState_);
}

void CrewScreen::wipeOnboard() {
  const ColumnShape& shape = kColumns[kOnboardColumn];
  for (int i = 0; i < kVisibleRows; ++i) {
    Console::putText(std::string(static_cast<std::size_t>(shape.width), ' '), shape.listColumn,
                     kListTop + i, kTabPlain);
  }
}

void CrewScreen::setActive(Column column) {
  if (column == kLocationColumn) {
    aircraftState_ = {};
    sharedState_ = {};
  } else if (column == kAircraftColumn) {
    sharedState_ = {};
  } else if (column == kOnboardColumn) {
    onboardShown_ = true;
  }
  active_ = column;
}

// The member under the cursor goes to the front of the other list: the
// last to board a craft is its pilot.
void CrewScreen::moveMember() {
  CrewList& ground = crewAt(location());
  CrewList& aboard = craft().getCrew();
  CrewList& from = active_ == kCrewColumn ? ground : aboard;
  CrewList& to = active_ == kCrewColumn ? aboard : ground;
  const std::int32_t index = selected(sharedState_);
  if (index < 0 || index >= from.getCount()) return;
  if (!to.addFront(from.at(index))) return;
  from.remove(from.at(index));
  // The view follows the shrinking list.
  ListBoxState& s = sharedState_;
  if (s.top > 0 && s.top + kVisibleRows > from.getCount()) --s.top;
  if (active_ == kOnboardColumn && s.top + s.cursor > from.getCount() - 1) {
    s.top = std::max(0, from.getCount() - 1 - s.cursor);
    s.cursor = std::max(0, std::min(s.cursor, from.getCount() - 1 - s.top));
  }
  onboardShown_ = true;
}

// What the active column's result does; false when the screen ends.
bool CrewScreen::onKey(int result) {
  const bool enter = result == kListStepEnter;
  const bool right = result == kListRight;
  const bool back = result == kListEscape || result == kListLeft;
  switch (active_) {
    case kLocationColumn:
      if (result == kListEscape) return false;
      if ((enter || right) && hasCraft()) {
        setActive(kAircraftColumn);
        if (!aircraftEntered_) onboardShown_ = true;
        aircraftEntered_ = true;
      }
      break;
    case kAircraftColumn:
      if (result >= 0) {
        onboardShown_ = true;
      } else if (enter || right) {
        if (locationHasCrew()) {
          setActive(kCrewColumn);
        } else if (craftHasCrew()) {
          setActive(kOnboardColumn);
        }
      } else if (back) {
        wipeOnboard();
        onboardShown_ = false;
        setActive(kLocationColumn);
      }
      break;
    case kCrewColumn:
      if (enter) {
        moveMember();
      } else if (right && craftHasCrew()) {
        setActive(kOnboardColumn);
      } else if (back) {
        setActive(kAircraftColumn);
      }
      break;
    case kOnboardColumn:
      if (enter) {
        moveMember();
      } else if (right) {
        setActive(kCrewColumn);
      } else if (back) {
        setActive(locationHasCrew() ? kCrewColumn : kAircraftColumn);
      }
      break;
    default: break;
  }
  return true;
}

void CrewScreen::run() {
  drawFrame(78, true);
  drawPaneBox({3, 18, 36, 56, 76}, 1, kBoxColour);
  for (;;) {
    fill();
    draw();
    ListBoxState& state = active_ == kLocationColumn   ? locationState_
                          : active_ == kAircraftColumn ? aircraftState_
                                                       : sharedState_;
    const ColumnShape& shape = kColumns[active_];
    const int result = ListBox::run(
        rows_[active_].rows.data(), shape.listColumn, kListTop, shape.width, kVisibleRows,
        static_cast<int>(rows_[active_].rows.size()), true, state, false, true);
    if (!onKey(result)) return;
  }
}

}  // namespace

void loadCargoAndCrew() {
  CrewScreen screen;
  screen.run();
}
