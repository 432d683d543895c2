#include "game/art/ion_feed.h"

namespace {

// The frame: a border of shade around the night sky, stars in its upper half.
const char* const kFeedFrameRows[] = {
    "░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░",
    "░   ·          ∙          .   ░",
    "░        *          ·         ░",
    "░ .         ·          ∙      ░",
    "░     ∙          .          · ░",
    "░         .              *    ░",
    "░  ·          ∙     ·         ░",
    "░       .                   · ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░",
};
const char* const kFeedFrameKeys[] = {
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "ywwwwwwwwwwwwwwwwwwwwwwwwwwwwwy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
};
const PaletteEntry kFeedFramePalette[] = {{'y', 14}, {'w', 15}};

// The same frame with an empty sky.
const char* const kEmptyFrameRows[] = {
    "░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░                             ░",
    "░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░░",
};
const char* const kEmptyFrameKeys[] = {
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
    "yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy",
};
const PaletteEntry kEmptyFramePalette[] = {{'y', 14}};

// City: a skyline of towers. The brown block keeps a plain face at (15, 4),
// where one city has its sign written.
const char* const kCityRows[] = {
    "    ¡                ▐█▌     ",
    "   ▀▀▀▀ ▄▄▄ ▀▀▀▀▀▀▀▀ ■█■     ",
    "   ■ ■  ▓▒▓  ■ ■■ ■  █■█ ▄▄▄▄",
    "▄▄▄ ■ ■ ▓▒▓  ■ ■■ ■  ■█■ ■ ■ ",
    "█■█■ ■ ♣▓▒▓♣ ■    ■ ♣█■█♣ ■ ■",
    "███ ▄▄ █▓▒▓█ ■ ▄▄ ■ █■█■█■ ■ ",
};
const char* const kCityKeys[] = {
    "ddddrdddddddddddddddddddddddd",
    "dddkkkkdbbbdBBBBBBBBdydyddddd",
    "dddYkDkdbbbdBBBBBBBBddydddddd",
    "dddkDkYdbbbdBBBBBBBBdydydLLLL",
    "dydYkYkgbbbgBBBBBBBBgdydgLLLL",
    "dddkkkkgbbbgBBBBBBBBgydygLLLL",
};
const PaletteEntry kCityPalette[] = {
    {'b', 1}, {'g', 2}, {'r', 4}, {'d', 8}, {'y', 14},
    {'B', 96}, {'k', 112}, {'D', 120}, {'Y', 126}, {'L', 135}};

// Mountains: snow-capped peaks, a small lake at their foot.
const char* const kMountainRows[] = {
    "     ▄                 ▄     ",
    "  ▄███▓▓▄     ▄     ▄███▓▓▄  ",
    "▄██▒▒█▓▓▓▓▄▄███▓▓▄▄██▒▒█▓▓▓▓▄",
    "██████▓▓▓▓▓▓▒▒█▓▓▓▓█████▓▓▓▓▓",
    "░░∙░░░░∙░░▄▄▄▄▄▄▄▄▄░░∙░░░░∙░░",
    "▒▒▒▒▒▒▒▒▒▐≈ ~ ≈ ~ ≈▌▒▒▒▒▒▒▒▒▒",
};
const char* const kMountainKeys[] = {
    "lllllWlllllllllllllllllWlllll",
    "llllWWWlllllllWlllllllWWWllll",
    "lllWWllllllllWWWlllllWWllllll",
    "llllllllllllWWlllllllllllllll",
    "LLYLLLLYLLbbbbbbbbbLLYLLLLYLL",
    "gggggggggbcccccccccbggggggggg",
};
const PaletteEntry kMountainPalette[] = {
    {'l', 7}, {'L', 10}, {'W', 15}, {'c', 19},
    {'g', 32}, {'b', 33}, {'Y', 46}};

// Desert: a row of cacti on the sand.
const char* const kDesertRows[] = {
    "   ▄           ▄          ▄  ",
    " ▄ █ ▄    ▄  ▄ █ ▄    ▄ ▄ █ ▄",
    " █ █ █  ▄ █  █ █ █  ▄ █ █ █ █",
    " ▀▀█▀▀  ▀▀█  ▀▀█▀▀  ▀▀█ ▀▀█▀▀",
    "░░░▒▒▒░░░░░▒▒▓▒▒░░░░░░▒▒▒░░░░",
    "▒▒▓▓▓▒▒▒▒▒▓▓▓▓▓▒▒▒▒▒▓▓▓▓▓▒▒▒▒",
};
const char* const kDesertKeys[] = {
    "ggggggggggggggggggggggggggggg",
    "ggggggggggggggggggggggggggggg",
    "ggggggggggggggggggggggggggggg",
    "ggggggggggggggggggggggggggggg",
    "sssssssssssssssssssssssssssss",
    "sssssssssssssssssssssssssssss",
};
const PaletteEntry kDesertPalette[] = {{'g', 2}, {'s', 110}};

// Military Base: a watch tower and a blockhouse behind a fence.
const char* const kBaseRows[] = {
    " ▄▄▄▄▄   ▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄▄ ",
    " ▐█■█▌                    ░  ",
    "  ╟─╢     ▬▬   ▬▬   ▬▬    ▬  ",
    "  ║ ║                     ░  ",
    "──╫─╫┬──┬──┬──┬──┬──┬──┬──┬──",
    "▄▄║▄║│▄▄│  │  │██│██│  │  │ ▄",
};
const char* const kBaseKeys[] = {
    "wlllllwwwlllllllllllllllllllw",
    "wllyllwwwDDDDDDDDDDDDDDDDDLLw",
    "wnnnnnwwwDDDDDDDDDDDDDDDDDLLw",
    "wnnnnnwwwDDDDDDDDDDDDDDDDDLLw",
    "lllllllllDDDDDDDDDDDDDDDDDLLl",
    "nnlnnlnnlDDDDDDDDDDDDDDDDDLLn",
};
const PaletteEntry kBasePalette[] = {
    {'n', 6}, {'l', 7}, {'y', 14},
    {'w', 15}, {'D', 120}, {'L', 135}};

// Farm Land: a barn, a silo and a fence with bales of hay behind it.
const char* const kFarmRows[] = {
    "    ▄▄▄▄▄    ▄▄▄▄            ",
    "  ▄███████▄  ██▓▒            ",
    " ▄█████████▄ ██▓▒            ",
    "  │  ▐█▌  │  ██▓▒            ",
    "  │┌─┬─┬─┐│  ██▓▒ ┬──┬──┬──┬─",
    "▒ ││ │ │ ││ ▒██▓▒▒│▄▄│▄▄│ ▄│▄",
};
const char* const kFarmKeys[] = {
    "wrrrrrrrrrrrwwwwwwwwwwwwwwwww",
    "wrrrrrrrrrrrwwLLLwwwwwwwwwwww",
    "wrrrrrrrrrrrwwLLLwwwwwwwwwwww",
    "wwYYYYYYYYYwwwLLLwwwwwwwwwwww",
    "wwYYYYYYYYYwwwLLLwnnnnnnnnnnn",
    "nwYYYYYYYYYwnwLLLnnyynyynnyny",
};
const PaletteEntry kFarmPalette[] = {
    {'r', 4}, {'n', 6}, {'y', 14},
    {'w', 15}, {'Y', 78}, {'L', 135}};

// Rubble: heaps of debris, lit from the left.
const char* const kRubbleRows[] = {
    "                |            ",
    "      /     ▄▓▓█▒▄▄          ",
    "   ▄▄▄     ▓▓▒█░░███▄ /      ",
    " ▓▓▓▒██▄  ▓▒▒■███░░░█  ▄▒█░▄ ",
    "▄░▒■░░██▄▓▒█████████░█▄▓■░░██",
    "▓░█░██▒░█·████░█░█■██░▓▒███░░",
};
const char* const kRubbleKeys[] = {
    "ddddddddddddddddwdddddddddddd",
    "ddddddwddddddLLdLdddddddddddd",
    "dddddddddddLLLdLLdddddwdddddd",
    "dLLLLdddddLLLwdLLLLLddddLdLdd",
    "dLLwLLdddLLddddLLLLLLddLwLLdd",
    "LLdLLLLLdwddddLLLLwLdLLLdLLLL",
};
const PaletteEntry kRubblePalette[] = {{'d', 8}, {'w', 15}, {'L', 135}};

// Nuclear Wasteland: the same debris with green growing on it.
const char* const kWastelandRows[] = {
    "                |            ",
    "      /     ▄▓▓█▒▄▄          ",
    "   ▄▄▄     ▓▓▒█░░███▄ /      ",
    " ▓▓▓▒██▄  ▓▓▒■███▒░░█  ▄▒█░▄ ",
    "▄░▒■░░▓█▒▓▒█░███████▒█▄▒■░░██",
    "▓▒░░██▒░█·████░█░█■█░░▓▒██▒░░",
};
const char* const kWastelandKeys[] = {
    "ddddddddddddddddwdddddddddddd",
    "ddddddwddddddLLdLdddddddddddd",
    "dddddddddddLLLdLLdddddwdddddd",
    "dLLLLdddddLgLwdLLgLLddddLdLdd",
    "dLLwLLgdgLLdGddLLLLLgddgwLLdd",
    "LgGLLLLLdwddddLLLLwLGLLLdLgGL",
};
const PaletteEntry kWastelandPalette[] = {{'g', 2}, {'d', 8}, {'w', 15}, {'G', 42}, {'L', 135}};

// The blast: a dome of energy, white at its core, widening frame by frame.
const char* const kBlastARows[] = {
    "     ▒▒▒▒▓▓▓▓▒▒▒▒     ",
    "   ▒▒▓▓▓▓▓▓▓▓▓▓▓▓▒▒   ",
    " ▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒ ",
    "▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒",
    "▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒",
};
const char* const kBlastAKeys[] = {
    "     ddddccccdddd     ",
    "   ddccccCCCCccccdd   ",
    " ddcccCCCCCCCCCCcccdd ",
    "ddccCCCCwwwwwwCCCCccdd",
    "ddccCCwwwwwwwwwwCCccdd",
};
const PaletteEntry kBlastAPalette[] = {{'d', 1}, {'w', 15}, {'c', 19}, {'C', 59}};

const char* const kBlastBRows[] = {
    "     ▒▒▒▒▒▓▓▓▓▓▓▒▒▒▒▒     ",
    "   ▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒   ",
    " ▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒ ",
    "▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒",
    "▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒",
};
const char* const kBlastBKeys[] = {
    "     dddddccccccddddd     ",
    "   ddcccccCCCCCCcccccdd   ",
    " ddcccCCCCCCCCCCCCCCcccdd ",
    "ddcccCCCwwwwwwwwwwCCCcccdd",
    "ddccCCCwwwwwwwwwwwwCCCccdd",
};
const PaletteEntry kBlastBPalette[] = {{'d', 1}, {'w', 15}, {'c', 19}, {'C', 59}};

const char* const kBlastCRows[] = {
    "      ▒▒▒▒▓▓▓▓▓▓▓▓▓▒▒▒▒      ",
    "   ▒▒▒▓▓▓▒▒▒▒▒▒▒▒▒▒▒▓▓▓▒▒▒   ",
    "  ▒▒▓▓▒▒▒▓▓▓▓▓▓▓▓▓▓▓▒▒▒▓▓▒▒  ",
    " ▒▒▓▒▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒▒▓▒▒ ",
    "▒▒▓▒▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒▒▓▒▒",
    "▒▓▓▒▒▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▓▒▒▓▓▒",
};
const char* const kBlastCKeys[] = {
    "      bbbbcccccccccbbbb      ",
    "   bbbcccdddddddddddcccbbb   ",
    "  bbccdddCCCCCCCCCCCdddccbb  ",
    " bbcdddCCCCwwwwwwwCCCCdddcbb ",
    "bbcdddCCCwwwwwwwwwwwCCCdddcbb",
    "bccddCCCwwwwwwwwwwwwwCCCddccb",
};
const PaletteEntry kBlastCPalette[] = {{'b', 1}, {'w', 15}, {'c', 19}, {'d', 27}, {'C', 59}};

// The crater: smoke over it, small fires on its rim, embers at the bottom.
const char* const kAftermathRows[] = {
    "       ░▒░         ░░▒░      ",
    "     ░▒▓▒░  ░▒░  ░▒▓▓▒░      ",
    "    ⁿ ⁿ░▒▓▒▓▒▒▒░▒▓▒░  ⁿ ⁿ    ",
    "▄▄▄▄▄██▄ⁿ           ⁿ▄██▄▄▄▄▄",
    "████████▓▄         ▄▓████████",
    "██████████▓▒░▒▓▒░▒▓██████████",
};
const char* const kAftermathKeys[] = {
    "ddddddddddddddddddddddddddddd",
    "ddddddddddddddddddddddddddddd",
    "ddddrdrdddddddddddddddrdrdddd",
    "ddddddddydddddddddddydddddddd",
    "ddddddddddddddddddddddddddddd",
    "dddddddddddrrrrrrrddddddddddd",
};
const PaletteEntry kAftermathPalette[] = {{'r', 4}, {'d', 8}, {'y', 14}};

// Static: fixed frames of shade, some rows brighter than others, so that
// cycling them flickers like a dead channel.
const char* const kNoise0Rows[] = {
    "▒ ░░░▓ ▒░░ ▒ ░ ▓░░▒░▒ ▒░▒▓▓ ▒",
    "   ▒░ ░░ ▒ ▓  ░▓   ░░▒▓  ░ ▒ ",
    " ▓ ▒▒▓░▒▒▒▓░  ▒░ ▓▒ ▒▒ ░░░░  ",
    "      ░▓░    ░ ▒      ░░░░   ",
    "░▓ ▓ ▓▓▒▓▒ ▒▓▒░░▓▓░▓░ ▓▒▒ ▒▓ ",
    " ▒░░▒▓░░░░▓░░ ▒░ ░ ▒▓▒░▓▒░▒▒ ",
    " ░ ░░░░▒▒░ ▒▓░ ░░  ░░ ░░ ▒  ▒",
    "░▒▒  ░ ░ ▓░▓ ▓  ░   ▒    ░  ░",
    "▒ ▒▓ ░▓░    ░▒░ ▒▒░ ░▒▓ ▒░░▒░",
    "░ ▒░░░░▒▓░▒▓░▓░░  ░░▒░░░░▓░  ",
    "  ▒░░     ░    ░░ ░ ░░ ░░▒░▒░",
    "▓░▓▒▓▓▓ ░ ░░▒▒▒ ▓▒▒  ▓▓▓  ▓▓ ",
    " ░░▓ ▓▒ ▓ ░ ▒ ░▒░▓░▒ ▒ ░░▒▒▒ ",
    "▒▒▓▒▓ ▓░▓▒▒░  ░▒░░░▓ ▒▒▒ ▒▒▓▒",
    "░ ▓░▓ ▓▓░  ░ ▒▒░░ ░▓  ▒ ░▒▒░ ",
};
const char* const kNoise1Rows[] = {
    "  ▒  ░   ▓▒░░░▒      ░  ░▒  ▓",
    "▒░▒▒▓░ ▒▓░▓░▒ ░░░▓▓▒▓▒▓░▒▓▓▒▓",
    "░▒▒ ▓░░░▒▓ ░▒░▒░▒░░░ ▒░▓ ░░  ",
    "░▓░  ░▒▒▒▓░▒▓▒ ▓▓▒░ ▓░▓░░░▒░▓",
    "░ ░  ░░░   ▓▒  ░▒▒ ▒    ░░░  ",
    "░░▒░ ░   ░▒░ ▒▓ ▒░░▒▓▓░▓▒▒▒▓▓",
    "░░    ▒ ░ ░ ▒░░ ░▒ ░▓░░ ░░▒▒▓",
    "▒ ░ ░ ░░░  ░ ░▒    ░ ░░▒░   ░",
    "░▓ ▓▒ ░░░░░ ░ ░  ░  ░ ░▓  ░░░",
    "░▓▒▒  ▒▓▒░░▒░░ ▒▓▓▒ ▓ ▓ ▒ ▒▓ ",
    "▒▓▒▓ ▒▒░▒ ▒▓▒▒▓░░░▒▒▒▓▓▒░▓▒▒ ",
    "░ ▒░▒ ░ ▓       ▒░ ░░▒ ░░   ░",
    " ░ ░░       ▒  ░ ▒   ▒ ░ ▓░ ░",
    " ▓▒▓░▓░▒░░▒░  ░ ▒▓▒▒▒▓░▒  ░▓░",
    "▒░░░     ░░░░░▒▒ ░░ ░   ░▓░░ ",
};
const char* const kNoise2Rows[] = {
    "▓ ▓░▓▒▓░░▓▒▓▒▒▓░░▓▓▒▒░▒▓░▒▒ ▒",
    " ░░░     ░▒▒▒▒▒   ░░    ▒ ▒ ▒",
    "░▒▓▒░░ ▓▓ ▓▒▒ ▒▓▒▒░ ▒▓▓░ ░▒░░",
    "▒▒░▓▓ ▒▓▒▒░  ▒░ ▓▒▒▒▒▒▓▓  ▓▓░",
    "   ░░ ░  ▓░ ░░░   ░░▓▒░░▒░░  ",
    "░▒░▓░▒ ▒  ▒▒        ░  ░    ░",
    "░░░░ ▒ ▒░░░ ░░░  ▒░░░░ ▒▒░ ▒ ",
    "░ ▒▒▒▓ ░░░▓░  ░▒ ▓▓ ▒ ░▒ ░▒▒▒",
    "▓   ░▒▒░ ░░░▒▒ ░▒▒░▒▒▒░▓▒░  ▒",
    "  ░ ░▓  ▒░░░   ▒    ▒ ▒░░░ ░ ",
    "▓ ▒░ ▒▓▒ ▒ ░░░▓░   ▓▒ ░░ ▒▒▒▓",
    "░  ▒░ ░░░▓▒ ░▒ ░▒ ░▒   ░░░░▒▒",
    "▒░▒▒░  ▒▓ ▒▒ ▒░▓░░▒ ▒░ ░▒▒ ▓░",
    "  ▒▒▒  ▒░▒  ▒    ░▒ ▒ ░░░▓▓░▓",
    "▒░▒ ▓▒▒░▓░░░▓░▓ ░▒░▓  ▒░░▒▒▒▓",
};

// The tile burning away from its middle: a bar, then rings of fading shade.
const char* const kStage1Rows[] = {
    "█",
    "█",
};
const char* const kStage2Rows[] = {
    "▓▓▓",
    "▓█▓",
    "▓█▓",
    "▓▓▓",
};
const char* const kStage3Rows[] = {
    "▒▓▓▓▒",
    "▒▓█▓▒",
    "▒▓█▓▒",
    "▒▓▓▓▒",
};
const char* const kStage4Rows[] = {
    "░▒▓▓▓▒░",
    "░▒▓█▓▒░",
    "░▒▓█▓▒░",
    "░▒▓▓▓▒░",
};

}  // namespace

