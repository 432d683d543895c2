#include "game/shell/program.h"

#include "game/console/console.h"
#include "game/shell/title_menu.h"

int runProgram() {
  Console::setColour(15);
  Console::open();
  Console::setSize(kScreenWidth, kScreenHeight);
  Console::hideCursor();
  Console::home();
  runTitleMenu();
  Console::moveTo(0, kScreenHeight - 1);
  Console::close();
  return 0;
}
