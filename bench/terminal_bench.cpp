// What the game costs in a real terminal: the skarmada binary in a
// pseudo-terminal of 80x25, driven by keys, its output and CPU measured.
//
//   ShipMapIdle     the ship map left alone: CPU, wakes a second and bytes
//                   written
//   FreighterIdle   the Super Freighter's screen left alone, after 30 days
//                   ended from the Library: CPU, wakes a second and bytes
//                   written
//   TitleIdle       the title animation left alone: runner steps per second,
//                   bytes per step, CPU, wakes a second
//
// A wake is a voluntary context switch of the game's process: each time it
// waited (for a key, for time) and the system let it run again.
//   RoomMove        a room move on the ship map: key to the last byte, the
//                   keys 0.1 s apart (the screen still moving) and, with the
//                   argument 1, a second apart (the screen standing still)
//   EscapeKey       Escape leaving a deck: key to the first byte
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

class Game {
 public:
  Game() {
    struct winsize size {};
    size.ws_row = 25;
    size.ws_col = 80;
    pid_ = forkpty(&master_, nullptr, nullptr, &size);
    if (pid_ == 0) {
      setenv("TERM", "xterm-256color", 1);
      setenv("LANG", "C.UTF-8", 1);
      setenv("LC_ALL", "C.UTF-8", 1);
      execl(SKARMADA_BINARY, "skarmada", static_cast<char*>(nullptr));
      _exit(127);
    }
    fcntl(master_, F_SETFL, O_NONBLOCK);
  }
  ~Game() {
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
    close(master_);
  }

  void send(const std::string& keys) {
    ssize_t written = write(master_, keys.data(), keys.size());
    (void)written;
  }

  // Reads what the game writes until it has been quiet for `quietMs` (or
  // for at most five seconds); returns the bytes, and when the first and
  // the last of them came.
  std::string settle(int quietMs, Clock::time_point* lastByte = nullptr,
                     Clock::time_point* firstByte = nullptr) {
    std::string out;
    auto start = Clock::now();
    while (secondsSince(start) < 5.0) {
      struct pollfd p {
        master_, POLLIN, 0
      };
      if (poll(&p, 1, quietMs) <= 0) return out;
      char buffer[4096];
      ssize_t n = read(master_, buffer, sizeof buffer);
      if (n <= 0) return out;
      if (out.empty() && firstByte != nullptr) *firstByte = Clock::now();
      out.append(buffer, static_cast<std::size_t>(n));
      if (lastByte != nullptr) *lastByte = Clock::now();
    }
    return out;
  }

  // Everything written over a span of seconds.
  std::string collect(double seconds) {
    std::string out;
    auto start = Clock::now();
    while (secondsSince(start) < seconds) {
      struct pollfd p {
        master_, POLLIN, 0
      };
      if (poll(&p, 1, 50) <= 0) continue;
      char buffer[4096];
      ssize_t n = read(master_, buffer, sizeof buffer);
      if (n > 0) out.append(buffer, static_cast<std::size_t>(n));
    }
    return out;
  }

  // CPU seconds the game has used so far.
  double cpuSeconds() const {
    std::ifstream stat("/proc/" + std::to_string(pid_) + "/stat");
    std::string line;
    std::getline(stat, line);
    std::istringstream fields(line.substr(line.rfind(')') + 2));
    std::string field;
    long ticks = 0;
    for (int i = 3; i <= 15 && fields >> field; ++i) {
      if (i == 14 || i == 15) ticks += std::stol(field);
    }
    return static_cast<double>(ticks) / static_cast<double>(sysconf(_SC_CLK_TCK));
  }

  // How many times the game has waited and been woken so far.
  long wakes() const {
    std::ifstream status("/proc/" + std::to_string(pid_) + "/status");
    std::string line;
    while (std::getline(status, line)) {
      if (line.rfind("voluntary_ctxt_switches:", 0) == 0) return std::stol(line.substr(24));
    }
    return 0;
  }

 private:
  int master_ = -1;
  pid_t pid_ = -1;
};

constexpr char kEnter[] = "\r";
// The game puts the terminal's cursor keys in application mode.
constexpr char kRight[] = "\x1bOC";
constexpr char kLeft[] = "\x1bOD";
constexpr char kDown[] = "\x1bOB";
constexpr char kEscape[] = "\x1b";
constexpr double kIdleSeconds = 10.0;

