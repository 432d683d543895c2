#include "game/research/engineering_deck.h"

#include "game/console/widgets.h"
#include "game/shell/endings.h"
#include "game/shell/mothership.h"
#include "game/shell/status_bar.h"

namespace {

constexpr int kShieldButton = 4;

const char* shieldLabel() {
  return theMothership().shieldsOn() ? " Shields (Current:ON)      "
                                     : " Shields (Current:OFF)     ";
}

// Switching the shield off is free; switching it on costs its start-up
// charge, and the last of the fuel ends the game on the spot.
MenuResult switchShield(DeckMenu& menu) {
  Mothership& ship = theMothership();
  ship.toggleShields();
  menu.labels[kShieldButton - 1] = shieldLabel();
  drawMenuButton(kShieldButton, menu.labels[kShieldButton - 1], kButtonSelected);
  if (!ship.shieldsOn()) return MenuResult::Stay;
  ship.chargeFuel(kShieldStartFuel);
  if (ship.fuel() == 0) {
    showFuelEnding();
    setGameOver(true);
    return MenuResult::Leave;
  }
  refreshFuel(kDeckFrameColour);
  return MenuResult::Stay;
}

}  // namespace

void runEngineeringDeck() {
  DeckMenu menu{{"  Engineering Assignments  ", "  View Completed Projects  ",
                 "  Chat with Scruggs        ", shieldLabel(), kReturnLabel}};
  menu.onEnter = [](DeckMenu& m, int button) {
    return button == kShieldButton ? switchShield(m) : MenuResult::Stay;
  };
  showMenu(menu);
}
