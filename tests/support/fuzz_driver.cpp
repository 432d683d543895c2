#include "tests/support/fuzz_driver.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <set>
#include <string>

#include "game/console/console.h"
#include "game/console/scripted.h"
#include "game/fleet/locations.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "game/shell/program.h"
#include "tests/support/fresh_game.h"

namespace {

// The keys a byte can stand for, as often as a player would press them.
const char* const kKeys[32] = {
    "Up",        "Down",    "Left", "Right", "Up",    "Down",  "Left",    "Right",
    "Up",        "Down",    "Left", "Right", "Enter", "Enter", "Enter",   "Enter",
    "Esc",       "Esc",     "y",    "n",     "PgUp",  "PgDn",  "Tab",     "Space",
    "Backspace", "Release", "0",    "1",     "2",     "3",     "Release", "Enter"};

// The forces on the ground, which only the player's weapons change: a
// figure never grows, but for one bombed below 0 that the Ion Cannon sets
// back to 0.
struct Forces {
  double figures[kSectorCount][kSubSectorCount][4];
};

Forces forcesNow() {
  Forces f;
  for (int n = 1; n <= kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) {
      const SubSector& sub = thePlanet().subSector(n, k);
      double* figures = f.figures[n - 1][k];
      figures[0] = sub.population();
      figures[1] = sub.troops();
      figures[2] = sub.fighters();
      figures[3] = sub.structures();
    }
  }
  return f;
}

Forces lastForces;

std::string checkLists() {
  const Mothership& ship = theMothership();
  std::set<const void*> crewSeen;
  std::set<const void*> craftSeen;
  std::int64_t dock = 40000LL * ship.readyCapsules();
  auto checkCrew = [&](const CrewList& crew, const std::string& where) -> std::string {
    if (crew.getCount() > crew.capacity()) return where + " holds more crew than it can";
    for (int i = 0; i < crew.getCount(); ++i) {
      if (!crewSeen.insert(&crew.at(i)).second) return "a crew member is in two places: " + where;
    }
    return "";
  };
  for (int location = 0; location <= kLastLocation; ++location) {
    const std::string where = "location " + std::to_string(location);
    if (std::string f = checkCrew(crewAt(location), where); !f.empty()) return f;
    const AircraftList& craft = aircraftAt(location);
    for (int i = 0; i < craft.count(); ++i) {
      const Aircraft& a = craft.at(i);
      if (!craftSeen.insert(&a).second) return "a craft is in two lists: " + where;
      if (a.getLocation() != location) return "a craft's location is not its list's: " + where;
      if (a.getDestination() < 0 || a.getDestination() > kLastLocation)
        return "a craft aimed off the map";
      if (a.getMission() < 0 || a.getMission() > 9) return "a craft with an unknown mission";
      if (std::string f = checkCrew(a.getCrew(), where + " craft " + std::to_string(i));
          !f.empty()) {
        return f;
      }
      if (a.getCrew().capacity() != a.getCrewCapacity())
        return "a craft's crew bound is not its own";
      if (location == 0) dock += a.getDockSpace();
    }
  }
  if (dock > kDockLimit) return "the dock holds more than it can";
  if (ship.dockSpaceUsed() != dock) return "dockSpaceUsed is not the sum of the dock";
  return "";
}

}  // namespace

std::string checkInvariants() {
  const Mothership& ship = theMothership();
  if (ship.fuel() < 0) return "fuel below 0";
  if (ship.morale() < 0.0f || ship.morale() > 100.0f) return "morale outside 0 to 100";
  if (ship.currentSector() < 0 || ship.currentSector() > kSectorCount)
    return "the ship is off the map";
  const std::int64_t cargo = static_cast<std::int64_t>(ship.food()) + ship.fuel() +
                             ship.materials() + ship.artifacts() + 2000LL * ship.bombs().count() +
                             20LL * ship.eggs().count();
  if (cargo <= INT32_MAX && ship.cargoUsed() != cargo)
    return "cargoUsed is not the sum of the hold";
  for (int n = 1; n <= kSectorCount; ++n) {
    const Bunker& bunker = thePlanet().sector(n).bunker();
    if (bunker.getFood() < 0) return "a bunker's food below 0";
    if (bunker.getSubSector() < -1 || bunker.getSubSector() > 15) return "a bunker off its sector";
    if (bunker.progress() < 0) return "a bunker's work below 0";
  }
  if (std::string f = checkLists(); !f.empty()) return f;
  const Forces now = forcesNow();
  for (int n = 0; n < kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) {
      for (int i = 0; i < 4; ++i) {
        if (now.figures[n][k][i] > std::max(lastForces.figures[n][k][i], 0.0))
          return "the forces of sector " + std::to_string(n + 1) + " grew";
      }
    }
  }
  lastForces = now;
  const ScreenModel& screen = Console::screen();
  if (screen.row < 0 || screen.row > kScreenHeight || screen.column < 0 ||
      screen.column > kScreenWidth) {
    return "the write position left the screen";
  }
  return "";
}

void watchInvariantsFromNow() { lastForces = forcesNow(); }

FuzzResult fuzzGame(const std::function<int()>& nextByte, std::int64_t maxKeys, unsigned seed) {
  FuzzResult result;
  bool inputLeft = true;
  // Draws the next key, and with it perhaps idle passes, a burst or keys
  // typed ahead, for the game to find after this one.
  auto player = [&](KeyEvent& key) {
    if (result.keys >= maxKeys) return false;
    if (std::string failure = checkInvariants(); !failure.empty()) {
      result.failure = failure + " (before key " + std::to_string(result.keys) + ", day " +
                       std::to_string(globals().day) + ")";
      return false;
    }
    for (;;) {
      const int byte = nextByte();
      if (byte < 0) {
        inputLeft = false;
        return false;
      }
      ++result.keys;
      if (byte < 160) {
        key = scripted::keyNamed(kKeys[byte % 32]);
        return true;
      }
      if (byte < 192) {
        scripted::addIdle((byte - 159) * 20);
        key = scripted::keyNamed("Release");
        return true;
      }
      if (byte < 224) {
        std::vector<KeyEvent> burst;
        for (int i = 0; i < byte % 5 + 2; ++i) {
          const int b = nextByte();
          burst.push_back(scripted::keyNamed(kKeys[(b < 0 ? 0 : b) % 32]));
        }
        scripted::addKeys(std::move(burst));
        key = scripted::keyNamed("Release");
        return true;
      }
      scripted::addBusy({scripted::keyNamed(kKeys[byte % 32])});
      key = scripted::keyNamed(kKeys[(byte / 3) % 32]);
      return true;
    }
  };
  while (inputLeft && result.keys < maxKeys && result.failure.empty()) {
    startFreshRun(seed + static_cast<unsigned>(result.programs));
    watchInvariantsFromNow();
    scripted::setPlayer(player);
    const int startDay = globals().day;
    scripted::run([] { runProgram(); });
    result.days += globals().day - startDay;
    ++result.programs;
  }
  scripted::setPlayer(nullptr);
  return result;
}

FuzzResult fuzzGameWithSeed(std::uint32_t seed, std::int64_t maxKeys) {
  std::uint32_t state = seed;
  auto next = [&state] {
    state = state * 1664525u + 1013904223u;
    return static_cast<int>((state >> 16) & 0xFF);
  };
  return fuzzGame(next, maxKeys, seed);
}
