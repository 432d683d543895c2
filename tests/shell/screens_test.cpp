// The shell's screens, whole, against their goldens in tests/golden/shell:
// the title and its animation, the ship map room by room, the endings, and
// the mornings of the days on which the Super Freighter comes and goes.
#include <deque>
#include <sstream>
#include <string>
#include <vector>

#include "game/console/scripted.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "game/shell/day.h"
#include "game/shell/endings.h"
#include "game/shell/mothership.h"
#include "game/shell/program.h"
#include "game/shell/ship_map.h"
#include "game/shell/title_menu.h"
#include "tests/support/fresh_game.h"
#include "tests/support/golden.h"

namespace {

template <int deck>
void mapFrom() { drawShipMap(); runShipMap(deck); }
// The calendar and the ship at the end of a day.
void dusk(int day, int countdown, unsigned food = 1000, float morale = 100, int fuel = 150000,
          int schedule = 2) {
  globals() = {day, 5000, countdown};
  theMothership().setFood(food);
  theMothership().setMorale(morale);
  theMothership().setFuel(fuel);
  theMothership().setWorkSchedule(schedule);
}
// A bunker in sector n, built or not, with one crew member and its food.
void staffBunker(int n, int food, bool built = true) {
  Bunker& bunker = thePlanet().sector(n).bunker();
  if (built) bunker.markBuilt();
  bunker.getCrew().add(kRaceMako, 0);
  bunker.addFood(food);
}
// The ship's craft i on a mission over sector V, with its crew.
void onMission(int i, int mission, int crew) {
  Aircraft& craft = theMothership().aircraft().at(i);
  craft.setMission(mission);
  craft.setDestination(3);
  for (int c = 0; c < crew; ++c) craft.getCrew().add(kRaceMako, 0);
}
void noEnemyLeft() {
  for (int i = 0; i < kSectorCount * kSubSectorCount; ++i) {
    SubSector& s = thePlanet().subSector(1 + i / kSubSectorCount, i % kSubSectorCount);
    s.addPopulation(-static_cast<int>(s.population()));
    s.addTroops(-static_cast<int>(s.troops()));
  }
}

const Scene kScenes[] = {
    // The title: each entry selected from both sides, Enter on the three
    // dummies, the credits shown on VIEW CREDITS only.
    {"the title's entries", R"(@title_first_frame Down @title_load_game Enter @title_load_game
      Down @title_game_options Enter Down @title_view_credits Enter @title_view_credits
      Down @title_exit Down @title_first_frame Up @title_exit Up @title_view_credits
      Up Esc @title_game_options)"},
    // A runner steps every 30 passes, the sweep every 600: out along the
    // bars to the label, back, and out again.
    {"the first sweep", "Idle:599 @title_pass_600"},
    {"the sweep at the label", "Idle:8399 @title_pass_8400_sweep_at_the_label"},
    {"the sweep going back", "Idle:8999 @title_pass_9000_sweep_going_back"},
    {"the sweep turning at the outer end", "Idle:16799 @title_pass_16800_sweep_turned"},
    // On every entry, back from its label; on EXIT after a restart half way.
    {"LOAD  GAME's sweep", "Down Idle:8398 @title_pass_8400_load_game_sweep_going_back"},
    {"GAME OPTIONS' sweep", "Down Down Idle:7797 @title_pass_7800_game_options_sweep_going_back"},
    {"VIEW CREDITS' sweep", "Up Up Idle:7797 @title_pass_7800_view_credits_sweep_going_back"},
    {"EXIT's sweep", "Idle:3000 Up Idle:10198 @title_pass_13200_exit_sweep_going_back"},
    // A lost game: the shielded ship runs dry on its way down, the title
    // comes back without its dotted frame, and the lights draw it back; a
    // second game starts from a new ship, its shield down.
    {"a lost game and the next", R"(Enter Right Down Enter Down Enter y @ending_out_of_fuel x
      @title_after_a_lost_game Idle:598 @title_after_a_lost_game_600_passes
      Enter @ship_map_nav)",
     nullptr,
     [] { dusk(1, 30, 1000, 100, kOrbitTripFuel + kShieldFuel);
          theMothership().setDestination(1);
          theMothership().toggleShields(); }},
    // The ship map: every arrow from every room, Escape doing nothing, and
    // the map after a deck.
    {"every arrow of the map", R"(@ship_map_nav Left Up Down Esc @ship_map_nav
      Right @ship_map_research Up @ship_map_living Left Up Right @ship_map_living
      Down @ship_map_research Right @ship_map_cargo Up Right @ship_map_cargo
      Down @ship_map_docking Right Down @ship_map_docking Up @ship_map_cargo
      Left @ship_map_research Down @ship_map_library Left Down @ship_map_library
      Up @ship_map_research Down Right @ship_map_engineering Up Down @ship_map_engineering
      Right @ship_map_docking Left @ship_map_engineering Left @ship_map_library
      Up Left @ship_map_nav Enter Esc @ship_map_nav)",
     mapFrom<kDeckNav>},
    {"the Super Freighter's room", R"(@ship_map_library_freighter_in_orbit Down @ship_map_freighter
      Left Right Down @ship_map_freighter Up @ship_map_library_freighter_in_orbit)",
     mapFrom<kDeckLibrary>, [] { dusk(1, 0); }},
    {"no freighter room while the ship is over a sector", "Down @ship_map_library",
     mapFrom<kDeckLibrary>, [] { dusk(1, -3, 1000, 100, 150000 + kOrbitTripFuel);
                                 theMothership().setDestination(4);
                                 theMothership().moveOneDay(); }},
    {"the shield switched on in engineering", "Enter Down Down Down Enter Esc @ship_map_shielded",
     mapFrom<kDeckEngineering>},
    {"the status bar's fields full", "@ship_map_status_bar_full", mapFrom<kDeckNav>,
     [] { dusk(1000, 30, 1000000, 100, 1999999); theMothership().setMaterials(0); }},
    // Nights ended from the Library, and the mornings after: the Super
    // Freighter's days, and news of one urgency in the order of the day's steps.
    {"day 28", "Enter Down Enter y @report_day_28", mapFrom<kDeckLibrary>, [] { dusk(27, 4); }},
    {"day 30", "Enter Down Enter y @report_day_30 Esc @ship_map_day_30", mapFrom<kDeckLibrary>,
     [] { dusk(29, 2); }},
    {"day 31", "Enter Down Enter y @report_day_31 Esc @ship_map_day_31", mapFrom<kDeckLibrary>,
     [] { dusk(30, 1); }},
    {"day 38: no news, no report, no room", "Enter Down Enter y @ship_map_day_38",
     mapFrom<kDeckLibrary>, [] { dusk(37, -6); }},
    {"a night of the gravest news", "Enter Down Enter y @famine_warning x @report_gravest_news",
     mapFrom<kDeckLibrary>, [] { dusk(1, 1, 0, 20, 5000); staffBunker(1, 0); }},
    {"a night of news of every step",
     "Enter Down Enter y @report_news_of_every_step Space @report_news_of_every_step_page_2",
     mapFrom<kDeckLibrary>, [] { dusk(1, -5, 1000, 15, 20000); staffBunker(2, 4);
                                 staffBunker(3, 100, false);
                                 onMission(0, kMissionScouting, 0);
                                 onMission(2, kMissionAttacking, 2); }},
    {"every bunker's meal, in sector order",
     "Enter Down Enter y @report_bunkers_1 Space @report_bunkers_2 Space @report_bunkers_3 Space "
     "@report_bunkers_4",
     mapFrom<kDeckLibrary>, [] { for (int n = 1; n <= kSectorCount; ++n) staffBunker(n, 4); }},
    {"one enemy left: the game goes on", "Enter Down Enter y @ship_map_day_2",
     mapFrom<kDeckLibrary>, [] { noEnemyLeft(); thePlanet().subSector(24, 15).addTroops(1); }},
    // The endings, each in its turn on the night whose tests hold.
    {"mutiny with food left", "Enter Right Down Enter Down Enter y @ending_mutiny_in_his_sleep x "
     "@title_after_a_lost_game", nullptr, [] { dusk(1, 30, 1000, 3, 150000, 3); }},
    {"the famine warned of before morale falls to 0", "Enter Right Down Enter Down Enter y "
     "@famine_warning x @ending_mutiny_eaten x @title_after_a_lost_game", nullptr,
     [] { dusk(1, 30, 0, 15); }},
    {"victory", "Enter Right Down Enter Down Enter y @ending_victory x @title_after_a_lost_game",
     nullptr, noEnemyLeft},
    {"the Ion Cannon drinks the last of the fuel", "@ending_cannon_drank_the_fuel x",
     showCannonFuelEnding},
    {"three endings on one night",
     "@ending_out_of_fuel x @ending_mutiny_in_his_sleep x @ending_victory x", runDay,
     [] { dusk(1, 30, 1000, 0, 0); noEnemyLeft(); }},
};

