// View Bombs on board: a Plasma Fusion Bomb and a Liquiferno Napalm Bomb come
// aboard at every opening while the hold has room, and the list shows every
// bomb in the hold.
#include <cassert>

#include "game/cargo/bomb_list.h"
#include "game/cargo/cargo_deck.h"
#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/shell/mothership.h"

namespace {
constexpr int kCargoFrameColour = 96;
}  // namespace

void viewBombs() {
  drawFrame(kCargoFrameColour, true);
  Mothership& ship = theMothership();
  BombList& bombs = ship.bombs();
  bombs.add(kBombPlasmaFusion, ship.cargoRoomLeft());
  bombs.add(kBombLiquifernoNapalm, ship.cargoRoomLeft());  // the room worked out again
  const std::int32_t count = bombs.count();
  Console::putText("Total Bombs: ", 2, 1, 15);
  Console::printNumber(count);
  std::vector<ListRow> rows = listRows(count);
  for (std::int32_t i = 0; i < count; ++i) {
    assert(static_cast<std::size_t>(i) < rows.size());
    rows[static_cast<std::size_t>(i)].text.assign(bombName(bombs.at(i)));
  }
  ListBoxState state;
  ListBox::run(rows.data(), 2, 2, 40, 12, count, false, state, false, false);
}
