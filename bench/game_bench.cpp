// The game's own work, without a terminal: the screen model and the rules.
//
//   RunDay             one end of a day, start to end, with a new game's
//                      craft, crew and advisors aboard
//   LoadCrewDraw       the Load Cargo And Crew screen drawn in full, with
//                      250 crew on the ship
//   NavigateRedraw     the Navigate Mothership screen drawn in full, over a
//                      planet whose every sub-sector is known
#include <benchmark/benchmark.h>

#include "game/console/scripted.h"
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
BENCHMARK(LoadCrewDraw);
BENCHMARK(NavigateRedraw);
