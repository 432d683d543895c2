// libFuzzer's entry: the bytes of an input play the whole game (see
// tests/support/fuzz_driver.h for what a byte means); a broken invariant
// stops the run as a crash so that libFuzzer keeps the input.
//   build-fuzz/skarmada_fuzz build-fuzz/corpus fuzz/corpus
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/support/fuzz_driver.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::size_t at = 0;
  auto next = [&]() -> int { return at < size ? data[at++] : -1; };
  const FuzzResult result = fuzzGame(next, static_cast<std::int64_t>(size), 1);
  if (!result.failure.empty()) {
    std::fprintf(stderr, "broken invariant: %s\n", result.failure.c_str());
    std::abort();
  }
  return 0;
}
