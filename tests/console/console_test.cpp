#include "game/console/console.h"

#include <gtest/gtest.h>

#include "game/console/scripted.h"
#include "game/console/text.h"

namespace {

class ConsoleTest : public ::testing::Test {
 protected:
  void SetUp() override { scripted::reset(); }
};

TEST_F(ConsoleTest, EmptyTextStillSetsColourAndPosition) {
  Console::putText("", 10, 5, 14);
  Console::print("abc");
  EXPECT_EQ(scripted::textAt(10, 5, 3), "abc");
  EXPECT_EQ(scripted::colourAt(12, 5), 14);
}

TEST_F(ConsoleTest, TextReachingColumn79GoesOnAtTheNextRow) {
  Console::putText("ABCDE", 77, 3, 31);
  EXPECT_EQ(scripted::textAt(77, 3, 3), "ABC");
  EXPECT_EQ(scripted::textAt(0, 4, 2), "DE");
  EXPECT_EQ(scripted::colourAt(1, 4), 31);
  Console::printNumber(42);
  EXPECT_EQ(scripted::textAt(2, 4, 2), "42");
}

TEST_F(ConsoleTest, WritesOffTheScreenAreDroppedSafely) {
  Console::putText("xyz", 78, 24, 15);  // the last cell and beyond
  Console::putText("abc", -5, 40, 15);
  Console::putChar('Q', 200, 3, 15);
  EXPECT_EQ(scripted::textAt(78, 24, 2), "xy");
}

TEST_F(ConsoleTest, PaddedWritesBlankTheirFieldAndNeverCut) {
  Console::putText("##########", 0, 0, 15);
  Console::putTextPadded("ab", 0, 0, 12, 6);
  EXPECT_EQ(scripted::textAt(0, 0, 10), "ab    ####");
  EXPECT_EQ(scripted::colourAt(5, 0), 12);
  Console::putTextPadded("longer than four", 0, 1, 15, 4);
  EXPECT_EQ(scripted::textAt(0, 1, 16), "longer than four");
  Console::putNumberPadded(-7, 0, 2, 15, 5);
  EXPECT_EQ(scripted::textAt(0, 2, 6), "-7    ");
}

TEST_F(ConsoleTest, ClearScreenUsesTheCurrentColourAndGoesHome) {
  Console::putText("junk", 40, 12, 15);
  Console::setColour(78);
  Console::clearScreen();
  EXPECT_EQ(scripted::textAt(40, 12, 4), "    ");
  EXPECT_EQ(scripted::colourAt(40, 12), 78);
  EXPECT_EQ(scripted::colourAt(79, 24), 78);
  Console::print("home");
  EXPECT_EQ(scripted::textAt(0, 0, 4), "home");
}

TEST_F(ConsoleTest, WrappingBreaksAtBlanksAndBlanksTheLastRow) {
  std::string oneRow(71, 'a');
  oneRow[30] = ' ';
  Console::putText(std::string(75, '#'), 3, 5, 15);
  Console::putWrapped(oneRow, 3, 4, 70, 14);
  EXPECT_EQ(scripted::textAt(3, 4, 71), oneRow);
  EXPECT_EQ(scripted::textAt(3, 5, 3), "###") << "a one-row text leaves the next row alone";

  std::string twoRows = oneRow + "b";  // 72 characters: the blank at 30 is the break
  Console::putWrapped(twoRows, 3, 4, 70, 14);
  EXPECT_EQ(scripted::textAt(3, 4, 30), twoRows.substr(0, 30));
  EXPECT_EQ(scripted::textAt(3, 5, 41), twoRows.substr(31));
  EXPECT_EQ(scripted::textAt(3 + 41, 5, 30), std::string(30, ' ')) << "rest of the field blanked";
  EXPECT_EQ(scripted::colourAt(3, 5), 14);
}

TEST_F(ConsoleTest, WrappingAWordyTextKeepsEveryWord) {
  std::string text =
      "We dont even have enough fuel to get into orbit! Perhaps we should use an alternative "
      "energy source... I'll talk to Hyde.";
  Console::putWrapped(text, 3, 4, 70, 12);
  std::string joined = scripted::textAt(3, 4, 71) + scripted::textAt(3, 5, 71);
  EXPECT_NE(scripted::textAt(3, 4, 71).back(), 'a') << "never cut inside a word";
  EXPECT_NE(joined.find("alternative"), std::string::npos);
  EXPECT_NE(joined.find("Hyde."), std::string::npos);
}

TEST(TextHelpers, FormatNumber) {
  EXPECT_EQ(formatNumber(0, 9, true), "        0");
  EXPECT_EQ(formatNumber(1234567, 9, true), "1,234,567");
  EXPECT_EQ(formatNumber(-5, 9, true), "         ");
  EXPECT_EQ(formatNumber(42, 4, false), "  42");
  EXPECT_EQ(formatNumber(123456, 4, false), "3456") << "digits lost from the left";
  EXPECT_EQ(formatNumber(150000, 9, true), "  150,000");
  EXPECT_EQ(formatNumber(5, 1, false), "5");
}

TEST(TextHelpers, LeftAlignAndCut) {
  EXPECT_EQ(leftAlignNumber("  1,234", 7), "1,234  ");
  EXPECT_EQ(leftAlignNumber("  12x4", 6), "12 4  ");
  EXPECT_EQ(leftAlignedNumber(10000, 9), "10,000   ");
  EXPECT_EQ(cutAtBlank(leftAlignedNumber(51, 4)), "51");
  EXPECT_EQ(cutAtBlank("whole"), "whole");
  std::string joined;
  joinText(joined, "Bunker ", "I");
  EXPECT_EQ(joined, "Bunker I");
}

TEST(TextHelpers, FixedTextCutsToItsSize) {
  FixedText<5> text("abcdefg");
  EXPECT_EQ(text.view(), "abcd");
  text.assign("xy");
  EXPECT_EQ(text.view(), "xy");
}

}  // namespace
