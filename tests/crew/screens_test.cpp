// The LIVING QUARTERS and its screens, whole, against their goldens in
// tests/golden/crew.
#include <string>

#include "game/console/scripted.h"
#include "game/crew/coffee_with_emerson.h"
#include "game/crew/living_quarters.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"
#include "tests/support/golden.h"

namespace {

CrewList& crew() { return theMothership().crew(); }
void party() {
  theMothership().setWorkSchedule(0);
  theMothership().setMorale(0);
}
void oneMember() {
  crew().clear();
  crew().add(kRacePovolnian, 1);
}
void fullRoster() {
  crew().clear();
  while (crew().add(kRacePovolnian, 0)) continue;
}

const Scene kScenes[] = {
    {"each button lit, Auto Assign doing nothing, and the way back from each screen",
     "@deck_assign_lit Down @deck_auto_lit Enter @deck_auto_lit Down @deck_schedules_lit "
     "Down @deck_coffee_lit Down @deck_return_lit Down @deck_assign_lit Up @deck_return_lit "
     "Up @deck_coffee_lit Enter @coffee_91_to_100 x @deck_coffee_lit_after_coffee Up Enter Esc "
     "@deck_schedules_lit_after_schedules Up Up Enter Esc @deck_assign_lit_after_jobs",
     runLivingQuarters},
    {"no crew aboard", "Enter @deck_no_crew", runLivingQuarters, [] { crew().clear(); }},
    {"a party whatever the morale", "Up Up Enter @coffee_party", runLivingQuarters, party},
    {"browsing: the biography, a scrolled list, each list in focus",
     "Enter @jobs_first_frame Down @jobs_bio_of_a_researcher PgDn @jobs_research_scrolled "
     "Down Down @jobs_bio_further_down Right @jobs_maintenance_in_focus Right "
     "@jobs_other_in_focus Right @jobs_research_in_focus_again Left @jobs_other_in_focus Left "
     "@jobs_maintenance_in_focus_again",
     runLivingQuarters},
    {"a member picked up, carried up and down and across, and put down",
     "Enter Right Down Enter @jobs_picked_up Down @jobs_carried_down Up Up "
     "@jobs_carried_to_the_top Right @jobs_carried_to_the_head_of_other Right "
     "@jobs_carried_to_the_head_of_research Enter @jobs_put_down",
     runLivingQuarters},
    {"carried down through the foot of the box to the end of the list, and up through its top",
     "Enter Enter Down Down Down Down Down Down Down Down Down Down Down Down Down "
     "@jobs_carried_to_the_foot_of_the_box Down Down Down Down Down Down "
     "@jobs_carried_to_the_end_of_the_list Up Up Up Up Up Up Up Up Up Up Up Up Up Up "
     "@jobs_carried_up_through_the_top_of_the_box",
     runLivingQuarters},
    {"carried onto a middle row, and below the last row",
     "Enter Right Down Down Enter Left @jobs_carried_onto_a_middle_row Enter Down Down Down "
     "Down Down Down Down Enter Right @jobs_carried_below_the_last_row",
     runLivingQuarters},
    {"the biography of each race aboard, and a Human carried into research, still jibbering",
     "Enter Left Down @jobs_bio_of_a_mududu Down Down Down Down @jobs_bio_of_a_human Enter Right "
     "Enter Up Down @jobs_human_in_research Right Down @jobs_bio_of_a_mako",
     runLivingQuarters, [] { crew().add(kRaceHuman, 0); }},
    {"a lone member carried through all three lists",
     "Enter Enter Right @jobs_lone_member_in_maintenance Right @jobs_lone_member_in_other "
     "Esc Right Up @jobs_lone_member_put_down_in_other",
     runLivingQuarters, oneMember},
    {"a full roster, all of it in research, on its last page",
     "Enter PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn PgDn "
     "PgDn @jobs_full_roster_last_page",
     runLivingQuarters, fullRoster},
    {"each schedule under the cursor, Escape taking it",
     "Down Down Enter @schedules_plan_925 Down @schedules_all_work Down @schedules_nazi Down "
     "@schedules_party Down @schedules_slacker Up Up Esc Enter @schedules_nazi",
     runLivingQuarters},
};

TEST(Screens, Crew) { playScenes("crew", kScenes); }

// Emerson's line at both ends of each band of morale, and none at 0.
TEST(Screens, EmersonByMorale) {
  const struct {
    float morale;
    const char* golden;
  } cases[] = {{100, "91_to_100"},   {91, "91_to_100"}, {90, "81_to_90"}, {81, "81_to_90"},
               {80, "71_to_80"},     {71, "71_to_80"},  {70, "61_to_70"}, {61, "61_to_70"},
               {60, "51_to_60"},     {51, "51_to_60"},  {50, "41_to_50"}, {41, "41_to_50"},
               {40, "31_to_40"},     {31, "31_to_40"},  {30, "21_to_30"}, {21, "21_to_30"},
               {20, "11_to_20"},     {11, "11_to_20"},  {10, "1_to_10"},  {1.9f, "1_to_10"},
               {0.9f, "silent_at_0"}};
  for (const auto& c : cases) {
    startFreshRun();
    theMothership().setMorale(c.morale);
    scripted::run(coffeeWithEmerson);
    EXPECT_TRUE(screenMatches(std::string("crew/coffee_") + c.golden)) << c.morale;
  }
}

}  // namespace
