#include "game/console/cp437.h"

#include <gtest/gtest.h>
#include <iconv.h>

// The upper half against the C library's own code page 437 converter: an
// independent source, so a wrong entry that still round-trips fails.
TEST(Cp437, MatchesTheStandardCodePageAndRoundTrips) {
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
  for (int code = 1; code < 256; ++code) {
    const auto c = static_cast<std::uint8_t>(code);
    EXPECT_EQ(cp437::fromUnicode(cp437::toUnicode(c)), code) << code;
    EXPECT_TRUE(cp437::toAscii(c) >= 32 && cp437::toAscii(c) < 127) << code;
  }
  EXPECT_EQ(cp437::toAscii(205), '=');
}
