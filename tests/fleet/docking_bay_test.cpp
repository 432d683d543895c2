#include "game/fleet/docking_bay.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "game/fleet/location_table.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

constexpr int kFighterRow = 2;
constexpr int kBomberRow = 3;

std::string padded(std::string text, int width) {
  text.resize(static_cast<std::size_t>(width), ' ');
  return text;
}

// Races in list order, as "3 4".
std::string races(const CrewList& crew) {
  std::string s;
  for (int i = 0; i < crew.getCount(); ++i) {
    s += (i ? " " : "") + std::to_string(crew.at(i).getRace());
  }
  return s;
}

class DockingBayTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    ship.crew().clear();
  }
  // True if the screen ended by itself.
  template <typename Screen>
  bool play(Screen screen, const std::string& keys) {
    scripted::addKeys(keys);
    return !scripted::run(screen);
  }
  Mothership& ship = theMothership();
  Aircraft& fighter() { return ship.aircraft().at(kFighterRow); }
};

TEST_F(DockingBayTest, TheStatPageReadsRowByRow) {
  fighter().getCrew().add(kRaceMako, 0);
  showCraftStats(kFighterRow);
  EXPECT_EQ(scripted::textAt(28, 11, 42), padded("Crew-1 <OPEN> Artifacts-0 Bombs-0", 42));
  fighter().getCrew().add(kRaceMako, 1);
  showCraftStats(kFighterRow);
  EXPECT_EQ(scripted::textAt(28, 11, 42), padded("Crew-2 <FULL>", 42))
      << "a full crew hides the hold";
  EXPECT_EQ(scripted::textAt(28, 6, 42), padded("Stealth Fighter", 42));
  EXPECT_EQ(scripted::colourAt(28, 6), 14);
  EXPECT_EQ(scripted::textAt(28, 13, 42), padded("Current Location: ", 42));
  EXPECT_EQ(scripted::textAt(28, 14, 42), padded("Current Destination: Not Moving this turn", 42));

  Aircraft& bomber = ship.aircraft().at(kBomberRow);
  bomber.setMission(kMissionBombing);
  bomber.setLocation(5);
  bomber.setDestination(9);
  showCraftStats(kBomberRow);
  const std::string e(1, thePlanet().sector(5).letter());
  const std::string i(1, thePlanet().sector(9).letter());
  EXPECT_EQ(scripted::textAt(28, 11, 42), padded("Crew-0 <OPEN> Artifacts-0 Bombs-1", 42));
  EXPECT_EQ(scripted::textAt(28, 12, 42), padded("Cargo Space Used: 2000", 42));
  EXPECT_EQ(scripted::textAt(28, 13, 42), padded("Current Location: " + e, 42));
  EXPECT_EQ(scripted::textAt(28, 14, 42), padded("Current Destination: " + i, 42));
  EXPECT_EQ(scripted::textAt(28, 15, 42), padded("Current Mission: No Job yet Assigned", 42));
}

TEST_F(DockingBayTest, AFullCraftRefusesTheThirdMemberAndTheLastToBoardFlies) {
  ship.crew().add(kRaceMako, 0);
  ship.crew().add(kRaceUberfleck, 0);
  ship.crew().add(kRaceMududu, 0);
  // To the fighter, into CREW, three boardings, then out.
  EXPECT_TRUE(play(loadCargoAndCrew, "Right Down Down Right Enter Enter Enter Esc Esc Esc"));
  EXPECT_EQ(races(fighter().getCrew()), "4 3") << "the Uberfleck boarded last: the pilot";
  EXPECT_EQ(races(ship.crew()), "6");
}

TEST_F(DockingBayTest, TwoCrewBoardTheFighterAndItsStatPageSaysFull) {
  for (int i = 0; i < 30; ++i) ship.crew().add(kRacePovolnian, 1);
  EXPECT_FALSE(play(runDockingBay,
                    "Down Enter Right Down Down Right Enter Enter Esc Esc Esc Up Enter Down Down"));
  EXPECT_EQ(scripted::textAt(28, 11, 42), padded("Crew-2 <FULL>", 42));
  EXPECT_EQ(ship.crew().getCount(), 28);
}

