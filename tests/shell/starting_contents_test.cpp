// What a game starts with, how a second game is cleared, and how morale
// moves from one day to the next.
#include "game/shell/starting_contents.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "game/console/random.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

std::string fleet() {
  std::string names;
  const AircraftList& list = theMothership().aircraft();
  for (int i = 0; i < list.count(); ++i) names += std::string(list.at(i).getName()) + ";";
  return names;
}

// Race and sex of each member, in list order.
std::string crew() {
  std::string s;
  const CrewList& list = theMothership().crew();
  for (int i = 0; i < list.getCount(); ++i) {
    s += std::to_string(list.at(i).getRace()) + std::to_string(list.at(i).getSex()) + " ";
  }
  return s;
}

TEST(Mothership, MoraleMovesByTheScheduleOrTheFamineWithinItsBounds) {
  const struct {
    float before;
    int schedule;
    unsigned food;
    float after;
  } kCases[] = {
      {50, 0, 1, 55}, {50, 1, 1, 51}, {50, 2, 1, 50}, {50, 3, 1, 47}, {50, 4, 1, 35},
      {50, 0, 0, 35}, {98, 0, 1, 100}, {16, 4, 1, 1}, {15, 4, 1, 0}, {14, 4, 1, 0},
  };
  for (const auto& c : kCases) {
    startFreshRun();
    theMothership().setMorale(c.before);
    theMothership().setWorkSchedule(c.schedule);
    theMothership().setFood(c.food);
    theMothership().updateMorale();
    EXPECT_EQ(theMothership().morale(), c.after) << c.before << " " << c.schedule << " " << c.food;
  }
}

TEST(StartingContents, ANewRunsShipAndTheDrawsOfItsCrew) {
  // Each Povolnian's sex is drawn before the six draws of its name.
  seedRandom(99);
  int draws[8];
  for (int& d : draws) d = gameRand();
  startFreshRun(99);
  EXPECT_EQ(fleet(), "Saucer Transport;Cargo Barge;Stealth Fighter;Hulk Bomber;");
  EXPECT_EQ(theMothership().advisors().size(), 9u);
  EXPECT_EQ(theMothership().crew().at(0).getSex(), draws[0] % 2);
  EXPECT_EQ(theMothership().crew().at(1).getSex(), draws[7] % 2);
  for (int i = 0; i < 20; ++i) EXPECT_EQ(theMothership().crew().at(i).getRace(), kRacePovolnian);
  EXPECT_EQ(crew().substr(60), "60 61 60 61 60 41 40 41 40 41 31 30 31 ");
  // With 120,000 units of dock left, the barge and the bomber (100,000
  // each) stay out and the craft behind them still board.
  theMothership().aircraft().clear();
  theMothership().addCapsules(145);
  layStartingContents();
  EXPECT_EQ(fleet(), "Saucer Transport;Stealth Fighter;");
}

TEST(StartingContents, ANewGameEmptiesShipAndBunkersButLeavesTheLandAndTheLog) {
  startFreshRun();
  Mothership& ship = theMothership();
  for (int i = 0; i < 40; ++i) ship.crew().add(kRaceMako, 1);
  ship.bombs().add(kBombFlack, ship.cargoRoomLeft());
  ship.eggs().add(kRacePovolnian, ship.cargoRoomLeft());
  ship.aircraft().at(1).getCrew().add(kRaceMako, 0);
  ship.addCapsules(-2);
  ship.setWorkSchedule(0);
  ship.toggleShields();
  ship.setDestination(5);
  Bunker& bunker = thePlanet().sector(5).bunker();
  bunker.markBuilt();
  bunker.getCrew().add(kRaceMako, 0);
  bunker.getAircraft().add(kStealthFighter, kDockLimit, 5);
  bunker.addFood(700);
  thePlanet().subSector(9, 6).setLandType(kRubble);
  theMessageLog().post("The last game's news", 3);
  globals() = {77, 1, -4, true, true, true};

  resetGame();

  EXPECT_EQ(fleet(), "Saucer Transport;Cargo Barge;Stealth Fighter;Hulk Bomber;");
  EXPECT_EQ(ship.aircraft().at(1).getCrew().getCount(), 0);
  EXPECT_EQ(crew(), "11 11 11 11 11 11 11 11 11 11 11 10 10 10 10 10 10 10 10 10 "
                    "60 61 60 61 60 40 40 41 40 40 ");
  EXPECT_EQ(ship.advisors().size(), 9u);
  EXPECT_EQ(ship.bombs().count() + ship.eggs().count(), 0);
  EXPECT_EQ(ship.readyCapsules(), 2);
  EXPECT_FALSE(ship.shieldsOn());
  EXPECT_EQ(ship.destinationSector(), 0);
  EXPECT_EQ(ship.workSchedule(), 0) << "the schedule is the player's, kept";
  EXPECT_FALSE(bunker.isBuilt());
  EXPECT_EQ(bunker.getCrew().getCount() + bunker.getAircraft().count() + bunker.getFood(), 0);
  EXPECT_EQ(thePlanet().subSector(9, 6).landType(), kRubble);
  EXPECT_EQ(theMessageLog().count(), 1);
  const GlobalValues& g = globals();
  EXPECT_EQ(std::tie(g.day, g.cosmicCredits, g.freighterCountdown, g.gameOver, g.lowFoodWarned),
            std::make_tuple(1, 5000, 30, false, true));
}

}  // namespace
