// The ship map: the Mothership seen from above, bow to the left.
//
// The hull is outlined in solid half blocks: a dome over the living quarters,
// a swept fin over the stern, three engines at the back and, under the bow, a
// stub with the berth the Super Freighter docks into. The rooms are the
// double-lined boxes; corridors between them are short half-block bars, and
// where two rooms share a wall line the passage is a full block cut through
// both walls (those cells belong to the hull, not to either room).
//
// With nothing docked the berth shows only its four corner marks; the
// freighter room drawn over it fills the berth between the stub's two arms,
// under the docking tube that comes down from the Library.
#include "game/art/ship.h"

namespace {

const char* const kShipRows[] = {
    "                           ▄█▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀█▄                       ▄▄█▀▀▀▀▀█",
    " ▄█▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀  ╔═════════════╗  ▀█▄                 ▄▄█▀▀░░░░░░░█",
    " █ ╔═══════╗                ╔═╝   LIVING    ╚═╗  ▀█            ▄▄█▀▀░░░░░░░░░░░█",
    " █ ║  NAV  ║              ╔═╝    QUARTERS     ╚═╗ █        ▄▄█▀▀░░░░░░░░░░░░░░░█",
    " █ ║  COM  ║▄▄╔════════╗  ║                     ║ █    ▄▄█▀▀░░░░░░░░░░░░░░░░░░░█",
    " █ ╚═══════╝  ║        ║  ╚═════════█═══════════╝ █▄▄█▀▀░░░░░░░░░░░░░░░░░░░░░░░█",
    "▐█            ║        ╚════════════█════════╗    ▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀",
    "▐█            ║ SCIENTIFIC RESEARCH STATION  ║▄▄╔══════════════════════════╗ █  ",
    "▐█            ╚═══█══════════════════════════╝  ║           CARGO          ║ █▓░",
    "▐█           ╔════█═══╗                         ║           SPACE          ║ █▓░",
    " █           ║ LIBRARY║  ╔═══════════════════╗  ╚═════════════█════════════╝ █  ",
    " █           ║        ║▀▀║    ENGINEERING    ║▄▄╔═════════════█════════════╗ █▓░",
    " █           ╚════════╝  ╚═══════════════════╝  ║                          ║ █▓░",
    " ▀█               █   ▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄ ║        DOCKING BAY       ║ █  ",
    "  █▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄█▄▄▄█                       █ ║                          ║ █▓░",
    "  █┌                 ┐█                       █ ╚══════════════════════════╝ █▓░",
    "  █                   █                       █▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄█▀  ",
    "  █└                 ┘█                                                         ",
    "                                                                                ",
};

const char* const kFreighterRoomRows[] = {
    "╔═════════════════╗",
    "║ SUPER FREIGHTER ║",
    "╚═════════════════╝",
};

}  // namespace

const Picture kShipPicture = {80, 19, kShipRows, nullptr, nullptr, 0};
const Picture kFreighterRoomPicture = {19, 3, kFreighterRoomRows, nullptr, nullptr, 0};
