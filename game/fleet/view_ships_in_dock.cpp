// SELECT AN AIRCRAFT: the ship's craft on the left, the stat page of the one
// under the cursor on the right. Craft at bunkers are seen on the crew and
// mission screens.
#include <string>
#include <vector>

#include "game/console/console.h"
#include "game/console/list_box.h"
#include "game/console/widgets.h"
#include "game/fleet/docking_bay.h"
#include "game/fleet/locations.h"
#include "game/fleet/pane_box.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kStatColumn = 28;
constexpr int kStatTop = 6;
constexpr int kStatRows = 11;
constexpr int kStatWidth = 42;
constexpr int kNameColour = 14;
constexpr int kStatColour = 15;
constexpr int kListColumn = 4;
constexpr int kListRow = 6;
constexpr int kListWidth = 20;
constexpr int kListRows = 12;

std::string sectorLetter(std::int32_t location) {
  return isSector(location) ? std::string(1, thePlanet().sector(location).letter()) : "";
}

void statLine(int row, const std::string& text) {
  Console::putText(text, kStatColumn, row, kStatColour);
}

}  // namespace

void showCraftStats(std::int32_t row) {
  Aircraft& craft = theMothership().aircraft().at(row);
  for (int r = kStatTop; r < kStatTop + kStatRows; ++r) {
    Console::putText(std::string(kStatWidth, ' '), kStatColumn, r, kStatColour);
  }
  Console::putText(craft.getName(), kStatColumn, 6, kNameColour);
  statLine(7, "Resources: ");
  statLine(8, "Food: " + std::to_string(craft.getFood()));
  statLine(9, "Fuel: " + std::to_string(craft.getFuel()));
  statLine(10, "Materials: " + std::to_string(craft.getMaterials()));
  // A full crew leaves no room on the line for the hold.
  std::string crew = "Crew-" + std::to_string(craft.getCrew().getCount());
  if (craft.getCrew().isFull()) {
    crew += " <FULL>";
  } else {
    crew += " <OPEN> Artifacts-" + std::to_string(craft.getArtifacts()) + " Bombs-" +
            std::to_string(craft.getBombs().count());
  }
  statLine(11, crew);
  statLine(12, "Cargo Space Used: " + std::to_string(craft.getCargoUsed()));
  statLine(13, "Current Location: " + sectorLetter(craft.getLocation()));
  statLine(14, "Current Destination: " + (craft.getDestination() == craft.getLocation()
                                              ? std::string("Not Moving this turn")
                                              : sectorLetter(craft.getDestination())));
  const std::int32_t mission = craft.getMission();
  statLine(15, "Current Mission: " + std::string(mission >= 0 && mission < kMissionCount
                                                     ? missionLabel(mission)
                                                     : missionLabel(kMissionBombing)));
}

void viewShipsInDock() {
  drawFrame(78, false);
  Console::putText("SELECT AN AIRCRAFT", 12, 0, 14);
  Console::putText("Press Escape to return to Dock menu", 30, 2, 15);
  drawPaneBox({3, 27, 76}, 3, 15);
  Console::putText("CraftName", 6, 4, 15);
  Console::putText("CraftStats", 30, 4, 15);
  const AircraftList& fleet = theMothership().aircraft();
  if (fleet.count() == 0) {
    Console::putText("You have no ships here!", 3, 17, 14);
    Console::waitAnyKey();
    return;
  }
  std::vector<ListRow> rows(static_cast<std::size_t>(fleet.count()));
  for (std::int32_t i = 0; i < fleet.count(); ++i) rows[i].text.assign(fleet.at(i).getName());
  ListBoxState state;
  for (;;) {
    const int result = ListBox::run(rows.data(), kListColumn, kListRow, kListWidth, kListRows,
                                    fleet.count(), false, state, false, true);
    if (result == kListEscape || result == kListStepEnter) return;
    if (result >= 0) showCraftStats(result);
  }
}
