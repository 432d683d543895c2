// Console: the 80x25 text screen and the keyboard, the one way the game draws
// and reads keys.
//
// The screen is a model of 80 columns by 25 rows of cells, each a code page
// 437 code and a colour (foreground + 16 * background), with one current
// colour and one write position. Every positioned write sets the colour and
// the position and then writes; text is never clipped, and text that reaches
// column 79 goes on at column 0 of the next row. Writes past the last row
// are dropped.
//
// The model is the single truth of what is on the screen. A platform backend
// (backend.h), chosen at link time, shows it: the terminal backend in the
// game, the scripted backend in tests. The screen is brought up to date
// whenever the game waits, for a key or for time, so the player never sees
// half of a drawing and an unchanged write costs only a comparison.
//
// Keys are read in four ways (blocking menu read, polling read, unflushed
// read, wait), all built on readKey, keyWaiting, flushKeys and waitAnyKey.
#pragma once

#include <cstdint>
#include <string_view>

inline constexpr int kScreenWidth = 80;
inline constexpr int kScreenHeight = 25;

// Virtual-key codes the game tests.
enum VirtualKey : std::uint16_t {
  kKeyBackspace = 8,
  kKeyTab = 9,
  kKeyEnter = 13,
  kKeyEscape = 27,
  kKeySpace = 32,
  kKeyPageUp = 33,
  kKeyPageDown = 34,
  kKeyLeft = 37,
  kKeyUp = 38,
  kKeyRight = 39,
  kKeyDown = 40,
};

struct KeyEvent {
  bool isKey = true;             // a keyboard event
  bool keyDown = true;           // false for a release
  std::uint16_t virtualKey = 0;  // the key's code: arrows 37-40, letters upper case
  std::uint8_t ascii = 0;        // the character typed, 0 for keys without one

  // A key going down, with both fields filled as the keyboard would.
  static KeyEvent press(std::uint16_t virtualKey, std::uint8_t ascii);
  // The key a character types: 'a' gives virtual key 'A' and ascii 'a'.
  static KeyEvent typed(char character);
  static KeyEvent enter() { return press(kKeyEnter, 13); }
  static KeyEvent escape() { return press(kKeyEscape, 27); }
  static KeyEvent arrow(std::uint16_t virtualKey) { return press(virtualKey, 0); }
};

struct Cell {
  std::uint8_t code = ' ';
  std::uint8_t colour = 15;
  bool operator==(const Cell&) const = default;
};

// The screen's cells and state; read by the backends and by tests.
struct ScreenModel {
  Cell cells[kScreenHeight][kScreenWidth];
  bool rowChanged[kScreenHeight] = {};  // cells written with a new value since last shown
  bool changed = false;                 // any row changed
  int colour = 15;
  int column = 0;
  int row = 0;
};

namespace Console {

// Set-up and the end of the program.
void open();
void setSize(int columns, int rows);
void hideCursor();
void close();

// The write position.
void home();
void moveTo(int column, int row);

// Drawing.
void putText(std::string_view text, int column, int row, int colour);
void putTextPadded(std::string_view text, int column, int row, int colour, int width);
void putChar(std::uint8_t code, int column, int row, int colour);
void putNumber(std::int32_t value, int column, int row, int colour);
void putNumberPadded(std::int32_t value, int column, int row, int colour, int width);
void putWrapped(std::string_view text, int column, int row, int width, int colour);
void setColour(int colour);
void print(std::string_view text);
void printNumber(std::int32_t value);
void clearScreen();

// Input.
KeyEvent readKey();
bool keyWaiting();
void flushKeys();
void waitAnyKey();
void sleep(int milliseconds);

// The model, for the backends and for tests.
const ScreenModel& screen();
ScreenModel& mutableScreen();

}  // namespace Console
