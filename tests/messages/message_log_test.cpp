#include "game/messages/message_log.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "tests/support/fresh_game.h"

namespace {

class MessageLogTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  // Posts `count` messages and reads the morning report with the keys.
  void report(int count, const std::string& keys) {
    for (int i = 0; i < count; ++i) log.post("message " + std::to_string(i), 3);
    scripted::addKeys(keys);
    EXPECT_FALSE(scripted::run(runMorningReport)) << "the report did not end on Escape";
  }
  std::string place(int p) { return scripted::textAt(3, 4 + 3 * p, 10); }
  std::string arrows() {
    return std::string(1, static_cast<char>(scripted::codeAt(3, 21))) +
           static_cast<char>(scripted::codeAt(71, 21));
  }
  MessageLog& log = theMessageLog();
};

TEST_F(MessageLogTest, MostUrgentFirstPostingOrderAmongEqualsAndFixedSizes) {
  log.post("A", 3);
  log.post("B", 5);
  log.post("C", 3);
  log.post("D", 6);
  std::string order;
  for (int i = 0; i < log.count(); ++i) order += log.at(i)->text.view();
  EXPECT_EQ(order, "DBAC");
  EXPECT_EQ(log.at(4), nullptr);
  log.post(std::string(200, 'x'), 1);
  EXPECT_EQ(log.at(4)->text.view().size(), 150u);
  const int colours[] = {5, 3, 3, 10, 10, 14, 12, 240};
  for (int priority = 0; priority <= 7; ++priority) {
    EXPECT_EQ(messageColour(priority), colours[priority]);
  }
}

TEST_F(MessageLogTest, SeventyOneCharactersTakeOneRowSeventyTwoTakeTwo) {
  std::string text = std::string(35, 'a') + ' ' + std::string(35, 'b');
  log.post(text, 6);
  log.post(text + "c", 6);
  log.showPage(0);
  EXPECT_EQ(scripted::textAt(3, 4, 71), text);
  EXPECT_EQ(scripted::textAt(3, 5, 5), "     ");
  EXPECT_EQ(scripted::textAt(3, 8, 36), std::string(35, 'b') + "c");
  EXPECT_EQ(scripted::colourAt(3, 8), 12);
}

TEST_F(MessageLogTest, OneMessageIsGreetedInTheSingularAndTheLogEmptied) {
  report(1, "Esc");
  const std::string greeting = "Corolla says, 'Good Morning captain, I have 1 message for you.' ";
  EXPECT_EQ(scripted::textAt(2, 2, static_cast<int>(greeting.size())), greeting);
  EXPECT_EQ(scripted::colourAt(46, 2), 14);
  EXPECT_EQ(log.count(), 0);
}

TEST_F(MessageLogTest, PagesOfSix) {
  report(6, "Space Right Esc");
  EXPECT_EQ(place(5), "message 5 ");
  EXPECT_EQ(arrows(), "  ") << "six messages: one page, no arrows";
  EXPECT_EQ(scripted::textAt(2, 22, 62),
            "Press ESCAPE to exit, or SPACE to see next page or use L/R key");
  report(7, "Esc");
  EXPECT_EQ(arrows(), " \x10");
  report(7, "Space Esc");
  EXPECT_EQ(place(0), "message 6 ");
  for (int p = 1; p < 6; ++p) EXPECT_EQ(place(p), std::string(10, ' ')) << p;
  EXPECT_EQ(arrows(), "\x11 ");
  report(7, "Right Left Release x Esc");
  EXPECT_EQ(place(1), "message 1 ") << "Left went back; nothing else acts";
  report(12, "Space Space Esc");
  EXPECT_EQ(place(0), "message 6 ") << "Space on the last page stays there";
  EXPECT_EQ(place(5), "message 11");
}

}  // namespace
