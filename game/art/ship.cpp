// A plain stand-in for the ship drawing.
#include "game/art/ship.h"

namespace {
const char* const kShipRows[] = {
    "                                                                                ",
    "                              ╔═════════════╗                                   ",
    "   ╔═══════╗                  ║   LIVING    ║                                   ",
    "   ║  NAV  ║              ╔═══╚══QUARTERS═══╝═══╗                               ",
    "   ║  COM  ║  ╔════════╗  ║                     ║                               ",
    "   ╚═══════╝  ║        ║  ╚═════════▓═══════════╝                               ",
    "              ║        ╚════════════▓════════╗                                  ",
    "              ║ SCIENTIFIC RESEARCH STATION  ║  ╔══════════════════════════╗    ",
    "              ╚═══▓══════════════════════════╝  ║           CARGO          ║    ",
    "             ╔════▓═══╗                         ║           SPACE          ║    ",
    "             ║ LIBRARY║  ╔═══════════════════╗  ╚═════════════▓════════════╝    ",
    "             ║        ║  ║    ENGINEERING    ║  ╔═════════════▓════════════╗    ",
    "             ╚════════╝  ╚═══════════════════╝  ║                          ║    ",
    "                                                ║        DOCKING BAY       ║    ",
    "                                                ║                          ║    ",
    "                                                ╚══════════════════════════╝    ",
    "                                                                                ",
    "                                                                                ",
    "                                                                                ",
};
const char* const kFreighterRows[] = {
    "╔═════════════════╗",
    "║ SUPER FREIGHTER ║",
    "╚═════════════════╝",
};
}  // namespace

const Picture kShipPicture{80, 19, kShipRows, nullptr, nullptr, 0};
const Picture kFreighterRoomPicture{19, 3, kFreighterRows, nullptr, nullptr, 0};
