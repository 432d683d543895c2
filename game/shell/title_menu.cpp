#include "game/shell/title_menu.h"

#include <cstdint>
#include <string>

#include "game/art/title.h"
#include "game/console/console.h"
#include "game/shell/mothership.h"
#include "game/shell/ship_map.h"
#include "game/shell/starting_contents.h"

namespace {

constexpr int kEntryCount = 5;
constexpr int kRunnerCount = 13;
constexpr int kPassesPerRunnerStep = 30;
constexpr int kPassesPerSweepStep = 600;
constexpr int kBarColour = 12;
constexpr int kSelectedColour = 79;
constexpr int kEntryColour = 78;
constexpr int kFrameColour = 8;
constexpr int kBarStart = 3;    // every left bar starts here
constexpr int kMirrorSum = 41;  // the right bar mirrors the left: column c faces 41 - c
constexpr int kCreditsColumn = 43;
constexpr int kCreditsRow = 15;

struct TitleEntry {
  const char* label;
  int row;
  int barCells;
  int labelColumn;
  int rightBarColumn;
  int sweepSpan;
};

constexpr TitleEntry kEntries[kEntryCount] = {
    {"NEW GAME", 15, 14, 17, 25, 13},     {"LOAD  GAME", 17, 13, 16, 26, 12},
    {"GAME OPTIONS", 19, 12, 15, 27, 11}, {"VIEW CREDITS", 21, 12, 15, 27, 11},
    {"EXIT", 23, 16, 19, 23, 15},
};

constexpr int kNewGame = 1;
constexpr int kViewCredits = 4;
constexpr int kExit = 5;

void drawEntry(int entry, bool selected) {
  const TitleEntry& e = kEntries[entry - 1];
  std::string bar(static_cast<std::size_t>(e.barCells), '\xB0');
  Console::putText(bar, kBarStart, e.row, kBarColour);
  Console::putText(e.label, e.labelColumn, e.row, selected ? kSelectedColour : kEntryColour);
  Console::putText(bar, e.rightBarColumn, e.row, kBarColour);
}

void drawTitleScreen() {
  drawPicture(kTitleTop, 3, 1, 14);
  drawPicture(kTitleMiddle, 3, 7, 14);
  drawPicture(kTitleTail, 3, 13, 14);
  drawPicture(kEmblem, 51, 8, 10);
  for (int entry = 1; entry <= kEntryCount; ++entry) drawEntry(entry, entry == kNewGame);
}

void drawDottedFrame() {
  for (int column = 2; column <= 39; ++column) {
    Console::putChar(250, column, 14, kFrameColour);
    Console::putChar(250, column, 24, kFrameColour);
  }
  for (int row = 15; row <= 23; ++row) {
    Console::putChar(250, 2, row, kFrameColour);
    Console::putChar(250, 39, row, kFrameColour);
  }
}

void showCredits(bool shown) {
  for (int i = 0; i < 9; ++i) {
    if (shown) {
      Console::putText(kCreditRows[i], kCreditsColumn, kCreditsRow + i, 14);
    } else {
      Console::putText(std::string(35, ' '), kCreditsColumn, kCreditsRow + i, 15);
    }
  }
}

// The title's moving parts: thirteen running lights on the dotted frame and
// a bright cell sweeping the selected entry's bars.
class TitleAnimation {
 public:
  TitleAnimation() {
    for (int j = 0; j < kRunnerCount; ++j) {
      heads_[j] = {2, 14, 14};
      tails_[j] = {3, 14, kFrameColour};
    }
    // Spread the runners round the track before the first pass.
    for (int k = 0; k < kRunnerCount; ++k) {
      for (int times = 0; times < 7; ++times) {
        for (int j = 0; j <= k; ++j) {
          heads_[j] = stepTrack(heads_[j]);
          tails_[j] = stepTrack(tails_[j]);
        }
      }
    }
  }

