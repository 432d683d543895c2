// The world's sums, the ship's trips and the Ion Cannon's shot, at their
// edges. The land of every sub-sector, and the people of many, are checked
// on the map and sector view goldens.
#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/planet/ion_cannon.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "tests/planet/war.h"
#include "tests/support/fresh_game.h"
#include "tests/support/log_text.h"

namespace {

TEST(World, TheSumsOverTheMap) {
  startFreshRun();
  double structures = 0;
  for (int n = 1; n <= kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) structures += thePlanet().subSector(n, k).structures();
  }
  EXPECT_EQ(structures, 199898785);
  EXPECT_EQ(thePlanet().enemyTotal(), 286591127);
}

// One day of the ship: the shield's 200 first, then hovering or the trip's
// step; a charge larger than the tank leaves 0. And a trip's figures.
TEST(Navigation, ADaysMoveAndItsFuelAndTheTripFigures) {
  const int days[][6] = {  // shield on, at, to, fuel; where the day ends, fuel left
      {0, 0, 0, 150000, 0, 150000}, {1, 0, 0, 150000, 0, 149800}, {0, 5, 5, 150000, 5, 149900},
      {1, 5, 5, 301, 5, 1},         {1, 5, 5, 300, 5, 0},         {0, 0, 7, 10001, 7, 1},
      {0, 0, 7, 10000, 7, 0},       {0, 7, 0, 9999, 0, 0},        {0, 1, 24, 1001, 8, 1},
      {0, 22, 24, 1000, 23, 0},     {0, 6, 1, 150000, 5, 149000}, {0, 19, 6, 150000, 14, 149000},
      {0, 24, 4, 150000, 17, 149000}};
  for (const auto& [shields, at, to, fuel, arrives, left] : days) {
    startFreshRun(), hoverOver(at);
    theMothership().setDestination(to), theMothership().setFuel(fuel);
    if (shields) theMothership().toggleShields();
    theMothership().moveOneDay();
    EXPECT_EQ(theMothership().currentSector(), arrives) << at << " to " << to;
    EXPECT_EQ(theMothership().fuel(), left) << at << " to " << to << " with " << fuel;
  }
  const int trips[][4] = {{1, 24, 5, 5000}, {1, 19, 3, 3000}, {24, 18, 1, 1000}, {0, 5, 1, 10000}};
  for (const auto& [from, to, eta, fuel] : trips) {
    EXPECT_EQ(travelDays(from, to), eta) << from << " to " << to;
    EXPECT_EQ(travelFuel(from, to), fuel) << from << " to " << to;
  }
}

// The news tells what stood there before the shot, which kills the people
// and troops, leaves fighters and buildings, and leaves Rubble, seen.
TEST(IonCannon, TheNewsOfEachLandAndWhatTheShotLeaves) {
  const std::string farm = "A Farming Region in Sector J has been eradicated by your \"Slash and Burn\" Ion Cannon techniques.";
  const std::string again = "A SubSector that has already been destroyed by your hands in Sector J has been given a lethal dose of destruction from the Ion Cannon.";
  const std::pair<int, std::string> shots[] = {  // land (-1: a City not yet seen), news
      {kFarmLand, farm}, {kFarmLandStrewn, farm}, {kRubble, again}, {kRuins, again},
      {kCity, "A City in Sector J has been decimated by your glorious Ion Cannon."},
      {kMilitaryBase, "A Military Base in Sector J is now a distant memory, all thanks to the Ion Cannon."},
      {kMountains, "A Mountain Region in Sector J has been flattened by your destructive Ion Cannon."},
      {kDesert, "A Desert Region in Sector J has been destroyed by your accurate Ion Cannon skills."},
      {kNuclearWasteland, "The Radioactive Elements in a Nuclear Wasteland in Sector J have been obliterated by the environmentally friendly Ion Cannon."},
      {-1, "A SubSector of an unknown land type in Sector J has been leveled by your Ion Cannon. Whatever was there before isn't there now."},
  };
  for (const auto& [land, news] : shots) {
    startFreshRun(), hoverOver(14);
    SubSector& target = thePlanet().subSector(14, 12);
    target.setLandType(land < 0 ? kCity : land), target.addFighters(30);
    if (land >= 0) target.markMapped();
    scripted::addKeys("x");
    scripted::run([] { fireIonCannon(12); });
    EXPECT_EQ(logLines(), "4 " + news + "\n");
    EXPECT_EQ(target.population() + target.troops(), 0);
    EXPECT_EQ(target.fighters() + target.structures(), 30 + 27);
    EXPECT_TRUE(target.landType() == kRubble && target.mapped());
  }
}

}  // namespace
