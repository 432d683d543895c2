// The Ion Cannon's live feed: the small screen that shows the target while
// the cannon fires.
//
// The feed stands at kFeedOrigin on the screen and every picture below has
// its place given as an offset from that origin. The frame is 31 x 17: a
// border of shade around a night sky 29 x 15. A scene of the target's land
// fills the bottom six rows of the sky, the dome of the blast grows over it in
// three frames (cells outside the dome are not drawn, so the scene shows
// around it), and the crater is left. When the feed is cut, the sky turns to
// static: the three noise frames, cycled. The beam between sky and target is
// drawn by the feed's code.
//
// On the sector map the target's land tile is eaten from its middle out in
// four stages, placed from the tile's top left corner.
#pragma once

#include "game/art/picture.h"

struct FeedPlace {
  int column;
  int row;
};

inline constexpr FeedPlace kFeedOrigin{45, 5};

// Frame 31 x 17, the sky with stars in its upper half; and the same frame
// with an empty sky.
extern const Picture kFeedFrame;
extern const Picture kEmptyFrame;
inline constexpr FeedPlace kFramePlace{0, 0};

// Scenes, 29 x 6, by the target's land.
extern const Picture kCityScene;
extern const Picture kMountainScene;
extern const Picture kDesertScene;
extern const Picture kBaseScene;
extern const Picture kFarmScene;
extern const Picture kRubbleScene;
extern const Picture kWastelandScene;
inline constexpr FeedPlace kScenePlace{1, 10};

// One city carries a two-letter sign on its brown block, written over the
// city scene in kCitySignColour.
inline constexpr FeedPlace kCitySignPlace{16, 14};
inline constexpr int kCitySignColour = 96;

// The blast, small to wide.
extern const Picture kBlastA;  // 22 x 5
extern const Picture kBlastB;  // 26 x 5
extern const Picture kBlastC;  // 29 x 6
inline constexpr FeedPlace kBlastAPlace{4, 11};
inline constexpr FeedPlace kBlastBPlace{2, 11};
inline constexpr FeedPlace kBlastCPlace{1, 10};

// The smoking crater, 29 x 6, in place of the scene.
extern const Picture kAftermath;
inline constexpr FeedPlace kAftermathPlace{1, 10};

// Static over the whole sky, 29 x 15: one-colour pictures drawn in
// kNoiseColour.
extern const Picture kNoise[3];
inline constexpr FeedPlace kNoisePlace{1, 1};
inline constexpr int kNoiseColour = 15;

// The target's land tile burning away, stage 1 to 4, each holding the one
// before it: one-colour pictures drawn in kTileStageColour, placed from the
// tile's corner.
extern const Picture kTileStages[4];
inline constexpr FeedPlace kTileStagePlaces[4] = {{4, 1}, {3, 0}, {2, 0}, {1, 0}};
inline constexpr int kTileStageColour = 112;
