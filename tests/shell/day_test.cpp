// The end of a day: its news and screens at every threshold. The news of
// whole nights, word for word and in order, is in the goldens.
#include "game/shell/day.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"
#include "tests/support/log_text.h"

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
    const std::string line = scripted::textAt(0, 21, 27);
    screens += line.starts_with("Hurry")                        ? 'F'
               : line.starts_with("YOU ARE DEAD CAPTAIN! YOUR") ? 'O'
               : line.starts_with("YOU ARE DEAD CAPTAIN! KRYP") ? 'M'
               : line.starts_with("YOU WIN")                    ? 'V'
                                                                : '?';
    key = KeyEvent::typed('x');
    return true;
  });
  scripted::run(runDay);
  std::istringstream lines(logLines());
  std::string words;
  for (std::string line; std::getline(lines, line);) words += line.substr(0, line.find(' ')) + " ";
  theMessageLog().clear();
  return words;
}

TEST(Day, MoraleNewsReadsTheMoraleAfterTheDaysChange) {
  const struct { float morale; int schedule; const char* news; } kCases[] = {
      {9, 2, "Frequent "}, {10, 2, "Emerson "}, {11, 2, "Emerson "}, {19.9f, 2, "Emerson "},
      {20, 2, ""},         {21, 2, ""},         {22, 3, "Emerson "}, {8, 0, "Emerson "}};
  for (const auto& c : kCases) {
    startFreshRun();
    theMothership().setMorale(c.morale);
    theMothership().setWorkSchedule(c.schedule);
    EXPECT_EQ(endDay(), c.news) << c.morale << " on schedule " << c.schedule;
  }
}

TEST(Day, FuelNewsAndTheEmptyTankReadTheTankAfterTheShipHasMoved) {
  const struct { int fuel, destination; const char* news; const char* screens; } kCases[] = {
      {0, 0, "We ", "O"},     {1, 0, "We ", ""},      {9999, 0, "We ", ""},  {10000, 0, "Were ", ""},
      {10001, 0, "Were ", ""}, {49999, 0, "Were ", ""}, {50000, 0, "", ""},    {50001, 0, "", ""},
      {59999, 1, "Were ", ""}, {10000, 1, "We ", "O"},  {10001, 1, "We ", ""}};
  for (const auto& c : kCases) {
    startFreshRun();
    theMothership().setFuel(c.fuel);
    theMothership().setDestination(c.destination);
    EXPECT_EQ(endDay(), c.news) << c.fuel << " bound for " << c.destination;
    EXPECT_EQ(screens, c.screens) << c.fuel << " bound for " << c.destination;
  }
}

TEST(Day, TheFreightersNewsByItsNewCountdown) {
  const struct { int countdownBefore; const char* news; int priority; } kCases[] = {
      {5, "", 0},
      {4, "The Super Freighter will arrive in orbit in 3 days!", 3},
      {3, "The Super Freighter will arrive in orbit in 2 days!", 3},
      {2, "The Super Freighter will arrive in orbit tomorrow!", 3},
      {1, "The Super Freighter has arrived in orbit!", 5},
      {0, "The Super Freighter is currently in orbit!", 4},
      {-4, "The Super Freighter is currently in orbit!", 4},
      {-5, "The Super Freighter leaves tomorrow!", 5},
      {31, "", 0},
      {-6, "", 0}};
  for (const auto& c : kCases) {
    startFreshRun();
    globals().freighterCountdown = c.countdownBefore;
    scripted::run(runDay);
    const Message* first = theMessageLog().at(0);
    EXPECT_EQ(first ? first->text.view() : "", c.news) << c.countdownBefore;
    EXPECT_EQ(first ? first->priority : 0, c.priority) << c.countdownBefore;
  }
  EXPECT_EQ(globals().freighterCountdown, 30) << "seven days in orbit, then 30 away";
}

TEST(Day, TheMealThenTheFamineThenMorale) {
  // 33 crew, 9 advisors and the captain: 43 mouths.
  const struct { unsigned food, left; const char* news; const char* screens; int morale; } kCases[] = {
      {42, 0, "Your ", "F", 85}, {43, 0, "Your ", "F", 85}, {44, 1, "", "", 100}};
  for (const auto& c : kCases) {
    startFreshRun();
    theMothership().setFood(c.food);
    EXPECT_EQ(endDay(), c.news) << c.food;
    EXPECT_EQ(screens, c.screens) << c.food;
    EXPECT_EQ(theMothership().food(), c.left) << c.food;
    EXPECT_EQ(theMothership().moraleWhole(), c.morale) << c.food;
  }
}

TEST(Day, TheFamineWarningComesOncePerFamine) {
  // Night by night: the food and the morale at dusk, and the screens shown.
  const struct { unsigned food; float morale; const char* screens; } kNights[] = {
      {0, 100, "F"}, {0, 100, ""}, {1000, 100, ""}, {0, 100, "F"}, {0, 0.5f, "M"}, {0, 100, "F"}};
  startFreshRun();
  int night = 0;
  for (const auto& n : kNights) {
    theMothership().setFood(n.food);
    theMothership().setMorale(n.morale);
    endDay();
    EXPECT_EQ(screens, n.screens) << "night " << ++night;
  }
}

TEST(Day, TheEndTestsAtTheirEdgesAndInTheirOrder) {
  const struct { int fuel; float morale; int enemiesLeft; const char* screens; } kCases[] = {
      {1, 1, 1, ""}, {0, 1, 1, "O"}, {1, 0.9f, 1, "M"}, {1, 1, 0, "V"}, {0, 0, 0, "OMV"}};
  for (const auto& c : kCases) {
    startFreshRun();
    theMothership().setFuel(c.fuel);
    theMothership().setMorale(c.morale);
    for (int n = 1; n <= kSectorCount; ++n) {
      for (int k = 0; k < kSubSectorCount; ++k) {
        SubSector& s = thePlanet().subSector(n, k);
        s.addPopulation(-static_cast<int>(s.population()));
        s.addTroops(-static_cast<int>(s.troops()));
      }
    }
    thePlanet().subSector(24, 15).addTroops(c.enemiesLeft);
    endDay();
    EXPECT_EQ(screens, c.screens) << c.fuel << " " << c.morale << " " << c.enemiesLeft;
    EXPECT_EQ(isGameOver(), *c.screens != '\0');
  }
}

TEST(Day, EveryBunkerEatsInSectorOrder) {
  startFreshRun();
  std::string inSectorOrder;
  for (int n = 1; n <= kSectorCount; ++n) {
    Bunker& bunker = thePlanet().sector(n).bunker();
    bunker.markBuilt();
    bunker.getCrew().add(kRaceMako, 0);
    bunker.addFood(4);
    inSectorOrder += std::string("Bunker ") + bunker.sectorLetter() + " is low on food.";
  }
  runDay();
  std::string lowOnFood;
  for (int i = 0; i < theMessageLog().count(); ++i) lowOnFood += theMessageLog().at(i)->text.view().substr(0, 24);
  EXPECT_EQ(lowOnFood, inSectorOrder);
  for (int n = 1; n <= kSectorCount; ++n) EXPECT_EQ(thePlanet().sector(n).bunker().getFood(), 3);
}

}  // namespace
