#include "game/fleet/launch_space_capsule.h"

#include <algorithm>
#include <cassert>
#include <string>
#include <vector>

#include "game/console/box_lines.h"
#include "game/console/list_box.h"
#include "game/console/widgets.h"
#include "game/crew/crew_bio.h"
#include "game/fleet/bunker_site.h"
#include "game/fleet/locations.h"
#include "game/fleet/missions.h"
#include "game/planet/ground_map.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "game/shell/status_bar.h"

namespace {

constexpr int kPlain = 15;
constexpr int kBoxColour = 2;
constexpr int kActiveTab = 225;
constexpr int kLit = 241;
constexpr int kChosen = 240;
constexpr int kFigures = 14;
constexpr int kCrewRow = 4;
constexpr int kCrewVisible = 14;
constexpr int kCrewWidth = 21;
constexpr int kCrewColumn = 4;
constexpr int kOnboardColumn = 27;
constexpr int kDigitsColumn = 61;
// The map of the target picker, as the craft's.
constexpr int kMapColumn = 15;
constexpr int kMapRow = 1;
constexpr int kShipMarkColour = 13;

void drawLaunchBox() {
  drawDoubleLines(
      {
          // The three tabs.
          {3, 1, 14, 1},
          {3, 1, 3, 3},
          {14, 1, 14, 3},
          {26, 1, 37, 1},
          {26, 1, 26, 3},
          {37, 1, 37, 3},
          {49, 1, 60, 1},
          {49, 1, 49, 3},
          {60, 1, 60, 3},
          // The two crew panes and the cargo panel.
          {3, 3, 76, 3},
          {3, 3, 3, 22},
          {26, 3, 26, 18},
          {49, 3, 49, 18},
          {76, 3, 76, 6},
          {49, 6, 76, 6},
          // The launch panel, its tab at the top left.
          {51, 7, 62, 7},
          {51, 7, 51, 17},
          {62, 7, 62, 9},
          {51, 9, 76, 9},
          {76, 9, 76, 17},
          {51, 17, 76, 17},
          // The footer.
          {3, 18, 76, 18},
          {76, 18, 76, 22},
          {3, 22, 76, 22},
      },
      kBoxColour);
}

std::string fiveDigits(std::int32_t value) {
  std::string digits = std::to_string(std::clamp(value, 0, 99999));
  return std::string(5 - digits.size(), '0') + digits;
}

// The place of `step`'s digit among the five, or -1 for none.
int digitOf(std::int32_t step) {
  switch (step) {
    case 10000: return 0;
    case 1000: return 1;
    case 100: return 2;
    case 10: return 3;
    case 1: return 4;
    default: return -1;
  }
}

void drawDigits(std::int32_t value, int row, std::int32_t step) {
  const std::string digits = fiveDigits(value);
  const int lit = digitOf(step);
  for (int i = 0; i < 5; ++i) {
    Console::putChar(static_cast<std::uint8_t>(digits[i]), kDigitsColumn + i, row,
                     i == lit ? kLit : kPlain);
  }
}

void drawRooms(const CapsuleLoad& load) {
  Console::putText(
      leftAlignNumber(formatNumber(kCapsuleCrew - load.capsuleCrew.getCount(), 3, false), 3), 45, 2,
      kFigures);
  Console::putText(
      leftAlignNumber(formatNumber(kCapsuleCargo - load.foodLoad - load.materialsLoad, 9, false),
                      9),
      68, 2, kFigures);
}

void fillCrewRows(const CrewList& crew, std::vector<ListRow>& rows) {
  rows.assign(static_cast<std::size_t>(std::max(crew.getCount(), 1)), ListRow{});
  for (std::int32_t i = 0; i < crew.getCount(); ++i)
    rows[static_cast<std::size_t>(i)].text.assign(crew.at(i).name());
}

void drawCrewColumn(const CrewList& crew, int column, ListBoxState& state) {
  std::vector<ListRow> rows;
  fillCrewRows(crew, rows);
  ListBox::run(rows.data(), column, kCrewRow, kCrewWidth, kCrewVisible, crew.getCount(), false,
               state, true, false);
}

void drawFixed(const CapsuleLoad& load) {
  drawFrame(kDeckFrameColour, true);
  drawLaunchBox();
  Console::putText("   CREW   ", 4, 2, load.focus == 0 ? kActiveTab : kPlain);
  Console::putText(" ONBOARD  ", 27, 2, load.focus == 1 ? kActiveTab : kPlain);
  Console::putText("  CARGO   ", 50, 2, kPlain);
  Console::putText("  LAUNCH  ", 52, 8, kPlain);
  Console::putText("Food:", 50, 4, kPlain);
  Console::putText("Materials:", 50, 5, kPlain);
  drawDigits(load.foodLoad, 4, 0);
  drawDigits(load.materialsLoad, 5, 0);
  Console::putText("Select Destination", 52, 10, kPlain);
  Console::putText("Remaining", 38, 1, kPlain);
  Console::putText("Space:", 38, 2, kPlain);
  Console::putText("Remaining", 61, 1, kPlain);
  Console::putText("Space:", 61, 2, kPlain);
  drawRooms(load);
}

void drawTargetLine(const CapsuleLoad& load) {
  static constexpr const char* kSiteNames[] = {"", "",       "", "Mountain", "Desert",
                                               "", "Rubble", "", "Ruins"};
  const SubSector& site = thePlanet().subSector(load.targetSector, load.targetSite);
  const int land = site.landType();
  Console::putText("Sector", 52, 11, kFigures);
  Console::putChar(static_cast<std::uint8_t>(thePlanet().sector(load.targetSector).letter()), 59,
                   11, kFigures);
  Console::putText(land >= 0 && land <= 8 ? kSiteNames[land] : "", 61, 11, kFigures);
}

// One pass of the panel's drawing.
void drawPanel(CapsuleLoad& load) {
  Mothership& ship = theMothership();
  Console::putText("   CREW   ", 4, 2, kPlain);
  Console::putText(" ONBOARD  ", 27, 2, kPlain);
  ship.setFood(static_cast<std::uint32_t>(load.foodStock - load.foodLoad));
  ship.setMaterials(load.materialsStock - load.materialsLoad);
  refreshFood(kDeckFrameColour);
  refreshMaterials(kDeckFrameColour);
  for (int row = 19; row <= 21; ++row) Console::putText(std::string(72, ' '), 4, row, kBoxColour);
  drawRooms(load);

  const bool cargoRows = load.panelRow <= kMaterialsDigits;
  Console::putText("  CARGO   ", 50, 2, cargoRows ? kActiveTab : kPlain);
  Console::putText("  LAUNCH  ", 52, 8, cargoRows ? kPlain : kActiveTab);
  const int foodLabel = load.panelRow == kFoodLabel    ? kLit
                        : load.panelRow == kFoodDigits ? kActiveTab
                                                       : kPlain;
  const int materialsLabel = load.panelRow == kMaterialsLabel    ? kLit
                             : load.panelRow == kMaterialsDigits ? kActiveTab
                                                                 : kPlain;
  Console::putText("Food:", 50, 4, foodLabel);
  Console::putText("Materials:", 50, 5, materialsLabel);
  drawDigits(load.foodLoad, 4, load.panelRow == kFoodDigits ? load.step : 0);
  drawDigits(load.materialsLoad, 5, load.panelRow == kMaterialsDigits ? load.step : 0);
  Console::putText("Select Destination", 52, 10, load.panelRow == kDestinationRow ? kLit : kPlain);
  if (load.panelRow == kDestinationRow) {
    if (load.targetSector != 0) {
      drawTargetLine(load);
      Console::putText("LAUNCH", 61, 13, kPlain);
      Console::putText("   ", 60, 15, kPlain);
      Console::putText("  ", 66, 15, kPlain);
    } else {
      Console::putText(std::string(17, ' '), 52, 11, kPlain);
    }
  } else if (load.panelRow == kLaunchRow) {
    Console::putText("LAUNCH", 61, 13, kLit);
    drawTargetLine(load);
    Console::putText("yes", 60, 15, load.launchYes ? kChosen : kPlain);
    Console::putText("no", 66, 15, load.launchYes ? kPlain : kChosen);
  }
}

// Back to the crew columns, the cursor on the row that matches the panel's.
void toCrewColumns(CapsuleLoad& load, ListBoxState& crewState, ListBoxState& onboardState) {
  const int matching = load.panelRow == kMaterialsLabel   ? 1
                       : load.panelRow == kDestinationRow ? 4
                                                          : 0;
  Console::putText("Food:", 50, 4, kPlain);
  Console::putText("Materials:", 50, 5, kPlain);
  load.panelRow = kFoodLabel;
  load.focus = load.capsuleCrew.getCount() > 0 ? 1 : 0;
  const std::int32_t count =
      load.focus == 1 ? load.capsuleCrew.getCount() : theMothership().crew().getCount();
  ListBoxState& state = load.focus == 1 ? onboardState : crewState;
  state.top = 0;
  state.cursor = std::max(0, std::min(matching, count - 1));
}

// A moved member leaves a gap: the view closes it as the dock's crew
// screen does.
void afterRemoval(ListBoxState& state, std::int32_t count) {
  if (state.top > 0 && state.top + kCrewVisible > count) --state.top;
  if (state.top + state.cursor > count - 1) state.cursor = std::max(0, count - 1 - state.top);
}

// The shared cursor row, held to the last row of the list now active.
void carryCursor(const ListBoxState& from, ListBoxState& to, std::int32_t count) {
  to.cursor = std::max(0, std::min(from.cursor, count - 1 - to.top));
}

void launch(CapsuleLoad& load) {
  Mothership& ship = theMothership();
  Bunker& bunker = thePlanet().sector(load.targetSector).bunker();
  bunker.setSubSector(load.targetSite);
  bunker.addFood(load.foodLoad);
  bunker.addMaterials(load.materialsLoad);
  ship.setFood(static_cast<std::uint32_t>(load.foodStock - load.foodLoad));
  ship.setMaterials(load.materialsStock - load.materialsLoad);
  // Those who find the bunker full are lost.
  for (std::int32_t i = 0; i < load.capsuleCrew.getCount(); ++i)
    bunker.getCrew().addFront(load.capsuleCrew.at(i));
  load.capsuleCrew.clear();
  ship.addCapsules(-1);
  Console::putText("CAPSULE LAUNCHED", 56, 14, kFigures);
  Console::waitAnyKey();
}

void unload(CapsuleLoad& load) {
  Mothership& ship = theMothership();
  for (std::int32_t i = 0; i < load.capsuleCrew.getCount(); ++i)
    ship.crew().addFront(load.capsuleCrew.at(i));
  load.capsuleCrew.clear();
  ship.setFood(static_cast<std::uint32_t>(load.foodStock));
  ship.setMaterials(load.materialsStock);
}

enum class PanelResult { Stay, ToCrew, PickTarget, Launch, Leave };

// One key on the panel.
PanelResult panelKey(CapsuleLoad& load, const KeyEvent& key) {
  const bool food = load.panelRow == kFoodDigits;
  switch (load.panelRow) {
    case kFoodLabel:
    case kMaterialsLabel:
      switch (key.virtualKey) {
        case kKeyLeft: return PanelResult::ToCrew;
        case kKeyUp:
          if (load.panelRow == kMaterialsLabel) load.panelRow = kFoodLabel;
          break;
        case kKeyDown:
          load.panelRow = load.panelRow == kFoodLabel ? kMaterialsLabel : kDestinationRow;
          break;
        case kKeyRight:
        case kKeyEnter:
          load.step = 10000;
          load.panelRow = load.panelRow == kFoodLabel ? kFoodDigits : kMaterialsDigits;
          break;
        case kKeyEscape: return PanelResult::Leave;
        default: break;
      }
      break;
    case kFoodDigits:
    case kMaterialsDigits:
      switch (key.virtualKey) {
        case kKeyLeft:
          load.step = load.step == 0 ? 10 : load.step * 10;
          if (load.step > 10000) load.panelRow = food ? kFoodLabel : kMaterialsLabel;
          break;
        case kKeyRight: load.step /= 10; break;
        case kKeyUp: stepLoad(load, food, true); break;
        case kKeyDown: stepLoad(load, food, false); break;
        case kKeyEnter:
        case kKeyEscape: load.panelRow = food ? kFoodLabel : kMaterialsLabel; break;
        default: break;
      }
      break;
    case kDestinationRow:
      switch (key.virtualKey) {
        case kKeyLeft: return PanelResult::ToCrew;
        case kKeyUp: load.panelRow = kMaterialsLabel; break;
        case kKeyDown:
          if (load.targetSector != 0) load.panelRow = kLaunchRow;
          break;
        case kKeyEnter: return PanelResult::PickTarget;
        case kKeyEscape: return PanelResult::Leave;
        default: break;
      }
      break;
    case kLaunchRow:
      switch (key.virtualKey) {
        case kKeyLeft: load.launchYes = true; break;
        case kKeyRight: load.launchYes = false; break;
        case kKeyUp:
        case kKeyEscape: load.panelRow = kDestinationRow; break;
        case kKeyEnter:
          if (load.launchYes) return PanelResult::Launch;
          load.panelRow = kDestinationRow;
          break;
        default: break;
      }
      break;
    default: break;
  }
  return PanelResult::Stay;
}

}  // namespace