const Picture kFeedFrame = coloured(31, kFeedFrameRows, kFeedFrameKeys, kFeedFramePalette);
const Picture kEmptyFrame = coloured(31, kEmptyFrameRows, kEmptyFrameKeys, kEmptyFramePalette);
const Picture kCityScene = coloured(29, kCityRows, kCityKeys, kCityPalette);
const Picture kMountainScene = coloured(29, kMountainRows, kMountainKeys, kMountainPalette);
const Picture kDesertScene = coloured(29, kDesertRows, kDesertKeys, kDesertPalette);
const Picture kBaseScene = coloured(29, kBaseRows, kBaseKeys, kBasePalette);
const Picture kFarmScene = coloured(29, kFarmRows, kFarmKeys, kFarmPalette);
const Picture kRubbleScene = coloured(29, kRubbleRows, kRubbleKeys, kRubblePalette);
const Picture kWastelandScene = coloured(29, kWastelandRows, kWastelandKeys, kWastelandPalette);
const Picture kBlastA = coloured(22, kBlastARows, kBlastAKeys, kBlastAPalette);
const Picture kBlastB = coloured(26, kBlastBRows, kBlastBKeys, kBlastBPalette);
const Picture kBlastC = coloured(29, kBlastCRows, kBlastCKeys, kBlastCPalette);
const Picture kAftermath = coloured(29, kAftermathRows, kAftermathKeys, kAftermathPalette);

const Picture kNoise[3] = {plain(29, kNoise0Rows), plain(29, kNoise1Rows), plain(29, kNoise2Rows)};

const Picture kTileStages[4] = {
    plain(1, kStage1Rows),
    plain(3, kStage2Rows),
    plain(5, kStage3Rows),
    plain(7, kStage4Rows),
};
