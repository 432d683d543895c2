// Numbers in fixed fields at their edges, and the ways keys are read.
#include <gtest/gtest.h>

#include "game/cargo/cargo_deck.h"
#include "game/console/console.h"
#include "game/console/scripted.h"
#include "game/console/text.h"
#include "game/console/widgets.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

TEST(TextHelpers, NumbersInFieldsAtTheirEdges) {
  const struct {
    int value, width;
    bool commas;
    const char* text;
  } formats[] = {
      {0, 9, true, "        0"},   {1234567, 9, true, "1,234,567"}, {-5, 9, true, "         "},
      {-1, 1, false, " "},          {999, 3, true, "999"},           {1000, 5, true, "1,000"},
      {1000, 4, true, ",000"},      {1000, 6, true, " 1,000"},       {123456, 4, false, "3456"},
      {123456, 6, false, "123456"}, {123456, 7, true, "123,456"},    {5, 0, false, ""},
  };
  for (const auto& f : formats) EXPECT_EQ(formatNumber(f.value, f.width, f.commas), f.text) << f.value;
  const struct {
    const char* in;
    int width;
    const char* out;
  } aligned[] = {
      {"  1,234", 7, "1,234  "}, {"  12x4", 6, "12 4  "}, {"        0", 9, "0        "},
      {"   ", 3, "   "},         {"42", 2, "42"},         {"4-2", 5, "4 2  "},
  };
  for (const auto& a : aligned) EXPECT_EQ(leftAlignNumber(a.in, a.width), a.out) << a.in;
  const struct {
    const char* in;
    const char* out;
  } cuts[] = {{"51  ", "51"}, {"whole", "whole"}, {" 7", ""}, {"1,234 5", "1,234"}};
  for (const auto& c : cuts) EXPECT_EQ(cutAtBlank(c.in), c.out) << c.in;
  EXPECT_EQ(leftAlignedNumber(-3, 4), "    ");
  std::string joined = "old";
  joinText(joined, "Bunker ", "I");
  EXPECT_EQ(joined, "Bunker I");
}

// A wait drops the keys typed before it (here during a sleep) and passes
// over releases.
TEST(Keys, AWaitFlushesFirstAndEndsOnAKeyDown) {
  scripted::reset();
  scripted::addBusy({KeyEvent::typed('x')});
  scripted::addKeys("Release y Esc");
  Console::sleep(10);
  Console::waitAnyKey();
  EXPECT_EQ(Console::readKey().ascii, 27) << "the wait ended on the y";
}

// Whatever waits, for a key or for time, first brings the screen up to date.
TEST(Keys, EveryWaitShowsTheScreenFirst) {
  scripted::reset();
  std::vector<bool> shown;
  auto look = [&] { shown.push_back(!Console::screen().changed); };
  scripted::watchSleeps([&](int) { look(); });
  scripted::addCall(look);
  scripted::addKeys("x");
  Console::putText("a", 0, 0, 14);
  Console::readKey();
  scripted::addCall(look);
  scripted::addKeys("x");
  Console::putText("b", 0, 0, 14);
  Console::keyWaiting();
  Console::putText("c", 0, 0, 14);
  Console::sleep(10);
  EXPECT_EQ(shown, (std::vector<bool>{true, true, true}));
}

// A burst of keys at once: the menus and the question act on the first and
// drop the rest, but the cargo deck keeps them.
TEST(Keys, ABurstActsOnceButTheCargoDeckKeepsKeysTypedAhead) {
  startFreshRun();
  DeckMenu menu{{"  One", "  Two", "  Three", "  Four", kReturnLabel}};
  scripted::addKeys({KeyEvent::arrow(kKeyDown), KeyEvent::arrow(kKeyDown)});
  scripted::run([&] { showMenu(menu); });
  EXPECT_EQ(menu.selected, 2);
  for (const char* answer : {"Enter", "n", "y"}) {  // the Enter after Right and the x are lost
    scripted::addKeys({KeyEvent::arrow(kKeyRight), KeyEvent::enter()});
    scripted::addKeys({scripted::keyNamed(answer), KeyEvent::typed('x')});
    bool yes = false;
    EXPECT_FALSE(scripted::run([&] { yes = askYesNo("Fire Ion Cannon?", 45, 10, 44); }));
    EXPECT_EQ(yes, answer[0] != 'n') << answer;
    EXPECT_EQ(scripted::queued() + scripted::stepsLeft(), 0) << answer;
  }
  // Artifacts opened and left, then Down and Enter: the bombs open.
  scripted::addKeys({KeyEvent::enter(), KeyEvent::escape(), KeyEvent::arrow(kKeyDown),
                     KeyEvent::enter(), KeyEvent::escape()});
  scripted::run(runCargoDeck);
  EXPECT_EQ(theMothership().bombs().count(), 2);
}

}  // namespace
