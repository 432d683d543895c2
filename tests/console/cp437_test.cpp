#include "game/console/cp437.h"

#include <gtest/gtest.h>

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
