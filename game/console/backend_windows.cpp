// The Windows backend: shows the console model in the Win32 console and
// reads its keys. The only file that includes windows.h.
//
// The game draws on a screen buffer of its own, made 80x25 and made active
// at open; the buffer the player had stays as it was, scrollback and all, and
// is made active again at the end. Should no buffer of our own be had, the
// game draws on the standard output's buffer instead.
//
// Output: only cells that differ from what the console already shows are
// written, one WriteConsoleOutputW for each run of changed cells in a row
// (each cell carries its colour, and the console's palette is the game's:
// the colour number is the attribute). Glyphs go out as UTF-16, so code
// page 437 is shown whatever code page the console is set to.
//
// Input: console input events as they come, key-downs and releases alike.
// keyWaiting looks at the queue without taking from it, and waits on the
// input handle: 10 ms every tenth pass while the screen moves, and once it
// has stood still for half a second, until input comes, with no time limit
// (nothing on a still screen moves until the player acts); a key ends any
// wait. A
// flush right behind such a look throws away what the look saw and no more,
// so a key that comes in just then waits for the next pass instead of being
// lost (under a busy wine, many keys were lost that way).
//
// The console is put back on every way out: the normal end, Ctrl+C,
// Ctrl+Break, closing the window, logging off, and a crash.
#include "game/console/backend.h"
#include "game/console/cp437.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <csignal>

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr int kPassesPerWait = 10;
constexpr DWORD kFastWaitMs = 10;
constexpr auto kStillAfter = std::chrono::milliseconds(500);
constexpr DWORD kInputMode = ENABLE_PROCESSED_INPUT;  // keys only, Ctrl+C still handled
constexpr DWORD kCursorSize = 100;
constexpr DWORD kPeekBatch = 64;

HANDLE input = INVALID_HANDLE_VALUE;
HANDLE original = INVALID_HANDLE_VALUE;  // the buffer the player had
HANDLE output = INVALID_HANDLE_VALUE;    // the buffer the game draws on
bool ownBuffer = false;
bool ownOriginal = false;  // `original` was opened here
DWORD savedInputMode = 0;
bool haveInputMode = false;
CONSOLE_CURSOR_INFO savedCursor{};
bool haveCursor = false;
WORD savedAttributes = 0;
bool haveAttributes = false;

// Held while the console is written or put back: Ctrl+C and the closing of
// the window are handled on a thread of their own.
CRITICAL_SECTION guard;
bool isOpen = false;

Cell shown[kScreenHeight][kScreenWidth];
bool fullRepaint = true;
SteadyClock::time_point lastChange;
// What the last look at the input queue found, until the next read, flush
// or sleep: the flush of a polling pass throws away just these events, so
// that a key that comes in between the look and the flush is not lost.
DWORD eventsSeen = 0;
bool lookFresh = false;
int passesSinceWait = 0;

// Window and buffer exactly 80 by 25; the order of the two calls keeps the
// window inside the buffer at every step. A display that cannot show 80 by
// 25 gets the largest window it can.
void setSize(HANDLE buffer) {
  CONSOLE_SCREEN_BUFFER_INFO info;
  if (!GetConsoleScreenBufferInfo(buffer, &info)) return;
  COORD largest = GetLargestConsoleWindowSize(buffer);
  int width = largest.X > 0 ? std::min<int>(kScreenWidth, largest.X) : kScreenWidth;
  int height = largest.Y > 0 ? std::min<int>(kScreenHeight, largest.Y) : kScreenHeight;
  SMALL_RECT window{0, 0, static_cast<SHORT>(width - 1), static_cast<SHORT>(height - 1)};
  COORD size{kScreenWidth, kScreenHeight};
  long oldCells = static_cast<long>(info.dwSize.X) * info.dwSize.Y;
  long newCells = static_cast<long>(kScreenWidth) * kScreenHeight;
  if (oldCells > newCells) {
    SetConsoleWindowInfo(buffer, TRUE, &window);
    SetConsoleScreenBufferSize(buffer, size);
  } else if (oldCells < newCells) {
    SetConsoleScreenBufferSize(buffer, size);
    SetConsoleWindowInfo(buffer, TRUE, &window);
  }
}