TEST_F(DockingBayTest, CrewAndOnboardShareTheirCursorRow) {
  for (int i = 0; i < 5; ++i) ship.crew().add(kRaceMako, 0);
  fighter().getCrew().add(kRaceUberfleck, 0);  // the pilot
  fighter().getCrew().add(kRaceMududu, 0);
  // CREW row 3, across to ONBOARD (two members: held to row 1), Enter
  // there; back through CREW, AIRCRAFT and LOCATION.
  EXPECT_TRUE(
      play(loadCargoAndCrew, "Right Down Down Right Down Down Down Right Enter Esc Esc Esc Esc"));
  EXPECT_EQ(races(fighter().getCrew()), "4");
  EXPECT_EQ(ship.crew().at(0).getRace(), kRaceMududu) << "back at the front of the ship";
}

TEST_F(DockingBayTest, AFullLocationTakesNobodyBack) {
  for (int i = 0; i < kShipCrewCapacity; ++i) ship.crew().add(kRaceMako, 0);
  fighter().getCrew().add(kRaceUberfleck, 0);
  EXPECT_FALSE(play(loadCargoAndCrew, "Right Down Down Right Right Enter"));
  EXPECT_EQ(ship.crew().getCount(), kShipCrewCapacity);
  EXPECT_EQ(races(fighter().getCrew()), "4");
  EXPECT_EQ(scripted::colourAt(57, 2), 225) << "ONBOARD still active";
  EXPECT_EQ(scripted::textAt(57, 4, 18), padded(std::string(fighter().getCrew().at(0).name()), 18));
}

TEST_F(DockingBayTest, LeavingTheLocationWipesOnboardUntilTheNextCursorKey) {
  fighter().getCrew().add(kRaceUberfleck, 0);
  ship.aircraft().at(0).getCrew().add(kRaceMududu, 0);
  EXPECT_FALSE(play(loadCargoAndCrew, "Right Down Down"));
  EXPECT_EQ(scripted::textAt(57, 4, 18), padded(std::string(fighter().getCrew().at(0).name()), 18));
  EXPECT_EQ(scripted::colourAt(19, 2), 225);
  EXPECT_FALSE(play(loadCargoAndCrew, "Right Down Down Left Right"));
  EXPECT_EQ(scripted::textAt(57, 4, 18), padded("", 18)) << "blank until a cursor key";
  EXPECT_EQ(scripted::textAt(19, 4, 16), padded("Saucer Transport", 16)) << "cursor back on top";
  EXPECT_EQ(scripted::colourAt(4, 4), 241) << "the location stays chosen";
  EXPECT_FALSE(play(loadCargoAndCrew, "Right Down Down Left Right Down Up"));
  EXPECT_EQ(scripted::textAt(57, 4, 18),
            padded(std::string(ship.aircraft().at(0).getCrew().at(0).name()), 18));
}

TEST_F(DockingBayTest, OnlyTheShipAndBuiltBunkersAreLocations) {
  thePlanet().sector(7).bunker().markBuilt();
  thePlanet().sector(2).bunker().markBuilt();
  thePlanet().sector(3).bunker().getCrew().add(kRaceMako, 0);  // staffed, not built
  LocationTable table;
  ASSERT_EQ(table.count(), 3);
  EXPECT_EQ(table.rows()[0].text.view(), "Mothership");
  EXPECT_EQ(table.location(1), 2);
  EXPECT_EQ(table.location(2), 7);
  EXPECT_EQ(table.rows()[2].text.view(),
            "Bunker " + std::string(1, thePlanet().sector(7).letter()));
}

TEST_F(DockingBayTest, TheCapsuleCountStandsBesideItsButtonOnly) {
  const std::string shown = padded("Ready Space Capsules: 2", 34);
  EXPECT_FALSE(play(runDockingBay, "Down Down Down"));
  EXPECT_EQ(scripted::textAt(4, 16, 34), shown);
  EXPECT_FALSE(play(runDockingBay, "Down Down Down Down"));
  EXPECT_EQ(scripted::textAt(4, 16, 34), padded("", 34));
  EXPECT_FALSE(play(runDockingBay, "Up Up"));
  EXPECT_EQ(scripted::textAt(4, 16, 34), shown);
  ship.addCapsules(-2);
  EXPECT_FALSE(play(runDockingBay, "Up Up Enter"));
  EXPECT_EQ(scripted::textAt(4, 16, 34), padded("Ready Space Capsules: 0", 34))
      << "no capsule: Enter does nothing";
  EXPECT_EQ(scripted::colourAt(43, 16), 241);
}

}  // namespace
