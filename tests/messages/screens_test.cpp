// The Library deck and the morning report, whole, against their goldens in
// tests/golden/messages.
#include <string>

#include "game/messages/library_deck.h"
#include "game/messages/message_log.h"
#include "tests/support/golden.h"

namespace {

void post(int count) {
  for (int i = 1; i <= count; ++i) {
    theMessageLog().post("News number " + std::to_string(i) + " of the day.", 3);
  }
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
      Space Right @report_page_2_of_2 Release x Up @report_page_2_of_2 Left @report_page_1_of_2
      Right @report_page_2_of_2 Backspace @report_page_1_of_2 Esc)",
     runMorningReport,
     [] {
       MessageLog& log = theMessageLog();
       log.post("Bunker in sector D will be ready for use tomorrow!", 3);
       log.post("Nothing new from the planet below.", 0);
       log.post("We dont even have enough fuel to get into orbit! Perhaps we should use an "
                "alternative energy source... I'll talk to Hyde.",
                6);
       log.post("Saucer located in sector B has mapped a new sub-sector of farm and lakes", 1);
       log.post("News of a priority the game never uses.", 7);
       log.post("The Super Freighter has arrived in orbit!", 5);
       log.post("Bunker in sector C has 4 days until it's built.", 2);
       log.post("Bunker F reports that its crew have built a well, a farm and a new lab.", 4);
       log.post("The Super Freighter will arrive in orbit in 3 days!", 3);
     }},
    {"twelve messages: two full pages", "Space Space @report_twelve_messages_page_2 Esc",
     runMorningReport, [] { post(12); }},
};

TEST(Screens, Messages) { playScenes("messages", kScenes); }

}  // namespace