// Puts the console back as it was found. Called with the guard held.
void restore() {
  if (!isOpen) return;
  isOpen = false;
  if (haveInputMode) SetConsoleMode(input, savedInputMode);
  if (ownBuffer) {
    // The cursor shown again on the game's buffer too: a console that does
    // not redraw on the switch (wine's on a terminal) keeps this one.
    if (haveCursor) SetConsoleCursorInfo(output, &savedCursor);
    SetConsoleActiveScreenBuffer(original);
    CloseHandle(output);
    ownBuffer = false;
  } else {
    if (haveCursor) SetConsoleCursorInfo(output, &savedCursor);
    if (haveAttributes) SetConsoleTextAttribute(output, savedAttributes);
    // The shell's prompt comes on the last row.
    SetConsoleCursorPosition(output, COORD{0, kScreenHeight - 1});
  }
  if (ownOriginal) CloseHandle(original);
  ownOriginal = false;
  original = output = INVALID_HANDLE_VALUE;
}

void restoreGuarded() {
  EnterCriticalSection(&guard);
  restore();
  LeaveCriticalSection(&guard);
}

// Ctrl+C, Ctrl+Break, the window closed, the user logging off or the system
// shutting down: the console is put back and the process ends, Ctrl+C and
// Ctrl+Break with the code that Windows gives a process they end.
BOOL WINAPI onControl(DWORD type) {
  switch (type) {
    case CTRL_C_EVENT:
    case CTRL_BREAK_EVENT:
    case CTRL_CLOSE_EVENT:
    case CTRL_LOGOFF_EVENT:
    case CTRL_SHUTDOWN_EVENT:
      // The guard stays held: the game's thread must not draw again.
      EnterCriticalSection(&guard);
      restore();
      ExitProcess(type == CTRL_C_EVENT || type == CTRL_BREAK_EVENT ? STATUS_CONTROL_C_EXIT : 0);
    default: return FALSE;
  }
}

LONG WINAPI onCrash(EXCEPTION_POINTERS*) {
  restoreGuarded();
  return EXCEPTION_CONTINUE_SEARCH;
}

void onAbort(int signalNumber) {
  restoreGuarded();
  std::signal(signalNumber, SIG_DFL);
  std::raise(signalNumber);
}

bool changedAt(const ScreenModel& screen, int row, int column) {
  return fullRepaint || !(screen.cells[row][column] == shown[row][column]);
}

// Writes cells [first, last) of a row in one call.
void writeRun(const ScreenModel& screen, int row, int first, int last) {
  CHAR_INFO run[kScreenWidth];
  for (int column = first; column < last; ++column) {
    const Cell& cell = screen.cells[row][column];
    shown[row][column] = cell;
    run[column - first].Char.UnicodeChar = static_cast<WCHAR>(cp437::toUnicode(cell.code));
    run[column - first].Attributes = cell.colour;
  }
  SMALL_RECT target{static_cast<SHORT>(first), static_cast<SHORT>(row),
                    static_cast<SHORT>(last - 1), static_cast<SHORT>(row)};
  WriteConsoleOutputW(output, run, COORD{static_cast<SHORT>(last - first), 1}, COORD{0, 0},
                      &target);
}

void present(ScreenModel& screen) {
  for (int row = 0; row < kScreenHeight; ++row) {
    if (!fullRepaint && !screen.rowChanged[row]) continue;
    int column = 0;
    while (column < kScreenWidth) {
      while (column < kScreenWidth && !changedAt(screen, row, column)) ++column;
      int first = column;
      while (column < kScreenWidth && changedAt(screen, row, column)) ++column;
      if (column > first) writeRun(screen, row, first, column);
    }
    screen.rowChanged[row] = false;
  }
  screen.changed = false;
  fullRepaint = false;
}

