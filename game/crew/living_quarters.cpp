#include "game/crew/living_quarters.h"

#include "game/console/console.h"
#include "game/console/widgets.h"
#include "game/crew/assign_crew_jobs.h"
#include "game/crew/coffee_with_emerson.h"
#include "game/crew/work_schedules.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kAssignButton = 1;
constexpr int kScheduleButton = 3;
constexpr int kCoffeeButton = 4;

MenuResult assignJobs() {
  if (theMothership().crew().getCount() == 0) {
    Console::putText("There are no crewmembers!", 4, 12, 15);
    return MenuResult::Stay;
  }
  assignCrewJobs();
  return MenuResult::Redraw;
}

MenuResult haveCoffee() {
  Console::setColour(15);
  Console::clearScreen();
  coffeeWithEmerson();
  Console::setColour(15);
  Console::clearScreen();
  return MenuResult::Redraw;
}

}  // namespace

void runLivingQuarters() {
  DeckMenu menu{{"  Assign Crew Jobs         ", "  Auto Assign/Sort Crew    ",
                 "  Change Work Schedules    ", "  Have Coffee with Emerson   ", kReturnLabel}};
  menu.onEnter = [](DeckMenu&, int button) {
    switch (button) {
      case kAssignButton: return assignJobs();
      case kScheduleButton:
        chooseWorkSchedule(theMothership().workSchedule() + 1);
        return MenuResult::Redraw;
      case kCoffeeButton: return haveCoffee();
      default: return MenuResult::Stay;  // Auto Assign/Sort Crew does nothing
    }
  };
  showMenu(menu);
}
