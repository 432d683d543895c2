#include "game/console/terminal_colours.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int kConsoleDarkGrey = 8;
constexpr int kConsoleLightRed = 12;
constexpr int kConsoleWhite = 15;
constexpr int kTerminalBlack = 0;
constexpr int kTerminalWhite = 7;

// The terminal's number for each of the eight dark console colours: blue and
// red change places, and so do cyan and brown.
constexpr int kTerminalNumber[8] = {0, 4, 2, 6, 1, 5, 3, 7};

// How light each console colour looks, 0 to 255: the usual weights of red,
// green and blue over the text console's palette.
constexpr int kLightness[16] = {0,  19,  100, 119, 51,  70,  101, 170,
                                85, 104, 185, 204, 136, 155, 236, 255};

// Terminal colours light enough to carry black text: green, yellow, cyan
// and white.
bool lightGround(int terminalColour) {
  return terminalColour == 2 || terminalColour == 3 || terminalColour >= 6;
}

// What the game draws as chosen: black or blue on white (a highlighted
// choice, button or list row), white on red (the title's selected entry),
// yellow on black (the selected room).
constexpr std::uint8_t kChosenColours[] = {240, 241, 79, 14};
// Three of them can stand on one screen for three different things, and
// without colour each gets a mark of its own beside reverse video: a
// highlighted choice (the yes of a question) is bold, a carried crew member
// or an active tab underlined, a highlighted row or button neither.
constexpr std::uint8_t kHighlightedChoice = 240;
constexpr std::uint8_t kCarriedOrActive = 225;

bool chosen(std::uint8_t colour) {
  return std::find(std::begin(kChosenColours), std::end(kChosenColours), colour) !=
         std::end(kChosenColours);
}

// White is the terminal's plain text; the other bright colours are bold, so
// that the green of the ship's shields stands apart from the white hull.
TerminalLook withoutColour(std::uint8_t colour) {
  const int foreground = colour & 15;
  const int background = colour >> 4;
  TerminalLook look;
  look.reverse = chosen(colour) || kLightness[background] > kLightness[foreground];
  look.bold = (foreground > kConsoleDarkGrey && foreground != kConsoleWhite) ||
              colour == kHighlightedChoice;
  look.dim = foreground == kConsoleDarkGrey;
  look.underline = foreground == kConsoleLightRed || colour == kCarriedOrActive;
  return look;
}

TerminalLook inEightColours(std::uint8_t colour) {
  const int foreground = colour & 15;
  const int background = colour >> 4;
  TerminalLook look;
  look.foreground = kTerminalNumber[foreground & 7];
  look.background = kTerminalNumber[background & 7];
  look.bold = foreground > kConsoleDarkGrey;
  if (foreground == kConsoleDarkGrey) {
    // Bold black shows dark grey only where bold brightens; dim white
    // shows as grey everywhere, and as light grey at worst.
    look.foreground = kTerminalWhite;
    look.dim = true;
  }
  if (look.foreground == look.background && foreground != background) {
    if (lightGround(look.background)) {
      look.foreground = kTerminalBlack;
      look.bold = false;
      look.dim = false;
    } else {
      look.foreground = kTerminalWhite;
    }
  }
  return look;
}

}  // namespace

TerminalLook terminalLook(std::uint8_t colour, TerminalColours colours) {
  switch (colours) {
    case TerminalColours::kNone: return withoutColour(colour);
    case TerminalColours::kEight: return inEightColours(colour);
    case TerminalColours::kSixteen: break;
  }
  const int foreground = colour & 15;
  const int background = colour >> 4;
  TerminalLook look;
  look.foreground = kTerminalNumber[foreground & 7] + (foreground & 8);
  look.background = kTerminalNumber[background & 7] + (background & 8);
  return look;
}
