// The bunkers' and the craft's part of the day, and where it falls in the
// day's order.
#include <gtest/gtest.h>

#include "game/fleet/bunker_days.h"
#include "game/fleet/flight_operations.h"
#include "game/fleet/locations.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/day.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"
#include "tests/support/log_text.h"

namespace {

class DayOperationsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    theMothership().crew().clear();
    theMothership().aircraft().clear();
    theMessageLog().clear();
  }
  Bunker& bunker(int sector) { return thePlanet().sector(sector).bunker(); }
  // A craft at the location with `crew` Makos aboard, on a mission.
  Aircraft& craftAt(int location, int type, int crew, int mission, int destination) {
    AircraftList& list = aircraftAt(location);
    list.add(type, 6000000, location);
    Aircraft& craft = list.at(list.count() - 1);
    for (int i = 0; i < crew; ++i) craft.getCrew().add(kRaceMako, 0);
    craft.setMission(mission);
    craft.setDestination(destination);
    return craft;
  }
};

TEST_F(DayOperationsTest, ABunkerBuildsAtItsCrewsRateAndHalvesTheDayWhenMaterialsRunOut) {
  // A Mako gives maintenance 8 at performance 50: 1.6 points a day, using
  // 80 materials.
  struct Case {
    int makos, materials;
    double progress;
    int materialsAfter, days;
    bool lowMessage;
  } cases[] = {
      {1, 10, 0.8, 0, 124, true},     // runs out: half a day
      {1, 80, 1.6, 0, 61, true},      // exactly a day's worth: a full day
      {1, 81, 1.6, 1, 61, false},     // materials left: no message
      {20, 1600, 32.0, 0, 2, true},   // two days left: the message
      {25, 2000, 40.0, 0, 1, false},  // one day left: none
      {40, 3200, 64.0, 0, 0, false},  // due tomorrow
  };
  for (const Case& c : cases) {
    Bunker b;
    for (int i = 0; i < c.makos; ++i) b.getCrew().add(kRaceMako, 0);
    b.addMaterials(c.materials);
    theMessageLog().clear();
    EXPECT_EQ(b.buildOneDay(), c.days) << c.makos << " makos, " << c.materials;
    EXPECT_NEAR(b.progress(), c.progress, 1e-9);
    EXPECT_EQ(b.materials(), c.materialsAfter);
    EXPECT_EQ(theMessageLog().count(), c.lowMessage ? 1 : 0)
        << c.makos << " makos, " << c.materials;
    EXPECT_FALSE(b.isBuilt());
    if (c.makos == 40) {
      b.addMaterials(3200);
      EXPECT_EQ(b.buildOneDay(), 0);
      EXPECT_TRUE(b.isBuilt());
    }
  }
}

TEST_F(DayOperationsTest, EachSectorsBunkerReportsItsWork) {
  bunker(24).getCrew().add(kRaceMako, 0);
  bunker(24).addMaterials(5000);
  bunker(2).getCrew().add(kRaceHuman, 0);  // captives alone make no headway
  bunker(3).getCrew().add(kRaceMako, 0);
  bunker(3).markBuilt();
  runBunkerConstruction();
  EXPECT_EQ(logLines(),
            "Bunker in sector L will be ready for use tomorrow!\n"
            "Bunker in sector " +
                std::string(1, kWorldTable[23].letter) + " has 61 days until it's built.\n");
}

TEST_F(DayOperationsTest, BunkerCrewsEatAndAStarvingCrewEatsOneOfItsOwn) {
  struct Case {
    int crew, food, foodAfter, crewAfter;
    const char* message;
  } cases[] = {
      {3, 12, 9, 3,
       "Bunker I is low on food. Get them some before they start eating each other!\n"},
      {3, 15, 12, 3, ""},
      {3, 13, 10, 3,
       "Bunker I is low on food. Get them some before they start eating each other!\n"},
      {1, 1, 0, 0, "Bunker I is out of food. The crew there turned to canibalism and ate "},
      {0, 0, 0, 0, ""},
  };
  for (const Case& c : cases) {
    startFreshRun();
    theMessageLog().clear();
    for (int i = 0; i < c.crew; ++i) bunker(1).getCrew().add(kRaceMako, 0);
    bunker(1).addFood(c.food);
    std::string expected = c.message;
    if (c.crewAfter < c.crew) expected += std::string(bunker(1).getCrew().at(0).name()) + "!\n";
    runBunkerMeals();
    EXPECT_EQ(bunker(1).getFood(), c.foodAfter) << c.crew << " crew, " << c.food << " food";
    EXPECT_EQ(bunker(1).getCrew().getCount(), c.crewAfter);
    EXPECT_EQ(logLines(), expected);
  }
}

