// Code page 437: the 256 character codes the game draws with.
//
// Screen text is 8-bit code page 437. Codes below 32 are glyphs (16 is a
// right pointer, 30 an up triangle), never control characters. This file
// maps each code to the Unicode character a terminal shows for it, to a plain
// ASCII stand-in for terminals that cannot show Unicode, and back from UTF-8
// so that pictures can be written in the source as the glyphs they show.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cp437 {

// The Unicode code point shown for a code. Code 0 shows as a blank.
char32_t toUnicode(std::uint8_t code);

// A printable ASCII character that stands in for a code on a terminal without
// Unicode: box lines become + - | =, shades and blocks become # and friends.
char toAscii(std::uint8_t code);

// The code whose glyph is this code point, or -1 when code page 437 has none.
int fromUnicode(char32_t point);

// Decodes UTF-8 text written with code page 437 glyphs into codes. Plain
// ASCII passes through. A character outside the code page becomes '?', and
// `ok` (when given) is cleared, so that tests can catch a bad picture.
std::string fromUtf8(std::string_view utf8, bool* ok = nullptr);

}  // namespace cp437