void stepLoad(CapsuleLoad& load, bool food, bool add) {
  std::int32_t& value = food ? load.foodLoad : load.materialsLoad;
  const std::int32_t other = food ? load.materialsLoad : load.foodLoad;
  const std::int32_t stock = food ? load.foodStock : load.materialsStock;
  if (add) {
    value += load.step;
    if (value + other > kCapsuleCargo) value = kCapsuleCargo - other;
    if (value > stock) value = stock;
  } else {
    value = std::max(0, value - load.step);
  }
}

CapsuleTarget pickCapsuleTarget() {
  drawTargetMap("SELECT A TARGET SECTOR FOR THIS CAPSULE", kBorderLit);
  drawMapTerrain(kMapColumn, kMapRow);
  drawMapMarks(kMothershipLocation, kShipMarkColour);
  TargetCursor cursor;
  for (;;) {
    drawHighlightedSelection(cursor);
    const KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown && !moveTargetCursor(cursor, key.virtualKey)) {
      if (key.ascii == kKeyEnter && cursor.place != kOrbitCursor) {
        Console::flushKeys();
        const std::int32_t site = thePlanet().sector(cursor.place).bunker().getSubSector();
        if (site != -1) return {cursor.place, site};
        const int picked = pickBunkerSite(cursor.place);
        if (picked == -1) return {};
        return {cursor.place, picked};
      }
      if (key.ascii == kKeyEscape) {
        Console::flushKeys();
        return {};
      }
    }
    Console::flushKeys();
  }
}

