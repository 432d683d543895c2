// The Library's hidden keys: what each brings aboard, and an add that does
// not fit dropped without a word. What they show is in the goldens.
#include "game/messages/library_deck.h"

#include <gtest/gtest.h>

#include <string>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/shell/mothership.h"
#include "tests/support/fresh_game.h"

namespace {

std::string fleetTypes() {
  std::string types;
  const AircraftList& fleet = theMothership().aircraft();
  for (int i = 0; i < fleet.count(); ++i) types += std::to_string(fleet.at(i).getType());
  return types;
}

void press(const std::string& keys) {
  scripted::addKeys(keys);
  scripted::run(runLibraryDeck);
}

TEST(LibraryHiddenKeys, EachKeyBringsItsThingAboard) {
  startFreshRun();
  Mothership& ship = theMothership();
  ship.aircraft().clear();
  ship.crew().clear();
  press("5 6 7 8 k v d h r");
  EXPECT_EQ(fleetTypes(), "0312");
  EXPECT_EQ(ship.readyCapsules(), 3);
  ASSERT_EQ(ship.crew().getCount(), 1);
  EXPECT_EQ(ship.crew().at(0).getRace() * 10 + ship.crew().at(0).getSex(), 10);
  EXPECT_EQ(ship.food(), 1400u);
  EXPECT_EQ(ship.fuel(), 150400);
  EXPECT_EQ(ship.materials(), 10400);
}

TEST(LibraryHiddenKeys, WhatDoesNotFitIsDropped) {
  startFreshRun();
  Mothership& ship = theMothership();
  ship.aircraft().clear();
  ship.addCapsules(-ship.readyCapsules());
  // 59 barges, a saucer and a fighter leave room for one fighter exactly.
  for (int i = 0; i < 59; ++i) ship.aircraft().add(kCargoBarge, ship.dockRoomLeft(), 0);
  ship.aircraft().add(kSaucerTransport, ship.dockRoomLeft(), 0);
  ship.aircraft().add(kStealthFighter, ship.dockRoomLeft(), 0);
  press("5 6 8 7 7 5");
  EXPECT_EQ(ship.aircraft().count(), 62);
  EXPECT_EQ(ship.dockRoomLeft(), 0);
  ship.crew().clear();
  for (int i = 0; i < 249; ++i) ship.crew().add(kRaceMako, 1);
  press("v v");
  EXPECT_EQ(ship.crew().getCount(), 250);
  EXPECT_EQ(ship.crew().at(249).getRace(), kRacePovolnian);
}

TEST(MessageLog, KeepsAText150CharactersLong) {
  startFreshRun();
  theMessageLog().post(std::string(200, 'x'), 1);
  EXPECT_EQ(theMessageLog().at(0)->text.view(), std::string(150, 'x'));
}

}  // namespace
