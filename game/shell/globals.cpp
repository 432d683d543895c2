// The game's global objects, all in this one file so that they are built in
// a fixed order before main runs: the Mothership, the planet (whose first
// sub-sector seeds the random numbers), the tech tree, the ship's starting
// contents, the message log.
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/research/tech_tree.h"
#include "game/shell/mothership.h"
#include "game/shell/starting_contents.h"

namespace {

Mothership mothership;
GlobalValues values;

Planet planet;

TechTree techTree;

struct StartingContents {
  StartingContents() { layStartingContents(); }
} startingContents;

MessageLog messageLog;

}  // namespace

Mothership& theMothership() { return mothership; }
GlobalValues& globals() { return values; }
MessageLog& theMessageLog() { return messageLog; }
Planet& thePlanet() { return planet; }
TechTree& theTechTree() { return techTree; }
