#include "game/crew/work_schedules.h"

#include <cassert>

#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kScheduleCount = 5;
constexpr int kTextColour = 15;
constexpr int kChosenColour = 12;
constexpr int kColumn = 22;

constexpr const char* kScheduleTexts[kScheduleCount] = {
    "1) All Ship Party Mode ",  "2) Slacker Mode ", "3) Plan 925 ",
    "4) All Work and No Play ", "5) Nazi Regime ",
};

void drawChoices(int cursor) {
  Console::putText("Choices: ", kColumn, 5, kTextColour);
  for (int i = 0; i < kScheduleCount; ++i) {
    Console::putText(kScheduleTexts[i], kColumn, 6 + i,
                     i + 1 == cursor ? kChosenColour : kTextColour);
  }
}

}  // namespace

void chooseWorkSchedule(int cursor) {
  assert(cursor >= 1 && cursor <= kScheduleCount);
  drawFrame(kDeckFrameColour, true);
  Console::putText("SELECT A WORK RATE", kColumn, 3, kTextColour);
  drawChoices(cursor);
  // A blocking screen: one key acts, and what was typed ahead is dropped
  // (after the last key, by the deck that called it).
  for (;;) {
    const KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown) {
      if (key.virtualKey == kKeyUp) {
        cursor = cursor == 1 ? kScheduleCount : cursor - 1;
        drawChoices(cursor);
      } else if (key.virtualKey == kKeyDown) {
        cursor = cursor == kScheduleCount ? 1 : cursor + 1;
        drawChoices(cursor);
      } else if (key.virtualKey == kKeyEnter || key.virtualKey == kKeyEscape) {
        // Escape is no cancel: the schedule under the cursor is taken.
        theMothership().setWorkSchedule(cursor - 1);
        return;
      }
    }
    Console::flushKeys();
  }
}
