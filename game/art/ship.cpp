// The ship map: the Mothership seen from above, bow to the left.
//
// The hull is outlined in half blocks, stepped so that its slopes read as
// smooth lines: a pointed bow round the bridge, a back that rises over the
// living quarters and falls away behind them, a swept fin at the top right
// (an outline with a few streaks and a light at its tip) and three engine
// nozzles at the stern. Under the bow hangs the cradle the Super Freighter
// docks into. Inside the hull there is only quiet detail, vents and lights, so
// that the rooms stay what the eye finds first; the hull alone is what the
// shielded map draws in green, so it must stand on its own.
//
// The rooms are the double-lined boxes; corridors between them are short
// half-block bars, and where two rooms share a wall line the passage is a full
// block cut through both walls (those cells belong to the hull, not to either
// room).
//
// With nothing docked the berth shows only its four corner marks; the
// freighter room drawn over it fills the berth between the cradle's two arms,
// under the docking tube that comes down from the Library.
#include "game/art/ship.h"

namespace {

const char* const kShipRows[] = {
    "                 ▄▄▄▄▄▄▄▄▄▄▄▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▄                               ▄",
    "   ▄▀▀▀▀▀▀▀▀▀▀▀▀▀▀            ╔═════════════╗  ▀▄                          ▄▄▀▀▐",
    " ▄▀╔═══════╗   ∙   ∙   ∙    ╔═╝   LIVING    ╚═╗  ▀▄                    ▄▄▀▀   °▐",
    "▄▀ ║  NAV  ║              ╔═╝    QUARTERS     ╚═╗  ▀▄              ▄▄▀▀   ──   ▐",
    "▀▄ ║  COM  ║▄▄╔════════╗  ║                     ║    ▀▄        ▄▄▀▀   ──    ── ▐",
    " ▀▄╚═══════╝  ║        ║  ╚═════════█═══════════╝      ▀▄  ▄▄▀▀   ──    ──     ▐",
    "   ▀▄ ≡       ║        ╚════════════█════════╗           ▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀▀",
    "     ▀▄ ∙     ║ SCIENTIFIC RESEARCH STATION  ║▄▄╔══════════════════════════╗ █▄ ",
    "       ▀▄     ╚═══█══════════════════════════╝  ║           CARGO          ║ ██░",
    "         ▀▄  ╔════█═══╗                         ║           SPACE          ║ █▀ ",
    "           █ ║ LIBRARY║  ╔═══════════════════╗  ╚═════════════█════════════╝ █▄ ",
    "         ▄▀  ║        ║▀▀║    ENGINEERING    ║▄▄╔═════════════█════════════╗ ██░",
    "       ▄▀ ∙  ╚════════╝  ╚═══════════════════╝  ║                          ║ █▀ ",
    "     ▄▀          █    ▄▄▄▄▄                     ║        DOCKING BAY       ║ █▄ ",
    "  ▄▄█▄▄▄▄▄▄▄▄▄▄▄▄█▄▄▄▄█    ▀▀▀▀▄▄▄▄  ≡≡         ║                          ║ ██░",
    "  █┌                 ┐█            ▀▀▀▀▄▄▄▄     ╚══════════════════════════╝ █▀ ",
    "  █                   █                    ▀▀▀▀▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄█  ",
    "  █└                 ┘█                                                         ",
    "  ▀                   ▀                                                         ",
};

const char* const kFreighterRoomRows[] = {
    "╔═════════════════╗",
    "║ SUPER FREIGHTER ║",
    "╚═════════════════╝",
};

}  // namespace

const Picture kShipPicture = {80, 19, kShipRows, nullptr, nullptr, 0};
const Picture kFreighterRoomPicture = {19, 3, kFreighterRoomRows, nullptr, nullptr, 0};
