// The end of a day: the one place where time passes. Called from the Library
// once the player has said yes to "End Day?". It runs one fixed sequence,
// and each step sees what the steps before it did: the calendar, the Super
// Freighter's round, the meal, morale, the ship's movement and its fuel, the
// news, and
// the tests for the end of the game (fuel, morale, victory, in that order;
// each that holds shows its screen).
#pragma once

// Thresholds the day compares against.
inline constexpr int kRiotMorale = 10;
inline constexpr int kAgitatedMorale = 20;
inline constexpr int kEmptyTankFuel = 10000;
inline constexpr int kLowFuel = 50000;

void runDay();
