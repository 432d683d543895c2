#include "game/fleet/bunker_site.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/planet/planet.h"
#include "tests/support/fresh_game.h"

namespace {

int pick(int sector, const std::string& keys) {
  scripted::addKeys(keys);
  int site = -99;
  scripted::run([&] { site = pickBunkerSite(sector); });
  return site;
}

TEST(BunkerSite, OnlyMappedMountainsDesertRubbleOrRuinsTakeABunker) {
  struct Case {
    int land;
    bool mapped, taken;
  } cases[] = {
      {kMountains, true, true}, {kMountains, false, false},   {kDesert, true, true},
      {kRubble, true, true},    {kRuins, true, true},         {kCity, true, false},
      {kFarmLand, true, false}, {kMilitaryBase, true, false},
  };
  for (const Case& c : cases) {
    startFreshRun();
    SubSector& sub = thePlanet().subSector(7, 6);
    sub.setLandType(c.land);
    if (c.mapped) sub.markMapped();
    // Right Right Down reaches sub-sector 6; Enter, then Escape if refused.
    EXPECT_EQ(pick(7, "Right Right Down Enter Esc"), c.taken ? 6 : -1)
        << landName(c.land) << (c.mapped ? " mapped" : " unmapped");
  }
}

TEST(BunkerSite, TheCursorWrapsWithinItsRowAndColumn) {
  startFreshRun();
  for (int k : {3, 12, 15}) {
    thePlanet().subSector(1, k).setLandType(kDesert);
    thePlanet().subSector(1, k).markMapped();
  }
  EXPECT_EQ(pick(1, "Left Enter"), 3);
  EXPECT_EQ(pick(1, "Up Enter"), 12);
  EXPECT_EQ(pick(1, "Up Left Enter"), 15);
  EXPECT_EQ(pick(1, "Right Right Right Right Down Down Down Down Left Enter"), 3);
  EXPECT_EQ(scripted::textAt(20, 0, 43), "SELECT A PERMENANT LOCATION FOR THIS BUNKER");
}

}  // namespace
