// Pictures of the LIVING QUARTERS.
//
// kCrewJobsBox: the double-line box of the Assign Crew Jobs screen, 74 cells
// wide and 22 rows tall, drawn at column 3, row 1: three title boxes on rows
// 1 and 2 over the three lists (bars at columns 3, 27, 51 and 76 from row 4
// to 17), a line on row 18 closing them, and the biography panel on rows 19
// to 21. One colour.
//
// kEmersonPicture: Emerson at his table in the lounge, 39 cells wide and 17
// rows tall: a green, crested head with its eyes shut and a wide toothy grin,
// a steaming mug held up to his cheek, his blue uniform with a yellow badge,
// and the table in front of him. Cells outside the figure are not drawn.
#pragma once

#include "game/art/picture.h"

extern const Picture kCrewJobsBox;
extern const Picture kEmersonPicture;
