// What the bunkers do at the end of a day: their crews eat (and, with no
// food, eat one of their own), and the crews of unfinished bunkers build.
#pragma once

// Every sector's bunker feeds its crew, in sector order.
void runBunkerMeals();

// Every staffed, unfinished bunker does one day of work and says how far
// it has come.
void runBunkerConstruction();
