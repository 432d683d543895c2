#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "game/art/portraits.h"

TEST(PortraitsArt, SoundPicturesOfTheFigureInItsOwnColours) {
  const struct {
    const char* name;
    const Picture& picture;
    std::set<int> colours;  // all on black
  } portraits[] = {{"Kryptal", kKryptalPortrait, {2, 4, 7, 10, 12, 14, 15}},
                   {"Carolla", kCarollaPortrait, {2, 4, 6, 7, 11, 12, 13, 14}}};
  for (const auto& [name, picture, colours] : portraits) {
    SCOPED_TRACE(name);
    ASSERT_EQ(pictureFaults(picture), std::vector<std::string>{});
    ASSERT_EQ(picture.width, 40);
    ASSERT_EQ(picture.height, 17);
    ASSERT_NE(picture.colours, nullptr);
    for (int y = 0; y < 17; ++y) {
      std::string codes = pictureRow(picture, y);
      for (int x = 0; x < 40; ++x) {
        // A glyph with no colour vanishes; a coloured blank means key rows out of line.
        int colour = pictureColour(picture, x, y, 0);
        EXPECT_EQ(colour >= 0, codes[x] != ' ') << x << "," << y;
        if (colour >= 0) {
          EXPECT_TRUE(colours.count(colour)) << colour << " at " << x << "," << y;
        }
      }
    }
  }
}

TEST(PortraitsArt, KryptalHasOrnamentsAtBothEndsOfRowThree) {
  std::string row = pictureRow(kKryptalPortrait, 3);
  ASSERT_EQ(row.size(), 40u);
  auto ornament = [&](int x) {
    return static_cast<unsigned char>(row[x]) == 236 &&
           pictureColour(kKryptalPortrait, x, 3, 0) >= 0;
  };
  EXPECT_TRUE(ornament(0) || ornament(1) || ornament(2));
  EXPECT_TRUE(ornament(37) || ornament(38) || ornament(39));
}
