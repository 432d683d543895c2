// Boxes of double lines, as the decks' tables draw them. The caller lists
// straight lines; where lines meet, the right junction is drawn.
#pragma once

#include <initializer_list>

struct BoxLine {
  int column0, row0;  // one end
  int column1, row1;  // the other, in the same row or the same column
};

void drawDoubleLines(std::initializer_list<BoxLine> lines, int colour);
