// Plays the whole program from its title menu with keys made from a stream
// of bytes, and checks the game's invariants before every key: fuel and food
// never below 0, morale within 0 to 100, the hold and the dock as their
// formulas give them, every list within its capacity, every craft and crew
// member in exactly one place, no force on the ground ever growing (but for
// one bombed below 0 that the Ion Cannon sets back to 0).
//
// A byte is a key (weighted toward the arrows, Enter and Escape), a few
// idle passes for the polling screens, a burst of several keys at once, or
// a key typed ahead while the game is busy. EXIT starts a new run.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

struct FuzzResult {
  std::int64_t keys = 0;      // keys pressed
  std::int64_t programs = 0;  // runs of the program, from the title to EXIT
  std::int64_t days = 0;      // days ended
  std::string failure;        // the first invariant broken, with the key's number
};

// `nextByte` gives a byte 0 to 255, or -1 when the input is used up. Stops
// after `maxKeys` keys or at the first broken invariant.
FuzzResult fuzzGame(const std::function<int()>& nextByte, std::int64_t maxKeys, unsigned seed);

// The same from a fixed-seed stream of pseudo-random bytes.
FuzzResult fuzzGameWithSeed(std::uint32_t seed, std::int64_t maxKeys);

// What the invariants find wrong with the game now; empty if nothing. The
// forces are compared with those of the last check, or of
// watchInvariantsFromNow.
std::string checkInvariants();
void watchInvariantsFromNow();
