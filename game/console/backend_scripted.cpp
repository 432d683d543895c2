// The scripted backend: the console for tests. See scripted.h.
#include <deque>
#include <sstream>

#include "game/console/backend.h"
#include "game/console/scripted.h"

namespace scripted {
namespace {

std::deque<Step> script;
std::deque<KeyEvent> queue;
std::int64_t clock = 0;
std::function<void(int)> sleepWatcher;
std::function<bool(KeyEvent&)> player;

// Keys of a key-down that yields a character or is an extended key count
// for keyWaiting; a release or a lone modifier does not.
bool counts(const KeyEvent& event) {
  return event.isKey && event.keyDown && (event.ascii != 0 || event.virtualKey != 0);
}

// Takes the next step that brings keys into the queue. A polling read
// (`polling`) stops at an idle pass and reports it as false.
bool refill(bool polling) {
  while (queue.empty()) {
    if (script.empty()) {
      KeyEvent key;
      if (!player || !player(key)) throw ScriptEnded{};
      queue.push_back(key);
      return true;
    }
    Step& step = script.front();
    if (step.kind == Step::Call) {
      std::function<void()> call = std::move(step.call);
      script.pop_front();
      call();
      continue;
    }
    if (step.kind == Step::Idle) {
      if (!polling) {
        script.pop_front();
        continue;
      }
      if (--step.passes <= 0) script.pop_front();
      return false;
    }
    for (const KeyEvent& key : step.keys) queue.push_back(key);
    script.pop_front();
  }
  return true;
}

}  // namespace

KeyEvent keyNamed(const std::string& name) {
  if (name == "Up") return KeyEvent::arrow(kKeyUp);
  if (name == "Down") return KeyEvent::arrow(kKeyDown);
  if (name == "Left") return KeyEvent::arrow(kKeyLeft);
  if (name == "Right") return KeyEvent::arrow(kKeyRight);
  if (name == "PgUp") return KeyEvent::arrow(kKeyPageUp);
  if (name == "PgDn") return KeyEvent::arrow(kKeyPageDown);
  if (name == "Enter") return KeyEvent::enter();
  if (name == "Esc") return KeyEvent::escape();
  if (name == "Space") return KeyEvent::press(kKeySpace, ' ');
  if (name == "Tab") return KeyEvent::press(kKeyTab, 9);
  if (name == "Backspace") return KeyEvent::press(kKeyBackspace, 8);
  if (name == "Release") {
    KeyEvent release;
    release.keyDown = false;
    return release;
  }
  return KeyEvent::typed(name.empty() ? ' ' : name[0]);
}

void reset() {
  script.clear();
  queue.clear();
  clock = 0;
  sleepWatcher = nullptr;
  player = nullptr;
  ScreenModel& s = Console::mutableScreen();
  s = ScreenModel{};
}

void addKeys(std::vector<KeyEvent> keys) { script.push_back(Step{Step::Keys, std::move(keys), 0, {}}); }
void addKey(KeyEvent key) { addKeys(std::vector<KeyEvent>{key}); }
void addIdle(int passes) { script.push_back(Step{Step::Idle, {}, passes, {}}); }
void addBusy(std::vector<KeyEvent> keys) { script.push_back(Step{Step::Busy, std::move(keys), 0, {}}); }
void addCall(std::function<void()> call) { script.push_back(Step{Step::Call, {}, 0, std::move(call)}); }

void addKeys(const std::string& names) {
  std::istringstream in(names);
  std::string name;
  while (in >> name) {
    if (name.rfind("Idle:", 0) == 0) {
      addIdle(std::stoi(name.substr(5)));
    } else {
      addKey(keyNamed(name));
    }
  }
}

void watchSleeps(std::function<void(int)> watcher) { sleepWatcher = std::move(watcher); }
void setPlayer(std::function<bool(KeyEvent&)> newPlayer) { player = std::move(newPlayer); }

int stepsLeft() { return static_cast<int>(script.size()); }
int queued() { return static_cast<int>(queue.size()); }
std::int64_t clockMicros() { return clock; }

std::string textAt(int column, int row, int length) {
  std::string out;
  for (int i = 0; i < length; ++i) out.push_back(static_cast<char>(codeAt(column + i, row)));
  return out;
}

std::string rowText(int row) { return textAt(0, row, kScreenWidth); }

int colourAt(int column, int row) {
  if (column < 0 || column >= kScreenWidth || row < 0 || row >= kScreenHeight) return -1;
  return Console::screen().cells[row][column].colour;
}

std::uint8_t codeAt(int column, int row) {
  if (column < 0 || column >= kScreenWidth || row < 0 || row >= kScreenHeight) return 0;
  return Console::screen().cells[row][column].code;
}

std::string dump() {
  std::string out;
  for (int r = 0; r < kScreenHeight; ++r) {
    for (char c : rowText(r)) {
      auto code = static_cast<unsigned char>(c);
      out.push_back(code >= 32 && code < 127 ? c : '.');
    }
    out.push_back('\n');
  }
  return out;
}

}  // namespace scripted

namespace backend {

void open() {}
void close() {}

void show(ScreenModel& screen) {
  for (bool& changed : screen.rowChanged) changed = false;
  screen.changed = false;
}

bool keyWaiting() {
  if (!scripted::refill(true)) return false;
  for (const KeyEvent& key : scripted::queue) {
    if (scripted::counts(key)) return true;
  }
  return false;
}

KeyEvent readKey() {
  scripted::refill(false);
  KeyEvent key = scripted::queue.front();
  scripted::queue.pop_front();
  return key;
}

void flushKeys() {
  scripted::queue.clear();
}

void sleep(int milliseconds) {
  if (scripted::sleepWatcher) scripted::sleepWatcher(milliseconds);
  scripted::clock += static_cast<std::int64_t>(milliseconds) * 1000;
  // Keys the player typed while the game was busy are in the queue now.
  while (!scripted::script.empty() && scripted::script.front().kind == scripted::Step::Busy) {
    for (const KeyEvent& key : scripted::script.front().keys) scripted::queue.push_back(key);
    scripted::script.pop_front();
  }
}

}  // namespace backend
