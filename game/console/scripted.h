// The scripted console, for tests: a key script stands in for the player, a
// virtual clock for the wall clock, and the screen model is read back.
//
// The script is a list of steps, taken in order whenever the game looks for
// input and its queue is empty:
//   keys     the player presses these keys; all of them reach the queue at
//            once (one key is a plain press, several a burst)
//   idle     the polling loops find no key for this many passes
//   busy     keys pressed while the game is busy: they reach the queue the
//            next time the game sleeps, so that a flush can drop them
//   call     a function the test runs when the game next looks for input
//            with this step next, to read the screen at that moment
// A player can also be a function (setPlayer): once the script is used up,
// it is asked for each key the game waits for, and can look at the screen
// to choose it; it ends the run by giving no key.
// When the game asks for input and the script is used up, the run ends: the
// backend throws ScriptEnded, which unwinds the game back to the test. A
// blocking read passes over idle steps.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "game/console/console.h"

namespace scripted {

struct ScriptEnded {};

struct Step {
  enum Kind { Keys, Idle, Busy, Call } kind = Keys;
  std::vector<KeyEvent> keys;
  int passes = 0;
  std::function<void()> call;
};

// Forgets the script, the queue and the clock, and blanks the screen model.
void reset();

void addKeys(std::vector<KeyEvent> keys);
void addKey(KeyEvent key);
void addIdle(int passes);
void addBusy(std::vector<KeyEvent> keys);
void addCall(std::function<void()> call);

// The player asked for keys once the script is used up; false ends the run.
void setPlayer(std::function<bool(KeyEvent& key)> player);

// Keys by name, one step each: "Up Down Left Right Enter Esc Space Tab
// Backspace PgUp PgDn", a single character for itself ("y", "5"), and
// "Release" for a key release. "Idle:N" adds N idle passes.
void addKeys(const std::string& names);
// The key of one such name.
KeyEvent keyNamed(const std::string& name);

// Runs `body` until it returns or the script ends; true if the script
// ended it.
template <typename Body>
bool run(Body&& body) {
  try {
    body();
    return false;
  } catch (const ScriptEnded&) {
    return true;
  }
}

// Steps of the script not yet taken, keys still queued.
int stepsLeft();
int queued();

// The virtual clock: microseconds slept so far.
std::int64_t clockMicros();

// Called at every Console::sleep with its milliseconds, when the screen is
// up to date: a test watches an animation frame by frame.
void watchSleeps(std::function<void(int milliseconds)> watcher);

// The screen, read back. Text comes as code page 437 codes.
std::string textAt(int column, int row, int length);
std::string rowText(int row);
int colourAt(int column, int row);
std::uint8_t codeAt(int column, int row);
// The whole screen, rows joined by newlines, for failure messages.
std::string dump();

}  // namespace scripted
