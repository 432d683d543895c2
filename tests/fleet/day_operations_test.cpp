// The bunkers' and the craft's part of the day, and where it falls in the
// day's order.
#include <gtest/gtest.h>

#include "game/console/random.h"
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

Bunker& bunker(int sector) { return thePlanet().sector(sector).bunker(); }
std::string letter(int sector) { return std::string(1, thePlanet().sector(sector).letter()); }
void board(CrewList& crew, int count, int race = kRaceMako) {
  for (int i = 0; i < count; ++i) crew.add(race, 0);
}
// A craft at the location with `crew` of the race aboard, on a job.
Aircraft& craftAt(int location, int type, int crew, int mission, int destination,
                  int race = kRaceMako) {
  AircraftList& list = aircraftAt(location);
  list.add(type, kDockLimit, location);
  Aircraft& craft = list.at(list.count() - 1);
  board(craft.getCrew(), crew, race);
  craft.setMission(mission);
  craft.setDestination(destination);
  return craft;
}
const std::string eaten = " is out of food. The crew there turned to canibalism and ate ";

// Each member eats one a day; below 4 a head the bunker asks for more, and
// with nothing left one of them is eaten.
TEST(BunkerMeals, TheLowFoodMarginIsFourAHeadAndAnEmptyStoreCostsAMember) {
  const std::string low = " is low on food. Get them some before they start eating each other!\n";
  const std::tuple<int, int, int, int, std::string> cases[] = {
      {3, 14, 11, 3, low}, {3, 15, 12, 3, ""},  {3, 16, 13, 3, ""},
      {1, 1, 0, 0, eaten}, {2, 0, 0, 1, eaten}, {0, 5, 5, 0, ""}};
  for (const auto& [crew, food, foodAfter, crewAfter, news] : cases) {
    startFreshRun();
    for (int n = 1; n <= kSectorCount; ++n) {
      board(bunker(n).getCrew(), crew);
      bunker(n).addFood(food);
    }
    runBunkerMeals();
    for (int n = 1; n <= kSectorCount; ++n) {  // every sector, the 24th too
      EXPECT_EQ(bunker(n).getFood(), foodAfter) << n << ": " << crew << " crew, " << food;
      EXPECT_EQ(bunker(n).getCrew().getCount(), crewAfter) << n;
    }
    const std::string log = logLines(), want = news.empty() ? "" : "5 Bunker " + letter(24) + news;
    EXPECT_EQ(log.substr(log.empty() ? 0 : log.rfind('\n', log.size() - 2) + 1, want.size()), want);
    EXPECT_EQ(log.empty(), want.empty()) << crew << " crew, " << food;
  }
}

// One draw a starving bunker, rand() % crew, sector 1 before sector 24: the
// seed's first two draws are 16838 and 5758.
TEST(BunkerMeals, EachStarvingBunkerDrawsItsVictimInSectorOrder) {
  startFreshRun();
  for (int n : {1, 24}) board(bunker(n).getCrew(), 3);
  const std::string first(bunker(1).getCrew().at(2).name()),
      last(bunker(24).getCrew().at(1).name());
  seedRandom(1);
  runBunkerMeals();
  EXPECT_EQ(logLines(), "5 Bunker " + letter(1) + eaten + first + "!\n5 Bunker " + letter(24) +
                            eaten + last + "!\n");
}

// rate = the crew's maintenance x performance / 250 a day, 50 materials a
// point; a Mako gives 1.6, an Uberfleck 2.0.
TEST(BunkerConstruction, TheCountdownAndTheMaterialsWarningAtTheirThresholds) {
  const std::string low =
      "4 Bunker in sector # is low on materials. Send more so the crew can build faster.\n";
  const std::string in = "Bunker in sector # ", days = " days until it's built.";
  for (auto [sector, race, crew, materials, materialsAfter, news] : {
           std::tuple{24, kRaceUberfleck, 50, 5000, 0,
                      std::string("4 Bunker sucessfully built in sector #")},
           {1, kRaceUberfleck, 49, 4900, 0, "3 " + in + "will be ready for use tomorrow!"},
           {1, kRaceMako, 25, 2000, 0, "2 " + in + "has 1" + days},
           {1, kRaceMako, 20, 1600, 0, low + "2 " + in + "has 2" + days},
           {1, kRaceMako, 1, 79, 0, low + "2 " + in + "has 124" + days},
           {1, kRaceMako, 1, 80, 0, low + "2 " + in + "has 61" + days},
           {1, kRaceMako, 1, 81, 1, "2 " + in + "has 61" + days},
       }) {
    startFreshRun();
    board(bunker(sector).getCrew(), crew, race);
    bunker(sector).addMaterials(materials);
    bunker(3).markBuilt();  // built: no more work; without crew: no work at all
    board(bunker(3).getCrew(), 1);
    std::string want = news + "\n";
    for (std::size_t at; (at = want.find('#')) != std::string::npos;) want[at] = letter(sector)[0];
    runBunkerConstruction();
    EXPECT_EQ(logLines(), want) << crew << " crew, " << materials;
    EXPECT_EQ(bunker(sector).materials(), materialsAfter);
    EXPECT_EQ(bunker(sector).isBuilt(), crew == 50);
  }
}

