// The web backend: shows the console model on a page in a browser tab and
// reads its keys. Built with Emscripten into WebAssembly; the page
// (web/page.js) draws the cells and queues the keys.
//
// Output: only the cells that differ from what the page already shows go
// out, packed one to a 32-bit word (cell index, colour, code page 437 code),
// so a screen that stands still costs the page nothing.
//
// Input: the page keeps the queue of key-downs; this side peeks, takes and
// clears it.
//
// Waiting: the game's loops stay as they are. Whenever the game waits (a
// blocking read, a sleep, every thirtieth pass of a polling loop) the program
// gives the tab back to the browser (Asyncify) and resumes on a timer or as
// soon as a key comes. The polling loops are paced as in a terminal, about
// a millisecond a pass: while the screen moves, thirty passes to a beat of
// 30 ms (the title's running lights step once a beat, and the tab wakes 33
// times a second, not 1000). Once the screen has stood still for half a
// second, a polling loop is only waiting for a key (the ship map, the
// freighter deck), so the program sleeps until one comes: a still screen
// wakes the tab not at all. A resize needs no wake either, since the page
// redraws the cells it keeps.
//
// Playing: the page asks before the tab is closed or reloaded while a game
// is on. The game is on from the first status bar (row 24 starts with the
// day) until the title menu is back or the program ends.
#include <emscripten.h>

#include <cassert>
#include <cstdint>

#include "game/console/backend.h"
#include "game/console/cp437.h"

namespace {

constexpr int kPassesPerWait = 30;
constexpr int kFastWaitMs = 30;
constexpr double kStillAfterMs = 500.0;
constexpr int kNoLimit = -1;
constexpr int kCellCount = kScreenWidth * kScreenHeight;

Cell shown[kScreenHeight][kScreenWidth];
bool fullRepaint = true;
std::uint32_t changes[kCellCount];
double lastChange = 0.0;
int passesSinceWait = 0;
double nextWake = 0.0;  // when the current wait of a moving screen should end
bool playing = false;

// Where the game is told from the screen: the status bar's first row, and
// two entries of the title menu.
struct ScreenText {
  int row;
  int column;
  const char* text;
};
constexpr ScreenText kStatusBarDay = {23, 0, " DAY:"};
constexpr ScreenText kTitleNewGame = {15, 17, "NEW GAME"};
constexpr ScreenText kTitleExit = {23, 19, "EXIT"};

bool textAt(const ScreenModel& screen, ScreenText at) {
  const int row = at.row;
  const int column = at.column;
  const char* text = at.text;
  assert(row >= 0 && row < kScreenHeight && column >= 0);
  for (int i = 0; text[i] != '\0'; ++i) {
    if (column + i >= kScreenWidth) return false;
    if (screen.cells[row][column + i].code != static_cast<std::uint8_t>(text[i])) return false;
  }
  return true;
}

bool gameOn(const ScreenModel& screen, bool wasOn) {
  if (textAt(screen, kStatusBarDay)) return true;
  if (textAt(screen, kTitleNewGame) && textAt(screen, kTitleExit)) return false;
  return wasOn;
}

// One changed cell for the page: index in the top 16 bits, then the colour,
// then the code.
std::uint32_t packCell(int row, int column, Cell cell) {
  return static_cast<std::uint32_t>(row * kScreenWidth + column) << 16 |
         static_cast<std::uint32_t>(cell.colour) << 8 | cell.code;
}

}  // namespace

// The page's side of the seam: Module.skarmada is set up by web/page.js
// before the program starts.
// clang-format off
// The page learns the Unicode character of each of the 256 codes once.
EM_JS(void, pageOpen, (const std::uint32_t* unicode), {
  Module.skarmada.open(HEAPU32.slice(unicode >> 2, (unicode >> 2) + 256));
});
EM_JS(void, pageClose, (), { Module.skarmada.close(); });
EM_JS(void, pagePaint, (const std::uint32_t* cells, int count), {
  Module.skarmada.paint(HEAPU32.subarray(cells >> 2, (cells >> 2) + count));
});
// The next key as virtual key * 256 + character, or -1 when there is none;
// `take` removes it from the queue.
EM_JS(int, pageNextKey, (int take), { return Module.skarmada.nextKey(take); });
EM_JS(void, pageFlushKeys, (), { Module.skarmada.flushKeys(); });
EM_JS(void, pagePlaying, (int on), { Module.skarmada.playing(on !== 0); });
// Gives the tab back to the browser for up to `milliseconds` (-1: no limit);
// with `wakeOnKey` a key ends the wait at once.
EM_JS(void, pageWait, (int milliseconds, int wakeOnKey), {
  return Asyncify.handleSleep(function(wakeUp) {
    Module.skarmada.wait(milliseconds, wakeOnKey, wakeUp);
  });
});
// clang-format on

namespace backend {

void open() {
  static std::uint32_t unicode[256];
  for (int code = 0; code < 256; ++code) {
    unicode[code] = cp437::toUnicode(static_cast<std::uint8_t>(code));
  }
  pageOpen(unicode);
  fullRepaint = true;
  lastChange = emscripten_get_now();
}

void close() {
  playing = false;
  pagePlaying(0);
  pageClose();
}

void show(ScreenModel& screen) {
  if (!screen.changed && !fullRepaint) return;
  int count = 0;
  for (int row = 0; row < kScreenHeight; ++row) {
    if (!fullRepaint && !screen.rowChanged[row]) continue;
    for (int column = 0; column < kScreenWidth; ++column) {
      const Cell& cell = screen.cells[row][column];
      if (!fullRepaint && cell == shown[row][column]) continue;
      shown[row][column] = cell;
      changes[count++] = packCell(row, column, cell);
    }
    screen.rowChanged[row] = false;
  }
  screen.changed = false;
  fullRepaint = false;
  if (count > 0) {
    pagePaint(changes, count);
    lastChange = emscripten_get_now();
    const bool on = gameOn(screen, playing);
    if (on != playing) {
      playing = on;
      pagePlaying(on ? 1 : 0);
    }
  }
}

bool keyWaiting() {
  if (pageNextKey(0) >= 0) return true;
  if (emscripten_get_now() - lastChange > kStillAfterMs) {
    pageWait(kNoLimit, 1);
  } else {
    if (++passesSinceWait < kPassesPerWait) return false;
    passesSinceWait = 0;
    // The browser's timers come late; the waits keep to the beat, so that
    // an animation counted in passes keeps its pace.
    const double now = emscripten_get_now();
    nextWake += kFastWaitMs;
    if (nextWake < now - kFastWaitMs * 3 || nextWake > now + kFastWaitMs)
      nextWake = now + kFastWaitMs;
    pageWait(nextWake > now ? static_cast<int>(nextWake - now) : 0, 1);
  }
  return pageNextKey(0) >= 0;
}

KeyEvent readKey() {
  int key;
  while ((key = pageNextKey(1)) < 0) pageWait(kNoLimit, 1);
  return KeyEvent::press(static_cast<std::uint16_t>(key >> 8), static_cast<std::uint8_t>(key));
}

void flushKeys() { pageFlushKeys(); }

void sleep(int milliseconds) {
  if (milliseconds <= 0) return;
  pageWait(milliseconds, 0);
}

}  // namespace backend
