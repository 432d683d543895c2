// The long fixed-seed run: plays the whole game with pseudo-random keys and
// checks its invariants before every key.
//   skarmada_soak [keys [seed]]    (a million keys and seed 1 by default)
#include <cstdio>
#include <cstdlib>

#include "tests/support/fuzz_driver.h"

int main(int argc, char** argv) {
  const long long keys = argc > 1 ? std::atoll(argv[1]) : 1000000;
  const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoll(argv[2])) : 1u;
  const FuzzResult result = fuzzGameWithSeed(seed, keys);
  std::printf("%lld keys, %lld games, %lld days ended, seed %u: %s\n",
              static_cast<long long>(result.keys), static_cast<long long>(result.programs),
              static_cast<long long>(result.days), seed,
              result.failure.empty() ? "no fault" : result.failure.c_str());
  return result.failure.empty() ? 0 : 1;
}
