#include "game/shell/starting_contents.h"

#include <cstdint>

#include "game/crew/crew_list.h"
#include "game/fleet/aircraft.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kAdvisorCount = 9;

// The ship's first fleet, in the order it is built.
constexpr std::int32_t kStartingFleet[] = {kSaucerTransport, kCargoBarge, kStealthFighter,
                                           kHulkBomber};

// The crew of a game begun again in the same run: a group of one race, the
// sex of each member in turn.
struct CrewGroup {
  std::int32_t race;
  int count;
  std::uint8_t sexes[11];
};

constexpr CrewGroup kResetCrew[] = {
    {kRacePovolnian, 11, {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}},
    {kRacePovolnian, 9, {0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {kRaceMududu, 5, {0, 1, 0, 1, 0}},
    {kRaceUberfleck, 5, {0, 0, 1, 0, 0}},
};

// Each craft is built against the dock room left at that moment; one that
// does not fit is left out.
void boardStartingFleet() {
  Mothership& ship = theMothership();
  for (std::int32_t type : kStartingFleet) ship.aircraft().add(type, ship.dockRoomLeft(), 0);
}

void boardResetCrew() {
  CrewList& crew = theMothership().crew();
  for (const CrewGroup& group : kResetCrew) {
    for (int i = 0; i < group.count; ++i) crew.add(group.race, group.sexes[i]);
  }
}

void boardAdvisors() {
  for (int id = 0; id < kAdvisorCount; ++id) theMothership().addAdvisor(id);
}

}  // namespace

void layStartingContents() {
  boardStartingFleet();
  // The start-up crew (33) board here, between the craft and the advisors.
  boardAdvisors();
}

void resetGame() {
  for (int n = 1; n <= kSectorCount; ++n) thePlanet().sector(n).bunker().clear();
  Mothership& ship = theMothership();
  ship.aircraft().clear();
  ship.crew().clear();
  ship.advisors().clear();
  ship.eggs().clear();
  ship.bombs().clear();
  ship.reset();
  boardStartingFleet();
  boardResetCrew();
  boardAdvisors();
  // The calendar, the money and the game-over flag as a new run has them;
  // the famine flag and the record that a game was played stay.
  GlobalValues fresh;
  fresh.lowFoodWarned = globals().lowFoodWarned;
  fresh.gamePlayed = globals().gamePlayed;
  globals() = fresh;
}