TEST(Screens, Shell) { playScenes("shell", kScenes); }

// What the goldens cannot show: keys typed in a burst, the room's flash
// frame by frame, and the program's way out.

TEST(TitleMenu, ABurstOfKeysMovesOnceAndExitEndsTheProgramWithThePromptOnTheLastRow) {
  startFreshRun();
  scripted::addKeys({KeyEvent::arrow(kKeyUp), KeyEvent::arrow(kKeyUp)});  // once: to EXIT
  scripted::addKeys("Enter");
  int code = -1;
  EXPECT_FALSE(scripted::run([&] { code = runProgram(); }));
  EXPECT_EQ(code * 10000 + Console::screen().row * 100 + Console::screen().column, 2400);
}

TEST(ShipMap, EnterFlashesTheRoomThreeTimesAndAHalf) {
  startFreshRun();
  std::vector<int> colours;
  scripted::watchSleeps([&](int ms) { colours.push_back(scripted::colourAt(6, 3) + ms); });
  scripted::addKeys("Enter");
  scripted::run(mapFrom<kDeckNav>);
  EXPECT_EQ(colours, (std::vector<int>{92, 94, 92, 94, 92, 94, 92}));
}


// A whole game through the real screens, from the title menu to the victory
// and back, with a player who follows a plan and reads the morning reports.
std::deque<KeyEvent> plan;
int reportsRead = 0;  // and Escaped at once

