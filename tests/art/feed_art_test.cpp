#include <gtest/gtest.h>

#include <set>
#include <string>

#include "game/art/ion_feed.h"
#include "game/art/land_tiles.h"

namespace {

unsigned char code(const Picture& p, int x, int y) { return pictureRow(p, y)[x]; }
bool drawn(const Picture& p, int x, int y) {
  return x >= 0 && y >= 0 && x < p.width && y < p.height && pictureColour(p, x, y, 0) >= 0;
}
template <class Check>
void eachCell(const Picture& p, Check check) {
  for (int y = 0; y < p.height; ++y) {
    for (int x = 0; x < p.width; ++x) check(x, y);
  }
}

}  // namespace

TEST(FeedArt, ColouredPicturesAreSoundSizedAndInTheirColours) {
  struct Case {
    const Picture& picture;
    int width, height;
    std::set<int> colours;
    bool seeThrough = false;  // only the blasts leave cells undrawn
  };
  const Case cases[] = {
      {kLandTiles[0], 9, 4, {32, 36, 38}},
      {kLandTiles[1], 9, 4, {112, 120, 126, 127}},
      {kLandTiles[2], 9, 4, {96, 98, 111, 112, 120}},
      {kLandTiles[3], 9, 4, {2, 7, 114, 120, 127}},
      {kLandTiles[4], 9, 4, {96, 108, 110}},
      {kLandTiles[5], 9, 4, {32, 36, 38}},
      {kLandTiles[6], 9, 4, {104, 112}},
      {kUnknownTile, 9, 4, {14}},
      {kFeedFrame, 31, 17, {14, 15}},
      {kEmptyFrame, 31, 17, {14}},
      {kCityScene, 29, 6, {1, 2, 4, 6, 8, 14, 46, 96, 112, 120, 126, 135}},
      {kMountainScene, 29, 6, {7, 10, 15, 19, 32, 33, 42, 46}},
      {kDesertScene, 29, 6, {2, 110}},
      {kBaseScene, 29, 6, {1, 6, 7, 14, 15, 120, 135}},
      {kFarmScene, 29, 6, {1, 4, 6, 14, 15, 78, 135}},
      {kRubbleScene, 29, 6, {8, 15, 135}},
      {kWastelandScene, 29, 6, {2, 8, 15, 42, 135}},
      {kAftermath, 29, 6, {4, 8, 14, 15}},
      {kBlastA, 22, 5, {1, 15, 19, 59}, true},
      {kBlastB, 26, 5, {1, 15, 19, 59}, true},
      {kBlastC, 29, 6, {1, 15, 19, 27, 59}, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    ASSERT_TRUE(pictureFaults(c.picture).empty());
    ASSERT_TRUE(c.picture.width == c.width && c.picture.height == c.height);
    eachCell(c.picture, [&](int x, int y) {
      int colour = pictureColour(c.picture, x, y, -1);
      EXPECT_TRUE(colour < 0 || c.colours.count(colour)) << x << "," << y << ": " << colour;
      EXPECT_TRUE(colour >= 0 || c.seeThrough) << "a hole at " << x << "," << y;
    });
  }
}

TEST(FeedArt, FrameIsAShadeBorderAroundASkyWithStarsAtTheTop) {
  int stars = 0;
  eachCell(kFeedFrame, [&](int x, int y) {
    bool border = x == 0 || y == 0 || x == 30 || y == 16;
    unsigned char c = code(kFeedFrame, x, y);
    EXPECT_EQ(code(kEmptyFrame, x, y), border ? 176 : ' ') << x << "," << y;
    if (border) {
      EXPECT_EQ(c * 1000 + pictureColour(kFeedFrame, x, y, 0), 176 * 1000 + 14) << x << "," << y;
    } else if (c != ' ') {
      EXPECT_TRUE(std::string("\xFA\xF9*.").find(c) != std::string::npos && y <= 8)
          << x << "," << y;
      ++stars;
    }
  });
  EXPECT_GE(stars, 5);
}

TEST(FeedArt, CitySignIsWrittenOnAPlainBrownFace) {
  int y = kCitySignPlace.row - kScenePlace.row;
  for (int x = kCitySignPlace.column - kScenePlace.column, i = 0; i < 2; ++i, ++x) {
    EXPECT_EQ(code(kCityScene, x, y), ' ');
    EXPECT_EQ(pictureColour(kCityScene, x, y, 0) / 16, kCitySignColour / 16);
  }
}

TEST(FeedArt, BlastIsADomeOfShadeThatGrows) {
  const Picture* frames[] = {&kBlastA, &kBlastB, &kBlastC};
  FeedPlace places[] = {kBlastAPlace, kBlastBPlace, kBlastCPlace};
  for (int i = 0; i < 3; ++i) {
    const Picture& p = *frames[i];
    EXPECT_FALSE(drawn(p, 0, 0) || drawn(p, p.width - 1, 0)) << i;
    eachCell(p, [&](int x, int y) {
      EXPECT_TRUE(!drawn(p, x, y) || code(p, x, y) == 177 || code(p, x, y) == 178);
      // What the smaller dome covered, the wider one covers too.
      if (i > 0 && drawn(*frames[i - 1], x + places[i].column - places[i - 1].column,
                         y + places[i].row - places[i - 1].row)) {
        EXPECT_TRUE(drawn(p, x, y)) << i << ": " << x << "," << y;
      }
    });
  }
}

TEST(FeedArt, NoiseIsShadeThatFlickers) {
  for (int i = 0; i < 3; ++i) {
    const Picture& p = kNoise[i];
    ASSERT_TRUE(pictureFaults(p).empty() && p.width == 29 && p.height == 15 && !p.colours);
  }
  for (int i = 0; i < 3; ++i) {
    int differ = 0;
    eachCell(kNoise[i], [&](int x, int y) {
      unsigned char c = code(kNoise[i], x, y);
      EXPECT_TRUE(c == ' ' || (c >= 176 && c <= 178)) << i << ": " << x << "," << y;
      differ += c != code(kNoise[(i + 1) % 3], x, y);
    });
    EXPECT_GT(differ, 29 * 15 / 2) << i;
  }
}

TEST(FeedArt, TileStagesGrowFromTheMiddle) {
  for (int i = 0; i < 4; ++i) {
    const Picture& p = kTileStages[i];
    FeedPlace at = kTileStagePlaces[i];
    ASSERT_TRUE(pictureFaults(p).empty() && p.colours == nullptr) << i;
    EXPECT_EQ(2 * at.column + p.width, kLandTileWidth) << i;
    EXPECT_LE(at.row + p.height, kLandTileHeight) << i;
    if (i == 0) continue;
    FeedPlace was = kTileStagePlaces[i - 1];
    eachCell(kTileStages[i - 1], [&](int x, int y) {
      EXPECT_EQ(code(p, x + was.column - at.column, y + was.row - at.row),
                code(kTileStages[i - 1], x, y))
          << i;
    });
  }
}

TEST(FeedArt, StrewnFarmIsTheFarmWithStraySymbols) {
  const std::string stray = "\x9D\xE8\xF4\xF5\xED\x9E\x0F";
  std::set<char> seen;
  eachCell(kLandTiles[0], [&](int x, int y) {
    EXPECT_EQ(kLandTiles[5].colours[y][x], kLandTiles[0].colours[y][x]);
    char strewn = pictureRow(kLandTiles[5], y)[x];
    if (strewn == pictureRow(kLandTiles[0], y)[x]) return;
    EXPECT_NE(stray.find(strewn), std::string::npos) << x << "," << y;
    seen.insert(strewn);
  });
  EXPECT_EQ(seen.size(), stray.size());
}
