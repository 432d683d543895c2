#include "game/cargo/cargo_deck.h"

#include <cassert>

#include "game/cargo/incinerator.h"
#include "game/console/widgets.h"
#include "game/crew/crew_member.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kArtifactsButton = 1;
constexpr int kBombsButton = 2;
constexpr int kHivesButton = 3;
constexpr int kIncineratorButton = 4;

// Each visit to the incinerator brings a Povolnian egg aboard, if the hold
// has room for it.
void visitIncinerator() {
  Mothership& ship = theMothership();
  ship.eggs().add(kRacePovolnian, ship.cargoRoomLeft());
  runIncinerator();
}

MenuResult onEnter(DeckMenu&, int button) {
  switch (button) {
    case kArtifactsButton: viewArtifacts(); break;
    case kBombsButton: viewBombs(); break;
    case kHivesButton: viewHives(); break;
    case kIncineratorButton: visitIncinerator(); break;
    default: return MenuResult::Stay;
  }
  return MenuResult::Redraw;
}

}  // namespace

std::vector<ListRow> listRows(std::int32_t count) {
  assert(count >= 0);
  return std::vector<ListRow>(static_cast<std::size_t>(count > 0 ? count : 0));
}

void runCargoDeck() {
  DeckMenu menu{{"  View your Artifacts      ", "  View Bombs on board      ",
                 "  View Hives in Incubation ", "  Visit The Incinerator    ", kReturnLabel}};
  menu.onEnter = onEnter;
  menu.flushAfterKey = false;  // keys typed ahead reach the menu
  showMenu(menu);
}
