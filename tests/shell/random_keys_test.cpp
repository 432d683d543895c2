// Long streams of random keys through the whole program: nothing may crash
// (the tests run under the address and undefined-behaviour sanitizers),
// hang, or leave the ship in an impossible state.
#include <gtest/gtest.h>

#include "game/console/random.h"
#include "game/console/scripted.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "game/shell/program.h"
#include "tests/support/fresh_game.h"

namespace {

KeyEvent randomKey(std::uint32_t& state) {
  state = state * 1664525u + 1013904223u;
  const std::uint32_t pick = (state >> 8) % 100;
  // Mostly the keys the game answers to, some of everything else.
  if (pick < 40) return KeyEvent::arrow(static_cast<std::uint16_t>(kKeyLeft + pick % 4));
  if (pick < 55) return KeyEvent::enter();
  if (pick < 62) return KeyEvent::escape();
  if (pick < 68) return KeyEvent::typed(pick % 2 ? 'y' : 'n');
  if (pick < 71) return KeyEvent::press(kKeyTab, 9);
  if (pick < 74) return KeyEvent::arrow(static_cast<std::uint16_t>(kKeyPageUp + pick % 2));
  if (pick < 77) return KeyEvent::press(kKeySpace, ' ');
  if (pick < 80) return KeyEvent::press(kKeyBackspace, 8);
  if (pick < 83) {
    KeyEvent release;
    release.keyDown = false;
    return release;
  }
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
    EXPECT_GE(ship.morale(), 0.0f);
    EXPECT_LE(ship.morale(), 100.0f);
    EXPECT_GE(ship.currentSector(), 0);
    EXPECT_LE(ship.currentSector(), kSectorCount);
    EXPECT_GE(thePlanet().enemyTotal(), 0);
  }
}

}  // namespace
