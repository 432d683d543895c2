// Puts the whole game back to the state of a new run of the program, with
// the random numbers seeded for a repeatable test, and a blank scripted
// screen with an empty key script.
#pragma once

void startFreshRun(unsigned seed = 1);
