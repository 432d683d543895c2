// How a console colour is shown on a real terminal, which may offer the 16
// colours of the console, only 8, or none at all. The terminal backend asks
// this for every cell; it knows nothing of curses, so that tests can read it.
//
// Terminal colour numbers are in the terminal's own order: 0 black, 1 red,
// 2 green, 3 yellow, 4 blue, 5 magenta, 6 cyan, 7 white, and 8 to 15 the
// bright ones. The console's order differs (its 1 is blue, its 4 red).
#pragma once

#include <cstdint>

enum class TerminalColours { kNone, kEight, kSixteen };

struct TerminalLook {
  int foreground = -1;  // a terminal colour number; -1 without colour
  int background = -1;
  bool bold = false;
  bool dim = false;
  bool underline = false;
  bool reverse = false;
  bool operator==(const TerminalLook&) const = default;
};

// The look of a console colour (foreground + 16 * background).
//
// With 16 colours, each colour is itself. With 8, a bright foreground is
// drawn bold, dark grey text dim, and a bright background as its dark twin;
// where text would then take the colour of its background, it turns black
// on a light ground and white on a dark one, so that nothing vanishes.
// Without colour, dark text on a lighter ground and what the game draws as
// chosen (a highlighted choice, button or list row, the title's selected
// entry, the selected room) are shown in reverse video; white text is plain,
// the other bright colours bold, light red text underlined, dark grey text
// dim. A highlighted choice is bold as well, and a carried crew member or an
// active tab (blue on yellow) underlined, so that no two states of one
// screen look alike.
TerminalLook terminalLook(std::uint8_t colour, TerminalColours colours);