  void stepRunner() {
    TrackPosition& head = heads_[runnerIndex_];
    TrackPosition& tail = tails_[runnerIndex_];
    Console::putChar(249, head.column, head.row, head.colour);
    Console::putChar(250, tail.column, tail.row, tail.colour);
    head = stepTrack(head);
    tail = stepTrack(tail);
    runnerIndex_ = (runnerIndex_ + 1) % kRunnerCount;
  }

  void stepSweep(int entry) {
    const int row = kEntries[entry - 1].row;
    const int span = kEntries[entry - 1].sweepSpan;
    Console::putChar(178, sweepPos_, row, kBarColour);
    Console::putChar(178, kMirrorSum - sweepPos_, row, kBarColour);
    if (sweepPrev_ != sweepPos_) {
      Console::putChar(176, sweepPrev_, row, kBarColour);
      Console::putChar(176, kMirrorSum - sweepPrev_, row, kBarColour);
    }
    if (sweepForward_) {
      if (++sweepPos_ > kBarStart + span) {
        sweepForward_ = false;
        sweepPos_ = kBarStart + span - 1;
        sweepPrev_ = kBarStart + span;
      } else {
        sweepPrev_ = sweepPos_ - 1;
      }
    } else {
      if (--sweepPos_ < kBarStart) {
        sweepForward_ = true;
        sweepPos_ = kBarStart + 1;
        sweepPrev_ = kBarStart;
      } else {
        sweepPrev_ = sweepPos_ + 1;
      }
    }
  }

  void restartSweep() { sweepPos_ = sweepPrev_ = kBarStart; }

 private:
  TrackPosition heads_[kRunnerCount];
  TrackPosition tails_[kRunnerCount];
  int runnerIndex_ = 0;
  int sweepPos_ = kBarStart;
  int sweepPrev_ = kBarStart;
  bool sweepForward_ = true;
};

// The first game of a run starts from what start-up laid down; a later one
// is cleared first.
void playGame() {
  setGameOver(false);
  if (globals().gamePlayed) resetGame();
  globals().gamePlayed = true;
  drawShipMap();
  runShipMap(kDeckNav);
}

}  // namespace

TrackPosition stepTrack(TrackPosition p) {
  if (p.column == 2) {
    ++p.row;
  } else if (p.row == 24) {
    ++p.column;
  } else if (p.column == 39) {
    --p.row;
  } else if (p.row == 14) {
    --p.column;
  }
  if (p.row == 25) {
    p.column = 3;
    p.row = 24;
  } else if (p.row == 13) {
    p.column = 38;
    p.row = 14;
  } else if (p.column == 40) {
    p.column = 39;
    p.row = 23;
  }
  return p;
}

void runTitleMenu() {
  // A new console is blank: nothing is cleared before the first drawing.
  drawTitleScreen();
  drawDottedFrame();
  TitleAnimation animation;
  int selected = kNewGame;
  std::uint32_t pass = 0;
  for (;;) {
    ++pass;
    if (pass % kPassesPerRunnerStep == 0) animation.stepRunner();
    if (pass % kPassesPerSweepStep == 0) animation.stepSweep(selected);
    if (Console::keyWaiting()) {
      KeyEvent key = Console::readKey();
      if (key.virtualKey == kKeyUp || key.virtualKey == kKeyDown) {
        animation.restartSweep();
        int old = selected;
        if (key.virtualKey == kKeyUp) {
          selected = old == 1 ? kEntryCount : old - 1;
        } else {
          selected = old == kEntryCount ? 1 : old + 1;
        }
        drawEntry(old, false);
        drawEntry(selected, true);
        if (old == kViewCredits) showCredits(false);
        if (selected == kViewCredits) showCredits(true);
      } else if (key.ascii == 13) {
        if (selected == kExit) return;
        if (selected == kNewGame) {
          playGame();
          // The frame is not drawn again: the running lights bring it back.
          Console::setColour(15);
          Console::clearScreen();
          drawTitleScreen();
          selected = kNewGame;
        }
      }
    }
    Console::flushKeys();
  }
}
