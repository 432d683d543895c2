// Long streams of random keys through the whole program: nothing may crash
// (the tests run under the address and undefined-behaviour sanitizers),
// hang, or leave the ship in an impossible state.
#include <gtest/gtest.h>

#include <iterator>

#include "game/console/random.h"
#include "game/console/scripted.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "game/shell/program.h"
#include "tests/support/fresh_game.h"

namespace {

// Mostly the keys the game answers to, weighted as a player would press
// them, and some of everything else: any character, and key releases.
const char* const kKeys[] = {"Up",    "Down",  "Left",  "Right",     "Up",     "Down", "Left",
                             "Right", "Enter", "Enter", "Esc",       "y",      "n",    "Tab",
                             "PgUp",  "PgDn",  "Space", "Backspace", "Release"};

KeyEvent randomKey(std::uint32_t& state) {
  state = state * 1664525u + 1013904223u;
  const std::uint32_t pick = (state >> 8) % 24;
  if (pick < std::size(kKeys)) return scripted::keyNamed(kKeys[pick]);
  return KeyEvent::typed(static_cast<char>(' ' + (state >> 16) % 95));
}

TEST(RandomKeys, TheGameSurvivesAnyKeys) {
  for (std::uint32_t seed = 1; seed <= 40; ++seed) {
    startFreshRun(seed);
    std::uint32_t state = seed;
    for (int i = 0; i < 3000; ++i) {
      if (i % 50 == 0) scripted::addIdle(static_cast<int>(state % 700));
      scripted::addKey(randomKey(state));
    }
    int code = 0;
    scripted::run([&] { code = runProgram(); });
    EXPECT_EQ(code, 0);
    const Mothership& ship = theMothership();
    EXPECT_GE(ship.fuel(), 0) << "seed " << seed;
    EXPECT_TRUE(ship.morale() >= 0 && ship.morale() <= 100);
    EXPECT_TRUE(ship.currentSector() >= 0 && ship.currentSector() <= kSectorCount);
    EXPECT_GE(thePlanet().enemyTotal(), 0);
  }
}

}  // namespace
