#include "game/art/land_tiles.h"

namespace {

// Farm Land: fields in three shades of green, cut by a brown track that
// branches off to the east.
const char* const kFarmRows[] = {
    "▒▒▒▒▐▌░░░",
    "▒▒▒▒▐▌░░░",
    "    ▐▌▀▀▀",
    "░░░░▐▌▒▒▒",
};
const char* const kFarmKeys[] = {
    "ggggbbrrr",
    "ggggbbrrr",
    "ggggbbbbb",
    "ggggbbggg",
};
const PaletteEntry kFarmPalette[] = {{'g', 32}, {'r', 36}, {'b', 38}};

// The same fields with stray symbols dropped on them.
const char* const kStrewnFarmRows[] = {
    "▒¥▒▒▐▌░⌠░",
    "▒▒▒Φ▐▌░⌡░",
    " φ  ▐▌▀▀▀",
    "░░₧░▐▌▒☼▒",
};

// City: blocks of houses between double-line streets.
const char* const kCityRows[] = {
    "▓▓║▒▒▒║▓▓",
    "══╬═══╬══",
    "▒▒║▓∙▓║▓▓",
    "▒▒║▓▓▓║▓▓",
};
const char* const kCityKeys[] = {
    "ddwkkkwdd",
    "wwwwwwwww",
    "kkwdydwdd",
    "kkwdddwdd",
};
const PaletteEntry kCityPalette[] = {{'k', 112}, {'d', 120}, {'y', 126}, {'w', 127}};

// Military Base: grey buildings on brown ground inside a dotted fence.
const char* const kBaseRows[] = {
    "·········",
    " ┌─┐ ▓▓▓ ",
    " └─┘ ▓▓▓ ",
    "░░ ░░  ░░",
};
const char* const kBaseKeys[] = {
    "wwwwwwwww",
    "bkkkbdddb",
    "bkkkbdddb",
    "ggbggbbgg",
};
const PaletteEntry kBasePalette[] = {{'b', 96}, {'g', 98}, {'w', 111}, {'k', 112}, {'d', 120}};

// Mountains: rows of white peaks over grey rock and green slopes.
const char* const kMountainRows[] = {
    "▲░▲░▲░▲░▲",
    "░▲░▲░▲░▲░",
    "▲░▲░▲░▲░▲",
    "▓▒▓▓▒▓▓▒▓",
};
const char* const kMountainKeys[] = {
    "wdwdwdwdw",
    "dwdwdwdwd",
    "wGwGwGwGw",
    "ggggggggg",
};
const PaletteEntry kMountainPalette[] = {
    {'g', 2}, {'l', 7}, {'G', 114}, {'d', 120}, {'w', 127}};

// Desert: brown dunes with yellow crests.
const char* const kDesertRows[] = {
    "▄▄░░░░░▄▀",
    "▒▒▀▄░░▄▀▒",
    "▒▒▒▒▀▀▒▒▒",
    "░░░▄▄▄░░░",
};
const char* const kDesertKeys[] = {
    "yyrrrrryy",
    "bbyyrryyb",
    "bbbbyybbb",
    "rryyyyyrr",
};
const PaletteEntry kDesertPalette[] = {{'b', 96}, {'r', 108}, {'y', 110}};

// Rubble: a grey heap around a solid core, on brown ground.
const char* const kRubbleRows[] = {
    " ·▄▓▓▓▄· ",
    "▄▓▒███▒▓▄",
    "▀▓▒███▒▓▀",
    " · ▀▀▀ · ",
};
const char* const kRubbleKeys[] = {
    "kkkkkkkkk",
    "kkgkkkgkk",
    "kkgkkkgkk",
    "kkkkkkkkk",
};
const PaletteEntry kRubblePalette[] = {{'k', 104}, {'g', 112}};

const char* const kUnknownRows[] = {
    "  ▄▀▀▀▄  ",
    "  ▀  ▄▀  ",
    "    █    ",
    "    ▄    ",
};
const char* const kUnknownKeys[] = {
    "yyyyyyyyy",
    "yyyyyyyyy",
    "yyyyyyyyy",
    "yyyyyyyyy",
};
const PaletteEntry kUnknownPalette[] = {{'y', 14}};

}  // namespace

const Picture kLandTiles[7] = {
    coloured(9, kFarmRows, kFarmKeys, kFarmPalette),
    coloured(9, kCityRows, kCityKeys, kCityPalette),
    coloured(9, kBaseRows, kBaseKeys, kBasePalette),
    coloured(9, kMountainRows, kMountainKeys, kMountainPalette),
    coloured(9, kDesertRows, kDesertKeys, kDesertPalette),
    coloured(9, kStrewnFarmRows, kFarmKeys, kFarmPalette),
    coloured(9, kRubbleRows, kRubbleKeys, kRubblePalette),
};

const Picture kUnknownTile = coloured(9, kUnknownRows, kUnknownKeys, kUnknownPalette);