// The character of a key as a code page 437 code, 0 for none.
std::uint8_t asciiOf(WCHAR character) {
  if (character < 0x80) return static_cast<std::uint8_t>(character);
  int code = cp437::fromUnicode(character);
  return code < 0 ? 0 : static_cast<std::uint8_t>(code);
}

// A console key event as the game reads it, with both the virtual key and
// the character filled whatever the console delivered: wine's console on a
// terminal sends Escape with no character, and a console may send a
// character with no virtual key. A letter without its character takes its
// case from Shift and Caps Lock, and with Ctrl is the control character.
// Enter is 13 even as a line feed (Ctrl+Enter, or a terminal's Enter where
// it turns carriage returns into line feeds).
KeyEvent keyEventOf(const KEY_EVENT_RECORD& key) {
  KeyEvent event;
  event.keyDown = key.bKeyDown != 0;
  event.virtualKey = key.wVirtualKeyCode;
  event.ascii = asciiOf(key.uChar.UnicodeChar);
  const WORD code = key.wVirtualKeyCode;
  const std::uint8_t ascii = event.ascii;
  if (code == VK_RETURN && ascii == '\n') {
    event.ascii = kKeyEnter;
  } else if (ascii == 0) {
    const DWORD state = key.dwControlKeyState;
    const bool ctrl = (state & (LEFT_CTRL_PRESSED | RIGHT_CTRL_PRESSED)) != 0;
    const bool upper = ((state & SHIFT_PRESSED) != 0) != ((state & CAPSLOCK_ON) != 0);
    if (code == VK_RETURN || code == VK_ESCAPE || code == VK_BACK || code == VK_TAB ||
        code == VK_SPACE) {
      event.ascii = static_cast<std::uint8_t>(code);
    } else if (code >= 'A' && code <= 'Z') {
      event.ascii = static_cast<std::uint8_t>(ctrl ? code - 'A' + 1 : upper ? code : code + 32);
    } else if (code >= '0' && code <= '9' && (state & SHIFT_PRESSED) == 0) {
      event.ascii = static_cast<std::uint8_t>(code);
    }
  } else if (code == 0) {
    if (ascii == 13 || ascii == 27 || ascii == 8 || ascii == 9 || ascii == ' ' ||
        (ascii >= '0' && ascii <= '9') || (ascii >= 'A' && ascii <= 'Z')) {
      event.virtualKey = ascii;
    } else if (ascii >= 'a' && ascii <= 'z') {
      event.virtualKey = static_cast<std::uint16_t>(ascii - 32);
    }
  }
  return event;
}

// A key-down of a key that yields a character (as the game reads it) or of
// an extended key: page keys, End, Home, arrows, Insert, Delete and the
// function keys. Shift, Ctrl, Alt, Caps Lock and releases do not count.
bool counts(const INPUT_RECORD& record) {
  if (record.EventType != KEY_EVENT) return false;
  const KeyEvent event = keyEventOf(record.Event.KeyEvent);
  if (!event.keyDown) return false;
  if (event.ascii != 0) return true;
  const WORD code = event.virtualKey;
  return (code >= VK_PRIOR && code <= VK_DOWN) || code == VK_INSERT || code == VK_DELETE ||
         (code >= VK_F1 && code <= VK_F24);
}

// True if the queue holds a key that counts; takes nothing from it.
bool queueHoldsKey() {
  DWORD events = 0;
  if (!GetNumberOfConsoleInputEvents(input, &events)) events = 0;
  eventsSeen = events;
  lookFresh = true;
  if (events == 0) return false;
  INPUT_RECORD records[kPeekBatch];
  DWORD read = 0;
  if (!PeekConsoleInputW(input, records, kPeekBatch, &read)) return false;
  for (DWORD i = 0; i < read; ++i) {
    if (counts(records[i])) return true;
  }
  return false;
}

}  // namespace

