// The least a program on the Win32 console can do with a key: wait for it
// and put one cell on the screen. The wine benchmark times it beside the
// game, to tell the console's own delay from the game's.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

int main() {
  HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
  HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  SetConsoleMode(input, ENABLE_PROCESSED_INPUT);
  WriteConsoleW(output, L"READY", 5, nullptr, nullptr);
  for (int count = 0;; ++count) {
    INPUT_RECORD record;
    DWORD read = 0;
    if (!ReadConsoleInputW(input, &record, 1, &read)) return 1;
    if (record.EventType != KEY_EVENT || !record.Event.KeyEvent.bKeyDown) continue;
    CHAR_INFO cell{};
    cell.Char.UnicodeChar = static_cast<WCHAR>(L'A' + count % 26);
    cell.Attributes = 0x0F;
    SMALL_RECT target{10, 10, 10, 10};
    WriteConsoleOutputW(output, &cell, COORD{1, 1}, COORD{0, 0}, &target);
  }
}
