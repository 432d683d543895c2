#include "game/crew/coffee_with_emerson.h"

#include <cassert>

#include "game/art/living_quarters.h"
#include "game/console/console.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kStoryColour = 15;
constexpr int kSaysColour = 14;
constexpr int kPictureColumn = 40;
constexpr int kStoryWidth = 38;
constexpr int kSaysWidth = 78;
constexpr int kPartySchedule = 0;

constexpr const char* kLounge =
    "You walk into the main lounge, located in the crew's living quarters. At a small table in "
    "the corner of the room you see Emerson inhaling the aroma of an exotic coffee blend from "
    "the planet Aib'muloc. You smile as you see a grin come to Emerson's face as he slowly sips "
    "his fresh brew. He notices you and quickly gestures for you to come over and have a seat. "
    "The two of you gab for a while over coffee and talk about old times in the IID War. As "
    "Emerson finishes off the last drop in his mug he then turns to you with a serious look on "
    "his face...";

constexpr const char* kParty =
    "Loud music blares across the lounge as you see your crew having a party. The running lights "
    "across the walls that are usually used for notifying the crew of the alert status of the "
    "ship are flashing a constant pattern of Reds, Yellows and Greens in sync with the music. "
    "Scruggs apparently has turned this place into a make-shift discotheque of rhythmically "
    "stimulating flashing lights. Bodies are dancing and moving across the floor and the place "
    "feels more alive than ever. You see Emerson with his coffee mug, dancing on top of the "
    "table in the corner. You work your way through the sea of party goers and finally make it "
    "up to Emerson...";

constexpr const char* kPartyLine =
    "Emerson says, \"Word on the street is....WOO-HOOO!! PAR-TAY.....Oh yeah!\" While dancing "
    "like crazy on top of the table, Emerson spills his coffee. \"Huh? Oh crud!!\" exclaims "
    "Emerson, \"Ah well... PARTY! WOOOOOOOO!\" ";

// By tens of morale: 1 to 10 first, 91 to 100 last.
constexpr const char* kMoraleLines[10] = {
    "Emerson says, \"Word on the street is the crew members are talking behind your back.  I'd "
    "be cautious if I were you.  I would reconsider the way you do things before it's too "
    "late.\" ",
    "Emerson says, \"Word on the street is everyone is down and depressed.  You might want to "
    "give people leave-time before things get really bad.\" ",
    "Emerson says, \"Word on the street is everyone is really stressed out.  I would consider "
    "giving some vacation time to relieve the anxiety.\" ",
    "Emerson says, \"Word on the street is some of the crew are not content with their work, and "
    "there has been talk of improvement.  You should throw in some nap time!\" ",
    "Emerson says, \"Word on the street is everything seems to be running fine and normal.  "
    "There's room for improvement, but things could be alot worse.\" ",
    "Emerson says, \"Word on the street is everyone is content with their work, and all projects "
    "seem to be running smoothly.\" ",
    "Emerson says, \"Word on the street is the crew is enthused and lively, but there has been "
    "talk about including a mini-bar in the work rooms though.\" Emerson then winks at you and "
    "smiles.",
    "Emerson says, \"Word on the street is life is wonderful and everyone loves their hours.  The "
    "free doughnuts in the morning are really making people chipper.\" ",
    "Emerson says, \"Word on the street is the crew is really excited and motivated about the "
    "campaign. Now might be a perfect time to get some major projects done.\" ",
    "Emerson says, \"Word on the street is the morale is at an all-time high. You've done a "
    "wonderful job keeping everyone happy.  Which brings up the question are we actually doing "
    "ANY work??\" ",
};

}  // namespace

std::string_view emersonMoraleLine(int morale) {
  if (morale <= 0) return "";
  const int tens = morale > 100 ? 9 : (morale - 1) / 10;
  assert(tens >= 0 && tens < 10);
  return kMoraleLines[tens];
}

void coffeeWithEmerson() {
  const Mothership& ship = theMothership();
  if (ship.workSchedule() == kPartySchedule) {
    drawPicture(kEmersonPicture, kPictureColumn, 1);
    Console::putWrapped(kParty, 1, 1, kStoryWidth, kStoryColour);
    Console::putWrapped(kPartyLine, 1, 20, kSaysWidth, kSaysColour);
  } else {
    drawPicture(kEmersonPicture, kPictureColumn, 0);
    Console::putWrapped(kLounge, 1, 1, kStoryWidth, kStoryColour);
    Console::putWrapped(emersonMoraleLine(ship.moraleWhole()), 1, 19, kSaysWidth, kSaysColour);
  }
  Console::putText("<<PRESS ANY KEY TO CONTINUE>>", 26, 24, kStoryColour);
  Console::waitAnyKey();
}
