// The title screen's art: the logo at (3, 1), the emblem at (51, 8), and
// the rows of the credits panel.
#pragma once

#include "game/art/picture.h"

extern const Picture kTitleTop;     // 70 x 6, drawn at (3, 1)
extern const Picture kTitleMiddle;  // 43 x 6, drawn at (3, 7)
extern const Picture kTitleTail;    // 16 x 1, drawn at (3, 13)
extern const Picture kEmblem;       // 21 x 5, drawn at (51, 8)
extern const char* const kCreditRows[9];  // 35 characters each
