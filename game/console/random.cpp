#include "game/console/random.h"

#include <cstdint>

namespace {
std::uint32_t state = 1;
}

void seedRandom(unsigned seed) { state = seed; }

int gameRand() {
  state = state * 1103515245u + 12345u;
  return static_cast<int>((state / 65536u) % 32768u);
}
