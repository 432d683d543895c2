// What craft do at the end of a day. Travel takes one night, whatever the
// distance, and lands all but the first two crew; saucers scout, and
// abduct cattle or people for the place where they stand. Attacks and
// bombing are the raids' own (game/planet/battle.h).
#pragma once

// Every craft on Travel arrives at its destination, inactive.
void moveCraft();

// Every saucer on Scouting or one of the two abductions does its job.
void runSaucerMissions();
