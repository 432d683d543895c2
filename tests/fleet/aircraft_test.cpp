#include "game/fleet/aircraft.h"

#include <gtest/gtest.h>

#include "game/shell/mothership.h"

namespace {

TEST(AircraftList, ACraftThatExactlyFitsTheDockIsTaken) {
  AircraftList list;
  EXPECT_FALSE(list.add(kHulkBomber, 99999, 0));
  EXPECT_EQ(list.count(), 0);
  EXPECT_TRUE(list.add(kHulkBomber, 100000, 0));
  EXPECT_TRUE(list.add(kSaucerTransport, 40000, 0));
  EXPECT_FALSE(list.add(kStealthFighter, 29999, 0));
  EXPECT_TRUE(list.add(99, 0, 0)) << "an unknown type takes no room";
  EXPECT_EQ(list.at(2).getName(), "BAD!");
  EXPECT_EQ(list.at(0).getName(), "Hulk Bomber");
}

TEST(Aircraft, OnlyTheHulkBomberComesWithABomb) {
  for (int type = 0; type < kAircraftTypeCount; ++type) {
    Aircraft craft;
    craft.setUp(type, 7);
    const bool bomber = type == kHulkBomber;
    EXPECT_EQ(craft.getBombs().count(), bomber ? 1 : 0) << type;
    EXPECT_EQ(craft.getCargoUsed(), bomber ? 2000 : 0) << type;
    EXPECT_EQ(craft.getLocation(), 7);
    EXPECT_EQ(craft.getDestination(), 7);
    EXPECT_EQ(craft.getCrew().capacity(), craft.getCrewCapacity());
  }
}

TEST(AircraftList, CopiesAreIndependentAndRemoveTakesTheCraftGiven) {
  AircraftList list;
  list.add(kSaucerTransport, 6000000, 0);
  list.add(kSaucerTransport, 6000000, 0);
  list.at(1).getCrew().add(kRaceMako, 0);
  AircraftList copy = list;
  copy.at(1).getCrew().add(kRaceMako, 0);
  copy.at(1).getBombs().add(kBombFlack, 2000);
  EXPECT_EQ(list.at(1).getCrew().getCount(), 1);
  EXPECT_EQ(list.at(1).getBombs().count(), 0);

  EXPECT_TRUE(list.remove(list.at(1)));
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.at(0).getCrew().getCount(), 0) << "the second saucer went, not the first";

  list.addFront(copy.at(1));
  EXPECT_EQ(list.at(0).getCrew().getCount(), 2) << "an arrival goes to the front";
}

TEST(Mothership, HoldAndDockCountWhatTheyCarry) {
  Mothership ship;
  const int stores = 1000 + 150000 + 10000;
  EXPECT_EQ(ship.cargoUsed(), stores);
  ship.bombs().add(kBombPlasmaFusion, ship.cargoRoomLeft());
  ship.eggs().add(kRacePovolnian, ship.cargoRoomLeft());
  EXPECT_EQ(ship.cargoUsed(), stores + 2000 + 20);

  EXPECT_EQ(ship.dockSpaceUsed(), 80000);
  ship.aircraft().add(kCargoBarge, ship.dockRoomLeft(), 0);
  EXPECT_EQ(ship.dockSpaceUsed(), 180000);
}

TEST(BombsAndEggs, AskForRoomAtTheirWeight) {
  BombList bombs;
  EXPECT_FALSE(bombs.add(kBombPlasmaFusion, 1999));
  EXPECT_TRUE(bombs.add(kBombPlasmaFusion, 2000));
  EggList eggs;
  EXPECT_FALSE(eggs.add(kRacePovolnian, 19));
  EXPECT_TRUE(eggs.add(kRacePovolnian, 20));
  EXPECT_EQ(eggs.at(0).name.view(), "Povolnian Eggs");
  EXPECT_TRUE(eggs.add(kRaceOblivion, 20));
  EXPECT_EQ(eggs.at(1).name.view(), "Oblivion Eggs");
  EXPECT_EQ(eggLabel(kRaceOblivion), "Oblivio Eggs") << "the list shows the label";
}

}  // namespace
