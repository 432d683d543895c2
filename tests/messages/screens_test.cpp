// The Library deck and the morning report, whole, against their goldens in
// tests/golden/messages; and what the Library's hidden keys bring aboard.
#include <string>
#include <tuple>

#include "game/console/scripted.h"
#include "game/messages/library_deck.h"
#include "game/messages/message_log.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"
#include "tests/support/golden.h"

namespace {

void post(int count) {
  for (int i = 1; i <= count; ++i) theMessageLog().post("News " + std::to_string(i) + ".", 3);
}

const Scene kScenes[] = {
    // Each button lit, from both sides; Enter on the two empty buttons.
    {"the Library's buttons", R"(@library_interglactanet Enter @library_interglactanet
      Down @library_end_turn Down @library_personel_bios Down @library_summon
      Enter @library_summon Down @library_return Down @library_interglactanet
      Up @library_return Up @library_summon)",
     runLibraryDeck},
    {"No to the day's question", "Down Enter @library_end_day_question Enter @library_end_turn",
     runLibraryDeck},
    {"the personnel picture", "Down Down Enter @library_personnel x @library_personel_bios",
     runLibraryDeck},
    // The hidden keys: the stores show at once, the rest not at all.
    {"the hidden keys", "Down 5 6 7 8 k v @library_end_turn d h h r r r @library_after_d_h_h_r_r_r",
     runLibraryDeck},
    // The morning report: most urgent first, each priority in its colour,
    // long news wrapped, pages of six and their arrows.
    {"one message", "@report_one_message Space @report_one_message Esc", runMorningReport,
     [] { theMessageLog().post("The Super Freighter will arrive in orbit tomorrow!", 3); }},
    {"six messages: one page", "@report_six_messages Space @report_six_messages Esc",
     runMorningReport, [] { post(6); }},
    {"nine messages of every priority",
     R"(@report_page_1_of_2 Backspace Left @report_page_1_of_2 Space @report_page_2_of_2
      Space Right @report_page_2_of_2 Release x Up @report_page_2_of_2
      Left @report_page_1_after_page_2 Right @report_page_2_of_2
      Backspace @report_page_1_after_page_2 Esc)",
     runMorningReport,
     [] {
       MessageLog& log = theMessageLog();
       log.post("Bunker in sector D will be ready for use tomorrow!", 3);
       log.post("Nothing new from the planet below, "
                "sir: no news of the fleet, none of the bunkers, none of the enemy; the log "
                "keeps 150 characters of a message and drops the rest, like these words.",
                0);
       log.post("We dont even have enough fuel to get into orbit! Perhaps we should use an "
                "alternative energy source... I'll talk to Hyde.",
                6);
       log.post("Saucer located in sector B has mapped a new sub-sector of farm and lakes", 1);
       log.post("News of a priority the game never uses.", 7);
       log.post("The Super Freighter has arrived in orbit!", 5);
       log.post("Bunker in sector C has 4 days until it's built.", 2);
       log.post("Bunker F reports that its crew have built a well, a farm and a new lab.", 4);
       log.post("Saucer located in sector C found a Fleepion. It has been added to the local "
                "crew, who say it is the second one this week.", 3);
     }},
    {"twelve messages: two full pages", "Space Space @report_twelve_messages_page_2 Esc",
     runMorningReport, [] { post(12); }},
};

TEST(Screens, Messages) { playScenes("messages", kScenes); }

// The hidden keys: what each brings aboard. The stores they fill show in a
// golden; what does not fit is the lists' own rule.
TEST(LibraryHiddenKeys, EachKeyBringsItsThingAboard) {
  startFreshRun();
  Mothership& ship = theMothership();
  ship.aircraft().clear();
  ship.crew().clear();
  scripted::addKeys("5 6 7 8 k v");
  scripted::run(runLibraryDeck);
  std::string types;
  for (int i = 0; i < ship.aircraft().count(); ++i) types += '0' + ship.aircraft().at(i).getType();
  EXPECT_EQ(types, "0312");
  EXPECT_EQ(std::tuple(ship.readyCapsules(), ship.crew().getCount(), ship.crew().at(0).getRace(),
                       ship.crew().at(0).getSex()),
            std::tuple(3, 1, kRacePovolnian, 0));

}

}  // namespace
