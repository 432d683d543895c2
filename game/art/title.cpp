// The title screen's pictures and the credits (see title.h for where they
// stand).
//
// The letters of the name are hollow: each is a closed double-lined outline,
// one cell of stroke inside, and the letters stand one column apart. The M's
// middle leg hangs from the top bar and stops short of the ground.
//
// The ribbon is one double line from the top left of the middle rows to the
// tail: it runs under the name, turns down round the right end of MOTHERSHIP,
// comes back under it and turns down again into the tail. Its two loose ends
// curl with single-lined stubs (╒ and ╛).
//
// The saucer has a dome with three windows, a wide rim, a row of lights
// under it and two landing legs.
#include "game/art/title.h"

namespace {

const char* const kTitleTopRows[] = {
    "╔══════╗ ╔═╗ ╔═╗ ╔═════╗ ╔══════╗ ╔═════════╗ ╔═════╗ ╔═════╗  ╔═════╗",
    "║ ╔════╝ ║ ║╔╝╔╝ ║ ╔═╗ ║ ║ ╔══╗ ║ ║ ╔═╗ ╔═╗ ║ ║ ╔═╗ ║ ║ ╔══╗╚╗ ║ ╔═╗ ║",
    "║ ╚════╗ ║ ╚╝╔╝  ║ ╚═╝ ║ ║ ╚══╝ ║ ║ ║ ║ ║ ║ ║ ║ ╚═╝ ║ ║ ║  ║ ║ ║ ╚═╝ ║",
    "╚════╗ ║ ║ ╔╗╚╗  ║ ╔═╗ ║ ║ ╔═╗ ╔╝ ║ ║ ╚═╝ ║ ║ ║ ╔═╗ ║ ║ ║  ║ ║ ║ ╔═╗ ║",
    "╔════╝ ║ ║ ║╚╗╚╗ ║ ║ ║ ║ ║ ║ ╚╗╚╗ ║ ║     ║ ║ ║ ║ ║ ║ ║ ╚══╝╔╝ ║ ║ ║ ║",
    "╚══════╝ ╚═╝ ╚═╝ ╚═╝ ╚═╝ ╚═╝  ╚═╝ ╚═╝     ╚═╝ ╚═╝ ╚═╝ ╚═════╝  ╚═╝ ╚═╝",
};

const char* const kTitleMiddleRows[] = {
    "╒════════════════════════════════════════╗ ",
    "   ┌┬┐ ┌─┐ ─┬─ ┬ ┬ ┌── ┬─┐ ┌─┐ ┬ ┬ ┬ ┌─┐ ╚╗",
    "   │││ │ │  │  ├─┤ ├─  ├┬┘ └─┐ ├─┤ │ ├─┘  ║",
    "   ┴ ┴ └─┘  ┴  ┴ ┴ └── ┴└─ └─┘ ┴ ┴ ┴ ┴   ╔╝",
    " ╔═══════════════════════════════════════╝ ",
    "╔╝                                         ",
};

const char* const kTitleTailRows[] = {
    "╚══════════════╛",
};

const char* const kEmblemRows[] = {
    "     ▄▄███████▄▄     ",
    "    ███ ██ ██ ███    ",
    "▄▄█████████████████▄▄",
    " ▀▀█▀█▀█▀█▀█▀█▀█▀█▀▀ ",
    "    ▄▀         ▀▄    ",
};

}  // namespace

const Picture kTitleTop = {70, 6, kTitleTopRows, nullptr, nullptr, 0};
const Picture kTitleMiddle = {43, 6, kTitleMiddleRows, nullptr, nullptr, 0};
const Picture kTitleTail = {16, 1, kTitleTailRows, nullptr, nullptr, 0};
const Picture kEmblem = {21, 5, kEmblemRows, nullptr, nullptr, 0};

const char* const kCreditRows[9] = {
    "Captain of Design ....... M. Vantle",
    "Chief Engineer (Code) .... O. Brask",
    "Hull Painter (Art) ..... N. Quarrow",
    "Star Charts (Levels) ...... P. Rask",
    "Comms Officer (Sound) .... I. Tollo",
    "Science Officer (AI) .... S. Kettle",
    "Quartermaster (Tests) ..... D. Hult",
    "Ship's Cook ............ B. Oakenby",
    "Ship's Cat ................... Zorp",
};
