#include "game/console/cp437.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <string>

TEST(Cp437, EveryCodeRoundTripsThroughUnicodeAndHasAPrintableStandIn) {
  for (int code = 1; code < 256; ++code) {
    EXPECT_EQ(cp437::fromUnicode(cp437::toUnicode(static_cast<std::uint8_t>(code))), code) << code;
  }
  for (int code = 0; code < 256; ++code) {
    char c = cp437::toAscii(static_cast<std::uint8_t>(code));
    EXPECT_TRUE(c >= 32 && c < 127) << code;
  }
  EXPECT_EQ(cp437::toAscii(205), '=');
}

TEST(Cp437, DecodesGlyphRows) {
  bool ok = true;
  EXPECT_EQ(cp437::fromUtf8("╔═╗ ░▓█ ¢∞■", &ok), "\xC9\xCD\xBB \xB0\xB2\xDB \x9B\xEC\xFE");
  EXPECT_TRUE(ok);
  cp437::fromUtf8("€", &ok);
  EXPECT_FALSE(ok);
}

// The upper half against the C library's own code page 437 converter, and
// the control codes against the glyphs the PC's character ROM draws for
// them: an independent source, so a wrong table that round-trips fails.
TEST(Cp437, MatchesTheStandardCodePage) {
  iconv_t converter = iconv_open("UTF-32LE", "CP437");
  ASSERT_NE(converter, reinterpret_cast<iconv_t>(-1)) << "the C library has no CP437";
  for (int code = 128; code < 256; ++code) {
    char in = static_cast<char>(code);
    char32_t out = 0;
    char* inPtr = &in;
    char* outPtr = reinterpret_cast<char*>(&out);
    std::size_t inLeft = 1, outLeft = sizeof out;
    ASSERT_NE(iconv(converter, &inPtr, &inLeft, &outPtr, &outLeft), static_cast<std::size_t>(-1));
    EXPECT_EQ(cp437::toUnicode(static_cast<std::uint8_t>(code)), out) << code;
  }
  iconv_close(converter);

  const std::u32string low = U"☺☻♥♦♣♠•◘○◙♂♀♪♫☼►◄↕‼¶§▬↨↑↓→←∟↔▲▼";
  for (int code = 1; code < 32; ++code) {
    EXPECT_EQ(cp437::toUnicode(static_cast<std::uint8_t>(code)), low[code - 1]) << code;
  }
  EXPECT_EQ(cp437::toUnicode(127), U'⌂');
  for (int code = 32; code < 127; ++code) EXPECT_EQ(cp437::toUnicode(code), char32_t(code));
}
