// The ways of reading keys, through the scripted console.
#include <gtest/gtest.h>

#include "game/console/console.h"
#include "game/console/scripted.h"

namespace {

class InputTest : public ::testing::Test {
 protected:
  void SetUp() override { scripted::reset(); }
};

TEST_F(InputTest, KeyWaitingPeeksAndIgnoresReleases) {
  scripted::addKeys("Idle:1 Release Enter");
  EXPECT_FALSE(Console::keyWaiting());
  EXPECT_FALSE(Console::keyWaiting()) << "a release does not count";
  EXPECT_FALSE(Console::readKey().keyDown);
  EXPECT_TRUE(Console::keyWaiting());
  EXPECT_TRUE(Console::keyWaiting()) << "peeking takes nothing";
  EXPECT_EQ(Console::readKey().ascii, 13);
}

TEST_F(InputTest, KeysTypedWhileBusyAreDroppedByAFlushOrAWait) {
  scripted::addBusy({KeyEvent::enter(), KeyEvent::escape()});
  scripted::addKeys("Up");
  Console::sleep(80);
  EXPECT_EQ(scripted::queued(), 2);
  Console::flushKeys();
  EXPECT_EQ(Console::readKey().virtualKey, kKeyUp);

  scripted::addBusy({KeyEvent::typed('x')});
  scripted::addKeys("Release y");
  Console::sleep(10);
  Console::waitAnyKey();
  EXPECT_EQ(scripted::stepsLeft(), 0) << "neither the early x nor the release ended the wait";
  EXPECT_EQ(scripted::clockMicros(), 90000);
}

TEST_F(InputTest, TheRunEndsWhenTheScriptIsUsedUpEvenInAPollingLoop) {
  scripted::addKeys("Idle:3");
  int passes = 0;
  EXPECT_TRUE(scripted::run([&] {
    for (;;) {
      ++passes;
      if (Console::keyWaiting()) Console::readKey();
      Console::flushKeys();
    }
  }));
  EXPECT_EQ(passes, 4);
}

}  // namespace
