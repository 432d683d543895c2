#include "game/shell/starting_contents.h"

#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {
constexpr int kAdvisorCount = 9;

void boardAdvisors() {
  for (int id = 0; id < kAdvisorCount; ++id) theMothership().addAdvisor(id);
}
}  // namespace

void layStartingContents() { boardAdvisors(); }

void resetGame() {
  for (int n = 1; n <= kSectorCount; ++n) thePlanet().sector(n).bunker().clear();
  Mothership& ship = theMothership();
  ship.advisors().clear();
  ship.reset();
  boardAdvisors();
  GlobalValues& g = globals();
  g.day = 1;
  g.cosmicCredits = 5000;
  g.gameOver = false;
  g.freighterCountdown = 30;
}
