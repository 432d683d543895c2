#include "game/fleet/missions.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/console.h"
#include "game/console/scripted.h"
#include "game/fleet/location_table.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

constexpr int kSaucerRow = 0;
constexpr int kFighterRow = 2;

// Where a sector's letter stands on the picker's map.
int letterColumn(int sector) { return 15 + 8 * thePlanet().sector(sector).column() + 4; }
int letterRow(int sector) { return 1 + 4 * thePlanet().sector(sector).row() + 2; }

class MissionsTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  Aircraft& shipCraft(int row) { return theMothership().aircraft().at(row); }
  void crewUp(Aircraft& craft, int count) {
    for (int i = 0; i < count; ++i) craft.getCrew().add(kRaceMako, 0);
  }
  // Takes a menu row with the picker, if it opens, left at once.
  bool takeAndEscape(int location, int craftRow, int menuRow) {
    scripted::reset();
    scripted::addKeys("Esc");
    bool redraw = false;
    scripted::run([&] { redraw = takeMissionRow(location, craftRow, menuRow); });
    return redraw;
  }
};

TEST_F(MissionsTest, EachRowNeedsItsLeastCrewAndSetsItsCode) {
  struct Case {
    int type, row, leastCrew, code;
    bool picks;
  };
  // Travel aimed nowhere (Escape at once) ends as inactive.
  const Case cases[] = {
      {kSaucerTransport, 0, 0, kMissionInactive, false},
      {kSaucerTransport, 1, 1, kMissionInactive, true},
      {kSaucerTransport, 2, 1, kMissionScouting, true},
      {kSaucerTransport, 3, 1, kMissionAbductingCows, true},
      {kSaucerTransport, 4, 1, kMissionAbductingHumans, true},
      {kStealthFighter, 2, 2, kMissionAttacking, true},
      {kStealthFighter, 3, 2, kMissionDefending, true},
      {kStealthFighter, 4, 2, kMissionEscorting, false},
      {kHulkBomber, 1, 1, kMissionInactive, true},
      {kHulkBomber, 2, 2, kMissionBombing, true},
      {kCargoBarge, 2, 1, kMissionShuttling, true},
  };
  for (const Case& c : cases) {
    AircraftList& fleet = theMothership().aircraft();
    fleet.clear();
    fleet.add(c.type, kDockLimit, 0);
    Aircraft& craft = fleet.at(0);
    const int marker = c.code == kMissionShuttling ? kMissionScouting : kMissionShuttling;
    const std::string what = std::to_string(c.type) + "/" + std::to_string(c.row);
    if (c.leastCrew > 0) {
      crewUp(craft, c.leastCrew - 1);
      craft.setMission(marker);
      EXPECT_FALSE(takeAndEscape(0, 0, c.row)) << what;
      EXPECT_EQ(craft.getMission(), marker) << what << ": one short of the crew";
      EXPECT_EQ(scripted::stepsLeft(), 1) << what << ": no picker";
    }
    crewUp(craft, 1);
    craft.setMission(marker);
    EXPECT_EQ(takeAndEscape(0, 0, c.row), c.picks) << what;
    EXPECT_EQ(craft.getMission(), c.code) << what;
    EXPECT_EQ(scripted::stepsLeft(), c.picks ? 0 : 1) << what;
    EXPECT_EQ(craft.getDestination(), 0) << what;
  }
  EXPECT_EQ(missionRowCount(kSaucerTransport), 5);
  EXPECT_EQ(missionRowCount(kHulkBomber), 3);
}

TEST_F(MissionsTest, ThePickersCursorWrapsAndCrossesTheDockBySides) {
  struct Step {
    int from, key, to;
  };
  // From a fresh picker (came through the left), then each side in turn.
  const Step path[] = {
      {kOrbitCursor, kKeyDown, 3},
      {3, kKeyUp, kOrbitCursor},
      {kOrbitCursor, kKeyUp, 21},
      {21, kKeyDown, kOrbitCursor},
      {kOrbitCursor, kKeyDown, 3},
      {4, kKeyUp, kOrbitCursor},
      {kOrbitCursor, kKeyUp, 22},
      {22, kKeyDown, kOrbitCursor},
      {kOrbitCursor, kKeyDown, 4},
      {kOrbitCursor, kKeyLeft, kOrbitCursor},
      {kOrbitCursor, kKeyRight, kOrbitCursor},
      {9, kKeyDown, 15},  // off the orbit box, the ground map's moves
  };
  bool cameThroughLeft = true;
  for (const Step& s : path) {
    EXPECT_EQ(targetCursorAfter(s.from, s.key, cameThroughLeft), s.to)
        << s.from << " key " << s.key;
  }
}

