// The game's global objects, all in this one file so that they are built in
// a fixed order before main runs: the Mothership, the random numbers, the
// ship's starting contents, the message log.
#include <ctime>

#include "game/console/random.h"
#include "game/messages/message_log.h"
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

MessageLog messageLog;

}  // namespace

Mothership& theMothership() { return mothership; }
GlobalValues& globals() { return values; }
MessageLog& theMessageLog() { return messageLog; }
