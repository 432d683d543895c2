// The game's one source of chance: values 0 to 32767, the classic 15-bit
// generator, so that every `gameRand() % n` means the same on every platform.
// Seeded once from the clock at start-up; tests seed it to replay a game.
#pragma once

void seedRandom(unsigned seed);
int gameRand();
