// How the console's colours come out on terminals of 16 colours, 8, or none.
#include "game/console/terminal_colours.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "game/console/widgets.h"
#include "game/planet/ground_map.h"
#include "game/shell/ship_map.h"

namespace {

constexpr TerminalColours kEveryPalette[] = {TerminalColours::kNone, TerminalColours::kEight,
                                             TerminalColours::kSixteen};

const char* nameOf(TerminalColours colours) {
  switch (colours) {
    case TerminalColours::kNone: return "no colour";
    case TerminalColours::kEight: return "8 colours";
    case TerminalColours::kSixteen: return "16 colours";
  }
  return "?";
}

TerminalLook lookOf(int colour, TerminalColours colours) {
  return terminalLook(static_cast<std::uint8_t>(colour), colours);
}

// What the game draws as chosen next to what it draws at rest in the same
// place; `reversed`: without colour the chosen one is in reverse video.
struct Choice {
  const char* what;
  int chosen;
  int atRest;
  bool reversed;
};

constexpr Choice kChoices[] = {
    {"title entry", 79, 78, true},
    {"menu button", kButtonSelected, kButtonAtRest, true},
    {"list row", 241, 15, true},
    {"yes or no", 240, 15, true},
    {"ship map room", kRoomSelected, kRoomAtRest, true},
    {"room flashing against the others", kRoomFlashing, kRoomAtRest, false},
    {"room flashing against its selected look", kRoomFlashing, kRoomSelected, false},
    {"sector border", kBorderLit, kBorderAtRest, false},
    {"the ship's place against its destination", 13, 14, false},
};

TEST(TerminalColours, WhatIsChosenStandsOutOnEveryTerminal) {
  for (TerminalColours colours : kEveryPalette) {
    for (const Choice& choice : kChoices) {
      const TerminalLook chosen = lookOf(choice.chosen, colours);
      const TerminalLook atRest = lookOf(choice.atRest, colours);
      EXPECT_FALSE(chosen == atRest) << choice.what << " with " << nameOf(colours);
      if (colours == TerminalColours::kNone && choice.reversed) {
        EXPECT_TRUE(chosen.reverse && !atRest.reverse) << choice.what;
      }
    }
  }
}

TEST(TerminalColours, WithEightColoursNoTextTakesTheColourOfItsGround) {
  for (int colour = 0; colour < 256; ++colour) {
    const TerminalLook look = lookOf(colour, TerminalColours::kEight);
    EXPECT_TRUE(look.foreground >= 0 && look.foreground < 8 && look.background >= 0 &&
                look.background < 8)
        << colour;
    if ((colour & 15) != colour >> 4) {
      EXPECT_NE(look.foreground, look.background) << colour;
    }
  }
}

TEST(TerminalColours, SixteenColoursShowEveryConsoleColourAsItself) {
  std::set<std::tuple<int, int>> seen;
  for (int colour = 0; colour < 256; ++colour) {
    const TerminalLook look = lookOf(colour, TerminalColours::kSixteen);
    seen.emplace(look.foreground, look.background);
    EXPECT_FALSE(look.bold || look.dim || look.underline || look.reverse) << colour;
  }
  EXPECT_EQ(seen.size(), 256u);
}

TEST(TerminalColours, ConsoleColoursBecomeTheTerminalsOwn) {
  // The console counts blue, green, cyan, red; the terminal red, green,
  // yellow, blue. With 8 colours a bright colour is its dark twin in bold.
  struct Same {
    int console;
    int terminal;
  };
  constexpr Same kSame[] = {{0, 0}, {1, 4},  {2, 2},  {3, 6},   {4, 1},  {6, 3},
                            {7, 7}, {9, 12}, {12, 9}, {14, 11}, {15, 15}};
  for (const Same& same : kSame) {
    EXPECT_EQ(lookOf(same.console, TerminalColours::kSixteen).foreground, same.terminal);
    EXPECT_EQ(lookOf(same.console << 4, TerminalColours::kSixteen).background, same.terminal);
    const TerminalLook eight = lookOf(same.console, TerminalColours::kEight);
    EXPECT_EQ(eight.foreground, same.terminal & 7) << same.console;
    EXPECT_EQ(eight.bold, same.terminal >= 8) << same.console;
    EXPECT_EQ(lookOf(same.console << 4, TerminalColours::kEight).background, same.terminal & 7);
  }
}

TEST(TerminalColours, WithoutColourDarkTextOnALightGroundIsReversed) {
  // The ship map's panel and help text, the war frame, a land tile's stage.
  for (int colour : {32, 128, 48, 112}) {
    EXPECT_TRUE(lookOf(colour, TerminalColours::kNone).reverse) << colour;
  }
  // Plain text, an unselected button, the deck frame.
  for (int colour : {15, 7, 31, 78}) {
    EXPECT_FALSE(lookOf(colour, TerminalColours::kNone).reverse) << colour;
  }
  for (int colour = 0; colour < 256; ++colour) {
    EXPECT_EQ(lookOf(colour, TerminalColours::kNone).foreground, -1) << colour;
  }
}

}  // namespace
