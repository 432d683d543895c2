// The Super Freighter, against its goldens in tests/golden/freighter.
#include "game/freighter/super_freighter.h"

#include "game/console/scripted.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"
#include "tests/support/golden.h"

namespace {

// Every arrow from every spot of the two-by-three grid, the screen checked
// after each key: 1 auction house, 2 cafe / 3 bazaar, 4 mercenaries / 5 the
// Mothership, 6 Sal's.
const char kEveryArrow[] =
    "@at_the_ship Esc @at_the_ship Left @at_the_ship Down @at_the_ship Right @sals_lit "
    "Right @sals_lit Down @sals_lit Up @mercenaries_lit Right @mercenaries_lit Left @bazaar_lit "
    "Left @bazaar_lit Down @at_the_ship Up @bazaar_lit Up @auction_house_lit Left "
    "@auction_house_lit Up @auction_house_lit Down @bazaar_lit Right @mercenaries_lit Down "
    "@sals_lit Left @at_the_ship Up Up Right @cafe_lit Right @cafe_lit Up @cafe_lit Down "
    "@mercenaries_lit Up @cafe_lit Left @auction_house_lit";

const Scene kScenes[] = {
    {"every arrow from every spot", kEveryArrow, runFreighter},
    {"a knocked front stays red until left", "Up Up Right Enter @cafe_knocked Enter @cafe_knocked "
     "Down @mercenaries_lit Up @cafe_lit", runFreighter},
    {"the ship green while the shields are on", "Up @bazaar_lit_shields_on", runFreighter,
     [] { theMothership().toggleShields(); }},
    {"from the ship map and back by the ship",
     "Enter Right Down Down Enter @at_the_ship Enter @ship_map_back", nullptr,
     [] { globals().freighterCountdown = 0; }},
};

TEST(Screens, Freighter) { playScenes("freighter", kScenes); }

// A knock: red, yellow, three times, then red, 80 ms each; a key pressed
// meanwhile is lost.
TEST(Screens, FreighterKnock) {
  startFreshRun();
  int frames = 0;
  scripted::watchSleeps([&](int milliseconds) {
    EXPECT_EQ(milliseconds, 80);
    EXPECT_TRUE(screenMatches(frames++ % 2 == 0 ? "freighter/cafe_knocked" : "freighter/cafe_lit"));
  });
  scripted::addKeys("Up Up Right Enter");
  scripted::addBusy({KeyEvent::arrow(kKeyDown)});  // pressed during the knock: lost
  scripted::run(runFreighter);
  EXPECT_EQ(frames, 7);
  scripted::watchSleeps(nullptr);
  EXPECT_TRUE(screenMatches("freighter/cafe_knocked"));
}

}  // namespace
