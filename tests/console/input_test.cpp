// The four ways of reading keys, through the scripted console.
#include <gtest/gtest.h>

#include "game/console/console.h"
#include "game/console/scripted.h"

namespace {

class InputTest : public ::testing::Test {
 protected:
  void SetUp() override { scripted::reset(); }
};

TEST_F(InputTest, KeyWaitingPeeksWithoutTaking) {
  scripted::addKeys("Idle:2 Enter");
  EXPECT_FALSE(Console::keyWaiting());
  EXPECT_FALSE(Console::keyWaiting());
  EXPECT_TRUE(Console::keyWaiting());
  EXPECT_TRUE(Console::keyWaiting());
  EXPECT_EQ(Console::readKey().ascii, 13);
}

TEST_F(InputTest, AReleaseIsAnEventButNotAWaitingKey) {
  scripted::addKeys("Release");
  EXPECT_FALSE(Console::keyWaiting());
  KeyEvent release = Console::readKey();
  EXPECT_TRUE(release.isKey);
  EXPECT_FALSE(release.keyDown);
}

TEST_F(InputTest, KeysTypedWhileBusyAreDroppedByTheNextFlush) {
  scripted::addBusy({KeyEvent::enter(), KeyEvent::escape()});
  scripted::addKeys("Up");
  Console::sleep(80);
  EXPECT_EQ(scripted::queued(), 2);
  Console::flushKeys();
  EXPECT_EQ(Console::readKey().virtualKey, kKeyUp);
}

TEST_F(InputTest, WaitAnyKeyIgnoresAKeyPressedBeforeIt) {
  scripted::addBusy({KeyEvent::typed('x')});
  scripted::addKeys("Release y");
  Console::sleep(10);
  Console::waitAnyKey();
  EXPECT_EQ(scripted::stepsLeft(), 0) << "the release did not end the wait, the y did";
}

TEST_F(InputTest, TheRunEndsWhenTheScriptIsUsedUp) {
  scripted::addKeys("Idle:3");
  int passes = 0;
  bool ended = scripted::run([&] {
    for (;;) {
      ++passes;
      if (Console::keyWaiting()) Console::readKey();
      Console::flushKeys();
    }
  });
  EXPECT_TRUE(ended);
  EXPECT_EQ(passes, 4);
}

TEST_F(InputTest, SleepAdvancesTheVirtualClock) {
  Console::sleep(80);
  Console::sleep(500);
  EXPECT_EQ(scripted::clockMicros(), 580000);
}

TEST_F(InputTest, KeysCarryBothFields) {
  KeyEvent a = KeyEvent::typed('a');
  EXPECT_EQ(a.virtualKey, 'A');
  EXPECT_EQ(a.ascii, 'a');
  KeyEvent y = KeyEvent::typed('Y');
  EXPECT_EQ(y.virtualKey, 'Y');
  EXPECT_EQ(KeyEvent::enter().virtualKey, 13);
  EXPECT_EQ(KeyEvent::escape().ascii, 27);
}

}  // namespace
