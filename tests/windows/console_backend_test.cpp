// The Windows console backend against a real console (wine's, in CI): what
// it draws, which keys it reports and takes, and the console it leaves.
// Built only for Windows, into a program of its own with the Windows backend
// (cmake/windows.cmake); elsewhere this file is empty.
#ifdef _WIN32

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <string>
#include <thread>

#include "game/console/backend.h"

namespace {

// The active screen buffer and the input queue, as the player's console.
HANDLE activeBuffer() {
  return CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                     nullptr, OPEN_EXISTING, 0, nullptr);
}
HANDLE inputQueue() { return GetStdHandle(STD_INPUT_HANDLE); }

CHAR_INFO cellAt(HANDLE buffer, int column, int row) {
  CHAR_INFO cell{};
  SMALL_RECT from{static_cast<SHORT>(column), static_cast<SHORT>(row), static_cast<SHORT>(column),
                  static_cast<SHORT>(row)};
  ReadConsoleOutputW(buffer, &cell, COORD{1, 1}, COORD{0, 0}, &from);
  return cell;
}

void putCell(HANDLE buffer, int column, int row, wchar_t character, WORD attributes) {
  CHAR_INFO cell{};
  cell.Char.UnicodeChar = character;
  cell.Attributes = attributes;
  SMALL_RECT to{static_cast<SHORT>(column), static_cast<SHORT>(row), static_cast<SHORT>(column),
                static_cast<SHORT>(row)};
  WriteConsoleOutputW(buffer, &cell, COORD{1, 1}, COORD{0, 0}, &to);
}

INPUT_RECORD keyRecord(bool down, WORD virtualKey, wchar_t character, DWORD state = 0) {
  INPUT_RECORD record{};
  record.EventType = KEY_EVENT;
  record.Event.KeyEvent.bKeyDown = down;
  record.Event.KeyEvent.wRepeatCount = 1;
  record.Event.KeyEvent.wVirtualKeyCode = virtualKey;
  record.Event.KeyEvent.uChar.UnicodeChar = character;
  record.Event.KeyEvent.dwControlKeyState = state;
  return record;
}

void queue(const INPUT_RECORD& record) {
  DWORD written = 0;
  WriteConsoleInputW(inputQueue(), &record, 1, &written);
}

DWORD queued() {
  DWORD events = 0;
  GetNumberOfConsoleInputEvents(inputQueue(), &events);
  return events;
}

// Whatever the terminal under the console sends at the start (wine turns
// its answers into key events) is let in and thrown away, so that the queue
// holds only what a test puts there.
void settleInput() {
  static bool settled = false;
  if (settled) return;
  settled = true;
  for (int quietPasses = 0, passes = 0; quietPasses < 5 && passes < 50; ++passes) {
    Sleep(100);
    quietPasses = queued() == 0 ? quietPasses + 1 : 0;
    FlushConsoleInputBuffer(inputQueue());
  }
}

// The queue's events, for failure messages.
std::string describeQueue() {
  INPUT_RECORD records[16];
  DWORD read = 0;
  PeekConsoleInputW(inputQueue(), records, 16, &read);
  std::string out;
  for (DWORD i = 0; i < read; ++i) {
    const KEY_EVENT_RECORD& key = records[i].Event.KeyEvent;
    out += " [type " + std::to_string(records[i].EventType) + " down " +
           std::to_string(key.bKeyDown) + " key " + std::to_string(key.wVirtualKeyCode) + " char " +
           std::to_string(key.uChar.UnicodeChar) + "]";
  }
  return out;
}

void setCell(ScreenModel& screen, int column, int row, std::uint8_t code, std::uint8_t colour) {
  screen.cells[row][column] = Cell{code, colour};
  screen.rowChanged[row] = true;
  screen.changed = true;
}

class WindowsConsole : public testing::Test {
 protected:
  void SetUp() override {
    settleInput();
    FlushConsoleInputBuffer(inputQueue());
    backend::open();
    buffer = activeBuffer();
  }
  void TearDown() override {
    CloseHandle(buffer);
    backend::close();
  }
  HANDLE buffer = INVALID_HANDLE_VALUE;
  ScreenModel screen;
};

TEST_F(WindowsConsole, DrawsTheModelInGlyphsAndColoursOnAnEightyByTwentyFiveBuffer) {
  setCell(screen, 3, 2, 176, 0x4E);    // light shade, yellow on red
  setCell(screen, 79, 24, 219, 0x1F);  // full block in the last cell
  setCell(screen, 0, 24, 16, 0x0A);    // a glyph below 32: the right pointer
  backend::show(screen);

  CONSOLE_SCREEN_BUFFER_INFO info;
  ASSERT_TRUE(GetConsoleScreenBufferInfo(buffer, &info));
  EXPECT_EQ(info.dwSize.X, 80);
  EXPECT_EQ(info.dwSize.Y, 25);
  struct Expected {
    int column, row;
    wchar_t character;
    WORD colour;
  };
  for (Expected e :
       {Expected{3, 2, L'\u2591', 0x4E}, Expected{79, 24, L'\u2588', 0x1F},
        Expected{0, 24, L'\u25BA', 0x0A}, Expected{0, 0, L' ', 15}, Expected{78, 24, L' ', 15}}) {
    CHAR_INFO cell = cellAt(buffer, e.column, e.row);
    EXPECT_EQ(cell.Char.UnicodeChar, e.character) << e.column << "," << e.row;
    EXPECT_EQ(cell.Attributes & 0xFF, e.colour) << e.column << "," << e.row;
  }
  EXPECT_FALSE(screen.changed);
  EXPECT_FALSE(screen.rowChanged[2]);
}

