#include "game/shell/day.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

class DayTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  // Ends a day; `keys` answer the screens it shows. Returns the news of the
  // day, most urgent first, and empties the log.
  std::vector<std::string> endDay(const std::string& keys = "") {
    scripted::addKeys(keys);
    EXPECT_FALSE(scripted::run(runDay)) << "the day waited for a key it was not given";
    EXPECT_EQ(scripted::stepsLeft(), 0) << "a screen was expected and not shown";
    std::vector<std::string> news;
    for (int i = 0; i < log.count(); ++i) news.emplace_back(log.at(i)->text.view());
    log.clear();
    return news;
  }
  bool hasNews(const std::vector<std::string>& news, const std::string& text) {
    for (const auto& line : news) {
      if (line == text) return true;
    }
    return false;
  }

  Mothership& ship = theMothership();
  MessageLog& log = theMessageLog();
};

TEST_F(DayTest, TheSuperFreightersCalendar) {
  std::vector<std::string> byDay[40];
  for (int day = 2; day <= 39; ++day) {
    byDay[day] = endDay();
    EXPECT_EQ(globals().day, day);
  }
  EXPECT_TRUE(byDay[27].empty());
  EXPECT_EQ(byDay[28],
            std::vector<std::string>{"The Super Freighter will arrive in orbit in 3 days!"});
  EXPECT_EQ(byDay[30],
            std::vector<std::string>{"The Super Freighter will arrive in orbit tomorrow!"});
  EXPECT_EQ(byDay[31], std::vector<std::string>{"The Super Freighter has arrived in orbit!"});
  EXPECT_EQ(byDay[32], std::vector<std::string>{"The Super Freighter is currently in orbit!"});
  EXPECT_EQ(byDay[36], std::vector<std::string>{"The Super Freighter is currently in orbit!"});
  EXPECT_EQ(byDay[37], std::vector<std::string>{"The Super Freighter leaves tomorrow!"});
  EXPECT_TRUE(byDay[38].empty());
  EXPECT_EQ(globals().freighterCountdown, 29);
}

TEST_F(DayTest, AFamineWarnsOnceAndEndsInTheCrewEatingTheCaptain) {
  ship.setFood(0);
  auto news = endDay("x");  // the warning screen, once
  EXPECT_TRUE(globals().lowFoodWarned);
  EXPECT_EQ(news.front(), "Your mothership has run out of food!");
  EXPECT_EQ(ship.moraleWhole(), 85);
  const int morale[] = {70, 55, 40, 25, 10};
  for (int expected : morale) {
    news = endDay();
    EXPECT_TRUE(hasNews(news, "Your mothership has run out of food!"));
    EXPECT_EQ(ship.moraleWhole(), expected);
    EXPECT_FALSE(isGameOver());
  }
  news = endDay("x");  // the seventh day: the mutiny
  EXPECT_EQ(ship.moraleWhole(), 0);
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(0, 21, 38), "YOU ARE DEAD CAPTAIN! KRYPTAL ATE YOU!");
}

TEST_F(DayTest, TheWarningComesAgainOnlyAfterFoodIsFound) {
  ship.setFood(0);
  endDay("x");
  endDay();
  ship.setFood(500);
  endDay();
  EXPECT_FALSE(globals().lowFoodWarned);
  ship.setFood(0);
  endDay("x");
  EXPECT_TRUE(globals().lowFoodWarned);
}

TEST_F(DayTest, MoraleNews) {
  ship.setWorkSchedule(2);  // morale stays where it is
  ship.setMorale(15);
  EXPECT_EQ(endDay(), std::vector<std::string>{
                          "Emerson mentioned something about the crew becoming agitated, you may "
                          "want to check that out"});
  ship.setMorale(9);
  EXPECT_EQ(endDay(), std::vector<std::string>{"Frequent Riots in the crew quarters! The natives "
                                               "are restless sir! Do something!"});
  ship.setMorale(20);
  EXPECT_TRUE(endDay().empty());
}

TEST_F(DayTest, FuelNews) {
  ship.setFuel(9999);
  auto news = endDay();
  ASSERT_EQ(news.size(), 1u);
  EXPECT_EQ(news[0].substr(0, 40), "We dont even have enough fuel to get int");
  ship.setFuel(10000);
  EXPECT_EQ(endDay(), std::vector<std::string>{"Were running low on fuel in the mothership."});
  ship.setFuel(50000);
  EXPECT_TRUE(endDay().empty());
}

TEST_F(DayTest, EveryEndingThatHoldsShowsItsScreenInOrder) {
  ship.setFuel(0);
  ship.setMorale(5);
  ship.setWorkSchedule(4);
  std::vector<std::string> screens;
  scripted::watchSleeps(nullptr);
  scripted::addKeys("x");
  scripted::addKeys("x");
  EXPECT_FALSE(scripted::run([&] { runDay(); }));
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(0, 21, 54), "YOU ARE DEAD CAPTAIN! KRYPTAL KICKED YOUR SEAT REGION!")
      << "the mutiny came last, after the dry tank";
  EXPECT_EQ(scripted::stepsLeft(), 0) << "both screens waited for their key";
}

TEST_F(DayTest, ANormalDayOnlyMovesTheCalendarAndTheLarder) {
  auto news = endDay();
  EXPECT_TRUE(news.empty());
  EXPECT_EQ(globals().day, 2);
  EXPECT_EQ(ship.food(), 990u) << "nine advisors and the captain";
  EXPECT_EQ(ship.fuel(), 150000);
}

}  // namespace
