// The game's own work, without a terminal: the screen model and the rules.
//
//   RunDay             one end of a day, start to end, with a new game's
//                      craft, crew and advisors aboard
//   RunBusyDay         one end of a day as busy as a long game makes it: 250
//                      crew aboard, the dock full of craft on every kind of
//                      mission, every sector's bunker built, manned, stocked
//                      and flying craft of its own, some starving, some short
//                      of materials
//   LoadCrewDraw       the Load Cargo And Crew screen drawn in full, with
//                      250 crew on the ship
//   NavigateRedraw     the Navigate Mothership screen drawn in full, over a
//                      planet whose every sub-sector is known
#include <benchmark/benchmark.h>

#include <iterator>

#include "game/console/random.h"
#include "game/console/scripted.h"
#include "game/fleet/bunker.h"
#include "game/fleet/docking_bay.h"
#include "game/messages/message_log.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "game/shell/day.h"
#include "game/shell/mothership.h"
#include "game/shell/starting_contents.h"

namespace {

constexpr int kStartingCrew = 33;

// A new game's ship: the four craft, the start-up crew and the advisors.
void layFullStart() {
  theMothership() = Mothership{};
  layStartingContents();
  CrewList& crew = theMothership().crew();
  while (crew.getCount() < kStartingCrew) crew.add(kRacePovolnian, 0);
}

void RunDay(benchmark::State& state) {
  scripted::reset();
  layFullStart();
  theMothership().setDestination(12);
  for (auto _ : state) {
    theMothership().setFood(1000000);  // no famine screen to wait on
    theMothership().setFuel(1000000);
    runDay();
    theMessageLog().clear();
  }
}

// Crew for a craft: a pilot and a gunner who hit hard, then Povolnians.
void man(Aircraft& craft) {
  craft.getCrew().add(kRaceMududu, 0);
  while (craft.getCrew().add(kRacePovolnian, 1)) {
  }
}

// A craft of `type` on `mission` at `location`, aimed at `destination`.
void fly(AircraftList& list, std::int32_t type, std::int32_t location, std::int32_t mission,
         std::int32_t destination, std::int32_t roomLeft) {
  if (!list.add(type, roomLeft, location)) return;
  Aircraft& craft = list.at(list.count() - 1);
  man(craft);
  craft.setMission(mission);
  craft.setDestination(destination);
}

// The heaviest day a long game reaches, laid afresh for every day timed.
void layBusyWorld() {
  scripted::reset();
  theMothership() = Mothership{};
  thePlanet() = Planet{};
  globals() = GlobalValues{};
  theMessageLog().clear();
  seedRandom(1);
  Mothership& ship = theMothership();
  while (ship.crew().add(kRacePovolnian, 0)) {
  }
  ship.setFood(1000000);
  ship.setFuel(1000000);
  ship.setDestination(12);
  // The dock full, by turns a scout, a cow and a human abductor, a fighter
  // raid, a bomber raid and a barge on its way to a bunker.
  const struct {
    std::int32_t type, mission;
  } kJobs[] = {{kSaucerTransport, kMissionScouting},    {kSaucerTransport, kMissionAbductingCows},
               {kSaucerTransport, kMissionAbductingHumans}, {kStealthFighter, kMissionAttacking},
               {kHulkBomber, kMissionBombing},           {kCargoBarge, kMissionTraveling}};
  for (int i = 0;; ++i) {
    const auto& job = kJobs[i % std::size(kJobs)];
    const std::int32_t before = ship.aircraft().count();
    fly(ship.aircraft(), job.type, 0, job.mission, 1 + i % kSectorCount, ship.dockRoomLeft());
    if (ship.aircraft().count() == before) break;
  }
  // Every bunker built and manned, with a raid, a scout and a craft on its
  // way to the next bunker; every third one starving, every fourth one
  // with too few materials for its bomber.
  for (int n = 1; n <= kSectorCount; ++n) {
    Bunker& bunker = thePlanet().sector(n).bunker();
    bunker.markBuilt();
    while (bunker.getCrew().add(kRaceMako, 1)) {
    }
    bunker.addFood(n % 3 == 0 ? 0 : 10000);
    bunker.addMaterials(n % 4 == 0 ? 3 : 10000);
    const std::int32_t next = n % kSectorCount + 1;
    fly(bunker.getAircraft(), kHulkBomber, n, kMissionBombing, next, kDockLimit);
    fly(bunker.getAircraft(), kStealthFighter, n, kMissionAttacking, next, kDockLimit);
    fly(bunker.getAircraft(), kSaucerTransport, n, kMissionScouting, n, kDockLimit);
    fly(bunker.getAircraft(), kCargoBarge, n, kMissionTraveling, next, kDockLimit);
  }
}

void RunBusyDay(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    layBusyWorld();
    state.ResumeTiming();
    runDay();
  }
  // What the day did, to show that it was busy.
  state.counters["messages"] = theMessageLog().count();
  state.counters["craft"] = theMothership().aircraft().count();
}

void NavigateRedraw(benchmark::State& state) {
  scripted::reset();
  for (int n = 1; n <= kSectorCount; ++n) {
    for (int k = 0; k < kSubSectorCount; ++k) thePlanet().subSector(n, k).markMapped();
  }
  theMothership().setDestination(17);
  for (auto _ : state) {
    scripted::addKeys("Esc");
    scripted::run(runNavigateScreen);
  }
}

void LoadCrewDraw(benchmark::State& state) {
  scripted::reset();
  layFullStart();
  CrewList& crew = theMothership().crew();
  while (crew.add(kRaceMako, 1)) {
  }
  for (auto _ : state) {
    scripted::addKeys("Esc");
    scripted::run(loadCargoAndCrew);
  }
}

}  // namespace

BENCHMARK(RunDay);
BENCHMARK(RunBusyDay);
BENCHMARK(LoadCrewDraw);
BENCHMARK(NavigateRedraw);
