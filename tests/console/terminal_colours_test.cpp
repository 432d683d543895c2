// How the console's colours come out on terminals of 16 colours, 8, or none.
#include "game/console/terminal_colours.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "game/console/widgets.h"
#include "game/fleet/pane_box.h"
#include "game/freighter/super_freighter.h"
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

// Two colours that one screen uses for two different states of what it
// shows; on every terminal the player must tell the two apart.
struct States {
  const char* screen;
  const char* first;
  int firstColour;
  const char* second;
  int secondColour;
};

constexpr int kLitRow = 241;
constexpr int kPlainText = 15;
constexpr int kHighlightedChoice = 240;
constexpr int kCarried = 225;

constexpr States kStates[] = {
    {"title", "the selected entry", 79, "an entry at rest", 78},
    {"deck menu", "the selected button", kButtonSelected, "a button at rest", kButtonAtRest},
    {"yes/no question", "the chosen word", kHighlightedChoice, "the other word", kPlainText},
    {"list box", "the highlighted row", kLitRow, "a row", kPlainText},
    {"ship map", "the selected room", kRoomSelected, "a room at rest", kRoomAtRest},
    {"ship map", "a flashing room", kRoomFlashing, "the selected room", kRoomSelected},
    {"ship map", "a flashing room", kRoomFlashing, "a room at rest", kRoomAtRest},
    {"ship map", "the hull with shields on", 10, "the hull with shields off", kRoomAtRest},
    {"Super Freighter", "the selected spot", kSpotSelected, "a spot at rest", kSpotAtRest},
    {"Super Freighter", "a flashing spot", kSpotFlashing, "the selected spot", kSpotSelected},
    {"Super Freighter", "the shielded Mothership", kShieldedShipColour, "a spot at rest",
     kSpotAtRest},
    {"Super Freighter", "the shielded Mothership", kShieldedShipColour, "the selected spot",
     kSpotSelected},
    {"Assign Crew Jobs", "the highlighted member", kLitRow, "the carried member", kCarried},
    {"Assign Crew Jobs", "the carried member", kCarried, "a member", kPlainText},
    {"Assign Crew Jobs", "the active list's title", kCarried, "another title", kPlainText},
    {"docking bay lists", "the active tab", kTabActive, "another tab", kTabPlain},
    {"docking bay lists", "the chosen row", kChosenRow, "a row", kPlainText},
    {"Launch Space Capsule", "the highlighted line", kLitRow, "the chosen answer",
     kHighlightedChoice},
    {"Launch Space Capsule", "the highlighted label", kLitRow, "the label of the digits in use",
     kCarried},
    {"Launch Space Capsule", "the label of the digits in use", kCarried, "a label", kPlainText},
    {"Launch Space Capsule", "the digit that moves", kLitRow, "a digit", kPlainText},
    {"Launch Space Capsule", "the chosen answer", kHighlightedChoice, "the other answer",
     kPlainText},
    {"Change Work Schedules", "the chosen schedule", 12, "a schedule", kPlainText},
    {"war maps", "the highlighted border", kBorderLit, "a border", kBorderAtRest},
    {"war maps", "the letter of a built bunker", 14, "a letter", 15},
    {"war maps", "the ship's place", 13, "its destination", 14},
    {"war maps", "rubble", 8, "a nuclear wasteland (the same glyphs)", 10},
};

// What the player sees of a look: with colour, the colours as shown (reverse
// video swaps them), bold and underline; dim is left out, as many terminals
// do not have it.
std::tuple<int, int, bool, bool, bool> seen(const TerminalLook& look) {
  const bool swap = look.reverse && look.foreground >= 0;
  return {swap ? look.background : look.foreground, swap ? look.foreground : look.background,
          look.bold, look.underline, look.reverse && !swap};
}

TEST(TerminalColours, TwoStatesOfAScreenStayApartOnEveryTerminal) {
  for (TerminalColours colours : kEveryPalette) {
    for (const States& pair : kStates) {
      EXPECT_NE(seen(lookOf(pair.firstColour, colours)), seen(lookOf(pair.secondColour, colours)))
          << pair.screen << ": " << pair.first << " looks like " << pair.second << " with "
          << nameOf(colours);
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

TEST(TerminalColours, WithoutColourWhatIsLitAndDarkTextOnALightGroundAreReversed) {
  // The title's selected entry, a lit button or row, a highlighted choice,
  // the selected room; the ship map's panel and help text, the war frame, a
  // land tile's stage.
  for (int colour : {79, 241, 240, 14, 32, 128, 48, 112}) {
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
