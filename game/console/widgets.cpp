#include "game/console/widgets.h"

#include <string>

#include "game/shell/mothership.h"
#include "game/shell/status_bar.h"

namespace {

constexpr char kEscapeLine[] =
    "                     Press Escape To Return To Previous Menu                    ";
constexpr int kStripColour = 65;
constexpr int kEdgeColour = 4;

// A strip of shades: `a` light, `b` medium, `c` dark, then medium and light.
std::string strip(int lightLeft, int dark, int lightRight, bool trailingBlank) {
  std::string s(static_cast<std::size_t>(lightLeft), '\xB0');
  s += "\xB1\xB1";
  s.append(static_cast<std::size_t>(dark), '\xB2');
  s += "\xB1\xB1";
  s.append(static_cast<std::size_t>(lightRight), '\xB0');
  if (trailingBlank) s += ' ';
  return s;
}

}  // namespace

void drawFrame(int colour, bool showEscapeLine) {
  Console::setColour(15);
  Console::clearScreen();
  Console::hideCursor();
  Console::home();
  Console::putTextPadded(showEscapeLine ? kEscapeLine : "", 0, 0, colour, 80);
  for (int row = 1; row <= 22; ++row) {
    Console::putText("  ", 0, row, colour);
    Console::putText("  ", 78, row, colour);
  }
  drawStatusBar(colour);
}

void drawMenuButton(int slot, const char* label, int colour) {
  static const std::string kUpperStrip = strip(2, 27, 5, true);
  static const std::string kLowerStrip = strip(2, 27, 2, false);
  const int b = 4 * slot - 3;
  Console::putText(" ", 77, b, kDeckFrameColour);
  Console::putText("\xB0 ", 76, b + 1, kStripColour);
  Console::putChar(220, 38, b + 2, kEdgeColour);
  Console::putText(kUpperStrip, 39, b + 2, kStripColour);
  Console::putText("\xB0\xB1\xB1\xB2\xB2", 38, b + 3, kStripColour);
  Console::putText(label, 43, b + 3, colour);
  Console::putText("\xB2\xB2\xB1\xB1\xB0\xB0", 70, b + 3, kStripColour);
  Console::putChar(223, 38, b + 4, kEdgeColour);
  Console::putText(kLowerStrip, 39, b + 4, kStripColour);
}

void drawMenuButtons(const DeckMenu& menu) {
  for (int slot = 1; slot <= 5; ++slot) {
    drawMenuButton(slot, menu.labels[slot - 1],
                   slot == menu.selected ? kButtonSelected : kButtonAtRest);
  }
}

void showMenu(DeckMenu& menu) {
  Console::hideCursor();
  Console::home();
  drawFrame(kDeckFrameColour, menu.showEscapeLine);
  Console::home();
  menu.selected = 1;
  drawMenuButtons(menu);
  if (menu.onSelect != nullptr) menu.onSelect(menu);
  for (;;) {
    KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown) {
      if (key.virtualKey == kKeyUp || key.virtualKey == kKeyDown) {
        int old = menu.selected;
        if (key.virtualKey == kKeyUp) {
          menu.selected = old == 1 ? 5 : old - 1;
        } else {
          menu.selected = old == 5 ? 1 : old + 1;
        }
        drawMenuButton(old, menu.labels[old - 1], kButtonAtRest);
        drawMenuButton(menu.selected, menu.labels[menu.selected - 1], kButtonSelected);
        if (menu.onSelect != nullptr) menu.onSelect(menu);
      } else if (key.ascii == 13) {
        if (menu.selected == 5) {
          Console::clearScreen();
          return;
        }
        MenuResult result =
            menu.onEnter != nullptr ? menu.onEnter(menu, menu.selected) : MenuResult::Stay;
        if (isGameOver()) return;
        if (result == MenuResult::Leave) return;
        if (result == MenuResult::Redraw) {
          drawFrame(kDeckFrameColour, false);
          drawMenuButtons(menu);
          if (menu.onSelect != nullptr) menu.onSelect(menu);
        }
      } else if (key.ascii == 27) {
        Console::clearScreen();
        return;
      } else if (menu.onOtherKey != nullptr) {
        menu.onOtherKey(key);
      }
    }
    if (menu.flushAfterKey) Console::flushKeys();
  }
}

bool askYesNo(const char* prompt, int promptColumn, int promptRow, int yesColumn) {
  constexpr int kChosen = 240;
  constexpr int kOther = 15;
  bool yes = false;
  auto drawWords = [&] {
    Console::putText(" Yes ", yesColumn, promptRow + 1, yes ? kChosen : kOther);
    Console::putText(" No ", yesColumn + 6, promptRow + 1, yes ? kOther : kChosen);
  };
  Console::putText(prompt, promptColumn, promptRow, 14);
  drawWords();
  for (;;) {
    KeyEvent key = Console::readKey();
    if (key.isKey && key.keyDown) {
      if (key.virtualKey == kKeyLeft || key.virtualKey == kKeyRight) {
        yes = !yes;
        drawWords();
      } else if (key.ascii == 13) {
        Console::flushKeys();
        return yes;
      } else if (key.ascii == 'N' || key.ascii == 'n') {
        Console::flushKeys();
        return false;
      } else if (key.ascii == 'Y' || key.ascii == 'y') {
        Console::flushKeys();
        return true;
      }
    }
    Console::flushKeys();
  }
}

void pauseForKey() { Console::waitAnyKey(); }
