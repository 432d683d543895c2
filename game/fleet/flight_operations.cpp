#include "game/fleet/flight_operations.h"

#include "game/console/random.h"
#include "game/fleet/locations.h"
#include "game/messages/message_log.h"
#include "game/planet/planet.h"
#include "game/shell/mothership.h"

namespace {

constexpr int kShipFoodPerHerd = 30;
constexpr int kBunkerFoodPerHerd = 15;

void scout(Aircraft& saucer, const std::string& place) {
  Sector& target = thePlanet().sector(saucer.getDestination());
  int k = 0;
  while (k < kSubSectorCount - 1 && target.subSector(k).mapped()) ++k;
  target.subSector(k).markMapped();
  if (k == kSubSectorCount - 1) {
    theMessageLog().post("Saucer located in" + place +
                             " has successfully mapped all sub-sectors in its destination sector" +
                             ". It is now inactive.",
                         4);
    saucer.setMission(kMissionInactive);
  } else {
    theMessageLog().post("Saucer located in " + place + " has successfully mapped a new sub-sector",
                         2);
  }
}

// The herd feeds the place where the saucer stands.
void abductCows(std::int32_t location, const std::string& place) {
  if (location == kMothershipLocation) {
    theMothership().addFood(kShipFoodPerHerd);
  } else {
    thePlanet().sector(location).bunker().addFood(kBunkerFoodPerHerd);
  }
  theMessageLog().post("Saucer located in " + place +
                           " found a herd Large edible lifeforms. They has been added to the local "
                           "food supply.",
                       1);
}

// The pilot's skill decides whether a Fleepion is caught; a saucer with
// no one aboard to fly it catches nothing.
void abductHumans(Aircraft& saucer, std::int32_t location, const std::string& place) {
  if (saucer.getCrew().getCount() == 0) return;
  const CrewMember& pilot = saucer.getCrew().at(0);
  const int chance = pilot.getPerformance() / 10 * pilot.getNavigation();
  if (gameRand() % 100 > chance) return;
  const std::uint8_t sex = gameRand() % 2 == 0 ? 1 : 0;
  crewAt(location).add(kRaceHuman, sex);
  theMessageLog().post(
      "Saucer located in " + place + " found a Fleepion. It has been added to the local crew.", 3);
}

}  // namespace

void moveCraft() {
  for (std::int32_t location = 0; location <= kLastLocation; ++location) {
    AircraftList& list = aircraftAt(location);
    std::int32_t i = 0;
    while (i < list.count()) {
      Aircraft& craft = list.at(i);
      const std::int32_t destination = craft.getDestination();
      if (craft.getMission() != kMissionTraveling || destination == craft.getLocation()) {
        ++i;
        continue;
      }
      AircraftList& arrivals = aircraftAt(destination);
      arrivals.addFront(craft);
      Aircraft& arrived = arrivals.at(0);
      arrived.setLocation(destination);
      arrived.setMission(kMissionInactive);
      arrived.getCrew().transferTo(crewAt(destination));
      // The next craft now stands at this index.
      list.remove(craft);
    }
  }
}

void runSaucerMissions() {
  for (std::int32_t location = 0; location <= kLastLocation; ++location) {
    AircraftList& list = aircraftAt(location);
    const std::string place = placeName(location);
    for (std::int32_t i = 0; i < list.count(); ++i) {
      Aircraft& craft = list.at(i);
      if (!isSector(craft.getDestination())) continue;
      switch (craft.getMission()) {
        case kMissionScouting: scout(craft, place); break;
        case kMissionAbductingCows: abductCows(location, place); break;
        case kMissionAbductingHumans: abductHumans(craft, location, place); break;
        default: break;
      }
    }
  }
}
