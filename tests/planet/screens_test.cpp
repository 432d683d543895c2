// The war's screens, whole, against their goldens in tests/golden/planet:
// the Navigation deck, Ground Campaign Status and the sector view, Navigate
// Mothership and the Ion Cannon with its live feed.
#include <string>
#include <vector>

#include "game/console/scripted.h"
#include "game/planet/battle.h"
#include "game/planet/ion_cannon.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "tests/planet/war.h"
#include "tests/support/fresh_game.h"
#include "tests/support/golden.h"

namespace {

// Marks the sub-sectors ks of sector n seen, of the given land if any.
void see(int n, std::initializer_list<int> ks, int land = -1) {
  for (int k : ks) {
    if (land >= 0) thePlanet().subSector(n, k).setLandType(land);
    thePlanet().subSector(n, k).markMapped();
  }
}

// Two built bunkers (L and A), and land of every code seen here and there:
// in I the lower Mountains (10) of a pair whose upper Farm Land is unseen,
// in L a Desert bombed below 0 people, in V Rubble and the strewn farm.
void bunkersAndSomeLand() {
  thePlanet().sector(2).bunker().markBuilt(), thePlanet().sector(8).bunker().markBuilt();
  see(1, {0, 5, 9, 10, 15}), see(2, {0}), see(3, {0}, kRubble), see(3, {1}, kFarmLandStrewn);
  see(14, {12}), thePlanet().subSector(2, 0).addPopulation(-20000);
}

// All of I seen but 3 and 6, with land of every code; a bunker built on 6.
void everyLandInI() {
  see(1, {0, 1, 2, 4, 5, 7, 8, 9, 10, 11, 12});
  see(1, {13}, kNuclearWasteland), see(1, {14}, kFarmLandStrewn), see(1, {15}, kRubble);
  thePlanet().sector(1).bunker().setSubSector(6), thePlanet().sector(1).bunker().markBuilt();
}

// The whole world seen, or all but the second row of each sector (whose
// place on the map the third row takes).
void mapWorld(bool secondRows) {
  for (int n = 1; n <= kSectorCount; ++n) {
    see(n, {0, 1, 2, 3, 8, 9, 10, 11, 12, 13, 14, 15});
    if (secondRows) see(n, {4, 5, 6, 7});
  }
}

// The ship over T, all of which it has seen.
void overT() { see(9, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}), hoverOver(9); }

// The ship over I, its Military Base, Mountains, Desert and City seen; its
// bunker (never shown on the cannon's view) on the unseen Farm Land.
void overI() {
  hoverOver(1), see(1, {0, 1, 3, 5});
  thePlanet().sector(1).bunker().setSubSector(6), thePlanet().sector(1).bunker().markBuilt();
}

// Each scene starts on the Navigation deck.
void bombedBelow0() {
  theMothership().setMaterials(3), raider(kHulkBomber, 1, kRaceHuman, kRaceHuman), resolveRaids();
}

