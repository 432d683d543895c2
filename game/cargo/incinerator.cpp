#include "game/cargo/incinerator.h"

#include <cassert>
#include <string>
#include <string_view>

#include "game/cargo/artifact_name.h"
#include "game/cargo/cargo_deck.h"
#include "game/cargo/egg_list.h"
#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kCargoFrameColour = 96;
constexpr int kTextColour = 15;
constexpr int kListRow = 5;
constexpr int kListWidth = 35;
constexpr int kListHeight = 13;
constexpr int kCargoColumn = 3;
constexpr int kBurnColumn = 40;

// The text of item `item`: an artifact's name, an egg's label or a crew
// member's name.
std::string_view itemText(std::int32_t item, FixedText<20>& artifact) {
  const Mothership& ship = theMothership();
  const std::int32_t artifacts = ship.artifacts();
  const std::int32_t eggs = ship.eggs().count();
  if (item < artifacts) {
    artifact = artifactName(artifacts, item);
    return artifact.view();
  }
  if (item < artifacts + eggs) return eggLabel(ship.eggs().at(item - artifacts).race);
  return ship.crew().at(item - artifacts - eggs).name();
}

// Sorts every item into the two lists by its mark.
void buildLists(IncineratorState& s, std::vector<ListRow>& cargoRows,
                std::vector<ListRow>& burnRows) {
  cargoRows.clear();
  burnRows.clear();
  s.cargoMap.clear();
  s.burnMap.clear();
  FixedText<20> artifact;
  const auto items = static_cast<std::int32_t>(s.marked.size());
  for (std::int32_t item = 0; item < items; ++item) {
    ListRow row;
    row.text.assign(itemText(item, artifact));
    if (s.marked[static_cast<std::size_t>(item)]) {
      burnRows.push_back(row);
      s.burnMap.push_back(item);
    } else {
      cargoRows.push_back(row);
      s.cargoMap.push_back(item);
    }
  }
}

void drawCounts(const IncineratorState& s) {
  Console::putText("Total Items In Cargo:", 7, 19, kTextColour);
  Console::putNumberPadded(static_cast<std::int32_t>(s.cargoMap.size()), 29, 19, kTextColour, 5);
  Console::putText("Total Items In Incinerator:", 42, 19, kTextColour);
  // In a field too, so that a count falling from 10 to 9 leaves no stale digit.
  Console::putNumberPadded(static_cast<std::int32_t>(s.burnMap.size()), 70, 19, kTextColour, 5);
  Console::putText("Total Fuel Gained From Destroying Items:", 20, 21, kTextColour);
  Console::putNumber(s.fuelGained, 61, 21, kTextColour);
}

int runList(std::vector<ListRow>& rows, int column, ListBoxState& state, bool active) {
  if (!active && state.cursor == -1) state.cursor = 0;
  return ListBox::run(rows.data(), column, kListRow, kListWidth, kListHeight,
                      static_cast<int>(rows.size()), active, state, !active, false);
}

// The item under the highlight changes sides.
void moveItem(IncineratorState& s, const std::vector<std::int32_t>& map, int row, bool toBurn) {
  assert(row >= 0 && static_cast<std::size_t>(row) < map.size());
  const std::int32_t item = map[static_cast<std::size_t>(row)];
  assert(item >= 0 && static_cast<std::size_t>(item) < s.marked.size());
  s.marked[static_cast<std::size_t>(item)] = toBurn;
}

}  // namespace

void runIncinerator() {
  const Mothership& ship = theMothership();
  const std::int64_t items =
      static_cast<std::int64_t>(ship.artifacts()) + ship.eggs().count() + ship.crew().getCount();
  IncineratorState s;
  s.marked.assign(static_cast<std::size_t>(items), false);
  drawFrame(kCargoFrameColour, true);
  Console::putText("Burn Resources In The Cargo Hold to make Fuel", 3, 2, kTextColour);
  // With nothing to sort there is no key to wait for: the visit ends.
  if (items == 0) return;

  std::vector<ListRow> cargoRows;
  std::vector<ListRow> burnRows;
  for (;;) {
    buildLists(s, cargoRows, burnRows);
    drawCounts(s);
    std::vector<ListRow>& activeRows = s.inBurnList ? burnRows : cargoRows;
    if (activeRows.empty()) {
      s.inBurnList = !s.inBurnList;  // the other side has every item
      continue;
    }
    // The other list is drawn as it stands; the active one takes the keys.
    if (s.inBurnList) {
      runList(cargoRows, kCargoColumn, s.cargoState, false);
    } else {
      runList(burnRows, kBurnColumn, s.burnState, false);
    }
    const int result = s.inBurnList ? runList(burnRows, kBurnColumn, s.burnState, true)
                                    : runList(cargoRows, kCargoColumn, s.cargoState, true);
    if (result >= 0) {
      moveItem(s, s.inBurnList ? s.burnMap : s.cargoMap, result, !s.inBurnList);
    } else if (result == kListRight) {
      if (!burnRows.empty()) s.inBurnList = true;
    } else if (result == kListLeft) {
      if (!cargoRows.empty()) s.inBurnList = false;
    } else if (result == kListEscape) {
      if (!burnRows.empty()) {
        for (int row = kListRow; row <= 18; ++row) {
          Console::putText(std::string(36, ' '), 2, row, kTextColour);
        }
        askYesNo("Burn Resources for Fuel?", 8, 11, 12);
        // Yes or No, nothing is burnt yet: the marks are forgotten.
      }
      return;
    }
  }
}
