// Research and engineering rules at their edges, read off the screens.
#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "game/research/engineering_deck.h"
#include "game/research/research_station.h"
#include "game/research/tech_tree.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

// A fresh game whose crew is `povolnians` researchers.
void researchers(int povolnians) {
  startFreshRun();
  CrewList& crew = theMothership().crew();
  crew.clear();
  for (int i = 0; i < povolnians; ++i) crew.add(kRacePovolnian, 0);
}

std::string shown(int column, int row, int length) {
  const std::string text = scripted::textAt(column, row, length);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// Six researchers make 20 points, and 5% of them one point a turn, so the
// turns read each item's cost. Finishing the first row each time walks
// every item that can ever be finished, in the order they open.
TEST(ResearchStation, EveryItemThatCanBeFinishedAndItsCost) {
  researchers(6);
  std::string seen;
  for (int i = 0; i < 36; ++i) {
    scripted::addKeys("Right");
    scripted::addCall([&seen] { seen += shown(4, 4, 28) + " " + shown(72, 21, 4) + "|"; });
    scripted::addKeys("Enter");
  }
  scripted::run(researchAssignments);
  EXPECT_EQ(seen,
            "CARGO EXPANSION 500|Incinerator 600|Incinerator to Energy 600|MOTHERSHIP ENGINE #1 "
            "500|Mothership Engine #2 700|Mothership Engine #3 1000|Mothership Engine #4 1500|"
            "Long Range Capsules 700|Barge Ship 500|Small Craft Engines 700|Saucers Stealth "
            "Engine 1500|Engine Factor 6 2500|Saucer Engine Upgrade 1500|Bomber Engine Upgrade "
            "1500|Fighter Engine Upgrade 3000|HOVER FUEL REDUCTION 500|Travel Fuel Reduction "
            "700|Energy Shield Fuel Reduction 1000|Ion Cannon Fuel Reduction 1500|STUDY THE "
            "ENEMY! 500|Fleepion Cluture Studies 500|Population Study 500|Human Biology 600|"
            "Entertainment Artifacts 700|Radio communications 1000|Earths impression 1000|"
            "Accurate enemy calculations 1200|Early warning attacks 1000|Human Super Base "
            "Locations 1500|Take me to your leader 2500|Earth Negotiate Surrender 2500|SCIENCE "
            "FICTION! 1500|Teleportation 2500|Genetics 2500|Psychic powers 2500|Widow DNA 2500|");
}

// The research figure and the turns for the first item (500 points) at
// the edges: a share too small for a point a turn, one just big enough,
// and shares too big to need a whole turn.
TEST(ResearchStation, TurnsAtTheirEdges) {
  const struct {
    int povolnians, share;
    const char* shown;
  } cases[] = {{20, 0, "66 N/A"}, {20, 5, "66 166"},  {2, 15, "6 999"},  {2, 20, "6 500"},
               {3, 10, "10 500"}, {250, 60, "833 1"}, {250, 65, "833 1"}};
  for (const auto& c : cases) {
    researchers(c.povolnians);
    theTechTree().find("A1")->changePercentOfCrew(c.share);
    scripted::run(researchAssignments);
    EXPECT_EQ(shown(33, 20, 4) + " " + shown(72, 21, 4), c.shown)
        << c.povolnians << " researchers, share " << c.share;
  }
}

// Switching the shield on costs 50, and the last of the fuel ends the game.
TEST(EngineeringDeck, TheShieldsStartUpAtTheEdgeOfTheFuel) {
  const struct {
    int before, after;
    bool over;
  } cases[] = {{52, 2, false}, {51, 1, false}, {50, 0, true}, {49, 0, true}, {0, 0, true}};
  for (const auto& c : cases) {
    startFreshRun();
    theMothership().setFuel(c.before);
    scripted::addKeys("Up Up Enter x");
    scripted::run(runEngineeringDeck);
    EXPECT_EQ(theMothership().fuel(), c.after) << c.before;
    EXPECT_EQ(isGameOver(), c.over) << c.before;
  }
}

}  // namespace
