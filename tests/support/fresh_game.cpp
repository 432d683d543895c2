#include "tests/support/fresh_game.h"

#include "game/console/random.h"
#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/research/tech_tree.h"
#include "game/shell/mothership.h"
#include "game/shell/starting_contents.h"

void startFreshRun(unsigned seed) {
  scripted::reset();
  theMothership() = Mothership{};
  thePlanet() = Planet{};
  theTechTree() = TechTree{};
  globals() = GlobalValues{};
  theMessageLog().clear();
  seedRandom(seed);
  layStartingContents();
}
