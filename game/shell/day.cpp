#include "game/shell/day.h"

#include "game/fleet/bunker_days.h"
#include "game/fleet/flight_operations.h"
#include "game/messages/message_log.h"
#include "game/planet/battle.h"
#include "game/planet/planet.h"
#include "game/shell/endings.h"
#include "game/shell/mothership.h"

namespace {

void postFreighterNews(MessageLog& log) {
  const int countdown = globals().freighterCountdown;
  if (countdown == 3) {
    log.post("The Super Freighter will arrive in orbit in 3 days!", 3);
  } else if (countdown == 2) {
    log.post("The Super Freighter will arrive in orbit in 2 days!", 3);
  } else if (countdown == 1) {
    log.post("The Super Freighter will arrive in orbit tomorrow!", 3);
  } else if (countdown == 0) {
    log.post("The Super Freighter has arrived in orbit!", 5);
  } else if (countdown >= -5 && countdown <= -1) {
    log.post("The Super Freighter is currently in orbit!", 4);
  } else if (countdown == -6) {
    log.post("The Super Freighter leaves tomorrow!", 5);
  }
}

// The famine warning comes once a famine: again only after food has been
// found or morale has reached 0.
void warnOfFamine(const Mothership& ship) {
  GlobalValues& g = globals();
  if (ship.food() == 0 && ship.moraleWhole() != 0) {
    if (!g.lowFoodWarned) {
      showFamineWarning();
      g.lowFoodWarned = true;
    }
  } else {
    g.lowFoodWarned = false;
  }
}

void postMoraleNews(const Mothership& ship, MessageLog& log) {
  if (ship.moraleWhole() < kRiotMorale) {
    log.post("Frequent Riots in the crew quarters! The natives are restless sir! Do something!", 6);
  } else if (ship.moraleWhole() < kAgitatedMorale) {
    log.post(
        "Emerson mentioned something about the crew becoming agitated, you may want to check that "
        "out",
        5);
  }
}

void postFuelNews(const Mothership& ship, MessageLog& log) {
  if (ship.fuel() < kEmptyTankFuel) {
    log.post(
        "We dont even have enough fuel to get into orbit! Perhaps we should use an alternative "
        "energy source... I'll talk to Hyde.",
        6);
  } else if (ship.fuel() < kLowFuel) {
    log.post("Were running low on fuel in the mothership.", 4);
  }
}

// Each ending whose test holds shows its screen in turn: a ship that runs
// dry on the night its crew mutiny sees both.
void testForTheEnd(const Mothership& ship) {
  if (ship.fuel() == 0) {
    showFuelEnding();
    setGameOver(true);
  }
  if (ship.moraleWhole() == 0) {
    showMutinyEnding();
    setGameOver(true);
  }
  if (thePlanet().enemyTotal() == 0) {
    showVictoryEnding();
    setGameOver(true);
  }
}

}  // namespace

void runDay() {
  Mothership& ship = theMothership();
  MessageLog& log = theMessageLog();
  advanceDay();
  advanceFreighter();
  postFreighterNews(log);
  ship.eatFood();
  if (ship.food() == 0) log.post("Your mothership has run out of food!", 6);
  warnOfFamine(ship);
  ship.updateMorale();
  postMoraleNews(ship, log);
  runBunkerMeals();
  moveCraft();
  runSaucerMissions();
  runBunkerConstruction();
  resolveRaids();
  ship.moveOneDay();
  postFuelNews(ship, log);
  testForTheEnd(ship);
}
