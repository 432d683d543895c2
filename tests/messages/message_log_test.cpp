#include "game/messages/message_log.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "tests/support/fresh_game.h"

namespace {

class MessageLogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    startFreshRun();
    log.clear();
  }
  void postNumbered(int count) {
    for (int i = 0; i < count; ++i) log.post("message " + std::to_string(i), 3);
  }
  // Runs the morning report with the keys; true if it ended by itself.
  bool report(const std::string& keys) {
    scripted::addKeys(keys);
    return !scripted::run(runMorningReport);
  }
  void expectText(int column, int row, const std::string& text) {
    EXPECT_EQ(scripted::textAt(column, row, static_cast<int>(text.size())), text);
  }
  std::string placeText(int place) { return scripted::textAt(3, 4 + 3 * place, 10); }
  MessageLog& log = theMessageLog();
};

TEST_F(MessageLogTest, MostUrgentFirstAndPostingOrderAmongEquals) {
  log.post("A", 3);
  log.post("B", 5);
  log.post("C", 3);
  log.post("D", 6);
  ASSERT_EQ(log.count(), 4);
  std::string order;
  for (int i = 0; i < 4; ++i) order += log.at(i)->text.view();
  EXPECT_EQ(order, "DBAC");
  EXPECT_EQ(log.at(4), nullptr);
  log.clear();
  EXPECT_EQ(log.at(0), nullptr);
  EXPECT_EQ(log.count(), 0);
}

TEST_F(MessageLogTest, TextsAreKeptToTheirSize) {
  log.post(std::string(200, 'x'), 1);
  EXPECT_EQ(log.at(0)->text.view().size(), 150u);
  EXPECT_EQ(Message{}.text.view(), "Message input failed");
}

TEST_F(MessageLogTest, ColoursFollowThePriority) {
  const int expected[] = {5, 3, 3, 10, 10, 14, 12, 240};
  for (int priority = 0; priority <= 7; ++priority) {
    EXPECT_EQ(messageColour(priority), expected[priority]);
  }
  EXPECT_EQ(messageColour(-1), 240);
}

TEST_F(MessageLogTest, SeventyOneCharactersTakeOneRowSeventyTwoTakeTwo) {
  std::string text(35, 'a');
  text += ' ';
  text += std::string(35, 'b');
  log.post(text, 6);
  log.post(text + "c", 6);
  log.showPage(0);
  EXPECT_EQ(scripted::textAt(3, 4, 71), text);
  EXPECT_EQ(scripted::textAt(3, 5, 5), "     ");
  EXPECT_EQ(scripted::textAt(3, 7, 36), std::string(35, 'a') + " ");
  EXPECT_EQ(scripted::textAt(3, 8, 36), std::string(35, 'b') + "c");
  EXPECT_EQ(scripted::colourAt(3, 8), 12);
}

TEST_F(MessageLogTest, ASingleMessageIsGreetedInTheSingular) {
  log.post("Only news", 4);
  EXPECT_TRUE(report("Esc"));
  expectText(2, 2, "Corolla says, 'Good Morning captain, I have 1 message for you.' ");
  EXPECT_EQ(scripted::colourAt(46, 2), 14);
  EXPECT_EQ(scripted::colourAt(48, 2), 15);
  EXPECT_EQ(log.count(), 0) << "the report empties the log";
}

TEST_F(MessageLogTest, SixMessagesAreOnePageWithoutArrows) {
  postNumbered(6);
  EXPECT_TRUE(report("Space Right Esc"));
  expectText(2, 2, "Corolla says, 'Good Morning captain, I have 6 messages for you.' ");
  EXPECT_EQ(placeText(5), "message 5 ");
  EXPECT_EQ(scripted::codeAt(71, 21), ' ');
  EXPECT_EQ(scripted::codeAt(3, 21), ' ');
  expectText(2, 22, "Press ESCAPE to exit, or SPACE to see next page or use L/R keys");
}

TEST_F(MessageLogTest, SevenMessagesMakeASecondPageOfOne) {
  postNumbered(7);
  EXPECT_TRUE(report("Idle:1 Esc"));
  EXPECT_EQ(scripted::codeAt(71, 21), 16);
  EXPECT_EQ(scripted::codeAt(3, 21), ' ');
  postNumbered(7);
  EXPECT_TRUE(report("Space Esc"));
  EXPECT_EQ(placeText(0), "message 6 ");
  for (int place = 1; place < 6; ++place) {
    EXPECT_EQ(placeText(place), std::string(10, ' ')) << place;
  }
  EXPECT_EQ(scripted::codeAt(71, 21), ' ');
  EXPECT_EQ(scripted::codeAt(3, 21), 17);
  postNumbered(7);
  EXPECT_TRUE(report("Right Left Esc"));
  EXPECT_EQ(placeText(1), "message 1 ") << "back on the first page";
}

TEST_F(MessageLogTest, TwelveMessagesMakeTwoFullPages) {
  postNumbered(12);
  EXPECT_TRUE(report("Space Space Esc"));
  EXPECT_EQ(placeText(0), "message 6 ") << "Space on the last page stays there";
  EXPECT_EQ(placeText(5), "message 11");
  EXPECT_EQ(scripted::codeAt(71, 21), ' ');
  EXPECT_EQ(scripted::codeAt(3, 21), 17);
}

TEST_F(MessageLogTest, ReleasesAndOtherKeysDoNothing) {
  postNumbered(7);
  EXPECT_FALSE(report("Release x Enter Up"));
  EXPECT_EQ(placeText(0), "message 0 ");
  EXPECT_EQ(log.count(), 7);
}

}  // namespace