namespace backend {

void open() {
  static bool guardMade = false;
  if (!guardMade) InitializeCriticalSection(&guard);
  guardMade = true;
  input = GetStdHandle(STD_INPUT_HANDLE);
  // The buffer the player sees now, by a handle of its own: the standard
  // output may be a handle that follows whichever buffer is active (wine's).
  original = CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                         FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  ownOriginal = original != INVALID_HANDLE_VALUE;
  if (!ownOriginal) original = GetStdHandle(STD_OUTPUT_HANDLE);
  haveInputMode = GetConsoleMode(input, &savedInputMode) != 0;

  output =
      CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, CONSOLE_TEXTMODE_BUFFER, nullptr);
  ownBuffer = output != INVALID_HANDLE_VALUE && output != nullptr;
  haveCursor = GetConsoleCursorInfo(original, &savedCursor) != 0;
  if (!ownBuffer) {
    output = original;
    CONSOLE_SCREEN_BUFFER_INFO info;
    haveAttributes = GetConsoleScreenBufferInfo(output, &info) != 0;
    savedAttributes = info.wAttributes;
  }
  isOpen = true;
  SetConsoleCtrlHandler(onControl, TRUE);
  SetUnhandledExceptionFilter(onCrash);
  std::signal(SIGABRT, onAbort);

  SetConsoleMode(input, kInputMode);
  setSize(output);
  if (ownBuffer) SetConsoleActiveScreenBuffer(output);
  CONSOLE_CURSOR_INFO hidden{kCursorSize, FALSE};
  SetConsoleCursorInfo(output, &hidden);
  fullRepaint = true;
  lastChange = SteadyClock::now();
}

void close() { restoreGuarded(); }

void show(ScreenModel& screen) {
  if (!screen.changed && !fullRepaint) return;
  EnterCriticalSection(&guard);
  if (isOpen) present(screen);
  LeaveCriticalSection(&guard);
  lastChange = SteadyClock::now();
}

bool keyWaiting() {
  DWORD waitMs = 0;
  if (SteadyClock::now() - lastChange > kStillAfter) {
    waitMs = INFINITE;
  } else if (++passesSinceWait >= kPassesPerWait) {
    passesSinceWait = 0;
    waitMs = kFastWaitMs;
  }
  // The handle is signalled while the queue holds anything; a wait that runs
  // out has seen it empty, and an idle pass costs this one call.
  if (waitMs > 0 && WaitForSingleObject(input, waitMs) == WAIT_TIMEOUT) {
    eventsSeen = 0;
    lookFresh = true;
    return false;
  }
  return queueHoldsKey();
}

KeyEvent readKey() {
  INPUT_RECORD record;
  DWORD read = 0;
  lookFresh = false;
  while (read == 0) {
    if (!ReadConsoleInputW(input, &record, 1, &read)) {
      // No console to read from: nothing more can happen.
      Console::close();
      ExitProcess(1);
    }
  }
  if (record.EventType != KEY_EVENT) {
    KeyEvent event;
    event.isKey = false;
    event.keyDown = false;
    return event;
  }
  return keyEventOf(record.Event.KeyEvent);
}

void flushKeys() {
  if (!lookFresh) {
    FlushConsoleInputBuffer(input);
    return;
  }
  // Right behind a look that found no key: what it saw goes, nothing else.
  // The polling loops flush on every pass, and most passes find the queue
  // empty, which costs no call at all.
  lookFresh = false;
  INPUT_RECORD discarded[kPeekBatch];
  while (eventsSeen > 0) {
    DWORD read = 0;
    if (!ReadConsoleInputW(input, discarded, std::min(eventsSeen, kPeekBatch), &read) ||
        read == 0) {
      break;
    }
    eventsSeen -= std::min(eventsSeen, read);
  }
}

void sleep(int milliseconds) {
  // Keys pressed during the sleep go at the next flush.
  lookFresh = false;
  if (milliseconds > 0) Sleep(static_cast<DWORD>(milliseconds));
}

}  // namespace backend
