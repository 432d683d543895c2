#include "game/fleet/bunker_days.h"

#include <algorithm>
#include <string>

#include "game/console/random.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"

namespace {
// Below this many units of food a head, the bunker asks for more.
constexpr int kBunkerFoodMargin = 4;
}  // namespace

void runBunkerMeals() {
  for (int n = 1; n <= kSectorCount; ++n) {
    Sector& sector = thePlanet().sector(n);
    Bunker& bunker = sector.bunker();
    CrewList& crew = bunker.getCrew();
    const std::int32_t mouths = crew.getCount();
    bunker.addFood(-std::min(std::max(bunker.getFood(), 0), mouths));
    const std::string letter(1, sector.letter());
    if (bunker.getFood() <= 0 && mouths > 0) {
      CrewMember& eaten = crew.at(gameRand() % mouths);
      theMessageLog().post("Bunker " + letter +
                               " is out of food. The crew there turned to canibalism and ate " +
                               std::string(eaten.name()) + "!",
                           5);
      crew.remove(eaten);
    } else if (bunker.getFood() < kBunkerFoodMargin * mouths) {
      theMessageLog().post(
          "Bunker " + letter +
              " is low on food. Get them some before they start eating each other!",
          5);
    }
  }
}

void runBunkerConstruction() {
  for (int n = 1; n <= kSectorCount; ++n) {
    Sector& sector = thePlanet().sector(n);
    Bunker& bunker = sector.bunker();
    if (bunker.getCrew().getCount() == 0 || bunker.isBuilt()) continue;
    const std::int32_t days = bunker.buildOneDay();
    const std::string letter(1, sector.letter());
    if (bunker.isBuilt()) {
      theMessageLog().post("Bunker sucessfully built in sector " + letter, 4);
    } else if (days < 1) {
      theMessageLog().post("Bunker in sector " + letter + " will be ready for use tomorrow!", 3);
    } else {
      theMessageLog().post(
          "Bunker in sector " + letter + " has " + std::to_string(days) + " days until it's built.",
          2);
    }
  }
}
