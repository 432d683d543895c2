#include "game/console/console.h"

#include <string>

#include "game/console/backend.h"
#include "game/console/text.h"

KeyEvent KeyEvent::press(std::uint16_t virtualKey, std::uint8_t ascii) {
  KeyEvent event;
  event.virtualKey = virtualKey;
  event.ascii = ascii;
  return event;
}

KeyEvent KeyEvent::typed(char character) {
  auto ascii = static_cast<std::uint8_t>(character);
  std::uint16_t virtualKey = ascii;
  if (character >= 'a' && character <= 'z') virtualKey = static_cast<std::uint16_t>(character - 32);
  return press(virtualKey, ascii);
}

namespace Console {
namespace {

ScreenModel theScreen;

// Writes one cell at the write position and moves it on, falling to the next
// row behind column 79. A cell that already holds the same code and colour
// is left alone, so an unchanged write costs this comparison only.
void emit(std::uint8_t code) {
  ScreenModel& s = theScreen;
  if (s.row >= 0 && s.row < kScreenHeight && s.column >= 0 && s.column < kScreenWidth) {
    Cell cell{code, static_cast<std::uint8_t>(s.colour)};
    Cell& old = s.cells[s.row][s.column];
    if (!(old == cell)) {
      old = cell;
      s.rowChanged[s.row] = true;
      s.changed = true;
    }
  }
  if (++s.column >= kScreenWidth) {
    s.column = 0;
    ++s.row;
  }
}

void emitText(std::string_view text) {
  for (char c : text) emit(static_cast<std::uint8_t>(c));
}

void place(int column, int row, int colour) {
  theScreen.colour = colour & 0xFF;
  theScreen.column = column;
  theScreen.row = row;
}

}  // namespace

void open() { backend::open(); }

void setSize(int, int) {
  // The model is always 80 by 25; the backend shows it on whatever the
  // platform gives and says so when that is too small.
}

void hideCursor() {
  // The cursor is never shown: the backends keep it hidden from the start.
}

void close() {
  backend::show(theScreen);
  backend::close();
}

void home() { moveTo(0, 0); }

void moveTo(int column, int row) {
  theScreen.column = column;
  theScreen.row = row;
}

void putText(std::string_view text, int column, int row, int colour) {
  place(column, row, colour);
  emitText(text);
}

void putTextPadded(std::string_view text, int column, int row, int colour, int width) {
  place(column, row, colour);
  emitText(text);
  for (int i = static_cast<int>(text.size()); i < width; ++i) emit(' ');
}

void putChar(std::uint8_t code, int column, int row, int colour) {
  place(column, row, colour);
  emit(code);
}

void putNumber(std::int32_t value, int column, int row, int colour) {
  putText(std::to_string(value), column, row, colour);
}

void putNumberPadded(std::int32_t value, int column, int row, int colour, int width) {
  putTextPadded(std::to_string(value), column, row, colour, width);
}

void putWrapped(std::string_view text, int column, int row, int width, int colour) {
  const int n = static_cast<int>(text.size());
  int pos = 0;
  int line = 0;
  int limit = width;
  while (pos < n - (width + 1)) {
    int b = limit;
    while (b > pos && text[b] != ' ') --b;
    if (text[b] != ' ') b = limit;  // a stretch without a blank: cut it where it is
    putText(text.substr(pos, b - pos), column, row + line, colour);
    pos = b + 1;
    ++line;
    limit = b - 1 + (width + 1);
  }
  putTextPadded(pos < n ? text.substr(pos) : std::string_view(), column, row + line, colour,
                width + 1);
}

void setColour(int colour) { theScreen.colour = colour & 0xFF; }

void print(std::string_view text) { emitText(text); }

void printNumber(std::int32_t value) { emitText(std::to_string(value)); }

void clearScreen() {
  for (int r = 0; r < kScreenHeight; ++r) {
    for (int c = 0; c < kScreenWidth; ++c) {
      theScreen.row = r;
      theScreen.column = c;
      emit(' ');
    }
  }
  home();
}

KeyEvent readKey() {
  backend::show(theScreen);
  return backend::readKey();
}

bool keyWaiting() {
  backend::show(theScreen);
  return backend::keyWaiting();
}

void flushKeys() { backend::flushKeys(); }

void waitAnyKey() {
  flushKeys();
  while (!readKey().keyDown) {
  }
}

void sleep(int milliseconds) {
  backend::show(theScreen);
  backend::sleep(milliseconds);
}

const ScreenModel& screen() { return theScreen; }
ScreenModel& mutableScreen() { return theScreen; }

}  // namespace Console