// The game left alone for kIdleSeconds: CPU, wakes a second and what it
// wrote.
std::string idle(Game& game, benchmark::State& state) {
  const double cpu = game.cpuSeconds();
  const long wakes = game.wakes();
  std::string out = game.collect(kIdleSeconds);
  state.SetIterationTime(kIdleSeconds);
  state.counters["cpu_percent"] = 100.0 * (game.cpuSeconds() - cpu) / kIdleSeconds;
  state.counters["wakes_per_s"] = static_cast<double>(game.wakes() - wakes) / kIdleSeconds;
  return out;
}

void onTheShipMap(Game& game) {
  game.collect(0.5);  // the title never stands still
  game.send(kEnter);  // NEW GAME
  game.settle(800);   // long enough for the screen to count as still
}

void ShipMapIdle(benchmark::State& state) {
  for (auto _ : state) {
    Game game;
    onTheShipMap(game);
    state.counters["bytes_written"] = static_cast<double>(idle(game, state).size());
  }
}

// From the ship map, in orbit: to the Library and through 30 ends of day,
// to the morning the Super Freighter arrives, then into its room. True when
// the freighter's screen came.
bool onTheFreighter(Game& game) {
  onTheShipMap(game);
  game.send(kRight);
  game.settle(100);
  game.send(kDown);  // LIBRARY
  game.settle(100);
  // Each key waits for the game to have been quiet for a while: a key that
  // comes while the game is still busy with the one before is thrown away
  // by the menu's flush, and on a busy machine the flash of a room may
  // pause for more than its 80 ms a step.
  for (int day = 1; day <= 30; ++day) {
    game.send(kEnter);  // the room flashes, then the deck's menu
    game.settle(400);
    game.send("d");  // the hidden food key: the crew stays fed
    game.settle(120);
    game.send(kDown);  // End Turn
    game.settle(120);
    game.send(kEnter);
    game.settle(200);
    game.send("y");  // End Day? Yes
    game.settle(400);
    for (int i = 0; i < 2; ++i) {
      game.send(kEscape);  // closes a warning and the morning report; nothing on the map
      game.settle(200);
    }
  }
  game.send(kDown);  // SUPER FREIGHTER
  game.settle(100);
  game.send(kEnter);
  return game.settle(800).find("COSMIC") != std::string::npos;
}

void FreighterIdle(benchmark::State& state) {
  for (auto _ : state) {
    Game game;
    if (!onTheFreighter(game)) {
      state.SkipWithError("the Super Freighter's screen never came");
      return;
    }
    state.counters["bytes_written"] = static_cast<double>(idle(game, state).size());
  }
}

void TitleIdle(benchmark::State& state) {
  for (auto _ : state) {
    Game game;
    game.collect(0.5);
    const std::string out = idle(game, state);
    // Each runner step lights its head with a middle dot (U+2219).
    int steps = 0;
    for (std::size_t at = out.find("\xE2\x88\x99"); at != std::string::npos;
         at = out.find("\xE2\x88\x99", at + 1)) {
      ++steps;
    }
    state.counters["runner_steps_per_s"] = steps / kIdleSeconds;
    state.counters["bytes_per_step"] = steps > 0 ? static_cast<double>(out.size()) / steps : 0;
  }
}

void RoomMove(benchmark::State& state) {
  Game game;
  onTheShipMap(game);
  bool right = true;
  for (auto _ : state) {
    if (state.range(0) == 1) game.collect(1.0);
    auto start = Clock::now();
    Clock::time_point last = start;
    game.send(right ? kRight : kLeft);
    game.settle(100, &last);
    right = !right;
    state.SetIterationTime(std::chrono::duration<double>(last - start).count());
  }
}

void EscapeKey(benchmark::State& state) {
  Game game;
  onTheShipMap(game);
  game.send(kRight);
  game.settle(100);
  game.send(kDown);
  game.settle(100);
  game.send(kRight);  // ENGINEERING
  game.settle(100);
  for (auto _ : state) {
    game.send(kEnter);  // flash, then the deck's menu
    game.settle(300);
    auto start = Clock::now();
    Clock::time_point first = start;
    game.send(kEscape);
    game.settle(100, nullptr, &first);
    state.SetIterationTime(std::chrono::duration<double>(first - start).count());
  }
}

}  // namespace

BENCHMARK(ShipMapIdle)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(FreighterIdle)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(TitleIdle)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(RoomMove)->Arg(0)->Arg(1)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(EscapeKey)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
