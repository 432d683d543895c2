// The game's global objects, all in this one file so that they are built in
// a fixed order before main runs: the Mothership, the random numbers, the
// ship's starting contents.
#include <ctime>

#include "game/console/random.h"
#include "game/shell/mothership.h"
#include "game/shell/starting_contents.h"

namespace {

Mothership mothership;
GlobalValues values;

struct SeedFromClock {
  SeedFromClock() { seedRandom(static_cast<unsigned>(std::time(nullptr))); }
} seedFromClock;

struct StartingContents {
  StartingContents() { layStartingContents(); }
} startingContents;

}  // namespace

Mothership& theMothership() { return mothership; }
GlobalValues& globals() { return values; }