// A scout maps one sub-sector a night, 16 for a sector; a herd feeds the
// place where its saucer stands, the ship 30, a bunker 15.
TEST(Flights, SaucersMapAndHerdFromWhereTheyStand) {
  startFreshRun();
  const std::string herd =
      " found a herd Large edible lifeforms. They has been added to the local food supply.\n";
  Aircraft& scout = craftAt(24, kSaucerTransport, 1, kMissionScouting, 24);
  runSaucerMissions();
  EXPECT_EQ(logLines(), "2 Saucer located in Sector " + letter(24) +
                            " has successfully mapped a new sub-sector\n");
  craftAt(0, kSaucerTransport, 1, kMissionAbductingCows, 3);
  craftAt(7, kSaucerTransport, 1, kMissionAbductingCows, 3);
  craftAt(7, kSaucerTransport, 1, kMissionAbductingCows, 0);  // aimed at no sector
  const auto food = theMothership().food();
  for (int night = 2; night <= 15; ++night) runSaucerMissions();
  theMessageLog().clear();
  runSaucerMissions();
  EXPECT_TRUE(thePlanet().subSector(24, 15).mapped());
  EXPECT_EQ(scout.getMission(), kMissionInactive);
  EXPECT_EQ(theMothership().food(), food + 15 * 30);
  EXPECT_EQ(bunker(7).getFood(), 15 * 15);
  EXPECT_EQ(logLines(), "4 Saucer located inSector " + letter(24) +
                            " has successfully mapped all sub-sectors in its destination sector. "
                            "It is now inactive.\n1 Saucer located in Mothership" +
                            herd + "1 Saucer located in Sector " + letter(7) + herd);
}

// The catch is rand() % 100 <= (performance / 10) x navigation of the pilot
// (25 for a Povolnian, 30 for a Grekkp), then a second draw, even for a
// female. Seed 37 draws 25, then 30044; seed 6 draws 26 (2726), then 25515.
TEST(Flights, AnAbductionDrawsTheCatchThenTheSex) {
  for (auto [race, seed, caught, sex] : {std::tuple{kRacePovolnian, 37u, true, 1},
                                         {kRacePovolnian, 6u, false, 0},
                                         {kRaceGrekkp, 6u, true, 0}}) {
    startFreshRun();
    craftAt(7, kSaucerTransport, 1, kMissionAbductingHumans, 3, race);
    seedRandom(seed);
    runSaucerMissions();
    const CrewList& crew = bunker(7).getCrew();
    ASSERT_EQ(crew.getCount(), caught ? 1 : 0) << race << " seed " << seed;
    if (!caught) continue;
    EXPECT_EQ(crew.at(0).getRace(), kRaceHuman);
    EXPECT_EQ(crew.at(0).getSex(), sex);
    EXPECT_EQ(logLines(), "3 Saucer located in Sector " + letter(7) +
                              " found a Fleepion. It has been added to the local crew.\n");
  }
}

// The night: meals, then flights, then saucers, then building. Any flight
// takes one night; arrivals go to the front, inactive, and the pilot and
// the gunner stay aboard.
TEST(Night, EachFleetStepSeesWhatTheStepBeforeItDid) {
  startFreshRun();
  bunker(9).setSubSector(0);  // landed crew neither eat nor are eaten that night, and build
  craftAt(0, kCargoBarge, 3, kMissionTraveling, 9).getCrew().at(0).setJob(50);  // the pilot
  craftAt(0, kHulkBomber, 2, kMissionTraveling, 9);
  craftAt(0, kSaucerTransport, 1, kMissionTraveling, 0);  // aimed where it stands
  craftAt(6, kStealthFighter, 0, kMissionTraveling, 0);   // from a bunker to the ship
  bunker(5).markBuilt();  // a bunker filled by an arrival has no room for a captive
  board(bunker(5).getCrew(), 49);
  bunker(5).addFood(1000);
  craftAt(0, kCargoBarge, 3, kMissionTraveling, 5);
  craftAt(5, kSaucerTransport, 1, kMissionAbductingHumans, 1, kRaceClucktillian);
  bunker(11).setSubSector(0);  // a captive is set to work the night it is caught
  craftAt(11, kSaucerTransport, 1, kMissionAbductingHumans, 1, kRaceClucktillian);
  seedRandom(1);  // both catches succeed
  runDay();
  const std::string log = logLines();
  const AircraftList& there = aircraftAt(9);
  ASSERT_EQ(there.count(), 2);
  EXPECT_EQ(there.at(0).getBombs().count(), 1) << "the bomber, last to arrive, keeps its bomb";
  EXPECT_EQ(there.at(1).getCrew().getCount(), 2);
  EXPECT_EQ(there.at(1).getCrew().at(0).getJob(), 50);
  EXPECT_EQ(there.at(1).getMission(), kMissionInactive);
  EXPECT_EQ(there.at(1).getLocation(), 9);
  EXPECT_EQ(aircraftAt(6).count(), 0);
  EXPECT_EQ(theMothership().aircraft().count(), 6) << "the first four and the saucer stayed";
  EXPECT_EQ(bunker(9).getCrew().getCount(), 1) << "a craft of three lands one";
  EXPECT_NEAR(bunker(9).progress(), 0.8, 1e-9) << "landed with no materials: half a day";
  EXPECT_EQ(log.find("canibalism"), std::string::npos) << "the meal came before the landing";
  EXPECT_EQ(aircraftAt(5).at(0).getCrew().getCount(), 2) << "the barge landed its third first";
  EXPECT_NE(log.find("located in Sector " + letter(5) + " found a Fleepion"), std::string::npos);
  EXPECT_EQ(bunker(11).getCrew().getCount(), 1);
  EXPECT_NE(log.find("Bunker in sector " + letter(11) + " will be ready"), std::string::npos);
}

}  // namespace