TEST_F(WindowsConsole, WritesOnlyTheCellsThatChanged) {
  backend::show(screen);  // the first frame: everything
  // Marks put behind the backend's back stay unless the backend writes there.
  for (int column : {9, 10, 12, 13}) putCell(buffer, column, 5, L'Z', 0x0C);
  setCell(screen, 10, 5, 'a', 15);  // written, then put back as it was shown
  setCell(screen, 10, 5, ' ', 15);
  setCell(screen, 11, 5, 'b', 0x1F);
  backend::show(screen);

  EXPECT_EQ(cellAt(buffer, 11, 5).Char.UnicodeChar, L'b');
  EXPECT_EQ(cellAt(buffer, 11, 5).Attributes & 0xFF, 0x1F);
  for (int column : {9, 10, 12, 13}) EXPECT_EQ(cellAt(buffer, column, 5).Char.UnicodeChar, L'Z');
}

TEST_F(WindowsConsole, KeyWaitingCountsKeyDownsOfCharactersAndExtendedKeysOnly) {
  struct Case {
    INPUT_RECORD record;
    bool counts;
    const char* what;
  };
  const Case cases[] = {
      {keyRecord(true, 'A', L'a'), true, "a letter"},
      {keyRecord(true, VK_RIGHT, 0), true, "an arrow"},
      {keyRecord(true, VK_NEXT, 0), true, "Page Down"},
      {keyRecord(true, VK_DELETE, 0), true, "Delete"},
      {keyRecord(true, VK_F1, 0), true, "F1"},
      {keyRecord(false, 'A', L'a'), false, "a release"},
      {keyRecord(true, VK_SHIFT, 0), false, "a lone Shift"},
      {keyRecord(true, VK_CONTROL, 0), false, "a lone Ctrl"},
      {keyRecord(true, VK_MENU, 0), false, "a lone Alt"},
      {keyRecord(true, VK_CAPITAL, 0), false, "Caps Lock"},
  };
  for (const Case& c : cases) {
    FlushConsoleInputBuffer(inputQueue());
    queue(c.record);
    EXPECT_EQ(backend::keyWaiting(), c.counts) << c.what;
    EXPECT_EQ(queued(), 1u) << c.what << ":" << describeQueue();
  }
  FlushConsoleInputBuffer(inputQueue());
  EXPECT_FALSE(backend::keyWaiting());
}

TEST_F(WindowsConsole, EveryKeyTheGameReadsComesWithBothFieldsWhateverTheConsoleSent) {
  struct Case {
    INPUT_RECORD record;
    std::uint16_t virtualKey;
    std::uint8_t ascii;
    const char* what;
  };
  const Case cases[] = {
      {keyRecord(true, VK_ESCAPE, 0), kKeyEscape, 27, "Escape as wine's console sends it"},
      {keyRecord(true, VK_ESCAPE, 27), kKeyEscape, 27, "Escape with its character"},
      {keyRecord(true, VK_RETURN, 0), kKeyEnter, 13, "Enter with no character"},
      {keyRecord(true, VK_RETURN, L'\n', LEFT_CTRL_PRESSED), kKeyEnter, 13,
       "Enter as a terminal's line feed"},
      {keyRecord(true, VK_SPACE, 0), kKeySpace, ' ', "Space with no character"},
      {keyRecord(true, VK_BACK, 0), kKeyBackspace, 8, "Backspace with no character"},
      {keyRecord(true, VK_PRIOR, 0), kKeyPageUp, 0, "Page Up"},
      {keyRecord(true, VK_NEXT, 0), kKeyPageDown, 0, "Page Down"},
      {keyRecord(true, 'Y', 0), 'Y', 'y', "y with no character"},
      {keyRecord(true, 'Y', 0, SHIFT_PRESSED), 'Y', 'Y', "Shift+Y with no character"},
      {keyRecord(true, 'N', 0, CAPSLOCK_ON), 'N', 'N', "N under Caps Lock"},
      {keyRecord(true, 'N', 0, CAPSLOCK_ON | SHIFT_PRESSED), 'N', 'n',
       "Shift+N under Caps Lock"},
      {keyRecord(true, 'N', L'N', SHIFT_PRESSED), 'N', 'N', "Shift+N with its character"},
      {keyRecord(true, 0, L'y'), 'Y', 'y', "y with no virtual key"},
      {keyRecord(true, 0, 27), kKeyEscape, 27, "Escape with no virtual key"},
  };
  for (const Case& c : cases) {
    FlushConsoleInputBuffer(inputQueue());
    queue(c.record);
    EXPECT_TRUE(backend::keyWaiting()) << c.what;
    const KeyEvent key = backend::readKey();
    EXPECT_TRUE(key.isKey && key.keyDown) << c.what;
    EXPECT_EQ(key.virtualKey, c.virtualKey) << c.what;
    EXPECT_EQ(key.ascii, c.ascii) << c.what;
  }
}