TEST_F(MissionsTest, ThePickerAimsWhereTheJobMayGo) {
  Aircraft& saucer = shipCraft(kSaucerRow);
  saucer.setDestination(17);  // an earlier aim is forgotten
  scripted::addKeys("Down Enter");
  EXPECT_TRUE(scripted::run([] { pickTarget(0, kSaucerRow, false); }));
  EXPECT_EQ(saucer.getDestination(), 0) << "no bunker at 3: Travel cannot aim there";
  EXPECT_EQ(scripted::textAt(49, 19, 28), " There is currently no      ");
  EXPECT_EQ(scripted::colourAt(letterColumn(3) - 4, letterRow(3) - 2), 12) << "3 lit";

  thePlanet().sector(3).bunker().markBuilt();
  scripted::addKeys("Down Enter");
  EXPECT_TRUE(scripted::run([] { pickTarget(0, kSaucerRow, false); }));
  EXPECT_EQ(saucer.getDestination(), 3);
  EXPECT_EQ(scripted::textAt(49, 19, 9),
            "Sector: " + std::string(1, thePlanet().sector(3).letter()));
  EXPECT_EQ(scripted::colourAt(letterColumn(3), letterRow(3)), 14) << "a bunker's letter";
  EXPECT_EQ(scripted::colourAt(letterColumn(4), letterRow(4)), 15);

  // Any sector, then back to the dock: aimed at its own place again.
  scripted::addKeys("Down Right Enter Left Up Enter Esc");
  bool moved = true;
  EXPECT_FALSE(scripted::run([&] { moved = pickTarget(0, kSaucerRow, true); }));
  EXPECT_FALSE(moved);
  EXPECT_EQ(saucer.getDestination(), 0);
  EXPECT_EQ(scripted::textAt(49, 19, 28), " There is currently no      ");
  EXPECT_EQ(scripted::colourAt(31, 18), 12) << "the dock lit";
  EXPECT_EQ(scripted::colourAt(letterColumn(3), letterRow(3)), 14) << "3 left at rest";
  EXPECT_EQ(scripted::colourAt(letterColumn(3) - 4, letterRow(3) - 2), 2);
}

TEST_F(MissionsTest, ACraftAtTheSecondBunkerIsAimedFromItsOwnSector) {
  thePlanet().sector(2).bunker().markBuilt();
  Bunker& bunker = thePlanet().sector(7).bunker();
  bunker.markBuilt();
  bunker.getAircraft().add(kStealthFighter, kDockLimit, 7);
  Aircraft& fighter = bunker.getAircraft().at(0);
  crewUp(fighter, 2);
  // Third location, its craft, a cursor key to fill the missions, Attack,
  // one sector right of where the picker opens.
  scripted::addKeys("Down Down Right Up Right Down Down Enter Right Enter Esc Esc Esc");
  EXPECT_FALSE(scripted::run(assignAircraftMissions));
  EXPECT_EQ(fighter.getMission(), kMissionAttacking);
  EXPECT_EQ(fighter.getDestination(), 8);
  EXPECT_EQ(fighter.getLocation(), 7);
}

TEST_F(MissionsTest, TheMissionColumnStaysEmptyUntilACursorKeyInAircraft) {
  Aircraft& fighter = shipCraft(kFighterRow);
  crewUp(fighter, 2);
  fighter.setMission(kMissionDefending);
  scripted::addKeys("Right Right Enter");
  EXPECT_TRUE(scripted::run(assignAircraftMissions));
  EXPECT_EQ(fighter.getMission(), kMissionDefending);
  EXPECT_EQ(scripted::colourAt(19, 2), 225) << "AIRCRAFT active again";
  EXPECT_EQ(scripted::textAt(42, 4, 8), "        ");

  // With the cursor moved there, the column opens on the present job, and
  // Escorting is taken without a picker.
  scripted::addKeys("Right Down Down Right");
  EXPECT_TRUE(scripted::run(assignAircraftMissions));
  EXPECT_EQ(scripted::textAt(42, 7, 18), "Defend Destination");
  EXPECT_EQ(scripted::colourAt(42, 7), 241);
  scripted::addKeys("Right Down Down Right Down Enter");
  EXPECT_TRUE(scripted::run(assignAircraftMissions));
  EXPECT_EQ(fighter.getMission(), kMissionEscorting);
  EXPECT_EQ(scripted::textAt(42, 8, 21), "Escorting Local Craft") << "no picker, no redraw";
}

}  // namespace
