#include "game/shell/starting_contents.h"

#include "game/console/random.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {
constexpr int kAdvisorCount = 9;

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
  boardStartingCrew();
  boardAdvisors();
}

void resetGame() {
  for (int n = 1; n <= kSectorCount; ++n) thePlanet().sector(n).bunker().clear();
  Mothership& ship = theMothership();
  ship.crew().clear();
  ship.advisors().clear();
  ship.reset();
  boardResetCrew();
  boardAdvisors();
  GlobalValues& g = globals();
  g.day = 1;
  g.cosmicCredits = 5000;
  g.gameOver = false;
  g.freighterCountdown = 30;
}
