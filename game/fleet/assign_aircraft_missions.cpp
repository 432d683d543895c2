// Assign Aircraft Missions: LOCATION, AIRCRAFT and MISSION side by side.
// The player picks a place, a craft standing there and a job for it. The
// mission column is filled only when the cursor has moved in AIRCRAFT, and
// opens on the row of the craft's present job.
#include <algorithm>
#include <string>
#include <vector>

#include "game/console/console.h"
#include "game/console/list_box.h"
#include "game/console/widgets.h"
#include "game/fleet/location_table.h"
#include "game/fleet/missions.h"
#include "game/fleet/pane_box.h"

namespace {

constexpr int kListTop = 4;
constexpr int kVisibleRows = 14;
constexpr int kBoxColour = 2;

enum Column { kLocationColumn, kAircraftColumn, kMissionColumn, kColumnCount };

constexpr ColumnShape kColumns[kColumnCount] = {
    {" LOCATION ", 4, 4, 13},
    {" AIRCRAFT ", 19, 19, 21},
    {" MISSION  ", 42, 42, 33},
};

class MissionScreen {
 public:
  void run();

 private:
  static std::int32_t selected(const ListBoxState& state) { return state.top + state.cursor; }
  std::int32_t location() const { return table_.location(selected(locationState_)); }
  std::int32_t craftCount() const { return aircraftAt(location()).count(); }
  std::int32_t craftRow() const { return selected(aircraftState_); }
  Aircraft& craft() const { return aircraftAt(location()).at(craftRow()); }

  void drawFrameAndBox();
  void fillAircraft();
  void fillMissions();
  void draw();
  void paint(Column column, std::int32_t row);
  void wipeMissions();
  bool onKey(int result);

  LocationTable table_;
  std::vector<ListRow> rows_[kColumnCount];
  ListBoxState locationState_;
  ListBoxState aircraftState_;
  ListBoxState missionState_;
  Column active_ = kLocationColumn;
  bool missionsFilled_ = false;
  // The mission row left lit while the column is not active: the present
  // job's after a fill, the row Enter was pressed on, none after leaving.
  int missionLit_ = -1;
};

void MissionScreen::drawFrameAndBox() {
  drawFrame(78, true);
  drawPaneBox({3, 18, 41, 76}, 1, kBoxColour);
}

void MissionScreen::fillAircraft() {
  const AircraftList& fleet = aircraftAt(location());
  std::vector<ListRow>& rows = rows_[kAircraftColumn];
  rows.resize(static_cast<std::size_t>(std::max(fleet.count(), 1)));
  for (std::int32_t i = 0; i < fleet.count(); ++i) rows[i].text.assign(fleet.at(i).getName());
  if (fleet.count() == 0) rows[0].text.assign("No Ships Here");
}

void MissionScreen::fillMissions() {
  const Aircraft& c = craft();
  std::vector<ListRow>& rows = rows_[kMissionColumn];
  rows.resize(static_cast<std::size_t>(missionRowCount(c.getType())));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].text.assign(missionRow(c.getType(), static_cast<int>(i)).label);
  }
  missionState_ = {0, presentJobRow(c.getType(), c.getMission(), missionState_.cursor)};
  missionLit_ = missionState_.cursor;
  missionsFilled_ = true;
}

void MissionScreen::paint(Column column, std::int32_t row) {
  const std::vector<ListRow>& rows = rows_[column];
  const ListBoxState& state = column == kLocationColumn ? locationState_ : aircraftState_;
  const int screenRow = column == kMissionColumn ? kListTop + row : kListTop + state.cursor;
  if (row < 0 || row >= static_cast<std::int32_t>(rows.size())) return;
  const ColumnShape& shape = kColumns[column];
  Console::putTextPadded(rows[row].text.view(), shape.listColumn, screenRow, kChosenRow,
                         shape.width);
}

void MissionScreen::draw() {
  for (int c = 0; c < kColumnCount; ++c) {
    Console::putText(kColumns[c].tab, kColumns[c].tabColumn, 2,
                     c == active_ ? kTabActive : kTabPlain);
  }
  ListBoxState* states[kColumnCount] = {&locationState_, &aircraftState_, &missionState_};
  for (int c = 0; c < kColumnCount; ++c) {
    if (c == active_ || (c == kMissionColumn && !missionsFilled_)) continue;
    ListBoxState look = *states[c];
    const ColumnShape& shape = kColumns[c];
    ListBox::run(rows_[c].data(), shape.listColumn, kListTop, shape.width, kVisibleRows,
                 static_cast<int>(rows_[c].size()), true, look, true, true);
  }
  if (active_ != kLocationColumn) paint(kLocationColumn, selected(locationState_));
  if (active_ == kMissionColumn) paint(kAircraftColumn, craftRow());
  if (active_ != kMissionColumn && missionsFilled_) paint(kMissionColumn, missionLit_);
}

void MissionScreen::wipeMissions() {
  for (int i = 0; i < kVisibleRows; ++i) {
    Console::putText(std::string(kColumns[kMissionColumn].width + 1, ' '),
                     kColumns[kMissionColumn].listColumn, kListTop + i, kTabPlain);
  }
  rows_[kMissionColumn].clear();
  missionsFilled_ = false;
}

bool MissionScreen::onKey(int result) {
  const bool enterOrRight = result == kListStepEnter || result == kListRight;
  switch (active_) {
    case kLocationColumn:
      if (result == kListEscape) return false;
      if (enterOrRight && craftCount() != 0) active_ = kAircraftColumn;
      break;
    case kAircraftColumn:
      if (result >= 0) {
        fillMissions();
      } else if (enterOrRight) {
        active_ = kMissionColumn;
      } else {
        wipeMissions();
        aircraftState_ = {};
        active_ = kLocationColumn;
      }
      break;
    case kMissionColumn:
      // Enter gives the row; an empty column gives nothing.
      missionLit_ = result;
      if (result >= 0 && takeMissionRow(location(), craftRow(), result)) {
        drawFrameAndBox();
        missionsFilled_ = false;
      }
      active_ = kAircraftColumn;
      break;
    default: break;
  }
  return true;
}

void MissionScreen::run() {
  drawFrameAndBox();
  rows_[kLocationColumn].assign(table_.rows(), table_.rows() + table_.count());
  for (;;) {
    fillAircraft();
    draw();
    ListBoxState& state = active_ == kLocationColumn   ? locationState_
                          : active_ == kAircraftColumn ? aircraftState_
                                                       : missionState_;
    const ColumnShape& shape = kColumns[active_];
    const bool singleStep = active_ != kMissionColumn;
    const int result =
        ListBox::run(rows_[active_].data(), shape.listColumn, kListTop, shape.width, kVisibleRows,
                     static_cast<int>(rows_[active_].size()), true, state, false, singleStep);
    if (!onKey(result)) return;
  }
}

}  // namespace

void assignAircraftMissions() {
  MissionScreen screen;
  screen.run();
}
