// Long streams of random keys through the whole program, checking the
// game's invariants before every key: nothing may crash (the tests run
// under the address and undefined-behaviour sanitizers), hang, or leave the
// game in an impossible state.
#include <gtest/gtest.h>

#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"
#include "tests/support/fuzz_driver.h"

namespace {

TEST(RandomKeys, TheWholeGameKeepsItsInvariantsUnderAnyKeys) {
  std::int64_t days = 0;
  for (std::uint32_t seed = 1; seed <= 8; ++seed) {
    const FuzzResult result = fuzzGameWithSeed(seed, 10000);
    EXPECT_EQ(result.failure, "") << "seed " << seed;
    EXPECT_EQ(result.keys, 10000);
    days += result.days;
  }
  EXPECT_GT(days, 0) << "the keys never reached the end of a day";
}

TEST(RandomKeys, TheInvariantsCatchABrokenShip) {
  startFreshRun();
  watchInvariantsFromNow();
  EXPECT_EQ(checkInvariants(), "");
  thePlanet().subSector(4, 2).addTroops(1);
  EXPECT_EQ(checkInvariants(), "the world's forces grew");
  theMothership().setMorale(100.5f);
  EXPECT_EQ(checkInvariants(), "morale outside 0 to 100");
  startFreshRun();
  theMothership().aircraft().add(0, 6000000, 0);
  theMothership().aircraft().at(0).setLocation(3);
  EXPECT_EQ(checkInvariants(), "a craft's location is not its list's: location 0");
}

}  // namespace
