// The terminal backend: shows the console model on a real terminal with
// ncursesw and reads its keys. The only file that knows about curses.
//
// Output: each cell's code page 437 code goes out as its Unicode character
// (or an ASCII stand-in where the locale is not UTF-8), its colour as a
// colour pair made on first use. Only cells that differ from what the
// terminal already shows are handed to curses, so a screen that stands still
// costs no output at all.
//
// Input: keys become the console's KeyEvents (virtual key and character).
// Escape arrives after 25 ms. keyWaiting waits a little for a key, 1 ms while
// the screen is moving and 20 ms once it has stood still for half a second,
// so that the polling loops neither spin nor lag.
//
// The terminal is put back as it was on every way out: the normal end, Ctrl+C,
// SIGTERM, SIGHUP, SIGQUIT and the crash signals.
// The game's headers come first: term.h defines macros (columns, lines)
// that would clash with their names.
#include "game/console/backend.h"
#include "game/console/cp437.h"

#ifndef NCURSES_WIDECHAR
#define NCURSES_WIDECHAR 1
#endif
#include <curses.h>
#include <langinfo.h>
#include <poll.h>
#include <signal.h>
#include <term.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <deque>

namespace {

using SteadyClock = std::chrono::steady_clock;

// While the screen moves, the polling loops are paced at about 1 ms a pass:
// one wait of 10 ms for every ten passes, so that an animation counted in
// passes runs at a steady speed and the process wakes 100 times a second,
// not 1000. Once the screen has stood still for half a second, every pass
// waits 20 ms. A key ends any wait at once.
constexpr int kPassesPerWait = 10;
constexpr int kFastWaitMs = 10;
constexpr int kSlowWaitMs = 20;
constexpr auto kStillAfter = std::chrono::milliseconds(500);
constexpr auto kFreshInput = std::chrono::milliseconds(2);
constexpr char kSizeNotice[] = " Skarmada needs a terminal of 80x25 ";

bool isOpen = false;
bool utf8 = false;
bool colours16 = false;
bool anyColour = false;
bool fullRepaint = true;
Cell shown[kScreenHeight][kScreenWidth];
short pairs[256];
short nextPair = 1;
std::deque<KeyEvent> pending;
SteadyClock::time_point lastChange;
SteadyClock::time_point lastEmptied;  // when the terminal last had no input left
int passesSinceWait = 0;

// What the signal handler writes to put the terminal back; prepared at open
// so that the handler itself only calls write and tcsetattr.
struct termios savedModes;
bool haveSavedModes = false;
char restoreSequence[256];
std::size_t restoreLength = 0;

void appendRestore(const char* capability) {
  char* value = tigetstr(const_cast<char*>(capability));
  if (value == nullptr || value == reinterpret_cast<char*>(-1)) return;
  std::size_t n = std::strlen(value);
  if (restoreLength + n >= sizeof restoreSequence) return;
  std::memcpy(restoreSequence + restoreLength, value, n);
  restoreLength += n;
}

void restoreFromSignal() {
  if (restoreLength > 0) {
    ssize_t ignored = write(STDOUT_FILENO, restoreSequence, restoreLength);
    (void)ignored;
  }
  if (haveSavedModes) tcsetattr(STDIN_FILENO, TCSANOW, &savedModes);
}

void onSignal(int signalNumber) {
  if (isOpen) restoreFromSignal();
  // The handler was installed to run once; the signal now does what it
  // would have done: end the process (with a core for a crash).
  raise(signalNumber);
}

void installSignalHandlers() {
  struct sigaction action {};
  action.sa_handler = onSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (int signalNumber :
       {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
    sigaction(signalNumber, &action, nullptr);
  }
  signal(SIGPIPE, SIG_IGN);
}

// The console palette has blue and red swapped against the ANSI order.
short terminalColour(int consoleColour) {
  static constexpr short kAnsi[8] = {COLOR_BLACK, COLOR_BLUE,    COLOR_GREEN,  COLOR_CYAN,
                                     COLOR_RED,   COLOR_MAGENTA, COLOR_YELLOW, COLOR_WHITE};
  short base = kAnsi[consoleColour & 7];
  return (consoleColour & 8) && colours16 ? static_cast<short>(base + 8) : base;
}

// The curses attributes and pair for a console colour. With 16 colours the
// pair says it all; with 8, a bright foreground is shown bold and a bright
// background as its dark twin; without colour, light backgrounds are shown
// reversed.
void attributesFor(std::uint8_t colour, attr_t& attributes, short& pair) {
  int foreground = colour & 15;
  int background = colour >> 4;
  attributes = A_NORMAL;
  pair = 0;
  if (!anyColour) {
    if (background >= 7 || (background != 0 && foreground == 0)) attributes |= A_REVERSE;
    if (foreground >= 9) attributes |= A_BOLD;
    return;
  }
  int key = colour;
  if (!colours16) {
    key = (foreground & 7) | ((background & 7) << 3);
    if (foreground & 8) attributes |= A_BOLD;
  }
  if (pairs[key] == 0 && nextPair < COLOR_PAIRS && nextPair < 32767) {
    init_pair(nextPair, terminalColour(foreground), terminalColour(background));
    pairs[key] = nextPair++;
  }
  pair = pairs[key];
}

void putCell(int row, int column, Cell cell) {
  if (row >= LINES || column >= COLS) return;
  attr_t attributes;
  short pair;
  attributesFor(cell.colour, attributes, pair);
  if (utf8) {
    wchar_t text[2] = {static_cast<wchar_t>(cp437::toUnicode(cell.code)), L'\0'};
    cchar_t wide;
    setcchar(&wide, text, attributes, pair, nullptr);
    mvadd_wch(row, column, &wide);
  } else {
    chtype plain = static_cast<unsigned char>(cp437::toAscii(cell.code));
    mvaddch(row, column, plain | attributes | COLOR_PAIR(pair));
  }
}

bool tooSmall() { return LINES < kScreenHeight || COLS < kScreenWidth; }

void drawSizeNotice() {
  attr_t attributes;
  short pair;
  attributesFor(0x4F, attributes, pair);  // white on red
  attr_set(attributes, pair, nullptr);
  mvaddnstr(LINES - 1, 0, kSizeNotice, COLS);
  attr_set(A_NORMAL, 0, nullptr);
}

void present(ScreenModel& screen) {
  for (int row = 0; row < kScreenHeight; ++row) {
    if (!fullRepaint && !screen.rowChanged[row]) continue;
    for (int column = 0; column < kScreenWidth; ++column) {
      const Cell& cell = screen.cells[row][column];
      if (!fullRepaint && cell == shown[row][column]) continue;
      shown[row][column] = cell;
      putCell(row, column, cell);
    }
    screen.rowChanged[row] = false;
  }
  if (tooSmall()) drawSizeNotice();
  screen.changed = false;
  fullRepaint = false;
  wnoutrefresh(stdscr);
  doupdate();
}

// After the terminal has changed size: everything is drawn again.
void repaintAll() {
  erase();
  fullRepaint = true;
  present(Console::mutableScreen());
}

// A shifted punctuation key gives the virtual key of the key it is on, as a
// keyboard would; the game tests only letters and digits by virtual key.
std::uint16_t virtualKeyOfCharacter(int character) {
  if (character >= 'a' && character <= 'z') return static_cast<std::uint16_t>(character - 32);
  if ((character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9')) {
    return static_cast<std::uint16_t>(character);
  }
  static constexpr char kShiftedDigits[] = ")!@#$%^&*(";
  if (const char* at = std::strchr(kShiftedDigits, character); at != nullptr && character != 0) {
    return static_cast<std::uint16_t>('0' + (at - kShiftedDigits));
  }
  switch (character) {
    case ';':
    case ':': return 186;
    case '=':
    case '+': return 187;
    case ',':
    case '<': return 188;
    case '-':
    case '_': return 189;
    case '.':
    case '>': return 190;
    case '/':
    case '?': return 191;
    case '`':
    case '~': return 192;
    case '[':
    case '{': return 219;
    case '\\':
    case '|': return 220;
    case ']':
    case '}': return 221;
    case '\'':
    case '"': return 222;
    default: return 0;
  }
}

// Turns what curses read into a key event; false for what is no key.
bool translate(int status, wint_t input, KeyEvent& event) {
  if (status == KEY_CODE_YES) {
    switch (input) {
      case KEY_UP: event = KeyEvent::arrow(kKeyUp); return true;
      case KEY_DOWN: event = KeyEvent::arrow(kKeyDown); return true;
      case KEY_LEFT: event = KeyEvent::arrow(kKeyLeft); return true;
      case KEY_RIGHT: event = KeyEvent::arrow(kKeyRight); return true;
      case KEY_PPAGE: event = KeyEvent::arrow(kKeyPageUp); return true;
      case KEY_NPAGE: event = KeyEvent::arrow(kKeyPageDown); return true;
      case KEY_HOME: event = KeyEvent::arrow(36); return true;
      case KEY_END: event = KeyEvent::arrow(35); return true;
      case KEY_IC: event = KeyEvent::arrow(45); return true;
      case KEY_DC: event = KeyEvent::arrow(46); return true;
      case KEY_BACKSPACE: event = KeyEvent::press(kKeyBackspace, 8); return true;
      case KEY_ENTER: event = KeyEvent::enter(); return true;
      case KEY_BTAB: event = KeyEvent::press(kKeyTab, 9); return true;
      case KEY_RESIZE: repaintAll(); return false;
      default:
        if (input >= static_cast<wint_t>(KEY_F(1)) && input <= static_cast<wint_t>(KEY_F(12))) {
          event = KeyEvent::arrow(static_cast<std::uint16_t>(112 + (input - KEY_F(1))));
          return true;
        }
        return false;
    }
  }
  switch (input) {
    case '\r':
    case '\n': event = KeyEvent::enter(); return true;
    case 27: event = KeyEvent::escape(); return true;
    case 127:
    case 8: event = KeyEvent::press(kKeyBackspace, 8); return true;
    case '\t': event = KeyEvent::press(kKeyTab, 9); return true;
    case ' ': event = KeyEvent::press(kKeySpace, ' '); return true;
    default: break;
  }
  if (input < 32) {  // Ctrl with a letter
    event = KeyEvent::press(static_cast<std::uint16_t>('A' + input - 1),
                            static_cast<std::uint8_t>(input));
    return true;
  }
  if (input < 127) {
    event = KeyEvent::press(virtualKeyOfCharacter(static_cast<int>(input)),
                            static_cast<std::uint8_t>(input));
    return true;
  }
  int code = cp437::fromUnicode(static_cast<char32_t>(input));
  if (code < 0) return false;
  event = KeyEvent::press(0, static_cast<std::uint8_t>(code));
  return true;
}

// Takes every key the terminal has ready into the queue, without waiting.
// Returns how many reads brought something, keys or not.
int drain() {
  timeout(0);
  int reads = 0;
  wint_t input = 0;
  int status;
  while ((status = wget_wch(stdscr, &input)) != ERR) {
    ++reads;
    KeyEvent event;
    if (translate(status, input, event)) pending.push_back(event);
  }
  return reads;
}

// Waits up to `waitMs` (-1: for ever) for the terminal to have input, and
// takes what it has. True if a key is in the queue. The wait is a plain
// poll, so a pass of a polling loop that finds nothing costs one system call.
bool fetch(int waitMs) {
  static int emptyReads = 0;
  struct pollfd input {
    STDIN_FILENO, POLLIN, 0
  };
  int ready = poll(&input, 1, waitMs);
  if (ready < 0) {
    if (errno == EINTR) drain();  // a signal: perhaps the terminal changed size
    return !pending.empty();
  }
  lastEmptied = SteadyClock::now();
  if (ready == 0) return false;
  if (drain() > 0) {
    emptyReads = 0;
  } else if ((input.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0 || ++emptyReads > 1000) {
    // The terminal is gone: nothing more can be read or shown.
    Console::close();
    std::exit(1);
  }
  return !pending.empty();
}

}  // namespace

namespace backend {

void open() {
  std::setlocale(LC_ALL, "");
  utf8 = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
  if (tcgetattr(STDIN_FILENO, &savedModes) == 0) haveSavedModes = true;
  installSignalHandlers();
  if (newterm(nullptr, stdout, stdin) == nullptr) {
    std::fputs("skarmada: this program needs a terminal\n", stderr);
    std::exit(1);
  }
  restoreLength = 0;
  appendRestore("sgr0");
  appendRestore("cnorm");
  appendRestore("rmkx");
  appendRestore("rmcup");
  isOpen = true;
  set_escdelay(25);
  cbreak();
  noecho();
  nonl();
  intrflush(stdscr, FALSE);
  keypad(stdscr, TRUE);
  leaveok(stdscr, TRUE);
  curs_set(0);
  if (has_colors()) {
    start_color();
    anyColour = true;
    colours16 = COLORS >= 16;
  }
  // Whatever lies beyond the 80x25 screen is black too.
  attr_t attributes;
  short pair;
  attributesFor(0x07, attributes, pair);
  bkgdset(static_cast<chtype>(' ') | attributes | COLOR_PAIR(pair));
  erase();
  fullRepaint = true;
  lastChange = SteadyClock::now();
}

void close() {
  if (!isOpen) return;
  move(kScreenHeight - 1, 0);
  curs_set(1);
  refresh();
  endwin();
  isOpen = false;
}

void show(ScreenModel& screen) {
  if (!screen.changed && !fullRepaint) return;
  present(screen);
  lastChange = SteadyClock::now();
}

bool keyWaiting() {
  if (!pending.empty()) return true;
  if (SteadyClock::now() - lastChange > kStillAfter) return fetch(kSlowWaitMs);
  if (++passesSinceWait < kPassesPerWait) return false;
  passesSinceWait = 0;
  return fetch(kFastWaitMs);
}

KeyEvent readKey() {
  while (pending.empty()) fetch(-1);
  KeyEvent event = pending.front();
  pending.pop_front();
  return event;
}

void flushKeys() {
  pending.clear();
  // Right after a look at the terminal found it empty there is nothing to
  // throw away; the polling loops flush on every pass, and this spares
  // them a system call.
  if (SteadyClock::now() - lastEmptied > kFreshInput) flushinp();
}

void sleep(int milliseconds) {
  if (milliseconds <= 0) return;
  struct timespec wait {
    milliseconds / 1000, static_cast<long>(milliseconds % 1000) * 1000000L
  };
  while (nanosleep(&wait, &wait) != 0 && errno == EINTR) {
  }
}

}  // namespace backend