void launchSpaceCapsule() {
  Mothership& ship = theMothership();
  CapsuleLoad load;
  load.foodStock = static_cast<std::int32_t>(std::min<std::uint32_t>(ship.food(), INT32_MAX));
  load.materialsStock = ship.materials();
  ListBoxState crewState, onboardState;
  drawFixed(load);
  bool showBio = true;  // on opening, row 0 counts as a chosen row
  for (;;) {
    CrewList& crew = ship.crew();
    CrewList& aboard = load.capsuleCrew;
    // An empty crew column has nothing to offer: on to the other or the panel.
    if (load.focus == 0 && crew.getCount() == 0) load.focus = 2;
    if (load.focus == 1 && aboard.getCount() == 0) load.focus = crew.getCount() > 0 ? 0 : 2;

    if (load.focus == 2) {
      drawPanel(load);
      const KeyEvent key = Console::readKey();
      if (!key.isKey || !key.keyDown) continue;
      switch (panelKey(load, key)) {
        case PanelResult::Stay: break;
        case PanelResult::ToCrew:
          toCrewColumns(load, crewState, onboardState);
          showBio = true;
          break;
        case PanelResult::PickTarget: {
          const CapsuleTarget target = pickCapsuleTarget();
          load.targetSector = target.sector;
          load.targetSite = target.site;
          drawFixed(load);
          drawCrewColumn(crew, kCrewColumn, crewState);
          drawCrewColumn(aboard, kOnboardColumn, onboardState);
          Console::putText("  LAUNCH  ", 52, 8, kActiveTab);
          if (load.targetSector != 0) {
            load.launchYes = false;
            load.panelRow = kLaunchRow;
          }
          break;
        }
        case PanelResult::Launch: launch(load); return;
        case PanelResult::Leave: unload(load); return;
      }
      continue;
    }

    const bool onCrew = load.focus == 0;
    CrewList& active = onCrew ? crew : aboard;
    ListBoxState& state = onCrew ? crewState : onboardState;
    Console::putText("   CREW   ", 4, 2, onCrew ? kActiveTab : kPlain);
    Console::putText(" ONBOARD  ", 27, 2, onCrew ? kPlain : kActiveTab);
    drawCrewColumn(onCrew ? aboard : crew, onCrew ? kOnboardColumn : kCrewColumn,
                   onCrew ? onboardState : crewState);
    if (showBio && active.getCount() > 0) showCrewBio(state.top + state.cursor, active);
    std::vector<ListRow> rows;
    fillCrewRows(active, rows);
    const int result =
        ListBox::run(rows.data(), onCrew ? kCrewColumn : kOnboardColumn, kCrewRow, kCrewWidth,
                     kCrewVisible, active.getCount(), true, state, false, true);
    showBio = result >= 0;
    if (result == kListEscape) {
      unload(load);
      return;
    }
    if (result == kListStepEnter) {
      CrewMember& member = active.at(state.top + state.cursor);
      CrewList& other = onCrew ? aboard : crew;
      if (other.addFront(member)) {
        active.remove(member);
        afterRemoval(state, active.getCount());
        drawRooms(load);
      }
      showBio = true;
    } else if (result == kListRight) {
      if (onCrew) {
        if (aboard.getCount() > 0) {
          carryCursor(crewState, onboardState, aboard.getCount());
          load.focus = 1;
        } else {
          load.focus = 2;
        }
      } else {
        load.focus = 2;
      }
      showBio = load.focus != 2;
    } else if (result == kListLeft) {
      if (onCrew) {
        load.focus = 2;
      } else if (crew.getCount() > 0) {
        carryCursor(onboardState, crewState, crew.getCount());
        load.focus = 0;
      } else {
        load.focus = 2;
      }
      showBio = load.focus != 2;
    }
  }
}
