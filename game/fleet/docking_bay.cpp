#include "game/fleet/docking_bay.h"

#include <string>

#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/fleet/launch_space_capsule.h"
#include "game/fleet/missions.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kViewShipsButton = 1;
constexpr int kLoadCrewButton = 2;
constexpr int kMissionsButton = 3;
constexpr int kCapsuleButton = 4;

constexpr int kPanelColumn = 4;
constexpr int kPanelRow = 16;
constexpr int kPanelColour = 15;
constexpr int kPanelWidth = 34;  // up to the buttons' edge at column 38

// The capsule count stands beside the menu while its button is selected.
void drawCapsulePanel(DeckMenu& menu) {
  if (menu.selected == kCapsuleButton) {
    Console::putText("Ready Space Capsules:", kPanelColumn, kPanelRow, kPanelColour);
    Console::putNumber(theMothership().readyCapsules(), 26, kPanelRow, kPanelColour);
  } else {
    Console::putText(std::string(kPanelWidth, ' '), kPanelColumn, kPanelRow, kPanelColour);
  }
}

// With no capsule ready the button does nothing; the count of 0 says why.
MenuResult launchCapsule() {
  if (theMothership().readyCapsules() == 0) return MenuResult::Stay;
  Console::clearScreen();
  launchSpaceCapsule();
  return MenuResult::Redraw;
}

MenuResult onDockingButton(DeckMenu&, int button) {
  switch (button) {
    case kViewShipsButton:
      Console::clearScreen();
      viewShipsInDock();
      return MenuResult::Redraw;
    case kLoadCrewButton:
      Console::clearScreen();
      loadCargoAndCrew();
      return MenuResult::Redraw;
    case kMissionsButton:
      Console::clearScreen();
      assignAircraftMissions();
      return MenuResult::Redraw;
    case kCapsuleButton: return launchCapsule();
    default: return MenuResult::Stay;
  }
}

}  // namespace

void runDockingBay() {
  DeckMenu menu{{"  View Ships in Dock       ", "  Load Cargo And Crew      ",
                 "  Assign Aircraft Missions ", "  Launch Space Capsule     ", kReturnLabel}};
  menu.onEnter = onDockingButton;
  menu.onSelect = drawCapsulePanel;
  showMenu(menu);
}
