// The docking bay's screens, whole, against their goldens in tests/golden/fleet.
#include "game/fleet/docking_bay.h"
#include "game/fleet/launch_space_capsule.h"
#include "game/fleet/missions.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"
#include "tests/support/golden.h"

namespace {

Bunker& bunker(int sector) { return thePlanet().sector(sector).bunker(); }
void crewUp(CrewList& crew, int count) {
  for (int i = 0; i < count; ++i) crew.add(kRaceMako, static_cast<std::uint8_t>(i % 2));
}
// The ship's craft at that row with its crew, on a job.
Aircraft& shipCraft(int row, int crew = 0, int mission = kMissionInactive, int destination = 0) {
  Aircraft& craft = theMothership().aircraft().at(row);
  crewUp(craft.getCrew(), crew);
  craft.setMission(mission);
  craft.setDestination(destination);
  return craft;
}

// The ship's saucer, barge, fighter and bomber, in that order, crewed and
// at work; bunkers built in sectors 2 and 7, one staffed but not built in
// sector 3, and a site with no bunker yet in sector 9.
void fleetAtWork() {
  for (int n : {2, 7}) bunker(n).markBuilt();
  bunker(2).setSubSector(5);
  bunker(7).getAircraft().add(kStealthFighter, kDockLimit, 7);
  crewUp(bunker(7).getAircraft().at(0).getCrew(), 2);
  crewUp(bunker(3).getCrew(), 1);
  bunker(9).setSubSector(0);
  shipCraft(0, 1, kMissionScouting, 3);
  shipCraft(1, 2, kMissionShuttling);
  shipCraft(2, 2, kMissionDefending);
  shipCraft(3, 1, kMissionInactive, 9).setLocation(5);
  for (auto [sector, k, land] : {std::tuple{2, 5, kDesert}, {3, 0, kMountains}, {3, 1, kCity}}) {
    thePlanet().subSector(sector, k).setLandType(land);
    thePlanet().subSector(sector, k).markMapped();
  }
  thePlanet().subSector(3, 4).setLandType(kDesert);  // not yet known
}

const Scene kScenes[] = {
    {"the docking bay's buttons, and back from its screens",
     "@bay_view_ships_lit Down @bay_load_crew_lit Down @bay_missions_lit Down "
     "@bay_capsule_lit_with_count Down @bay_return_lit_count_wiped Down Enter Esc "
     "@bay_back_from_view_ships Up Up Enter Left Enter Up Esc Esc "
     "@bay_back_from_capsule_count_shown Up Enter Esc @bay_back_from_missions Up Enter Esc "
     "@bay_back_from_load_crew",
     runDockingBay},
    {"no capsule ready: the button does nothing", "Up Up Enter @bay_no_capsule_ready",
     runDockingBay, [] { theMothership().addCapsules(-2); }},
    {"the stat pages of the ship's craft, and of a saucer on each other job",
     "@ships_first_frame Down @ships_barge_stats Down @ships_fighter_full_crew Down "
     "@ships_bomber_away_from_the_ship Up Up Up @ships_saucer_stats Down Down Down Down "
     "@ships_inactive Down @ships_attacking Down @ships_traveling Down @ships_abducting_cows Down "
     "@ships_abducting_humans Down @ships_escorting Enter",
     viewShipsInDock,
     [] {
       fleetAtWork();
       shipCraft(3, 0, kMissionBombing, 9);
       for (int mission : {0, 2, 4, 5, 6, 8}) {
         theMothership().aircraft().add(kSaucerTransport, kDockLimit, 0);
         shipCraft(theMothership().aircraft().count() - 1, 0, mission);
       }
     }},
    {"no craft on the ship", "@ships_none_here x", viewShipsInDock,
     [] { theMothership().aircraft().clear(); }},
    {"crew moved between the ship and its craft",
     "@crew_first_frame Down @crew_bunker_with_no_ships_or_crew Up Enter "
     "@crew_aircraft_active_saucer_onboard Down Down @crew_cursor_on_fighter_onboard_refilled "
     "Up Right @crew_crew_column_active Enter @crew_member_boarded_barge_full Enter Right "
     "@crew_onboard_active Down Down Left @crew_row_carried_to_crew Right Enter "
     "@crew_member_back_cursor_on_last_aboard Esc Esc @crew_back_in_aircraft Up Right PgDn "
     "@crew_list_paged_down PgDn Enter @crew_boarded_from_the_last_page Esc Esc "
     "@crew_back_in_location_onboard_wiped Right @crew_aircraft_again_onboard_blank Esc Esc",
     loadCargoAndCrew, fleetAtWork},
    {"jobs given to the ship's craft and a bunker's",
     "@missions_first_frame Down @missions_bunker_with_no_ships Up Right "
     "@missions_aircraft_active_menu_empty Right "
     "@missions_empty_menu_entered Enter Down Down @missions_fighter_on_its_job Right "
     "@missions_menu_active_on_the_job Down Esc @missions_menu_left_nothing_lit Down "
     "@missions_bomber_menu Right Down Down Enter @missions_short_of_crew_row_stays_lit Up Up Up "
     "Right Up Enter @picker_travel_from_the_dock Down Enter @picker_unbuilt_sector_not_taken Left "
     "Enter @picker_travel_aimed_at_a_built_bunker Right Right Up Up "
     "@picker_up_through_the_dock_from_4_lands_on_22 Left Down Down "
     "@picker_down_through_the_dock_from_21_lands_on_3 Esc @missions_after_the_picker Esc Down "
     "Down Right Up Right Down Down Enter @picker_attack_from_the_second_bunker Right Right Up Up "
     "Enter @picker_attack_aimed_at_the_dock Down Down Left Enter "
     "@picker_attack_aimed_at_any_sector Esc Right Down Down Enter "
     "@missions_escorting_taken_without_picker Esc Esc",
     assignAircraftMissions, fleetAtWork},
    {"a capsule loaded and launched",
     "@capsule_first_frame Enter Enter @capsule_two_aboard Right @capsule_onboard_active Left "
     "@capsule_crew_active_again Right Right "
     "@capsule_food_label_lit Left @capsule_left_from_food_onto_its_row Right Enter Up "
     "@capsule_food_loaded_to_the_stock Right Right Right Right Right Left "
     "@capsule_tens_lit_after_the_last_digit Enter Down Enter Right Up Up @capsule_materials_2000 "
     "Enter Left @capsule_left_from_materials_onto_its_row Right Down Down "
     "@capsule_destination_without_target Enter @capsule_target_map Down Enter @site_first_frame "
     "Right @site_cursor_on_a_city Down Esc @capsule_destination_without_target Enter Down Left "
     "Enter @capsule_sector_with_a_site_skips_the_site_screen Up "
     "@capsule_target_kept_yes_and_no_wiped Down Left @capsule_yes_chosen Enter @capsule_launched "
     "x",
     launchSpaceCapsule, fleetAtWork},
    {"the capsule's cursor carried from the crew",
     "Enter Enter Down Right @capsule_onboard_row_carried", launchSpaceCapsule, fleetAtWork},
    // Back to the crew from the destination: only the two labels are drawn
    // again, so the destination's highlight and the LAUNCH tab stay lit.
    {"the capsule's destination left for the crew",
     "Right Down Down Left @capsule_crew_row_of_destination", launchSpaceCapsule, fleetAtWork},
};

TEST(Screens, Fleet) { playScenes("fleet", kScenes); }

}  // namespace
