// CARGO SPACE and its four screens, against their goldens in
// tests/golden/cargo. The scenes run in a folder of their own, where
// artifacts.txt is what each scene writes.
#include <cstdio>
#include <fstream>

#include "game/cargo/cargo_deck.h"
#include "game/shell/mothership.h"
#include "tests/cargo/working_folder.h"
#include "tests/support/golden.h"

namespace {

Mothership& ship() { return theMothership(); }

// Each scene starts with the hive list at its top and artifacts.txt holding
// `file`, or without the file.
void fresh(const char* file = nullptr) {
  std::remove("artifacts.txt");
  if (file != nullptr) std::ofstream("artifacts.txt", std::ios::binary) << file;
  hivesListState() = {};
}

#define TIMES4(k) k " " k " " k " " k " "
#define TIMES16(k) TIMES4(k) TIMES4(k) TIMES4(k) TIMES4(k)

const Scene kScenes[] = {
    {"the buttons lit in turn, round both ends",
     "@deck Down @deck_bombs_lit Down @deck_hives_lit Down @deck_incinerator_lit Down "
     "@deck_return_lit Down @deck Up @deck_return_lit Up @deck_incinerator_lit",
     runCargoDeck, [] { fresh(); }},
    {"from the ship map and back by Escape", "Enter Right Right Enter @deck Esc @ship_map_back", nullptr,
     [] { fresh(); }},
    {"back by the last button", "Enter Right Right Enter Up Enter @ship_map_back", nullptr, [] { fresh(); }},
    {"artifacts without artifacts.txt: blank rows",
     "Enter @artifacts_without_the_file Esc @deck_back_from_artifacts", runCargoDeck,
     [] { fresh(); }},
    {"five more artifacts at each opening, named by the file's first line",
     "Enter @artifacts_five Enter @deck_back_from_artifacts Enter @artifacts_ten Esc Enter "
     "@artifacts_fifteen PgDn @artifacts_fifteen_paged_down Esc",
     runCargoDeck, [] { fresh("Golden Idol\nSilver Idol\n"); }},
    {"an artifact name cut at 19 characters", "Enter @artifacts_long_name Esc", runCargoDeck,
     [] { fresh("Thirty Characters Long Name!!!\r\n"); }},
    {"two bombs more at each opening", "Down Enter @bombs_two Esc Enter @bombs_four Esc",
     runCargoDeck, [] { fresh(); }},
    {"a full hold takes no bomb: an empty list, left by Enter",
     "Down Enter @bombs_none Enter @deck_back_from_bombs", runCargoDeck, [] {
       fresh();  // a full hold: 1999 left
       ship().setFood(ship().food() + static_cast<std::uint32_t>(ship().cargoRoomLeft() - 1999));
     }},
    {"bombs past 200 rows, down to the last",
     "Down Enter " TIMES16("PgDn") TIMES4("Down") TIMES4("Down") "Down Down Down @bombs_last_of_202",
     runCargoDeck, [] {
       fresh();
       for (int i = 0; i < 200; ++i) ship().bombs().add(3, 1 << 30);
     }},
    {"no hives yet", "Up Up Up Enter @hives_none Esc @deck_back_from_hives", runCargoDeck,
     [] { fresh(); }},
    {"the hives open where they were left; past 200 rows",
     "Down Down Enter " TIMES4("Down") "Down Down Down @hives_row_seven Esc Enter @hives_row_seven "
     TIMES16("Down") "@hives_scrolled " TIMES4("PgDn") TIMES4("PgDn") "PgDn PgDn @hives_last_of_205",
     runCargoDeck, [] {
       fresh();
       for (int i = 0; i < 205; ++i) ship().eggs().add(1, 20);
     }},
    {"an egg at each visit to the incinerator",
     "Up Up Enter @incinerator Esc @deck_back_from_incinerator Enter Esc Up Enter @hives_two_eggs",
     runCargoDeck, [] { fresh(); }},
    {"an item into the incinerator and burnt, Yes",
     "Up Up Enter Enter @incinerator_egg_marked Right @incinerator_burn_list_active Left "
     "@incinerator_egg_marked Esc @incinerator_question Right Enter @deck_back_from_incinerator "
     "Enter @incinerator_second_visit Esc",
     runCargoDeck, [] { fresh(); }},
    {"burnt, No", "Up Up Enter Enter Esc @incinerator_question n @deck_back_from_incinerator",
     runCargoDeck, [] { fresh(); }},
    {"every item across, a list left and found as it was, and back",
     "Up Up Enter @incinerator_three_items Down Down Enter @incinerator_last_row_moved Enter "
     "Enter @incinerator_all_burning Down Down Enter Left Right @incinerator_burn_list_kept_its_row "
     "Enter Enter @incinerator_all_back Esc",
     runCargoDeck, [] {
       fresh("Golden Idol\n");
       ship().crew().clear();
       ship().addArtifacts(2);
     }},
    {"one item only", "Up Up Enter @incinerator_one_item Enter @incinerator_one_item_burning Esc n",
     runCargoDeck, [] {
       fresh();
       ship().crew().clear();
     }},
    {"nothing to sort: the visit ends at once", "Up Up Enter @deck_back_from_nothing_to_burn",
     runCargoDeck, [] {
       fresh();  // no crew, and no room for an egg
       ship().crew().clear();
       ship().setFood(ship().food() + static_cast<std::uint32_t>(ship().cargoRoomLeft() - 19));
     }},
    {"more than 250 items, the last one burnt",
     "Up Up Enter " TIMES16("PgDn") TIMES4("PgDn") TIMES4("Down") TIMES4("Down") TIMES4("Down")
     "Enter @incinerator_past_250_items Esc n",
     runCargoDeck, [] {
       fresh("Idol\n");
       ship().addArtifacts(230);
     }},
};

TEST(Screens, Cargo) {
  WorkingFolder folder;
  playScenes("cargo", kScenes);
}

}  // namespace