TEST_F(WindowsConsole, ReadKeyGivesEveryEventAsItCame) {
  queue(keyRecord(true, VK_RETURN, L'\r'));
  queue(keyRecord(true, 'E', L'\u00E9'));  // é: code 130 of code page 437
  queue(keyRecord(false, VK_ESCAPE, 27));
  INPUT_RECORD focus{};
  focus.EventType = FOCUS_EVENT;
  focus.Event.FocusEvent.bSetFocus = TRUE;
  queue(focus);

  KeyEvent enter = backend::readKey();
  EXPECT_TRUE(enter.isKey && enter.keyDown);
  EXPECT_EQ(enter.virtualKey, kKeyEnter);
  EXPECT_EQ(enter.ascii, 13);
  KeyEvent accent = backend::readKey();
  EXPECT_EQ(accent.virtualKey, 'E');
  EXPECT_EQ(accent.ascii, 130);
  KeyEvent release = backend::readKey();
  EXPECT_TRUE(release.isKey);
  EXPECT_FALSE(release.keyDown);
  EXPECT_EQ(release.virtualKey, kKeyEscape);
  KeyEvent other = backend::readKey();
  EXPECT_FALSE(other.isKey);
  EXPECT_FALSE(other.keyDown);
  EXPECT_EQ(queued(), 0u) << describeQueue();
}

// A screen that has stood still for half a second is looked at with no time
// limit: the look ends when the key comes, not on a timer.
TEST_F(WindowsConsole, AStillScreenWaitsForTheKeyItself) {
  backend::show(screen);
  Sleep(600);
  std::thread typist([] {
    Sleep(300);
    queue(keyRecord(true, 'A', L'a'));
  });
  const auto start = std::chrono::steady_clock::now();
  const bool waiting = backend::keyWaiting();
  const auto waited = std::chrono::steady_clock::now() - start;
  typist.join();
  EXPECT_TRUE(waiting);
  EXPECT_GE(waited, std::chrono::milliseconds(250));
}

TEST_F(WindowsConsole, FlushBehindALookTakesWhatTheLookSawAndNoMore) {
  queue(keyRecord(false, 'A', L'a'));
  EXPECT_FALSE(backend::keyWaiting());
  queue(keyRecord(true, 'B', L'b'));  // comes in between the look and the flush
  backend::flushKeys();
  ASSERT_EQ(queued(), 1u);
  EXPECT_EQ(backend::readKey().ascii, 'b');

  // After a read or a sleep the flush takes everything.
  queue(keyRecord(true, 'C', L'c'));
  queue(keyRecord(true, 'D', L'd'));
  EXPECT_TRUE(backend::keyWaiting());
  backend::readKey();
  backend::flushKeys();
  EXPECT_EQ(queued(), 0u);
  EXPECT_FALSE(backend::keyWaiting());
  queue(keyRecord(true, 'E', L'e'));
  backend::sleep(1);
  backend::flushKeys();
  EXPECT_EQ(queued(), 0u);
}

TEST(WindowsConsoleClose, LeavesThePlayersBufferAndInputModeAsTheyWere) {
  settleInput();
  HANDLE before = activeBuffer();
  putCell(before, 5, 1, L'Q', 0x2E);
  const DWORD playersMode = ENABLE_PROCESSED_INPUT | ENABLE_LINE_INPUT | ENABLE_ECHO_INPUT;
  SetConsoleMode(inputQueue(), playersMode);

  backend::open();
  DWORD mode = 0;
  GetConsoleMode(inputQueue(), &mode);
  EXPECT_EQ(mode, static_cast<DWORD>(ENABLE_PROCESSED_INPUT));
  ScreenModel screen;
  setCell(screen, 5, 1, 'X', 15);
  backend::show(screen);
  backend::close();

  HANDLE after = activeBuffer();
  EXPECT_EQ(cellAt(after, 5, 1).Char.UnicodeChar, L'Q');
  EXPECT_EQ(cellAt(after, 5, 1).Attributes & 0xFF, 0x2E);
  GetConsoleMode(inputQueue(), &mode);
  EXPECT_EQ(mode, playersMode);
  CloseHandle(after);
  CloseHandle(before);
}

}  // namespace

#endif  // _WIN32
