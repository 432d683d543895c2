#include "game/shell/starting_contents.h"

#include <cstdint>

#include "game/console/random.h"
#include "game/crew/crew_list.h"
#include "game/fleet/aircraft.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kAdvisorCount = 9;

// The ship's first fleet, in the order it is built.
constexpr std::int32_t kStartingFleet[] = {kSaucerTransport, kCargoBarge, kStealthFighter,
                                           kHulkBomber};

// Each craft is built against the dock room left at that moment; one that
// does not fit is left out.
void boardStartingFleet() {
  Mothership& ship = theMothership();
  for (std::int32_t type : kStartingFleet) ship.aircraft().add(type, ship.dockRoomLeft(), 0);
}

// The start-up crew: 20 Povolnians of either sex, then Mududus, Uberflecks
// and Makos of set sexes.
void boardStartingCrew() {
  CrewList& crew = theMothership().crew();
  for (int i = 0; i < 20; ++i) crew.add(kRacePovolnian, static_cast<std::uint8_t>(gameRand() % 2));
  for (std::uint8_t sex : {0, 1, 0, 1, 0}) crew.add(kRaceMududu, sex);
  for (std::uint8_t sex : {1, 0, 1, 0, 1}) crew.add(kRaceUberfleck, sex);
  for (std::uint8_t sex : {1, 0, 1}) crew.add(kRaceMako, sex);
}

// A new game's crew: 30, the Povolnians' sexes set.
void boardResetCrew() {
  CrewList& crew = theMothership().crew();
  for (int i = 0; i < 11; ++i) crew.add(kRacePovolnian, 1);
  for (int i = 0; i < 9; ++i) crew.add(kRacePovolnian, 0);
  for (std::uint8_t sex : {0, 1, 0, 1, 0}) crew.add(kRaceMududu, sex);
  for (std::uint8_t sex : {0, 0, 1, 0, 0}) crew.add(kRaceUberfleck, sex);
}

void boardAdvisors() {
  for (int id = 0; id < kAdvisorCount; ++id) theMothership().addAdvisor(id);
}

}  // namespace

void layStartingContents() {
  boardStartingFleet();
  boardStartingCrew();
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
