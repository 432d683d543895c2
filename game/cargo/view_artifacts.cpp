// View your Artifacts: five more come aboard at every opening, and the list
// shows them all by the name artifacts.txt gives.
#include <cassert>

#include "game/cargo/artifact_name.h"
#include "game/cargo/cargo_deck.h"
#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/shell/mothership.h"

namespace {
constexpr int kCargoFrameColour = 96;
constexpr int kArtifactsPerVisit = 5;
}  // namespace

void viewArtifacts() {
  drawFrame(kCargoFrameColour, true);
  Mothership& ship = theMothership();
  ship.addArtifacts(kArtifactsPerVisit);
  const std::int32_t count = ship.artifacts();
  Console::putText("*****************************************", 2, 2, 6);
  Console::putText("Total Artifacts: ", 2, 1, 15);
  Console::printNumber(count);
  std::vector<ListRow> rows = listRows(count);
  for (std::int32_t i = 0; i < count; ++i) {
    assert(static_cast<std::size_t>(i) < rows.size());
    rows[static_cast<std::size_t>(i)].text.assign(artifactName(count, i).view());
  }
  ListBoxState state;
  ListBox::run(rows.data(), 2, 3, 40, 12, count, false, state, false, false);
}
