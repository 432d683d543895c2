// The shell's screens, whole, against their goldens in tests/golden/shell:
// the title and its animation, the ship map room by room, the endings, and
// the mornings of the days on which the Super Freighter comes and goes.
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "game/shell/day.h"
#include "game/shell/mothership.h"
#include "game/shell/ship_map.h"
#include "tests/support/golden.h"

namespace {

void mapFromNav() {
  drawShipMap();
  runShipMap(kDeckNav);
}
void mapFromLibrary() {
  drawShipMap();
  runShipMap(kDeckLibrary);
}
void days(int day, int freighterCountdown) {
  globals().day = day;
  globals().freighterCountdown = freighterCountdown;
}
void ship(unsigned food, float morale, int fuel, int schedule) {
  theMothership().setFood(food);
  theMothership().setMorale(morale);
  theMothership().setFuel(fuel);
  theMothership().setWorkSchedule(schedule);
}
// A built bunker in sector n with one crew member and its food.
void staffBunker(int n, int food) {
  Bunker& bunker = thePlanet().sector(n).bunker();
  bunker.markBuilt();
  bunker.getCrew().add(kRaceMako, 0);
  bunker.addFood(food);
}
void noEnemyLeft() {
  for (int n = 1; n <= kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) {
      SubSector& s = thePlanet().subSector(n, k);
      s.addPopulation(-static_cast<int>(s.population()));
      s.addTroops(-static_cast<int>(s.troops()));
    }
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
    {"the first running light", "Idle:29 @title_pass_30"},
    {"the first sweep", "Idle:599 @title_pass_600"},
    {"the sweep at the label", "Idle:8399 @title_pass_8400_sweep_at_the_label"},
    {"the sweep going back", "Idle:8999 @title_pass_9000_sweep_going_back"},
    {"the sweep turning at the outer end", "Idle:16799 @title_pass_16800_sweep_turned"},
    {"the sweep on LOAD  GAME", "Down Idle:598 @title_pass_600_on_load_game"},
    {"the sweep on EXIT, after it was half way", "Idle:3000 Up Idle:1798 @title_pass_4800_on_exit"},
    // A lost game: the ship runs dry on its way down, the title comes back
    // without its dotted frame, and the lights draw it back; a second game
    // starts from a new ship.
    {"a lost game and the next", R"(Enter Right Down Enter Down Enter y @ending_out_of_fuel x
      @title_after_a_lost_game Idle:598 @title_after_a_lost_game_600_passes
      Enter @ship_map_nav)",
     nullptr,
     [] {
       ship(1000, 100, kOrbitTripFuel, 2);
       theMothership().setDestination(1);
     }},
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
     mapFromNav},
    {"the Super Freighter's room", R"(@ship_map_library_freighter_in_orbit Down @ship_map_freighter
      Left Right Down @ship_map_freighter Up @ship_map_library_freighter_in_orbit)",
     mapFromLibrary, [] { globals().freighterCountdown = 0; }},
    {"no freighter room while the ship is over a sector", "Down @ship_map_library", mapFromLibrary,
     [] {
       globals().freighterCountdown = -3;
       theMothership().setDestination(4);
       theMothership().moveOneDay();
       theMothership().setFuel(150000);
     }},
    {"the shield switched on in engineering", "Enter Down Down Down Enter Esc @ship_map_shielded",
     [] {
       drawShipMap();
       runShipMap(kDeckEngineering);
     }},
    {"the status bar's fields full", "@ship_map_status_bar_full", mapFromNav,
     [] {
       days(1000, 30);
       ship(1000000, 100, 1999999, 2);
       theMothership().setMaterials(0);
     }},
    // Nights ended from the Library, and the mornings after: the Super
    // Freighter's days, and news of one urgency in the order of the day's steps.
    {"day 28", "Enter Down Enter y @report_day_28", mapFromLibrary, [] { days(27, 4); }},
    {"day 30", "Enter Down Enter y @report_day_30 Esc @ship_map_day_30", mapFromLibrary,
     [] { days(29, 2); }},
    {"day 31", "Enter Down Enter y @report_day_31 Esc @ship_map_day_31", mapFromLibrary,
     [] { days(30, 1); }},
    {"day 38: no news, no report, no room", "Enter Down Enter y @ship_map_day_38", mapFromLibrary,
     [] { days(37, -6); }},
    {"a night of the gravest news", "Enter Down Enter y @famine_warning x @report_gravest_news",
     mapFromLibrary,
     [] {
       days(1, 1);
       ship(0, 20, 5000, 0);
       staffBunker(1, 0);
     }},
    {"a night of news that needs action", "Enter Down Enter y @report_news_for_action",
     mapFromLibrary,
     [] {
       days(1, -5);
       ship(1000, 15, 20000, 2);
       staffBunker(2, 4);
     }},
    // The endings, each in its turn on the night whose tests hold.
    {"mutiny with food left", "@ending_mutiny_in_his_sleep x", runDay, [] { ship(1000, 3, 150000, 3); }},
    {"the famine warned of before morale falls to 0", "@famine_warning x @ending_mutiny_eaten x",
     runDay, [] { ship(0, 15, 150000, 2); }},
    {"three endings on one night",
     "@ending_out_of_fuel x @ending_mutiny_in_his_sleep x @ending_victory x", runDay,
     [] {
       ship(1000, 0, 0, 2);
       noEnemyLeft();
     }},
};

TEST(Screens, Shell) { playScenes("shell", kScenes); }

}  // namespace
