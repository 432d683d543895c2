// The console's drawing and the widgets on test screens of their own,
// against their goldens in tests/golden/console.
#include <string>
#include <vector>

#include "game/console/box_lines.h"
#include "game/console/console.h"
#include "game/console/list_box.h"
#include "game/console/widgets.h"
#include "tests/support/golden.h"

namespace {

// Every kind of write, each on a row of its own, and text wrapped at width
// 10 over rows of # that show what each row leaves standing.
void surfaceScreen() {
  Console::setColour(31);
  Console::clearScreen();
  Console::print("home");
  Console::putText("", 10, 2, 14);
  Console::print("behind an empty text");
  Console::putText("runs on past column 79 ", 70, 3, 78);
  Console::printNumber(-42);
  Console::putTextPadded("padded", 2, 6, 15, 10);
  Console::print("|");
  Console::putTextPadded("longer than its field", 2, 7, 15, 6);
  Console::putChar(254, 2, 8, 12);
  Console::putNumber(-7, 4, 8, 10);
  Console::putNumberPadded(123, 8, 8, 11, 6);
  Console::print("|");
  for (int row = 10; row <= 21; ++row) Console::putText("##############", 2, row, 14);
  const struct {
    const char* text;
    int row;
  } kWrapped[] = {{"eleven char", 10}, {"twelve chars", 11}, {"ten chars! at the limit", 13},
                  {"aaaa bbbb cc ddddddd eeeeeee", 16}, {"", 21}};
  for (const auto& w : kWrapped) Console::putWrapped(w.text, 2, w.row, 10, 15);
  // A box of double lines with every kind of joint.
  drawDoubleLines({{40, 10, 58, 10}, {40, 14, 58, 14}, {40, 18, 58, 18}, {40, 10, 40, 18},
                   {49, 10, 49, 18}, {58, 10, 58, 18}},
                  14);
  Console::waitAnyKey();
}

// A list of rows "Item 0" and on in a box of 13 at (4, 3), its results
// written under it; after a result below 0 it waits for a key.
struct TestList {
  int count;
  bool leftRightLeaves, singleStep;
  ListBoxState state;
} list;

void listScreen() {
  std::vector<ListRow> rows(static_cast<std::size_t>(list.count));
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].text.assign("Item " + std::to_string(i));
  Console::putText("Result:", 4, 18, 14);
  for (;;) {
    const int result = ListBox::run(rows.data(), 4, 3, 20, 13, list.count, list.leftRightLeaves,
                                    list.state, false, list.singleStep);
    Console::putNumberPadded(result, 12, 18, 14, 3);
    if (result < 0) Console::waitAnyKey();
  }
}

void questionScreen() {
  for (;;) {
    const bool yes = askYesNo("Fire Ion Cannon?", 45, 10, 44);
    Console::putText(yes ? "Answer: yes" : "Answer: no ", 44, 14, 15);
  }
}

const Scene kScenes[] = {
    {"every kind of write", "@surface", surfaceScreen},
    {"a long list scrolled, paged and left", "@long_list Release Up PgUp @long_list "
     "Down Down Down Down Down Down Down Down Down Down Down Down @long_list_at_the_box_bottom "
     "Down @long_list_scrolled_by_one PgDn @long_list_paged_down PgDn @long_list_last_page "
     "Down Down Down Down Down Down Down Down Down Down Down Down @long_list_last_row "
     "Down @long_list_last_row PgDn @long_list_last_page PgUp @long_list_paged_up Down Down "
     "PgDn @long_list_last_page PgUp @long_list_paged_up PgUp @long_list Down Down Enter @long_list_enter_on_row_two Esc @long_list_escaped",
     listScreen, [] { list = {30, false, false, {}}; }},
    {"a short list", "@short_list Left Right PgUp @short_list PgDn @short_list_last_row "
     "PgUp @short_list Down Down Down Down Down @short_list_last_row",
     listScreen, [] { list = {5, false, false, {}}; }},
    {"an empty list", "@empty_list Down PgDn PgUp Up @empty_list Enter @empty_list_entered",
     listScreen, [] { list = {0, false, false, {}}; }},
    {"a list left by its sides", "Down Right @left_by_the_right x Left @left_by_the_left",
     listScreen, [] { list = {5, true, false, {}}; }},
    {"a list run one event at a time", "Down @single_step_down Enter @single_step_enter",
     listScreen, [] { list = {5, false, true, {}}; }},
    {"a kept state past the end of a list that shrank", "@kept_state_past_the_end",
     listScreen, [] { list = {3, false, false, {0, 8}}; }},
    {"the question", "@question x Space Esc Up Down @question Right @question_yes_chosen "
     "Right @question Left @question_yes_chosen Enter @answered_yes Enter @answered_no "
     "Right N @answered_no y @answered_yes Right n @answered_no Y @answered_yes",
     questionScreen},
};

TEST(Screens, Console) { playScenes("console", kScenes); }

}  // namespace
