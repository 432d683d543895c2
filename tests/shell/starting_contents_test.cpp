#include "game/shell/starting_contents.h"

#include <gtest/gtest.h>

#include <string>

#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

std::string fleetNames(const AircraftList& fleet) {
  std::string names;
  for (int i = 0; i < fleet.count(); ++i) names += std::string(fleet.at(i).getName()) + ";";
  return names;
}

// Race and sex of each member in list order, as "1:1 1:0 ...".
std::string crewMakeUp(const CrewList& crew) {
  std::string s;
  for (int i = 0; i < crew.getCount(); ++i) {
    s += std::to_string(crew.at(i).getRace()) + ":" + std::to_string(crew.at(i).getSex()) + " ";
  }
  return s;
}

class StartingContentsTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  Mothership& ship = theMothership();
};

TEST_F(StartingContentsTest, TheFourCraftBoardInOrderThroughTheDocksBudget) {
  EXPECT_EQ(fleetNames(ship.aircraft()),
            "Saucer Transport;Cargo Barge;Stealth Fighter;Hulk Bomber;");
  EXPECT_EQ(ship.dockSpaceUsed(), 350000);
  for (int i = 0; i < 4; ++i) {
    const Aircraft& craft = ship.aircraft().at(i);
    EXPECT_EQ(craft.getLocation(), 0);
    EXPECT_EQ(craft.getDestination(), 0);
    EXPECT_EQ(craft.getMission(), kMissionInactive);
    EXPECT_EQ(craft.getCrew().getCount(), 0);
  }

  // With 120,000 units left, the barge and the bomber (100,000 each) are
  // left out and the craft behind them still board.
  ship.aircraft().clear();
  ship.addCapsules(145);
  ASSERT_EQ(ship.dockRoomLeft(), 120000);
  layStartingContents();
  EXPECT_EQ(fleetNames(ship.aircraft()), "Saucer Transport;Stealth Fighter;");
  EXPECT_EQ(ship.dockRoomLeft(), 50000);
}

TEST_F(StartingContentsTest, ALaunchedCapsuleFreesRoomForACraftThatThenExactlyFits) {
  ship.addCapsules(140);
  ship.aircraft().add(kSaucerTransport, ship.dockRoomLeft(), 0);
  ASSERT_EQ(ship.dockRoomLeft(), 10000);
  EXPECT_FALSE(ship.aircraft().add(kSaucerTransport, ship.dockRoomLeft(), 0));
  ship.addCapsules(-1);
  EXPECT_TRUE(ship.aircraft().add(kSaucerTransport, ship.dockRoomLeft(), 0));
  EXPECT_EQ(ship.dockRoomLeft(), 10000);
}

TEST_F(StartingContentsTest, ANewGameEmptiesShipAndBunkersButLeavesTheLand) {
  // A game played for a while: crew, cargo, a built bunker with its people
  // and a fighter, a sub-sector shot to rubble, news in the log.
  for (int i = 0; i < 40; ++i) ship.crew().add(kRaceMako, 1);
  ship.bombs().add(kBombFlack, ship.cargoRoomLeft());
  ship.eggs().add(kRacePovolnian, ship.cargoRoomLeft());
  ship.aircraft().at(1).getCrew().add(kRaceMako, 0);
  ship.addCapsules(-2);
  ship.setMorale(12.5f);
  ship.setWorkSchedule(0);
  Bunker& bunker = thePlanet().sector(5).bunker();
  bunker.setSubSector(3);
  bunker.markBuilt();
  bunker.getCrew().add(kRaceMako, 0);
  bunker.getAircraft().add(kStealthFighter, 6000000, 5);
  bunker.addFood(700);
  bunker.addMaterials(300);
  thePlanet().subSector(9, 6).setLandType(kRubble);
  theMessageLog().post("The last game's news", 3);
  GlobalValues& g = globals();
  g.day = 77;
  g.cosmicCredits = 1;
  g.freighterCountdown = -4;
  g.gameOver = true;
  g.lowFoodWarned = true;
  g.gamePlayed = true;

  resetGame();

  EXPECT_EQ(fleetNames(ship.aircraft()),
            "Saucer Transport;Cargo Barge;Stealth Fighter;Hulk Bomber;");
  EXPECT_EQ(ship.aircraft().at(1).getCrew().getCount(), 0);
  EXPECT_EQ(crewMakeUp(ship.crew()),
            "1:1 1:1 1:1 1:1 1:1 1:1 1:1 1:1 1:1 1:1 1:1 "
            "1:0 1:0 1:0 1:0 1:0 1:0 1:0 1:0 1:0 "
            "6:0 6:1 6:0 6:1 6:0 "
            "4:0 4:0 4:1 4:0 4:0 ");
  EXPECT_EQ(ship.advisors().size(), 9u);
  EXPECT_EQ(ship.bombs().count(), 0);
  EXPECT_EQ(ship.eggs().count(), 0);
  EXPECT_EQ(ship.readyCapsules(), 2);
  EXPECT_EQ(ship.dockSpaceUsed(), 350000);
  EXPECT_EQ(ship.morale(), 100.0f);
  EXPECT_EQ(ship.workSchedule(), 0) << "the schedule is the player's, kept";

  for (int n = 1; n <= kSectorCount; ++n) {
    const Bunker& b = thePlanet().sector(n).bunker();
    EXPECT_FALSE(b.isBuilt()) << n;
    EXPECT_EQ(b.getCrew().getCount() + b.getAircraft().count() + b.getFood() + b.materials(), 0)
        << n;
  }
  EXPECT_EQ(thePlanet().subSector(9, 6).landType(), kRubble);
  EXPECT_EQ(theMessageLog().count(), 1);
  EXPECT_EQ(g.day, 1);
  EXPECT_EQ(g.cosmicCredits, 5000);
  EXPECT_EQ(g.freighterCountdown, 30);
  EXPECT_FALSE(g.gameOver);
  EXPECT_TRUE(g.lowFoodWarned);
  EXPECT_TRUE(g.gamePlayed);
}

}  // namespace
