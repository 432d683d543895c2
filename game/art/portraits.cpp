#include "game/art/portraits.h"

#include <iterator>

namespace {

// Kryptal. Keys: g green and G light green for the rings of the mane, w light
// grey for the skull and jaw, W white for the teeth, r red and R light red for
// the scales, brows, tongue and nostrils, y yellow for the eyes and the two
// ornaments.
const char* const kKryptalRows[] = {
    R"(         o oO0@@OO@@@O@@O@0Oo o         )",
    R"(    o 0OO@@ _.--~~~~~~~~--._ @@OO0o o   )",
    R"( 0ooO@O@@ .-'  %#%/\/\%#%  '-. @@O@Ooo0 )",
    R"(∞ o0O@@@ / %#% \\\\  //// %#% \ @O@@0o ∞)",
    R"(OOo0OO@ | ___\\\\\\  //////___ | @O0oOoo)",
    R"(oo00O@@ | =<(@)>=  \/  =<(@)>= | @OOoOOo)",
    R"( 00o0O@ |   ~~~    ||    ~~~   | O@@o0o )",
    R"(oo0OO0@ |  %#    (o  o)    #%  | @@@Oo0o)",
    R"( ooOO0@ |  .-|VVVVVVVVVVVV|-.  | @OO0oo )",
    R"(o00O@O@ |  | V (~~~~~~~~) V |  | @OOoO00)",
    R"( 00oOO@ |  | A  `~~\/~~'  A |  | @O0Ooo )",
    R"(  0oo@0O \ '-|AAAAAAAAAAAA|-' / @@@Ooo0 )",
    R"(   o0O0OO \   '=========='   / @0Oo0o   )",
    R"(    oo0O0@@ '.  %#%#%#%#  .' @@0O0oo    )",
    R"(      oo0o@0O@ '-.____.-' @0OO@o0o      )",
    R"(          oo0@O@O@@OO@@@@O@Ooo          )",
    R"(              o O@O@O0OO o              )",
};

const char* const kKryptalKeys[] = {
      "         g GggGgGGGgGggGggGGg g         ",
      "    g gGGGG wwwwwwwwwwwwwwww GGgGgg g   ",
      " gGggGgGG www  rrrRRRRrrr  www GgGGgGgg ",
      "y gggGgG w rrr RRRR  RRRR rrr w GGgGgg y",
      "gGggGGg w wwwRRRRRR  RRRRRRwww w gggGgGg",
      "gggGGGG w yyyRyyy  rr  yyyRyyy w GGGgggG",
      " gggGGG w   rrr    ww    rrr   w GgGggg ",
      "gGgGGgG w  rr    wR  Rw    rr  w GgGGggG",
      " GggGGG w  wwWWWWWWWWWWWWWWww  w GgGGgg ",
      "gggGGgG w  w W rRRRRRRRRr W w  w GgGGGGG",
      " gggGgG w  w W  rRRRRRRr  W w  w GGGGgg ",
      "  gggGgG w wwWWWWWWWWWWWWWWww w GgGGggg ",
      "   gGggGG w   wwwwwwwwwwww   w gGGggg   ",
      "    ggGgGGG ww  rrrrrrrr  ww GGgGggg    ",
      "      gggGGgGG wwwwwwwwww GGGgGggg      ",
      "          ggGGgGGGGGGggGGGGggg          ",
      "              g ggggGGGG G              ",
};

constexpr PaletteEntry kKryptalPalette[] = {
    {'g', 2}, {'G', 10}, {'w', 7}, {'W', 15}, {'r', 4}, {'R', 12}, {'y', 14},
};

// Carolla. Keys: b brown and y yellow for the strands of hair and the brows
// (and y for the badge), w light grey for the face, c light cyan for the eyes,
// l light red for the lips, m light magenta for the earrings, g green for the
// uniform, r red for its collar and stripes.
const char* const kCarollaRows[] = {
    R"(         .-~( (( ((  )) )) )~-.         )",
    R"(     .-~(( ((( (((    ))) ))) ))~-.     )",
    R"(     (( ((( (( ((/    \)) )) ))) ))     )",
    R"(   ((( (((( ((/          \)) )))) )))   )",
    R"(  ((( (( ((((| ,_/    \_, |)))) ))) ))  )",
    R"( (((( ((( (((| (o)    (o) |))) ))) )))) )",
    R"( ((( (((( (((|     _)     |)))) )) )))) )",
    R"(((( ((( ((((o|            |o))) )))) ))))",
    R"(( (( ((( (((♦\   .-~~-.   /♦))) ))) )) ))",
    R"(  ((( ((( ((( \  `-..-'  / ))) )) ))))  )",
    R"(   ((( ((( ((  `.      .'  )) ))) )))   )",
    R"(    ((( (( ((   `-.__.-'   )) ))) ))    )",
    R"(     ((( ((((    |    |    )))) )))     )",
    R"(     ((( ((__.--'\    /'--.__)) )))     )",
    R"(        .-'       \  /       '-.        )",
    R"(      .'    ==     \/     <*>  '.       )",
    R"(     /                            \     )",
};

const char* const kCarollaKeys[] = {
      "         bbbb bb yy  yy bb bbbb         ",
      "     bbbbb yyy bbb    bbb yyy bbbbb     ",
      "     bb yyy bb yyb    byy bb yyy bb     ",
      "   yyy bbbb yyw          wyy bbbb yyy   ",
      "  bbb yy bbbbw bbb    bbb wbbbb yyy bb  ",
      " yyyy bbb yyyw wcw    wcw wbbb yyy bbbb ",
      " bbb yyyy bbbw     ww     wyyyy bb bbbb ",
      "bbb yyy bbbbmw            wmbbb yyyy bbb",
      "b bb yyy bbbmw   llllll   wmyyy bbb yy b",
      "  yyy bbb yyy w  llllll  w bbb yy bbbb  ",
      "   bbb yyy bb  ww      ww  yy bbb yyy   ",
      "    yyy bb bb   wwwwwwww   bb yyy bb    ",
      "     bbb yyyy    w    w    bbbb yyy     ",
      "     yyy bbggggggr    rggggggbb bbb     ",
      "        ggg       r  r       ggg        ",
      "      gg    rr     rr     yyy  gg       ",
      "     g                            g     ",
};

constexpr PaletteEntry kCarollaPalette[] = {
    {'b', 6}, {'y', 14}, {'w', 7}, {'c', 11}, {'l', 12}, {'m', 13}, {'g', 2}, {'r', 4},
};

}  // namespace

const Picture kKryptalPortrait = {40, 17, kKryptalRows, kKryptalKeys, kKryptalPalette,
                                  static_cast<int>(std::size(kKryptalPalette))};

const Picture kCarollaPortrait = {40, 17, kCarollaRows, kCarollaKeys, kCarollaPalette,
                                  static_cast<int>(std::size(kCarollaPalette))};
