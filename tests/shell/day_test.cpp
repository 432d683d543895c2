#include "game/shell/day.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

using News = std::vector<std::string>;

class DayTest : public ::testing::Test {
 protected:
  void SetUp() override { startFreshRun(); }

  // Ends a day; `keys` answer the screens it shows (each must be used).
  // Returns the day's news, most urgent first, and empties the log.
  News endDay(const std::string& keys = "") {
    scripted::addKeys(keys);
    EXPECT_FALSE(scripted::run(runDay)) << "the day waited for a key it was not given";
    EXPECT_EQ(scripted::stepsLeft(), 0) << "a screen was expected and not shown";
    News news;
    for (int i = 0; i < log.count(); ++i) news.emplace_back(log.at(i)->text.view());
    log.clear();
    return news;
  }

  Mothership& ship = theMothership();
  MessageLog& log = theMessageLog();
};

TEST_F(DayTest, TheSuperFreightersCalendar) {
  News byDay[40];
  for (int day = 2; day <= 38; ++day) {
    ship.setFood(1000);  // no famine news in the way
    byDay[day] = endDay();
  }
  EXPECT_EQ(globals().day, 38);
  EXPECT_TRUE(byDay[27].empty());
  EXPECT_EQ(byDay[28], News{"The Super Freighter will arrive in orbit in 3 days!"});
  EXPECT_EQ(byDay[30], News{"The Super Freighter will arrive in orbit tomorrow!"});
  EXPECT_EQ(byDay[31], News{"The Super Freighter has arrived in orbit!"});
  EXPECT_EQ(byDay[37], News{"The Super Freighter leaves tomorrow!"});
  EXPECT_TRUE(byDay[38].empty());
}

TEST_F(DayTest, ANewGamesFoodFeeds43MouthsFor23Days) {
  ASSERT_EQ(ship.crew().getCount() + static_cast<int>(ship.advisors().size()) + 1, 43);
  for (int day = 2; day <= 24; ++day) EXPECT_TRUE(endDay().empty()) << day;
  EXPECT_EQ(ship.food(), 1000u - 23 * 43);
  EXPECT_EQ(endDay("x").front(), "Your mothership has run out of food!");  // with the warning
  EXPECT_EQ(ship.food(), 0u);
  EXPECT_EQ(ship.moraleWhole(), 85) << "the famine costs morale the same night";
}

TEST_F(DayTest, AFamineWarnsOnceAndEndsInTheCrewEatingTheCaptain) {
  ship.setFood(0);
  EXPECT_EQ(endDay("x").front(), "Your mothership has run out of food!");  // with the warning
  for (int day = 2; day <= 6; ++day) {
    EXPECT_EQ(endDay().front(), "Your mothership has run out of food!") << day;
  }
  EXPECT_FALSE(isGameOver());
  endDay("x");  // the seventh day
  EXPECT_TRUE(isGameOver());
  EXPECT_EQ(scripted::textAt(0, 21, 38), "YOU ARE DEAD CAPTAIN! KRYPTAL ATE YOU!");
}

TEST_F(DayTest, MoraleAndFuelNews) {
  ship.setMorale(15);
  EXPECT_EQ(endDay(), News{"Emerson mentioned something about the crew becoming agitated, you "
                           "may want to check that out"});
  ship.setMorale(9);
  EXPECT_EQ(endDay(), News{"Frequent Riots in the crew quarters! The natives are restless sir! "
                           "Do something!"});
  ship.setMorale(20);
  ship.setFuel(9999);
  News news = endDay();
  ASSERT_EQ(news.size(), 1u);
  EXPECT_EQ(news[0].substr(0, 40), "We dont even have enough fuel to get int");
  ship.setFuel(10000);
  EXPECT_EQ(endDay(), News{"Were running low on fuel in the mothership."});
  ship.setFuel(50000);
  EXPECT_TRUE(endDay().empty());
}

TEST_F(DayTest, EveryEndingThatHoldsShowsItsScreenInOrder) {
  ship.setFuel(0);
  ship.setMorale(5);
  ship.setWorkSchedule(4);
  for (int n = 1; n <= kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) {
      SubSector& s = thePlanet().subSector(n, k);
      s.addPopulation(-static_cast<int>(s.population()));
      s.addTroops(-static_cast<int>(s.troops()));
    }
  }
  std::vector<std::string> screens;
  scripted::setPlayer([&](KeyEvent& key) {
    screens.push_back(scripted::textAt(0, 21, 20));
    key = KeyEvent::typed('x');
    return screens.size() < 5;
  });
  EXPECT_FALSE(scripted::run(runDay));
  EXPECT_EQ(screens, (std::vector<std::string>{"YOU ARE DEAD CAPTAIN", "YOU ARE DEAD CAPTAIN",
                                               "YOU WIN THE GAME!   "}));
  EXPECT_TRUE(isGameOver());
}

}  // namespace
