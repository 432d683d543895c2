#include "game/shell/endings.h"

#include "game/art/portraits.h"
#include "game/console/console.h"
#include "game/shell/mothership.h"

namespace {

struct Line {
  int column;
  int row;
  int colour;
  const char* text;
};

// The four lines that every screen's story takes: three in red at the top,
// two in yellow at the bottom, and a picture or a shout between them.
struct EndScreen {
  Line lines[6];
  int count;
  void (*portrait)(int column, int row);
  int portraitColumn;
  int portraitRow;
};

constexpr EndScreen kMutinyInHisSleep{
    {{1, 1, 12, "You go sleep that night in your warm comfy bed."},
     {2, 2, 12, "Unfortunately your crew hates you and you are killed in your sleep"},
     {3, 3, 12, "As you fade from existance you smell the faint scent of Kryptal's Perfume."},
     {0, 21, 14, "YOU ARE DEAD CAPTAIN! KRYPTAL KICKED YOUR SEAT REGION!"},
     {0, 22, 14, "KRYPTAL DRINK BLOOD! NEXT TIME DONT OVERWORK YOUR CREW!"}},
    5,
    drawKryptalPortrait,
    19,
    4};

constexpr EndScreen kMutinyEaten{
    {{1, 1, 12, "You go sleep that night in your warm comfy bed."},
     {2, 2, 12, "Unfortunately your crew have no food and they decide it's your fault."},
     {3, 3, 12, "Your crew decides to eat you because they are hungry! YUM YUM!"},
     {0, 21, 14, "YOU ARE DEAD CAPTAIN! KRYPTAL ATE YOU!"},
     {0, 22, 14, "KRYPTAL DRINK BLOOD...LITERALY!! NEXT TIME REMEMBER TO FEED YOUR CREW!"}},
    5,
    drawKryptalPortrait,
    19,
    4};

constexpr EndScreen kOutOfFuel{
    {{1, 1, 12, "Your ship has no fuel and you die."},
     {2, 2, 12, "Next time, don't listen to those liberal pinkos."},
     {3, 3, 12, "Suck up all the oil and fuel resources you need."},
     {10, 4, 15, "SHIP GO BOOM"},
     {0, 21, 14, "YOU ARE DEAD CAPTAIN! YOUR SHIP RAN OUT OF FUEL!"},
     {0, 22, 14, "YOUR PRETTY MOTHERSHIP CRASHED INTO THE GROUND! GOOD BYE!"}},
    6,
    nullptr,
    0,
    0};

constexpr EndScreen kCannonDrankTheFuel{
    {{1, 1, 12, "Your ship has no fuel and you die."},
     {2, 2, 12, "Maybe you should check your fuel levels next time"},
     {3, 3, 12, "before you fire your Ion Cannon."},
     {10, 6, 15, "AT LEAST YA WENT OUT WITH A BANG!"},
     {0, 21, 14, "YOU ARE DEAD CAPTAIN! YOUR SHIP RAN OUT OF FUEL!"},
     {0, 22, 14, "YOUR PRETTY MOTHERSHIP CRASHED INTO THE GROUND! GOOD BYE!"}},
    6,
    nullptr,
    0,
    0};

constexpr EndScreen kVictory{{{1, 1, 12, "You destroyed America!"},
                              {2, 2, 12, "You Owned EVERYONE"},
                              {3, 3, 12, "Now the Povolnians have a new home."},
                              {10, 6, 15, "PAT YOURSELF ON THE BACK! GREAT JOB!"},
                              {0, 21, 14, "YOU WIN THE GAME!"},
                              {0, 22, 14, "YOU GOT MAD SKILLS!"}},
                             6,
                             nullptr,
                             0,
                             0};

constexpr EndScreen kFamine{{{1, 1, 12, "Carolla says, \"Captain, we are running low on food.\""},
                             {0, 21, 14, "Hurry Find some food... Or prepare to die"},
                             {0, 22, 14, "at the hands of your crew! They'll turn you to Stew!"}},
                            3,
                            drawCarollaPortrait,
                            19,
                            2};

void show(const EndScreen& screen) {
  Console::setColour(15);
  Console::clearScreen();
  for (int i = 0; i < screen.count; ++i) {
    const Line& line = screen.lines[i];
    Console::putText(line.text, line.column, line.row, line.colour);
  }
  if (screen.portrait != nullptr) screen.portrait(screen.portraitColumn, screen.portraitRow);
  Console::putText("<Press Any Key To End Game>", 0, 23, 15);
  Console::waitAnyKey();
}

}  // namespace

void showMutinyEnding() { show(theMothership().food() == 0 ? kMutinyEaten : kMutinyInHisSleep); }
void showFuelEnding() { show(kOutOfFuel); }
void showVictoryEnding() { show(kVictory); }
void showFamineWarning() { show(kFamine); }
void showCannonFuelEnding() { show(kCannonDrankTheFuel); }

void drawKryptalPortrait(int column, int row) { drawPicture(kKryptalPortrait, column, row); }
void drawCarollaPortrait(int column, int row) { drawPicture(kCarollaPortrait, column, row); }
