// Pictures: the game's character art, kept as data.
//
// A picture is a block of rows written in the source as the code page 437
// glyphs they show ("╔══╗"), so that the drawing can be read and edited as it
// looks. A one-colour picture takes its colour from the caller. A coloured
// picture has a second block of rows, one key character per cell, and a
// palette that turns each key into a colour attribute (foreground + 16 *
// background). The key ' ' marks a cell that is not drawn, so a picture can
// stand over what is already on the screen.
//
// Pictures are drawn as runs of cells of one colour with Console::putText.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

struct PaletteEntry {
  char key;
  std::uint8_t colour;
};

struct Picture {
  int width;
  int height;
  const char* const* rows;           // `height` UTF-8 rows of `width` glyphs
  const char* const* colours;        // nullptr, or `height` rows of `width` keys
  const PaletteEntry* palette;       // entries for the keys used in `colours`
  int paletteSize;
};

// A picture from its rows, its key rows and its palette, sized by them.
template <std::size_t H, std::size_t P>
constexpr Picture coloured(int width, const char* const (&rows)[H], const char* const (&keys)[H],
                           const PaletteEntry (&palette)[P]) {
  return {width, static_cast<int>(H), rows, keys, palette, static_cast<int>(P)};
}

// A one-colour picture from its rows.
template <std::size_t H>
constexpr Picture plain(int width, const char* const (&rows)[H]) {
  return {width, static_cast<int>(H), rows, nullptr, nullptr, 0};
}

// The codes of one row, decoded from its glyphs.
const std::string& pictureRow(const Picture& picture, int row);

// The colour of a cell, or -1 where the cell is not drawn. A one-colour
// picture gives `colour` for every cell.
int pictureColour(const Picture& picture, int column, int row, int colour);

// Draws the picture with its top left corner at (column, row). A one-colour
// picture is drawn in `colour`; a coloured one ignores it.
void drawPicture(const Picture& picture, int column, int row, int colour = 15);
