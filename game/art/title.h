// The title screen's pictures and the credits.
//
// The logo stands in yellow (14) at column 3. The name fills rows 1 to 6 in
// double-lined letters. Under it a ribbon underlines the name, curls round
// the word MOTHERSHIP in single-lined letters and trails off to the left
// just above the menu (rows 7 to 13). The emblem, a flying saucer in half
// blocks, stands in light green (10) to the right of the ribbon. None of it
// reaches row 14, where the menu's frame begins.
//
// While VIEW CREDITS is selected the credits stand in yellow at column 43,
// rows 15 to 23: one maker a row, the role at the left end and the name at
// the right end, joined by a dotted leader.
#pragma once

#include "game/art/picture.h"

extern const Picture kTitleTop;     // 70 x 6, drawn at (3, 1)
extern const Picture kTitleMiddle;  // 43 x 6, drawn at (3, 7)
extern const Picture kTitleTail;    // 16 x 1, drawn at (3, 13)
extern const Picture kEmblem;       // 21 x 5, drawn at (51, 8)

extern const char* const kCreditRows[9];  // 35 characters each
