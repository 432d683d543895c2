#include "game/art/picture.h"

#include <unordered_map>

#include "game/console/console.h"
#include "game/console/cp437.h"

const std::string& pictureRow(const Picture& picture, int row) {
  // Rows are decoded once: the ship map redraws its rooms on every pass.
  static std::unordered_map<const char*, std::string> decoded;
  const char* source = picture.rows[row];
  auto it = decoded.find(source);
  if (it == decoded.end()) it = decoded.emplace(source, cp437::fromUtf8(source)).first;
  return it->second;
}

int pictureColour(const Picture& picture, int column, int row, int colour) {
  if (picture.colours == nullptr) return colour;
  char key = picture.colours[row][column];
  if (key == ' ') return -1;
  for (int i = 0; i < picture.paletteSize; ++i) {
    if (picture.palette[i].key == key) return picture.palette[i].colour;
  }
  return -1;
}

void drawPicture(const Picture& picture, int column, int row, int colour) {
  for (int y = 0; y < picture.height; ++y) {
    const std::string& codes = pictureRow(picture, y);
    int x = 0;
    while (x < picture.width) {
      int runColour = pictureColour(picture, x, y, colour);
      int end = x + 1;
      while (end < picture.width && pictureColour(picture, end, y, colour) == runColour) ++end;
      if (runColour >= 0) {
        Console::putText(std::string_view(codes).substr(x, end - x), column + x, row + y,
                         runColour);
      }
      x = end;
    }
  }
}