const Scene kScenes[] = {
    {"the deck, each button lit; the radio does nothing",
     "@deck_ground_status_lit Down @deck_navigate_lit Down @deck_radio_lit Enter @deck_radio_lit "
     "Down @deck_ion_cannon_lit Down @deck_return_lit Down @deck_ground_status_lit Up "
     "@deck_return_lit Enter", runNavigationDeck},
    {"a new game's ground: the cursor wraps round the map; an empty sector view; Enter maps",
     "Enter @status_new_game Left @status_cursor_wrapped_left_to_C Up @status_cursor_wrapped_up_to_K "
     "Down @status_cursor_wrapped_left_to_C Right @status_new_game Enter @view_nothing_seen Down "
     "Enter @view_4_seen_by_enter Esc @status_after_the_view_I4_seen Esc @deck_after_ground_status "
     "Esc", runNavigationDeck},
    {"bunkers and some land; Tab maps a sector; its view; back on the map",
     "Enter @status_bunkers_and_some_land Right @status_cursor_on_L_bunker_and_people_below_0 Right "
     "Tab @status_V_mapped_by_tab Enter @view_of_V Left @view_of_V_cursor_wrapped_to_3 Up "
     "@view_of_V_cursor_wrapped_to_15 Esc @status_after_the_view_of_V Esc Esc", runNavigationDeck,
     bunkersAndSomeLand},
    {"every land in a view, a bunker on an unseen site, seen on the next visit",
     "Enter Enter @view_every_land_bunker_on_unseen_site Esc Enter @view_bunker_site_seen Esc Esc "
     "Esc", runNavigationDeck, everyLandInI},
    {"the world seen but the second row of each sector", "Enter @status_world_but_second_rows Esc "
     "Esc", runNavigationDeck, [] { mapWorld(false); }},
    {"the whole world seen", "Enter @status_whole_world Esc Esc", runNavigationDeck,
     [] { mapWorld(true); }},
    {"navigate in orbit: the orbit box entered and left by each of its four sides; a course",
     "Down Enter @navigate_in_orbit Right Right Up @navigate_cursor_on_orbit Up @navigate_cursor_on_D "
     "Down @navigate_cursor_on_orbit Down @navigate_cursor_on_V Right Up @navigate_cursor_on_orbit "
     "Left @navigate_cursor_on_orbit Down @navigate_cursor_on_O Up Up @navigate_cursor_on_G Down "
     "@navigate_cursor_on_orbit Up @navigate_cursor_on_G Enter @navigate_course_set_for_G Left "
     "@navigate_course_for_G_cursor_on_D Esc @deck_after_navigate Esc", runNavigationDeck},
    {"navigate hovering over T, then a course for orbit",
     "Down Enter @navigate_over_T Right Right Down @navigate_over_T_cursor_on_T Down Down Down "
     "@navigate_over_T_cursor_on_orbit Enter @navigate_over_T_course_for_orbit Esc Esc",
     runNavigationDeck, overT},
    {"navigate moving from T to K; Enter on T stops the ship and wipes K's marks",
     "Down Enter @navigate_moving_T_to_K Right Right Down Enter @navigate_over_T_cursor_on_T Esc Esc",
     runNavigationDeck, [] { overT(), theMothership().setDestination(24); }},
    {"a bombing night took the ship's last 3 materials and 4 more: the bar shows none",
     "@deck_materials_below_0 Esc", runNavigationDeck, bombedBelow0},
    {"the Ion Cannon in orbit", "Up Up Enter @cannon_in_orbit x @deck_after_cannon_in_orbit Esc",
     runNavigationDeck},
    {"the Ion Cannon over I: the question, No, a shot on the City, a blind shot, Tab",
     "Up Up Enter @cannon_over_I Right @cannon_cursor_on_1 Enter @cannon_question Right "
     "@cannon_question_yes_lit n @cannon_cursor_on_1 Down Enter y @cannon_shot_on_the_city x "
     "@cannon_after_the_shot_on_the_city Down Enter y @cannon_blind_shot x "
     "@cannon_after_the_blind_shot Tab @cannon_fuel_from_tab Esc @deck_after_ion_cannon Esc",
     runNavigationDeck, overI},
    {"a shot with 50000 fuel left takes the last of it: the ending",
     "Up Up Enter Enter y x @cannon_fuel_ending x", runNavigationDeck,
     [] { overI(), theMothership().setFuel(50000); }},
    {"with 49999 left, the same", "Up Up Enter Enter y x @cannon_fuel_ending x", runNavigationDeck,
     [] { overI(), theMothership().setFuel(49999); }},
    {"with 50001 left, a shot leaves 1", "Up Up Enter Enter y x @cannon_after_a_shot_leaving_1 Esc "
     "Esc", runNavigationDeck, [] { overI(), theMothership().setFuel(50001); }},
};

TEST(Screens, Planet) { playScenes("planet", kScenes); }

// The live feed at chosen frames, counted by the game's sleeps, and the
// time the whole shot takes. Each target is sub-sector 2 of I, of the
// given land, or I's City (5), whose scene bears the sign.
TEST(Screens, IonCannonFeed) {
  const struct {
    int k, land;  // land -1: unseen
    std::vector<std::pair<int, const char*>> frames;  // after which sleep, the golden
  } feeds[] = {
      {5, kCity, {{0, "feed_city_charging"}, {5, "feed_city_charged_by_5"}, {11, "feed_city_fire"},
                  {25, "feed_city_beam_down"}, {26, "feed_city_blast_A_stage_1"},
                  {33, "feed_city_blast_B_stage_2"}, {40, "feed_city_blast_C_stage_3"},
                  {47, "feed_city_blast_B_stage_4"}, {60, "feed_city_beam_out_blast_B"},
                  {67, "feed_city_beam_gone"}}}, {2, kNuclearWasteland, {{0, "feed_wasteland"}}},
      {2, kFarmLand, {{0, "feed_farm"}}}, {2, kFarmLandStrewn, {{0, "feed_strewn_farm"}}},
      {2, kMilitaryBase, {{0, "feed_military_base"}}}, {2, kMountains, {{0, "feed_mountains"}}},
      {2, kDesert, {{0, "feed_desert"}}}, {2, kRubble, {{0, "feed_rubble"}}},
      {2, -1, {{0, "feed_blind_first_noise"}, {99, "feed_blind_charged"},
               {100, "feed_blind_fire_in_progress"}, {119, "feed_blind_last_noise"}}}};
  for (const auto& feed : feeds) {
    startFreshRun(), hoverOver(1);
    if (feed.land >= 0) see(1, {feed.k}, feed.land);
    scripted::watchSleeps([&, sleeps = 0](int) mutable {
      for (const auto& [after, golden] : feed.frames) {
        EXPECT_TRUE(after != sleeps ? testing::AssertionSuccess()
                                    : screenMatches(std::string("planet/") + golden));
      }
      ++sleeps;
    });
    scripted::addKeys(std::string(feed.k == 5 ? "Right Down" : "Right Right") + " Enter y x Esc");
    scripted::run(runIonCannonControl);
    EXPECT_EQ(scripted::clockMicros(), feed.land < 0 ? 1200000 : 7206000) << feed.frames[0].second;
  }
}

}  // namespace
