// Long streams of random keys through the whole program, checking the
// game's invariants before every key: nothing may crash (the tests run
// under the address and undefined-behaviour sanitizers), hang, or leave the
// game in an impossible state.
#include <gtest/gtest.h>

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

}  // namespace
