// Portraits for the end screens: the faces the captain meets at the end.
//
// Each portrait is 40 cells wide and 17 rows tall, drawn on a black screen
// with a line of text above and below it. Cells outside the figure are not
// drawn, so the black behind shows through.
//
// kKryptalPortrait: the alien who kills the captain after a mutiny, a fanged
// head with glaring eyes in a mane of green rings, with an ornament (code 236)
// at both ends of row 3.
// kCarollaPortrait: the ship's advisor who warns that food is running low,
// a worried face in a mass of brown and yellow hair.
#pragma once

#include "game/art/picture.h"

extern const Picture kKryptalPortrait;
extern const Picture kCarollaPortrait;