TEST_F(DayOperationsTest, TravelTakesOneNightAndLandsAllButTheFirstTwo) {
  bunker(5).markBuilt();
  Aircraft& barge = craftAt(0, kCargoBarge, 3, kMissionTraveling, 5);
  barge.getCrew().at(0).setJob(50);  // the pilot, to tell apart
  craftAt(0, kHulkBomber, 2, kMissionTraveling, 5);
  craftAt(0, kSaucerTransport, 1, kMissionTraveling, 0);  // aimed where it stands
  moveCraft();
  ASSERT_EQ(theMothership().aircraft().count(), 1);
  AircraftList& there = aircraftAt(5);
  ASSERT_EQ(there.count(), 2);
  EXPECT_EQ(there.at(0).getName(), "Hulk Bomber") << "arrivals go to the front";
  EXPECT_EQ(there.at(0).getBombs().count(), 1);
  EXPECT_EQ(there.at(1).getCrew().getCount(), 2);
  EXPECT_EQ(there.at(1).getCrew().at(0).getJob(), 50);
  EXPECT_EQ(there.at(1).getMission(), kMissionInactive);
  EXPECT_EQ(there.at(1).getLocation(), 5);
  EXPECT_EQ(bunker(5).getCrew().getCount(), 1) << "a craft of three lands one";

  // Back to the ship from exactly that bunker.
  bunker(6).getAircraft().add(kStealthFighter, 6000000, 6);
  there.at(0).setMission(kMissionTraveling);
  there.at(0).setDestination(0);
  moveCraft();
  EXPECT_EQ(aircraftAt(5).count(), 1);
  EXPECT_EQ(aircraftAt(6).count(), 1);
  EXPECT_EQ(theMothership().aircraft().at(0).getName(), "Hulk Bomber");
}

TEST_F(DayOperationsTest, ASaucerMapsOneSubSectorANightAndStopsWhenAllAreMapped) {
  Aircraft& saucer = craftAt(0, kSaucerTransport, 1, kMissionScouting, 24);
  for (int night = 1; night <= 15; ++night) runSaucerMissions();
  EXPECT_TRUE(thePlanet().subSector(24, 14).mapped());
  EXPECT_FALSE(thePlanet().subSector(24, 15).mapped());
  EXPECT_EQ(saucer.getMission(), kMissionScouting);
  theMessageLog().clear();
  runSaucerMissions();
  EXPECT_TRUE(thePlanet().subSector(24, 15).mapped());
  EXPECT_EQ(saucer.getMission(), kMissionInactive);
  EXPECT_EQ(
      logLines(),
      "Saucer located inMothership has successfully mapped all sub-sectors in its destination "
      "sector. It is now inactive.\n");
}

TEST_F(DayOperationsTest, HerdsFeedThePlaceWhereTheSaucerStands) {
  craftAt(0, kSaucerTransport, 1, kMissionAbductingCows, 3);
  craftAt(7, kSaucerTransport, 1, kMissionAbductingCows, 3);
  craftAt(7, kSaucerTransport, 0, kMissionAbductingHumans, 3);  // nobody to fly it
  craftAt(7, kSaucerTransport, 1, kMissionAbductingCows, 0);    // aimed at no sector
  const auto food = theMothership().food();
  runSaucerMissions();
  EXPECT_EQ(theMothership().food(), food + 30);
  EXPECT_EQ(bunker(7).getFood(), 15);
  EXPECT_EQ(bunker(3).getFood(), 0);
  EXPECT_EQ(bunker(7).getCrew().getCount(), 0);
}

// Landed crew build on the night they land, before they have eaten there;
// a bomber's materials are taken after the builders have used theirs.
TEST_F(DayOperationsTest, TheNightRunsMealsFlightsBuildingAndRaidsInThatOrder) {
  bunker(9).setSubSector(0);
  craftAt(0, kCargoBarge, 3, kMissionTraveling, 9);
  bunker(10).getCrew().add(kRaceMako, 0);
  bunker(10).addMaterials(80);
  bunker(10).addFood(1000);
  Aircraft& bomber = craftAt(10, kHulkBomber, 2, kMissionBombing, 1);
  bomber.setLocation(10);
  runDay();
  EXPECT_EQ(bunker(9).getCrew().getCount(), 1);
  EXPECT_NEAR(bunker(9).progress(), 0.8, 1e-9) << "landed with no materials: half a day";
  EXPECT_EQ(logLines().find("canibalism"), std::string::npos) << "the meal came before the landing";
  EXPECT_NEAR(bunker(10).progress(), 1.6, 1e-9) << "a full day: the bomber took its 7 later";
  EXPECT_EQ(bunker(10).materials(), -7) << "and took them from an empty store";
}

}  // namespace