void press(const std::string& names, int times = 1) {
  for (int i = 0; i < times; ++i) {
    std::istringstream in(names);
    for (std::string name; in >> name;) plan.push_back(scripted::keyNamed(name));
  }
}

TEST(WholeGame, LevelEverySectorAndWin) {
  startFreshRun();
  scripted::setPlayer([](KeyEvent& key) {
    theMothership().setFood(1000);  // the larder is kept full
    const bool report = scripted::rowText(2).starts_with("  Corolla says, 'Good Morning");
    reportsRead += report;
    if (!report && plan.empty()) return false;
    key = report ? KeyEvent::escape() : plan.front();
    if (!report) plan.pop_front();
    return true;
  });
  press("Enter Enter");  // NEW GAME, into the Navigation deck
  for (int n = 1; n <= kSectorCount; ++n) {
    // Course for sector n, the days of the journey ended in the Library,
    // then all 16 sub-sectors fired on, a tank of fuel before each shot.
    press("Down Enter");
    press("Right", (n - 1) % 6);
    press("Down", (n - 1) / 6);
    press("Enter Esc Esc Right Down");
    press("Enter Down Enter y", travelDays(n - 1, n));
    press("Up Left Enter Down Down Down Enter");
    for (int k = 0; k < 16; ++k) press(k % 4 == 3 ? "Tab Enter y x Right Down"
                                                 : "Tab Enter y x Right");
    press("Esc Up Up Up");
  }
  press("Esc Right Down Enter Down Enter y x Idle");  // the last day, and the victory screen
  EXPECT_TRUE(scripted::run(runTitleMenu));
  EXPECT_EQ(thePlanet().enemyTotal(), 0);
  EXPECT_EQ(scripted::textAt(17, 15, 8), "NEW GAME") << "back on the title";
  EXPECT_GE(reportsRead, 24) << "every day of shots had its report";
}

}  // namespace
