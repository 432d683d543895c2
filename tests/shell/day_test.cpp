// A game's days: the end of a day, its news and screens at every threshold
// (the news of whole nights, word for word and in order, is in the
// goldens); what a game starts with, and how a second game is cleared.
#include "game/shell/day.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "game/console/random.h"
#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "game/shell/starting_contents.h"
#include "tests/support/fresh_game.h"

namespace {

// The screens a night showed, a letter each: Famine warning, Out of fuel,
// Mutiny, Victory.
std::string screens;

// Ends the day; returns the first word of each message, most urgent first
// ("Your" food is out, "Frequent" riots, "Emerson", "We" have no fuel,
// "Were" low on fuel, "The" Super Freighter, "Bunker"), and empties the log.
std::string endDay() {
  screens.clear();
  scripted::setPlayer([](KeyEvent& key) {
    // Told apart by the 23rd cell of row 21: "...", "YOUR", "KRYPTAL", blank.
    const char at = static_cast<char>(scripted::codeAt(22, 21));
    screens += at == '.' ? 'F' : at == 'Y' ? 'O' : at == 'K' ? 'M' : at == ' ' ? 'V' : '?';
    key = KeyEvent::typed('x');
    return true;
  });
  scripted::run(runDay);
  std::string words;
  for (int i = 0; i < theMessageLog().count(); ++i) {
    const std::string_view text = theMessageLog().at(i)->text.view();
    words += std::string(text.substr(0, text.find(' '))) + " ";
  }
  theMessageLog().clear();
  return words;
}

// One night from a new game's ship, changed, and what it brings.
struct Night {
  unsigned food = 1000, foodAfter = 957;
  float morale = 100;
  int moraleAfter = 100, schedule = 2, fuel = 150000, destination = 0;
  const char* news = "";
  const char* screens = "";
};

TEST(Day, NewsAndEndingsAtTheThresholdsOfMoraleFuelAndFood) {
  const Night kNights[] = {
      // Morale news and the mutiny read the morale after the day's change.
      {.morale = 9, .moraleAfter = 9, .news = "Frequent "},
      {.morale = 10, .moraleAfter = 10, .news = "Emerson "},
      {.morale = 11, .moraleAfter = 11, .news = "Emerson "},
      {.morale = 19.9f, .moraleAfter = 19, .news = "Emerson "}, {.morale = 20, .moraleAfter = 20},
      {.morale = 21, .moraleAfter = 21},
      {.morale = 22, .moraleAfter = 19, .schedule = 3, .news = "Emerson "},
      {.morale = 8, .moraleAfter = 13, .schedule = 0, .news = "Emerson "},
      {.morale = 50, .moraleAfter = 51, .schedule = 1}, {.morale = 100, .schedule = 0},
      {.morale = 50, .moraleAfter = 35, .schedule = 4}, {.morale = 98, .schedule = 0},
      {.morale = 16, .moraleAfter = 1, .schedule = 4, .news = "Frequent "},
      {.morale = 14, .moraleAfter = 0, .schedule = 4, .news = "Frequent ", .screens = "M"},
      {.morale = 0.9f, .moraleAfter = 0, .news = "Frequent ", .screens = "M"},
      // Fuel news and the empty tank read the tank after the ship has moved.
      {.fuel = 0, .news = "We ", .screens = "O"}, {.fuel = 1, .news = "We "},
      {.fuel = 9999, .news = "We "}, {.fuel = 10000, .news = "Were "},
      {.fuel = 10001, .news = "Were "}, {.fuel = 49999, .news = "Were "}, {.fuel = 50000},
      {.fuel = 50001}, {.fuel = 59999, .destination = 1, .news = "Were "},
      {.fuel = 10000, .destination = 1, .news = "We ", .screens = "O"},
      // 33 crew, 9 advisors and the captain eat 43; the famine costs 15.
      {.food = 42, .foodAfter = 0, .moraleAfter = 85, .news = "Your ", .screens = "F"},
      {.food = 43, .foodAfter = 0, .moraleAfter = 85, .news = "Your ", .screens = "F"},
      {.food = 44, .foodAfter = 1},
  };
  for (const Night& n : kNights) {
    SCOPED_TRACE(::testing::Message() << "night " << &n - kNights);
    startFreshRun();
    Mothership& ship = theMothership();
    ship.setFood(n.food);
    ship.setMorale(n.morale);
    ship.setWorkSchedule(n.schedule);
    ship.setFuel(n.fuel);
    ship.setDestination(n.destination);
    EXPECT_EQ(endDay(), n.news);
    EXPECT_EQ(screens, n.screens);
    EXPECT_EQ(isGameOver(), std::string(n.screens).find_first_of("OMV") != std::string::npos);
    EXPECT_EQ(ship.moraleWhole(), n.moraleAfter);
    EXPECT_EQ(ship.food(), n.foodAfter);
  }
}

TEST(Day, TheFreightersNewsByItsNewCountdown) {
  const struct { int countdownBefore; const char* news; int priority; } kCases[] = {
      {5, "", 0}, {4, "will arrive in orbit in 3 days!", 3}, {1, "has arrived in orbit!", 5},
      {3, "will arrive in orbit in 2 days!", 3}, {2, "will arrive in orbit tomorrow!", 3},
      {0, "is currently in orbit!", 4},  {-4, "is currently in orbit!", 4},
      {-5, "leaves tomorrow!", 5},  {31, "", 0},  {-6, "", 0}};
  for (const auto& c : kCases) {
    startFreshRun();
    globals().freighterCountdown = c.countdownBefore;
    scripted::run(runDay);
    const Message* first = theMessageLog().at(0);
    const std::string news = *c.news ? "The Super Freighter " + std::string(c.news) : "";
    EXPECT_EQ(first ? first->text.view() : "", news) << c.countdownBefore;
    EXPECT_EQ(first ? first->priority : 0, c.priority) << c.countdownBefore;
  }
  EXPECT_EQ(globals().freighterCountdown, 30) << "seven days in orbit, then 30 away";
}

TEST(Day, TheFamineWarningComesOncePerFamine) {
  // Night by night: the food and the morale at dusk, and the screens shown.
  const struct { unsigned food; float morale; const char* screens; } kNights[] = {
      {0, 100, "F"}, {0, 100, ""}, {1000, 100, ""}, {0, 100, "F"}, {0, 0.5f, "M"}, {0, 100, "F"},
  };
  startFreshRun();
  for (const auto& n : kNights) {
    theMothership().setFood(n.food);
    theMothership().setMorale(n.morale);
    endDay();
    EXPECT_EQ(screens, n.screens) << "night " << &n - kNights;
  }
}

// The types of the ship's craft, and the race and sex of each crew member,
// in list order.
std::string aboard() {
  std::string s;
  const AircraftList& craft = theMothership().aircraft();
  const CrewList& crew = theMothership().crew();
  for (int i = 0; i < craft.count(); ++i) s += std::to_string(craft.at(i).getType());
  for (int i = 0; i < crew.getCount(); ++i) {
    s += " " + std::to_string(crew.at(i).getRace()) + std::to_string(crew.at(i).getSex());
  }
  return s;
}

TEST(StartingContents, ANewRunsShipAndTheDrawsOfItsCrew) {
  // Each Povolnian's sex is drawn before the six draws of its name.
  seedRandom(99);
  int draws[8];
  for (int& d : draws) d = gameRand();
  startFreshRun(99);
  const std::string s = aboard();
  EXPECT_EQ(s.substr(0, 10), "0312 1" + std::to_string(draws[0] % 2) + " 1" +
                                 std::to_string(draws[7] % 2));
  for (int i = 0; i < 20; ++i) EXPECT_EQ(s[5 + 3 * i], '1') << "Povolnian " << i;
  EXPECT_EQ(s.substr(64), " 60 61 60 61 60 41 40 41 40 41 31 30 31");
}

TEST(StartingContents, ANewGameEmptiesShipAndBunkersButLeavesTheLandAndTheLog) {
  startFreshRun();
  Mothership& ship = theMothership();
  ship.bombs().add(kBombFlack, ship.cargoRoomLeft());
  ship.eggs().add(kRacePovolnian, ship.cargoRoomLeft());
  ship.aircraft().at(1).getCrew().add(kRaceMako, 0);
  ship.addCapsules(-2);
  ship.setWorkSchedule(0);
  ship.setDestination(5);
  Bunker& bunker = thePlanet().sector(5).bunker();
  bunker.markBuilt();
  bunker.getCrew().add(kRaceMako, 0);
  bunker.getAircraft().add(kStealthFighter, kDockLimit, 5);
  bunker.addFood(700);
  thePlanet().subSector(9, 6).setLandType(kRubble);
  theMessageLog().post("The last game's news", 3);
  globals() = {77, 1, -4, true, true, true};

  resetGame();

  EXPECT_EQ(aboard(), "0312 11 11 11 11 11 11 11 11 11 11 11 10 10 10 10 10 10 10 10 10 "
                      "60 61 60 61 60 40 40 41 40 40");
  EXPECT_EQ(std::tuple(ship.aircraft().at(1).getCrew().getCount(), ship.advisors().size(),
                       ship.bombs().count() + ship.eggs().count(), ship.readyCapsules(),
                       ship.destinationSector(), ship.workSchedule()),
            std::tuple(0, 9u, 0, 2, 0, 0));
  EXPECT_EQ(std::tuple(bunker.isBuilt(), bunker.getCrew().getCount(), bunker.getAircraft().count(),
                       bunker.getFood(), thePlanet().subSector(9, 6).landType(),
                       theMessageLog().count()),
            std::tuple(false, 0, 0, 0, kRubble, 1));
  const GlobalValues& g = globals();
  EXPECT_EQ(std::tie(g.day, g.cosmicCredits, g.freighterCountdown, g.gameOver, g.lowFoodWarned),
            std::make_tuple(1, 5000, 30, false, true));
}

}  // namespace
