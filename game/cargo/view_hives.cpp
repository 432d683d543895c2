// View Hives in Incubation: the eggs in the hold, by their race's label. The
// list opens where the player left it.
#include <cassert>

#include "game/cargo/cargo_deck.h"
#include "game/cargo/egg_list.h"
#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/shell/mothership.h"

namespace {
constexpr int kCargoFrameColour = 96;
}  // namespace

ListBoxState& hivesListState() {
  static ListBoxState state;
  return state;
}

void viewHives() {
  drawFrame(kCargoFrameColour, true);
  const EggList& eggs = theMothership().eggs();
  const std::int32_t count = eggs.count();
  Console::putText("Total Eggs: ", 2, 1, 15);
  Console::printNumber(count);
  std::vector<ListRow> rows = listRows(count);
  for (std::int32_t i = 0; i < count; ++i) {
    assert(static_cast<std::size_t>(i) < rows.size());
    rows[static_cast<std::size_t>(i)].text.assign(eggLabel(eggs.at(i).race));
  }
  ListBox::run(rows.data(), 2, 2, 40, 20, count, false, hivesListState(), false, false);
}
