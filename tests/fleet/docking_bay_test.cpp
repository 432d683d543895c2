// What the docking bay's screens accept: how much each place takes (the
// dock, a craft's crew, the ship's crew, a capsule and a bunker), which job
// a craft's crew allows, and where a bunker may stand.
#include "game/fleet/docking_bay.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/fleet/bunker_site.h"
#include "game/fleet/launch_space_capsule.h"
#include "game/fleet/missions.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

void board(CrewList& crew, int count) {
  for (int i = 0; i < count; ++i) crew.add(kRaceMako, 0);
}

// A craft fits the dock when its type's dock space, a bomber's 100000, is
// at most the room left.
TEST(Capacity, TheDockTakesACraftThatExactlyFits) {
  for (int room : {99999, 100000, 100001}) {
    AircraftList list;
    EXPECT_EQ(list.add(kHulkBomber, room, 0), room >= 100000) << room;
  }
}

// A craft's crew list holds its type's crew and no more (the stat pages
// show it full or open).
TEST(Capacity, EachCraftTakesItsCrewAndNoMore) {
  const std::pair<int, int> cases[] = {
      {kSaucerTransport, 10}, {kStealthFighter, 2}, {kHulkBomber, 3}, {kCargoBarge, 3}};
  for (auto [type, capacity] : cases) {
    Aircraft craft;
    craft.setUp(type, 0);
    board(craft.getCrew(), capacity + 1);
    EXPECT_EQ(craft.getCrew().getCount(), capacity) << type;
  }
}

// The ship holds 250: the fighter's one member comes back only while there
// is room.
TEST(Capacity, TheShipTakesCrewBackFromACraftUpToTwoHundredAndFifty) {
  for (int before : {248, 249, 250}) {
    startFreshRun();
    CrewList& ship = theMothership().crew();
    ship.clear();
    board(ship, before);
    board(theMothership().aircraft().at(2).getCrew(), 1);
    scripted::addKeys("Right Down Down Right Right Enter");
    EXPECT_TRUE(scripted::run(loadCargoAndCrew));
    EXPECT_EQ(ship.getCount(), std::min(before + 1, kShipCrewCapacity)) << before;
  }
}

// The capsule holds 20; the bunker 50, and those who find it full are lost.
// Leaving without a launch puts everyone back.
TEST(Capacity, ACapsuleTakesTwentyAndABunkerFifty) {
  const std::tuple<int, int, int, bool> cases[] = {{2, 47, 49, true}, {2, 48, 50, true},
                                                   {2, 49, 50, true}, {20, 0, 20, true},
                                                   {21, 0, 20, true}, {2, 0, 0, false}};
  for (const auto& [boarding, bunkerBefore, bunkerAfter, launch] : cases) {
    startFreshRun();
    Bunker& bunker = thePlanet().sector(2).bunker();
    bunker.setSubSector(5);
    board(bunker.getCrew(), bunkerBefore);
    std::string keys;
    for (int i = 0; i < boarding; ++i) keys += "Enter ";
    keys += launch ? "Left Down Down Enter Down Left Enter Left Enter x" : "Esc";
    scripted::addKeys(keys);
    EXPECT_FALSE(scripted::run(launchSpaceCapsule));
    EXPECT_EQ(bunker.getCrew().getCount(), bunkerAfter) << boarding << " to " << bunkerBefore;
    EXPECT_EQ(theMothership().crew().getCount(), 33 - (launch ? std::min(boarding, 20) : 0));
    EXPECT_EQ(theMothership().readyCapsules(), launch ? 1 : 2);
  }
}

