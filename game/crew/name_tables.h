// The name parts the generator joins into crew names, race by race, in
// table order, so that a drawn index means the same row everywhere. Each row
// is NUL-terminated within its fixed width, and the width bounds the text of
// every row. Rows may repeat.
#pragma once

// Povolnians: reptile genera, generation marks, genera and families.
extern const char povolnianGiven[41][11];
extern const char povolnianSuffix[5][4];
extern const char povolnianFamily[30][16];

// Heads and tails of the other races, joined with no separator.
extern const char grekkpStem[65][7];
extern const char grekkpMale[63][9];
extern const char grekkpFemale[47][8];
extern const char makoHead[76][5];
extern const char makoTail[76][9];
extern const char uberfleckHead[74][7];
extern const char uberfleckTail[66][9];
extern const char mududuHead[63][6];
extern const char mududuTail[88][10];
extern const char oblivionHead[52][6];
extern const char oblivionTail[59][9];
extern const char deorianHead[145][6];
extern const char deorianTail[104][9];

// Pet names, each ending in one blank.
extern const char hampsterName[106][16];

// Ivinians cross a tree with a flower: tree heads with flower tails, or
// flower heads with tree tails.
extern const char ivinianTreeHead[41][8];
extern const char ivinianFlowerTail[32][7];
extern const char ivinianFlowerHead[38][7];
extern const char ivinianTreeTail[38][7];

// Probes and Humans: plain English first names in alphabetical order, and
// the jokes that one member in 25 is given instead.
extern const char humanMale[274][13];
extern const char humanFemale[303][11];
extern const char jokeName[9][18];
