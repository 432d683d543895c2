// The game's own work, without a terminal: the screen model and the rules.
//
//   RunDay             one end of a day, start to end
//   NavigateRedraw     the Navigate Mothership screen drawn in full, over a
//                      planet whose every sub-sector is known
#include <benchmark/benchmark.h>

#include "game/console/scripted.h"
#include "game/messages/message_log.h"
#include "game/planet/navigation.h"
#include "game/planet/planet.h"
#include "game/shell/day.h"
#include "game/shell/mothership.h"

namespace {

void RunDay(benchmark::State& state) {
  scripted::reset();
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

}  // namespace

BENCHMARK(RunDay);
BENCHMARK(NavigateRedraw);