// Up adds the lit digit's step, held to the capsule's 20000 in all and to
// the stock; Down takes it away, stopping at 0.
TEST(Capacity, CapsuleLoadsStopAtTheCapsulesRoomAndTheStock) {
  const std::tuple<int, int, int, int, int, bool> cases[] = {
      {1000, 0, 10000, 0, 1000, true},       {999, 0, 1000, 0, 999, true},
      {9000, 15000, 10000, 0, 5000, true},   {30000, 0, 10000, 10000, 20000, true},
      {30000, 1, 10000, 10000, 19999, true}, {30000, 0, 100, 50, 0, false}};
  for (const auto& [foodStock, materialsLoad, step, foodBefore, foodAfter, add] : cases) {
    CapsuleLoad load{.foodStock = foodStock,
                     .foodLoad = foodBefore,
                     .materialsLoad = materialsLoad,
                     .step = step};
    stepLoad(load, true, add);
    EXPECT_EQ(load.foodLoad, foodAfter) << foodStock << " " << step << " " << foodBefore;
  }
}

// Each row of the mission menu, one member short of its crew and with it,
// the picker (if it opens) left at once with Escape: the craft stays aimed
// at its own place, and Travel aimed nowhere ends as inactive.
TEST(Missions, EachRowNeedsItsLeastCrewAndSetsItsCode) {
  const int saucer = kSaucerTransport, fighter = kStealthFighter;
  const std::tuple<int, int, int, int, bool> cases[] = {
      {saucer, 0, 0, kMissionInactive, false},       {saucer, 1, 1, kMissionInactive, true},
      {saucer, 2, 1, kMissionScouting, true},        {saucer, 3, 1, kMissionAbductingCows, true},
      {saucer, 4, 1, kMissionAbductingHumans, true}, {fighter, 2, 2, kMissionAttacking, true},
      {fighter, 3, 2, kMissionDefending, true},      {fighter, 4, 2, kMissionEscorting, false},
      {kHulkBomber, 2, 2, kMissionBombing, true},    {kCargoBarge, 2, 1, kMissionShuttling, true}};
  for (const auto& [type, row, leastCrew, code, picks] : cases) {
    startFreshRun();
    const int shipRow[] = {0, 2, 3, 1};  // the starting fleet's rows by type
    Aircraft& craft = theMothership().aircraft().at(shipRow[type]);
    const int before = code == kMissionShuttling ? kMissionScouting : kMissionShuttling;
    for (int crew = std::max(leastCrew - 1, 0); crew <= leastCrew; ++crew) {
      while (craft.getCrew().getCount() < crew) craft.getCrew().add(kRaceMako, 0);
      craft.setMission(before);
      craft.setDestination(9);
      scripted::addKeys("Esc");
      bool redraw = false;
      scripted::run(
          [&, type = type, row = row] { redraw = takeMissionRow(0, shipRow[type], row); });
      SCOPED_TRACE(testing::Message() << type << "/" << row << " with " << crew);
      EXPECT_EQ(redraw, crew >= leastCrew && picks);
      EXPECT_EQ(craft.getMission(), crew >= leastCrew ? code : before);
      EXPECT_EQ(craft.getDestination(), redraw ? 0 : 9);
    }
  }
}

// Sub-sector 6 of sector 7 as the site: Enter takes it, or Escape leaves.
TEST(BunkerSite, OnlyMappedMountainsDesertRubbleOrRuinsTakeABunker) {
  const std::tuple<int, bool, bool> cases[] = {
      {kMountains, true, true}, {kMountains, false, false},  {kDesert, true, true},
      {kRubble, true, true},    {kRuins, true, true},        {kCity, true, false},
      {kFarmLand, true, false}, {kMilitaryBase, true, false}};
  for (const auto& [land, mapped, taken] : cases) {
    startFreshRun();
    SubSector& sub = thePlanet().subSector(7, 6);
    sub.setLandType(land);
    if (mapped) sub.markMapped();
    scripted::addKeys("Right Right Down Enter Esc");
    int site = -99;
    scripted::run([&] { site = pickBunkerSite(7); });
    EXPECT_EQ(site, taken ? 6 : -1) << land << (mapped ? " mapped" : " unmapped");
  }
}

}  // namespace
