// The research station and the engineering deck, whole, against their
// goldens in tests/golden/research.
#include "game/research/engineering_deck.h"
#include "game/research/research_station.h"
#include "game/research/tech_tree.h"
#include "game/shell/mothership.h"
#include "tests/support/golden.h"

namespace {

void finish(TechItem& item) {
  item.setProgress(100.0);
  theTechTree().finishItem(item);
}
void finishEverything() {
  while (theTechTree().researchableCount() > 0) finish(*theTechTree().researchableItems().front());
}
void noResearchers() {
  CrewList& crew = theMothership().crew();
  for (int i = 0; i < crew.getCount(); ++i) crew.at(i).setJob(7);
}

void oneResearcherOneItem() {
  noResearchers();
  theMothership().crew().at(0).setJob(kJobResearch);
  while (theTechTree().researchableCount() > 1) finish(*theTechTree().researchableItems().front());
}
void neither() {
  noResearchers();
  finishEverything();
}

const Scene kScenes[] = {
    {"the research deck, each button lit, and Enter on each",
     "@deck_assignments_lit Down @deck_completed_lit Down @deck_hyde_lit Enter @deck_hyde_lit "
     "Down @deck_biology_lit Enter @deck_biology_lit Down @deck_return_lit Down "
     "@deck_assignments_lit Down Enter @deck_completed_lit_after_its_enter",
     runResearchStation},
    {"the panel without researchers",
     "@deck_panel_without_researchers Enter @deck_panel_without_researchers_after_enter",
     runResearchStation, noResearchers},
    {"the panel with nothing left to research",
     "@deck_panel_with_nothing_to_research Enter @deck_panel_with_nothing_to_research_after_enter",
     runResearchStation, finishEverything},
    {"one researcher and one item left",
     "@deck_panel_one_researcher_one_item Enter @assignments_one_item_left", runResearchStation,
     oneResearcherOneItem},
    {"the panel with neither", "@deck_panel_with_neither", runResearchStation, neither},
    {"shares kept at 0, given, moved and freed, an item done, and back on the deck",
     "Enter Left @assignments_first_frame Right Right Right Right Right Right Right Right Right "
     "Right "
     "@assignments_a1_half_share Right Right Right Right Right Right Right Right Right Right Right "
     "@assignments_a1_whole_share Down Right @assignments_b1_none_left_to_share Up Left Down "
     "Right @assignments_b1_five_percent Enter @assignments_b1_done_b2_b6_open Right "
     "@assignments_b2_takes_the_freed_share Esc @deck_assignments_lit_after_assignments",
     runResearchStation},
    {"sixteen open, the last scrolled into view",
     "Down Down Down Down Down Down Down Down Down Down Down Down Down Down "
     "@assignments_fifteenth_of_sixteen Down @assignments_scrolled_to_the_sixteenth PgUp "
     "@assignments_page_up_from_the_sixteenth",
     researchAssignments,
     [] {
       for (const char* code :
            {"B1", "B2", "B3", "B4", "B7", "D1", "D2", "D6", "D7", "D8", "D9", "F1"})
         finish(*theTechTree().find(code));
       theTechTree().researchableItems().back()->changePercentOfCrew(10);
     }},
    {"nothing left to research", "@assignments_empty Enter Right Left Down @assignments_empty",
     researchAssignments, finishEverything},
    {"the engineering deck, each button lit, the shield on and off",
     "@engineering_assignments_lit Enter @engineering_assignments_lit Down "
     "@engineering_completed_lit Enter @engineering_completed_lit Down @engineering_scruggs_lit "
     "Enter @engineering_scruggs_lit Down @engineering_shields_off_lit Enter "
     "@engineering_shields_on Enter @engineering_shields_off_again Enter Down "
     "@engineering_return_lit_shields_on Down @engineering_assignments_lit_shields_on",
     runEngineeringDeck},
    {"the shield on with 51 fuel", "Up Up Enter @engineering_shields_on_with_1_fuel_left",
     runEngineeringDeck, [] { theMothership().setFuel(51); }},
    {"the shield on with the last 50 fuel, from the ship map, and a new game",
     "Enter Right Down Right Enter Up Up Enter @engineering_fuel_ending x "
     "@title_after_the_fuel_ending Enter @ship_map_of_the_next_game",
     nullptr, [] { theMothership().setFuel(50); }},
};

TEST(Screens, Research) { playScenes("research", kScenes); }

}  // namespace
