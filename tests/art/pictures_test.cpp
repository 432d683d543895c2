// Every picture of the game: sound data, its size, its colours and the
// glyphs it may use. The ship's rooms have tests of their own.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "game/art/freighter.h"
#include "game/art/ion_feed.h"
#include "game/art/land_tiles.h"
#include "game/art/living_quarters.h"
#include "game/art/portraits.h"
#include "game/art/ship.h"
#include "game/art/title.h"

namespace {

using Codes = std::set<unsigned char>;

struct Case {
  const Picture& picture;
  int width, height;
  std::set<int> colours;  // empty for a one-colour picture
  Codes glyphs = {};      // empty: any glyph
};

const Codes kBoxDrawing = [] {
  Codes codes{' '};
  for (int c = 179; c <= 218; ++c) codes.insert(static_cast<unsigned char>(c));
  return codes;
}();
const Codes kShades{' ', 176, 177, 178};

TEST(Pictures, SoundSizedInTheirColoursAndGlyphs) {
  const Case cases[] = {
      {kShipPicture, 80, 19, {}},
      {kFreighterRoomPicture, 19, 3, {}},
      {kFreighterHull, 80, 23, {4, 8, 12, 15}},
      {kFreighterSpots[0], 35, 6, {}},
      {kFreighterSpots[1], 21, 6, {}},
      {kFreighterSpots[2], 23, 7, {}},
      {kFreighterSpots[3], 23, 4, {}},
      {kFreighterSpots[4], 17, 4, {}},
      {kFreighterSpots[5], 38, 8, {}},
      {kTitleTop, 70, 6, {}, kBoxDrawing},
      {kTitleMiddle, 43, 6, {}, kBoxDrawing},
      {kTitleTail, 16, 1, {}, kBoxDrawing},
      {kEmblem, 21, 5, {}, {' ', 219, 220, 223}},
      {kKryptalPortrait, 40, 17, {2, 4, 7, 10, 12, 14, 15}},
      {kCarollaPortrait, 40, 17, {2, 4, 6, 7, 11, 12, 13, 14}},
      {kEmersonPicture, 39, 17, {2, 3, 6, 7, 9, 10, 12, 14, 15}},
      {kCrewJobsBox, 74, 22, {}, kBoxDrawing},
      {kLandTiles[0], 9, 4, {32, 36, 38}},
      {kLandTiles[1], 9, 4, {112, 120, 126, 127}},
      {kLandTiles[2], 9, 4, {96, 98, 111, 112, 120}},
      {kLandTiles[3], 9, 4, {2, 7, 114, 120, 127}},
      {kLandTiles[4], 9, 4, {96, 108, 110}},
      {kLandTiles[5], 9, 4, {32, 36, 38}},
      {kLandTiles[6], 9, 4, {104, 112}},
      {kUnknownTile, 9, 4, {14}},
      {kFeedFrame, 31, 17, {14, 15}},
      {kEmptyFrame, 31, 17, {14}, {' ', 176}},
      {kCityScene, 29, 6, {1, 2, 4, 6, 8, 14, 46, 96, 112, 120, 126, 135}},
      {kMountainScene, 29, 6, {7, 10, 15, 19, 32, 33, 42, 46}},
      {kDesertScene, 29, 6, {2, 110}},
      {kBaseScene, 29, 6, {1, 6, 7, 14, 15, 120, 135}},
      {kFarmScene, 29, 6, {1, 4, 6, 14, 15, 78, 135}},
      {kRubbleScene, 29, 6, {8, 15, 135}},
      {kWastelandScene, 29, 6, {2, 8, 15, 42, 135}},
      {kAftermath, 29, 6, {4, 8, 14, 15}},
      {kBlastA, 22, 5, {1, 15, 19, 59}, {' ', 177, 178}},
      {kBlastB, 26, 5, {1, 15, 19, 59}, {' ', 177, 178}},
      {kBlastC, 29, 6, {1, 15, 19, 27, 59}, {' ', 177, 178}},
      {kNoise[0], 29, 15, {}, kShades},
      {kNoise[1], 29, 15, {}, kShades},
      {kNoise[2], 29, 15, {}, kShades},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    ASSERT_TRUE(pictureFaults(c.picture).empty());
    ASSERT_EQ(c.picture.width, c.width);
    ASSERT_EQ(c.picture.height, c.height);
    EXPECT_EQ(c.picture.colours == nullptr, c.colours.empty());
    for (int y = 0; y < c.height; ++y) {
      for (int x = 0; x < c.width; ++x) {
        const int colour = pictureColour(c.picture, x, y, -1);
        const auto glyph = static_cast<unsigned char>(pictureRow(c.picture, y)[x]);
        EXPECT_TRUE(c.colours.empty() || colour < 0 || c.colours.count(colour)) << x << "," << y;
        EXPECT_TRUE(c.glyphs.empty() || colour < 0 || c.glyphs.count(glyph)) << x << "," << y;
      }
    }
  }
}

TEST(Pictures, DetailsThePicturesPromise) {
  const std::string kryptalRow = pictureRow(kKryptalPortrait, 3);
  EXPECT_NE(kryptalRow.find('\xEC'), std::string::npos);
  EXPECT_GE(kryptalRow.rfind('\xEC'), 37u) << "an ornament at each end of the fourth row";
  EXPECT_LE(kryptalRow.find('\xEC'), 2u);
  for (const char* row : kCreditRows) EXPECT_EQ(std::string(row).size(), 35u);
}

}  // namespace
