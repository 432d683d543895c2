#include "game/console/console.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/console/text.h"

namespace {

class ConsoleTest : public ::testing::Test {
 protected:
  void SetUp() override { scripted::reset(); }
};

TEST_F(ConsoleTest, WritesSetColourAndPositionAndRunOnPastColumn79) {
  Console::putText("", 10, 5, 14);
  Console::print("abc");
  EXPECT_EQ(scripted::textAt(10, 5, 3), "abc");
  EXPECT_EQ(scripted::colourAt(12, 5), 14) << "an empty text still sets the colour";
  Console::putText("ABCDE", 77, 3, 31);
  Console::printNumber(42);
  EXPECT_EQ(scripted::textAt(77, 3, 3) + scripted::textAt(0, 4, 4), "ABCDE42");
  EXPECT_EQ(scripted::colourAt(1, 4), 31);
  Console::putText("xyz", 78, 24, 15);  // off the screen: dropped, never a crash
  Console::putText("abc", -5, 40, 15);
  EXPECT_EQ(scripted::textAt(78, 24, 2), "xy");
}

TEST_F(ConsoleTest, PaddedWritesBlankTheirFieldAndNeverCut) {
  Console::putText("##########", 0, 0, 15);
  Console::putTextPadded("ab", 0, 0, 12, 6);
  EXPECT_EQ(scripted::textAt(0, 0, 10), "ab    ####");
  Console::putTextPadded("longer than four", 0, 1, 15, 4);
  EXPECT_EQ(scripted::textAt(0, 1, 16), "longer than four");
}

TEST_F(ConsoleTest, ClearScreenUsesTheCurrentColourAndGoesHome) {
  Console::putText("junk", 40, 12, 15);
  Console::setColour(78);
  Console::clearScreen();
  EXPECT_EQ(scripted::textAt(40, 12, 4), "    ");
  EXPECT_EQ(scripted::colourAt(79, 24), 78);
  Console::print("home");
  EXPECT_EQ(scripted::textAt(0, 0, 4), "home");
}

TEST_F(ConsoleTest, WrappingBreaksAtABlankAndBlanksTheRestOfTheLastRow) {
  std::string oneRow = std::string(30, 'a') + ' ' + std::string(40, 'b');  // 71
  Console::putText(std::string(75, '#'), 3, 5, 15);
  Console::putWrapped(oneRow, 3, 4, 70, 14);
  EXPECT_EQ(scripted::textAt(3, 4, 71), oneRow);
  EXPECT_EQ(scripted::textAt(3, 5, 3), "###") << "71 characters take one row";
  Console::putWrapped(oneRow + "c", 3, 4, 70, 14);
  EXPECT_EQ(scripted::textAt(3, 4, 30), std::string(30, 'a'));
  EXPECT_EQ(scripted::textAt(3, 5, 71), std::string(40, 'b') + "c" + std::string(30, ' '));
  EXPECT_EQ(scripted::colourAt(3, 5), 14);
}

TEST(TextHelpers, NumbersInFields) {
  EXPECT_EQ(formatNumber(0, 9, true), "        0");
  EXPECT_EQ(formatNumber(1234567, 9, true), "1,234,567");
  EXPECT_EQ(formatNumber(-5, 9, true), "         ");
  EXPECT_EQ(formatNumber(123456, 4, false), "3456") << "digits lost from the left";
  EXPECT_EQ(leftAlignNumber("  1,234", 7), "1,234  ");
  EXPECT_EQ(leftAlignNumber("  12x4", 6), "12 4  ");
  EXPECT_EQ(cutAtBlank(leftAlignedNumber(51, 4)), "51");
  EXPECT_EQ(cutAtBlank("whole"), "whole");
  std::string joined;
  joinText(joined, "Bunker ", "I");
  EXPECT_EQ(joined, "Bunker I");
  EXPECT_EQ(FixedText<5>("abcdefg").view(), "abcd");
}

}  // namespace
