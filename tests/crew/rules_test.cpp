// The crew's rules at their edges: names, lists, schedules and morale.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "game/console/random.h"
#include "game/console/scripted.h"
#include "game/crew/assign_crew_jobs.h"
#include "game/crew/living_quarters.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"
#include "tests/support/golden.h"

namespace {

// Two names in a row from a seeded generator, for each race that comes
// aboard in play: a rule that draws once too often or too rarely shows in
// the second name, and each seed is one where taking a rule's draws in
// another order gives other names.
TEST(NameGenerator, EachRuleTakesItsDrawsInOrder) {
  const struct {
    int race, sex;
    unsigned seed;
    const char* names;
  } cases[] = {
      {kRacePovolnian, 0, 16, "Dr. Lachesis II|Dr. Bachia"},
      {kRacePovolnian, 0, 2, "Atractus II|Hoplocercidae"},
      {kRacePovolnian, 1, 24, "Dr. Ameiva|Drepanoides"},
      {kRacePovolnian, 0, 6, "Tantilla|Oxybelis Sr."},
      {kRaceMako, 0, 1, "Ongislav|Bamakh"},
      {kRaceUberfleck, 1, 1, "Margar|Rudtav"},
      {kRaceMududu, 0, 1, "Hiali|Niadu"},
      {kRaceHuman, 0, 14, "Dale|I.P. Freely"},
      {kRaceHuman, 1, 14, "Alice|I.P. Freely"},
      {kRaceHuman, 0, 125, "Ivana Tinkle|Lewis"},
  };
  for (const auto& c : cases) {
    seedRandom(c.seed);
    CrewList list(2);
    list.add(c.race, static_cast<std::uint8_t>(c.sex));
    list.add(c.race, static_cast<std::uint8_t>(c.sex));
    EXPECT_EQ(std::string(list.at(0).name()) + "|" + std::string(list.at(1).name()), c.names)
        << "race " << c.race << ", seed " << c.seed;
  }
}

TEST(CrewList, ABunkerTakes50) {
  startFreshRun();
  CrewList& crew = thePlanet().sector(1).bunker().getCrew();
  while (crew.add(kRaceBlob, 0)) {
  }
  EXPECT_EQ(crew.getCount(), 50);
}

// A craft lands all but its first two crew, in their order, while the
// ground has room.
TEST(CrewList, TransferLandsAllButTheFirstTwo) {
  const struct {
    int count, room;
    const char *left, *landed;
  } cases[] = {{2, 10, "01", ""}, {3, 10, "01", "2"}, {5, 10, "01", "234"}, {5, 2, "012", "34"}};
  auto jobs = [](const CrewList& list) {
    std::string out;
    for (int i = 0; i < list.getCount(); ++i) out += std::to_string(list.at(i).getJob());
    return out;
  };
  for (const auto& c : cases) {
    CrewList craft(10), ground(c.room);
    while (craft.getCount() < c.count) craft.add(kRaceBlob, 0);
    for (int i = 0; i < c.count; ++i) craft.at(i).setJob(i);
    craft.transferTo(ground);
    EXPECT_EQ(jobs(craft) + "|" + jobs(ground), std::string(c.left) + "|" + c.landed) << c.count;
  }
}

// A night's morale by schedule, held within 0 and 100; a famine costs 15
// whatever the schedule.
TEST(Morale, EachScheduleAtTheEnds) {
  const struct {
    int schedule;
    std::uint32_t food;
    float before, after;
  } cases[] = {{0, 1, 0, 5},     {0, 1, 96, 100}, {0, 1, 100, 100}, {1, 1, 0, 1},
               {1, 1, 100, 100}, {2, 1, 0, 0},    {2, 1, 100, 100}, {3, 1, 0, 0},
               {3, 1, 2, 0},     {3, 1, 100, 97}, {4, 1, 0, 0},     {4, 1, 16, 1},
               {4, 1, 100, 85},  {0, 0, 100, 85}, {0, 0, 15, 0},    {4, 0, 100, 85}};
  for (const auto& c : cases) {
    Mothership ship;
    ship.setWorkSchedule(c.schedule);
    ship.setFood(c.food);
    ship.setMorale(c.before);
    ship.updateMorale();
    EXPECT_EQ(ship.morale(), c.after) << c.schedule << " from " << c.before << ", food " << c.food;
  }
}

// The schedule screen blocks: of keys typed ahead, one acts and the rest
// are dropped, also behind the Enter that leaves it. A key's release is no
// key there, nor to a member picked up on the job screen.
TEST(LivingQuarters, KeysTypedAheadAndReleases) {
  startFreshRun();
  const KeyEvent down = scripted::keyNamed("Down"), enter = scripted::keyNamed("Enter");
  KeyEvent release = enter;
  release.keyDown = false;
  scripted::addKeys("Down Down Enter");
  scripted::addKey(release);
  scripted::addKeys(std::vector<KeyEvent>{down, down, down});
  scripted::addKeys(std::vector<KeyEvent>{enter, down});
  scripted::addCall([] { EXPECT_TRUE(screenMatches("crew/deck_schedules_lit_after_schedules")); });
  scripted::addKeys("Up Up Enter Enter");
  scripted::addKey(release);
  scripted::addKeys("Down");
  scripted::addCall([] { EXPECT_TRUE(screenMatches("crew/jobs_carried_down_past_a_release")); });
  scripted::run(runLivingQuarters);
  EXPECT_EQ(theMothership().workSchedule(), 3);
}

// A member carried sideways takes a place in the roster that other screens
// show: the head from the first row of an unscrolled list, just before the
// member on its row, or the end below the target's last row.
TEST(AssignCrewJobs, ACarriedMemberTakesItsPlaceInTheRoster) {
  const struct {
    const char* keys;
    int from, to;
  } cases[] = {{"Right Enter Right", 25, 0},
               {"Enter Left", 0, 0},
               {"Down Enter Left", 1, 20},
               {"Right Down Down Enter Left", 27, 2},
               {"Down Down Down Down Down Down Down Down "
                "Down Enter Right",
                9, 32}};
  for (const auto& c : cases) {
    startFreshRun();
    const CrewMember* me = &theMothership().crew().at(c.from);
    scripted::addKeys(c.keys);
    scripted::run(assignCrewJobs);
    int at = 0;
    while (&theMothership().crew().at(at) != me) ++at;
    EXPECT_EQ(at, c.to) << c.keys;
  }
}

}  // namespace
