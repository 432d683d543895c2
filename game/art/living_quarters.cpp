#include "game/art/living_quarters.h"

namespace {

const char* const kCrewJobsBoxRows[] = {
    R"(╔═════════════╗         ╔═════════════╗         ╔═════════════╗           )",
    R"(║             ║         ║             ║         ║             ║           )",
    R"(╠═════════════╩═════════╬═════════════╩═════════╬═════════════╩══════════╗)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(║                       ║                       ║                        ║)",
    R"(╠═══════════════════════╩═══════════════════════╩════════════════════════╣)",
    R"(║                                                                        ║)",
    R"(║                                                                        ║)",
    R"(║                                                                        ║)",
    R"(╚════════════════════════════════════════════════════════════════════════╝)",
};

// Emerson. Keys: g green for the crest and nostrils, G light green for the
// head and the hand, Y yellow for the shut eyes and the badge, R light red for
// the lips, W white for the teeth and the mug, b brown for the coffee, s light
// grey for the steam, B light blue for the uniform, c cyan for its tie, y
// yellow for the table top and o brown for the table.
const char* const kEmersonRows[] = {
    R"(             /\  /\  /\        (  ) (  )",
    R"(            /  \/  \/  \        )  ) ) )",
    R"(          .-~~~~~~~~~~~~-.     (  (    )",
    R"(        .'                '.    )  )   )",
    R"(       /    ,--.     ,--.   \ .-----.  )",
    R"(      |     `--'     `--'    ||~~~~~|_ )",
    R"(      |           ,,         ||     | \)",
    R"(      |   \'-.________.-'/   ||     | |)",
    R"(       \   '.\_|_|_|_|_/.'  / |     |_/)",
    R"(        '.    '-------'   .'  |_____|  )",
    R"(          '-.__________.-'   (mmmmmm)  )",
    R"(     __.-----'  |  |  '-----./ /       )",
    R"(    /   \  <#>  |  |       __/         )",
    R"( ===================================== )",
    R"(  \_________________________________/  )",
    R"(         ||                  ||        )",
    R"(      ___||___            ___||___     )",
};

const char* const kEmersonKeys[] = {
    "             gg  gg  gg        s  s s  ",
    "            g  gg  gg  g        s  s s ",
    "          GGGGGGGGGGGGGGGG     s  s    ",
    "        GG                GG    s  s   ",
    "       G    YYYY     YYYY   G WWWWWWW  ",
    "      G     YYYY     YYYY    GWbbbbbWW ",
    "      G           gg         GW     W W",
    "      G   RRRRRRRRRRRRRRRR   GW     W W",
    "       G   RRRWWWWWWWWWRRR  G W     WWW",
    "        GG    GGGGGGGGG   GG  WWWWWWW  ",
    "          GGGGGGGGGGGGGGGG   GGGGGGGG  ",
    "     BBBBBBBBB  c  c  BBBBBBBB B       ",
    "    B   B  YYY  c  c       BBB         ",
    " yyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyyy ",
    "  ooooooooooooooooooooooooooooooooooo  ",
    "         oo                  oo        ",
    "      oooooooo            oooooooo     ",
};

constexpr PaletteEntry kEmersonPalette[] = {
    {'g', 2}, {'G', 10}, {'Y', 14}, {'R', 12}, {'W', 15}, {'b', 6},
    {'s', 7}, {'B', 9},  {'c', 3},  {'y', 14}, {'o', 6},
};

}  // namespace

const Picture kCrewJobsBox = plain(74, kCrewJobsBoxRows);
const Picture kEmersonPicture = coloured(39, kEmersonRows, kEmersonKeys, kEmersonPalette);
