#include "game/planet/ground_map.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/planet/ground_campaign_status.h"
#include "game/planet/planet.h"
#include "tests/support/fresh_game.h"

namespace {

class GroundMapTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }
  SubSector& sub(int n, int k) { return thePlanet().subSector(n, k); }
  bool playStatus(const std::string& keys) {
    scripted::addKeys(keys);
    return !scripted::run(runGroundCampaignStatus);
  }
};

TEST_F(GroundMapTest, BordersOfTheMapTheOrbitBoxAndTheSectorView) {
  drawSectorMap(2, 1, 2, true, 15);
  EXPECT_EQ(scripted::textAt(2, 1, 10), "\xC9\xCD\xCD\xCD\xCD\xCD\xCD\xCD\xCB\xCD");
  EXPECT_EQ(scripted::textAt(2, 5, 10), "\xCC\xB5------\xE8-");
  EXPECT_EQ(scripted::textAt(42, 5, 9), "\xE8------\xC6\xB9");
  EXPECT_EQ(scripted::codeAt(10, 2), 208) << "an inner side starts with 208 in the top row";
  EXPECT_EQ(scripted::codeAt(10, 3), '|');
  EXPECT_EQ(scripted::codeAt(10, 16), 210);
  EXPECT_EQ(scripted::textAt(18, 19, 17), "\xBA O  R  B  I  T \xBA");
  EXPECT_EQ(scripted::codeAt(34, 20), 189);
  drawSubSectorGrid(2, 1, 2);
  EXPECT_EQ(scripted::textAt(2, 6, 12), "\xCC\xB5--------\x0F-");
  EXPECT_EQ(scripted::codeAt(12, 20), 210);
}

TEST_F(GroundMapTest, TheMiddleRowOfTerrainShowsTheUpperSubSectorFirst) {
  sub(1, 10).markMapped();  // Mountains, the lower of the pair at offset 4
  drawSectorTerrain(1, 3, 2);
  EXPECT_EQ(scripted::textAt(7, 3, 2), "\x7F\x1E");
  EXPECT_EQ(scripted::colourAt(7, 3), 135);
  EXPECT_EQ(scripted::codeAt(3, 2), ' ') << "unseen land is blank";
  sub(1, 6).markMapped();  // the Farm Land above it takes the place
  sub(1, 9).markMapped();  // a City, narrow at offset 2
  drawSectorTerrain(1, 3, 2);
  EXPECT_EQ(scripted::textAt(7, 3, 2), "\xB2\xB1");
  EXPECT_EQ(scripted::textAt(5, 3, 2), "\xCE ") << "offset 3 is left for the letter";
}

TEST_F(GroundMapTest, ThePanelShowsOnlyWhatIsKnown) {
  drawSubSectorPanel(0, 1);
  EXPECT_EQ(scripted::textAt(45, 2, 11), "Sector: ???");
  EXPECT_EQ(scripted::textAt(45, 3, 20), "Known Enemy Pop: ???");
  sub(1, 0).markMapped();
  drawSubSectorPanel(0, 1);
  EXPECT_EQ(scripted::textAt(45, 2, 21), "Sector: Military Base");
  EXPECT_EQ(scripted::textAt(62, 3, 13), "323,038      ");
  sub(1, 0).addPopulation(-400000);
  drawSubSectorPanel(0, 1);
  EXPECT_EQ(scripted::textAt(62, 3, 13), std::string(13, ' ')) << "a negative sum shows blank";
}

TEST_F(GroundMapTest, CursorsWrapWithoutAnOrbitBox) {
  EXPECT_EQ(groundCursorAfter(22, kKeyDown), 4);
  EXPECT_EQ(groundCursorAfter(1, kKeyLeft), 6);
  EXPECT_EQ(groundCursorAfter(12, kKeyRight), 7);
  EXPECT_EQ(groundCursorAfter(1, kKeyUp), 19);
  auto after = [](int k, int key) {
    moveSubSectorCursor(k, key);
    return k;
  };
  EXPECT_EQ(after(0, kKeyUp), 12);
  EXPECT_EQ(after(15, kKeyDown), 3);
  EXPECT_EQ(after(7, kKeyRight), 4);
  EXPECT_EQ(after(4, kKeyEnter), 4);
}

TEST_F(GroundMapTest, StatusShowsKnownPeopleAndBunkers) {
  thePlanet().sector(2).bunker().markBuilt();
  EXPECT_FALSE(playStatus("Idle:1"));
  EXPECT_EQ(scripted::textAt(2, 18, 13), "Sector: I    ");
  EXPECT_EQ(scripted::textAt(26, 19, 13), "0            ");
  EXPECT_EQ(scripted::colourAt(14, 3), 14) << "L has a bunker: a yellow letter";
  EXPECT_FALSE(playStatus("Right Tab"));
  EXPECT_EQ(scripted::textAt(26, 20, 3), "Yes");
  EXPECT_EQ(scripted::colourAt(14, 3), 15) << "white once the cursor has been on it";
  EXPECT_EQ(scripted::textAt(26, 19, 9), "1,596,282") << "Tab mapped all of L";
  EXPECT_NE(scripted::codeAt(11, 2), ' ') << "and its terrain is drawn";
}

TEST_F(GroundMapTest, TheSectorViewMapsWhatIsUnderTheCursorAndShowsTheBunker) {
  EXPECT_TRUE(playStatus("Right Right Enter Enter Right Enter Esc Esc"));
  EXPECT_TRUE(sub(3, 0).mapped());
  EXPECT_TRUE(sub(3, 1).mapped());
  EXPECT_FALSE(sub(3, 2).mapped());
  Bunker& bunker = thePlanet().sector(5).bunker();
  bunker.setSubSector(6);
  bunker.markBuilt();
  scripted::addKeys("Idle:1");
  scripted::run([] { runSectorView(5); });
  EXPECT_TRUE(sub(5, 6).mapped());
  EXPECT_EQ(scripted::textAt(tileColumn(6) + 6, tileRow(6) + 2, 2), "\xF0\xF0");
  EXPECT_EQ(scripted::colourAt(tileColumn(6) + 6, tileRow(6) + 2), 79);
  EXPECT_EQ(scripted::colourAt(tileColumn(0), tileRow(0)), 14) << "an unknown tile";
}

}  // namespace
