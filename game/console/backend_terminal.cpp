// The terminal backend: shows the console model on a real terminal with
// ncursesw and reads its keys. The only file that knows about curses.
//
// Output: each cell's code page 437 code goes out as its Unicode character
// (or an ASCII stand-in where the locale is not UTF-8), its colour as the
// terminal can show it with 16 colours, 8 or none (terminal_colours.h), in a
// colour pair made on first use. Only cells that differ from what the
// terminal already shows are handed to curses, so a screen that stands still
// costs no output at all.
//
// Input: keys become the console's KeyEvents (virtual key and character).
// Escape arrives after 25 ms; Escape with a key at once is Alt with that key,
// and counts as the key. Bytes that are no key are ignored. While the screen
// moves, keyWaiting waits 10 ms every tenth pass, so that the polling loops
// neither spin nor lag; once it has stood still for half a second, it waits
// for the key itself (or a change of size, or a signal), so that a still
// screen costs nothing at all until the player acts.
//
// A change of the terminal's size, and a return from Ctrl+Z, repaint the whole
// screen as soon as they happen, whatever the game is doing: waiting for a
// key, polling, or sleeping in an animation. A terminal smaller than 80x25
// shows only a notice of the size it needs, and the game waits behind it:
// keys typed meanwhile are thrown away (Ctrl+C still ends the game), and at
// 80x25 again the game goes on where it stood.
//
// The terminal is put back as it was on every way out: the normal end, Ctrl+C,
// every signal that ends the process, and Ctrl+Z (until `fg`). Flow control
// (Ctrl+S, Ctrl+Q) is off while the game runs. A terminal the game cannot
// drive is refused at once with one line on standard error.
// The game's headers come first: term.h defines macros (columns, lines)
// that would clash with their names.
#include "game/console/backend.h"
#include "game/console/cp437.h"
#include "game/console/terminal_colours.h"

#ifndef NCURSES_WIDECHAR
#define NCURSES_WIDECHAR 1
#endif
#include <curses.h>
#include <fcntl.h>
#include <langinfo.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <term.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <deque>
#include <string>

namespace {

using SteadyClock = std::chrono::steady_clock;

// While the screen moves, the polling loops are paced at about 1 ms a pass:
// one wait of 10 ms for every ten passes, so that an animation counted in
// passes runs at a steady speed and the process wakes 100 times a second,
// not 1000. Once the screen has stood still for half a second nothing in it
// moves until the player acts, so a pass waits for a key with no time
// limit. A key ends any wait at once.
constexpr int kPassesPerWait = 10;
constexpr int kFastWaitMs = 10;
constexpr int kUntilInput = -1;
constexpr auto kStillAfter = std::chrono::milliseconds(500);
constexpr auto kFreshInput = std::chrono::milliseconds(2);
constexpr std::uint8_t kNoticeColour = 0x4F;  // white on red

bool isOpen = false;
bool utf8 = false;
TerminalColours palette = TerminalColours::kNone;
bool fullRepaint = true;
Cell shown[kScreenHeight][kScreenWidth];
short pairs[256];  // by terminal foreground + 16 * background
short nextPair = 1;
std::deque<KeyEvent> pending;
SteadyClock::time_point lastChange;
SteadyClock::time_point lastEmptied;  // when the terminal last had no input left
int passesSinceWait = 0;

// Set by the signal handlers, acted on by the game's own thread at the next
// call into the backend, or at once if it is waiting or sleeping (the signal
// interrupts the wait). The handlers also write a byte into a pipe that every
// wait for input watches, so that a signal that comes just before the wait
// begins still ends it.
volatile sig_atomic_t sizeChanged = 0;
int wakeRead = -1;
int wakeWrite = -1;
bool noticeUp = false;  // the terminal shows the size notice, not the game

// What the signal handlers write to put the terminal back, and to take it
// again after Ctrl+Z; prepared at open so that the handlers themselves only
// call write and tcsetattr.
struct Sequence {
  char bytes[256];
  std::size_t length = 0;

  void append(const char* capability) {
    char* value = tigetstr(const_cast<char*>(capability));
    if (value == nullptr || value == reinterpret_cast<char*>(-1)) return;
    std::size_t n = std::strlen(value);
    if (length + n > sizeof bytes) return;
    std::memcpy(bytes + length, value, n);
    length += n;
  }

  void write() const {
    const char* next = bytes;
    std::size_t left = length;
    while (left > 0) {
      ssize_t n = ::write(STDOUT_FILENO, next, left);
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) return;
      next += n;
      left -= static_cast<std::size_t>(n);
    }
  }
};

struct termios savedModes;
struct termios gameModes;
bool haveSavedModes = false;
bool haveGameModes = false;
Sequence restoreSequence;
Sequence resumeSequence;

void restoreFromSignal() {
  restoreSequence.write();
  if (haveSavedModes) tcsetattr(STDIN_FILENO, TCSADRAIN, &savedModes);
}

void onSignal(int signalNumber) {
  if (isOpen) restoreFromSignal();
  // The handler was installed to run once; the signal now does what it
  // would have done: end the process (with a core for a crash).
  raise(signalNumber);
}

void wakeTheGame() {
  const int savedErrno = errno;
  sizeChanged = 1;
  if (wakeWrite >= 0) {
    ssize_t written = ::write(wakeWrite, "", 1);
    (void)written;  // a full pipe has a byte to wake the game already
  }
  errno = savedErrno;
}

void onResize(int) { wakeTheGame(); }

// Ctrl+Z: give the terminal back, stop, and on `fg` take it again; the
// screen is repainted as after a change of size.
void onStop(int) {
  const int savedErrno = errno;
  if (isOpen) restoreFromSignal();
  struct sigaction original {};
  struct sigaction standard {};
  standard.sa_handler = SIG_DFL;
  sigemptyset(&standard.sa_mask);
  sigaction(SIGTSTP, &standard, &original);
  sigset_t stop;
  sigemptyset(&stop);
  sigaddset(&stop, SIGTSTP);
  sigprocmask(SIG_UNBLOCK, &stop, nullptr);
  raise(SIGTSTP);  // stopped here until the shell continues the game
  sigaction(SIGTSTP, &original, nullptr);
  if (isOpen) {
    if (haveGameModes) tcsetattr(STDIN_FILENO, TCSADRAIN, &gameModes);
    resumeSequence.write();
    wakeTheGame();
  }
  errno = savedErrno;
}

void installSignalHandlers() {
  struct sigaction action {};
  action.sa_handler = onSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (int signalNumber :
       {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGPIPE,
        SIGUSR1, SIGUSR2, SIGALRM, SIGXCPU, SIGXFSZ, SIGVTALRM, SIGPROF}) {
    sigaction(signalNumber, &action, nullptr);
  }
  // Installed before curses starts, so that curses keeps its own away.
  struct sigaction resize {};
  resize.sa_handler = onResize;
  sigemptyset(&resize.sa_mask);
  sigaction(SIGWINCH, &resize, nullptr);
  struct sigaction stop {};
  stop.sa_handler = onStop;
  sigemptyset(&stop.sa_mask);
  sigaddset(&stop.sa_mask, SIGWINCH);
  sigaction(SIGTSTP, &stop, nullptr);
}

// One line on standard error and the end, for a terminal the game cannot use.
[[noreturn]] void refuse(const std::string& what) {
  std::fprintf(stderr, "skarmada: %s\n", what.c_str());
  std::exit(1);
}

// Before anything is written: is there a terminal, and can it place text?
void checkTerminal() {
  const char* type = std::getenv("TERM");
  if (type == nullptr || *type == '\0') refuse("TERM is not set");
  if (!isatty(STDOUT_FILENO)) refuse("standard output is not a terminal");
  if (!isatty(STDIN_FILENO)) refuse("standard input is not a terminal");
  const std::string named = std::string("the terminal type '") + type + "'";
  int status = 0;
  if (setupterm(type, STDOUT_FILENO, &status) != OK) {
    refuse(named + (status == 0 ? " is not known" : " has no description here"));
  }
  char* cursorAddress = tigetstr(const_cast<char*>("cup"));
  const bool placesText = cursorAddress != nullptr &&
                          cursorAddress != reinterpret_cast<char*>(-1) &&
                          tigetflag(const_cast<char*>("hc")) <= 0;
  del_curterm(cur_term);
  if (!placesText) refuse(named + " cannot position the cursor");
}

// The curses attributes and pair for a console colour.
void attributesFor(std::uint8_t colour, attr_t& attributes, short& pair) {
  const TerminalLook look = terminalLook(colour, palette);
  attributes = A_NORMAL;
  if (look.bold) attributes |= A_BOLD;
  if (look.dim) attributes |= A_DIM;
  if (look.underline) attributes |= A_UNDERLINE;
  if (look.reverse) attributes |= A_REVERSE;
  pair = 0;
  if (look.foreground < 0) return;
  const int key = look.foreground + 16 * look.background;
  assert(key >= 0 && key < 256);
  if (pairs[key] == 0 && nextPair < COLOR_PAIRS && nextPair < 32767) {
    init_pair(nextPair, static_cast<short>(look.foreground), static_cast<short>(look.background));
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

// The notice of a terminal too small, alone on a cleared terminal: what size
// the game needs and what size it has, worded to the width (a blank on each
// side of every line) and set in the middle.
void showSizeNotice() {
  const std::string text = "Skarmada needs a terminal of " + std::to_string(kScreenWidth) + "x" +
                           std::to_string(kScreenHeight) + "; this one is " +
                           std::to_string(COLS) + "x" + std::to_string(LINES) + ".";
  const std::size_t width = COLS > 2 ? static_cast<std::size_t>(COLS - 2) : 1;
  std::deque<std::string> noticeRows;
  std::size_t at = 0;
  while (at < text.size()) {
    std::size_t end = std::min(text.size(), at + width);
    if (end < text.size()) {
      const std::size_t blank = text.rfind(' ', end);
      if (blank != std::string::npos && blank > at) end = blank;
    }
    noticeRows.push_back(text.substr(at, end - at));
    at = end;
    while (at < text.size() && text[at] == ' ') ++at;
  }
  erase();
  attr_t attributes;
  short pair;
  attributesFor(kNoticeColour, attributes, pair);
  attr_set(attributes, pair, nullptr);
  const int first = std::max(0, (LINES - static_cast<int>(noticeRows.size())) / 2);
  for (int i = 0; i < static_cast<int>(noticeRows.size()) && first + i < LINES; ++i) {
    const std::string line = " " + noticeRows[static_cast<std::size_t>(i)] + " ";
    const int column = std::max(0, (COLS - static_cast<int>(line.size())) / 2);
    mvaddnstr(first + i, column, line.c_str(), COLS - column);
  }
  attr_set(A_NORMAL, 0, nullptr);
  wnoutrefresh(stdscr);
  doupdate();
  noticeUp = true;
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
  screen.changed = false;
  fullRepaint = false;
  wnoutrefresh(stdscr);
  doupdate();
}

// Everything is drawn again, from the model; on a terminal too small, the
// notice instead, and the model waits to be drawn in full once it fits.
void repaintAll() {
  fullRepaint = true;
  if (tooSmall()) {
    showSizeNotice();
    return;
  }
  noticeUp = false;
  erase();
  present(Console::mutableScreen());
}

// After a change of size, or Ctrl+Z and `fg`: curses learns the terminal's
// size, and the whole screen is cleared and painted again. Called on every
// way into the backend and whenever a signal breaks a wait or a sleep, so
// that no animation, flush or wait can keep the broken screen up. Keys that
// came before the terminal shrank are not acted on behind the notice.
void catchUp() {
  if (sizeChanged == 0 || !isOpen) return;
  sizeChanged = 0;
  char bytes[64];
  while (::read(wakeRead, bytes, sizeof bytes) > 0) {
  }
  struct winsize size {};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_row > 0 && size.ws_col > 0) {
    resize_term(size.ws_row, size.ws_col);
  }
  clearok(curscr, TRUE);
  repaintAll();
  if (tooSmall()) pending.clear();
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
// Alt with a key comes as Escape and the key at once: the Escape is dropped
// and the key counts as itself. A byte that is no key is ignored.
void drain() {
  timeout(0);
  wint_t input = 0;
  int status;
  bool escapeHeld = false;
  while ((status = wget_wch(stdscr, &input)) != ERR) {
    const bool character = status == OK;
    if (escapeHeld && !(character && input >= 32 && input != 127)) {
      pending.push_back(KeyEvent::escape());
    }
    escapeHeld = character && input == 27;
    if (escapeHeld) continue;
    KeyEvent event;
    if (translate(status, input, event)) pending.push_back(event);
  }
  if (escapeHeld) pending.push_back(KeyEvent::escape());
  // Behind the notice of a terminal too small no key reaches the game.
  if (tooSmall()) pending.clear();
}

// The terminal is gone: nothing more can be read or shown.
[[noreturn]] void terminalGone() {
  Console::close();
  std::exit(1);
}

// Waits up to `waitMs` (kUntilInput: for ever) for the terminal to have
// input or for a signal, and takes what the terminal has. True if a key is
// in the queue. The wait is a plain poll, so a pass of a polling loop that
// finds nothing costs one system call. Only a hang-up, an error or the end
// of the input ends the game; bytes that decode to no key are simply gone.
bool fetch(int waitMs) {
  catchUp();
  struct pollfd watched[2] = {{STDIN_FILENO, POLLIN, 0}, {wakeRead, POLLIN, 0}};
  const int ready = poll(watched, wakeRead >= 0 ? 2 : 1, waitMs);
  catchUp();  // a signal, perhaps a change of size
  if (ready < 0) return !pending.empty();
  lastEmptied = SteadyClock::now();
  const struct pollfd& input = watched[0];
  if (input.revents == 0) return !pending.empty();
  int waiting = 1;
  if (ioctl(STDIN_FILENO, FIONREAD, &waiting) != 0) waiting = 1;
  if (waiting > 0) drain();
  // Readable with nothing to read is the end of the input.
  if (waiting <= 0 || (input.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0) terminalGone();
  return !pending.empty();
}

}  // namespace

namespace backend {

void open() {
  checkTerminal();
  std::setlocale(LC_ALL, "");
  utf8 = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
  if (tcgetattr(STDIN_FILENO, &savedModes) == 0) haveSavedModes = true;
  int wake[2];
  if (pipe(wake) == 0) {
    for (int end : wake) {
      fcntl(end, F_SETFL, O_NONBLOCK);
      fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    wakeRead = wake[0];
    wakeWrite = wake[1];
  }
  installSignalHandlers();
  if (newterm(nullptr, stdout, stdin) == nullptr) refuse("this program needs a terminal");
  restoreSequence = {};
  for (const char* capability : {"sgr0", "cnorm", "rmkx", "rmcup"})
    restoreSequence.append(capability);
  resumeSequence = {};
  for (const char* capability : {"smcup", "smkx", "civis"}) resumeSequence.append(capability);
  isOpen = true;
  set_escdelay(25);
  cbreak();
  noecho();
  nonl();
  intrflush(stdscr, FALSE);
  keypad(stdscr, TRUE);
  leaveok(stdscr, TRUE);
  curs_set(0);
  // No flow control: Ctrl+S would freeze the screen until Ctrl+Q. Curses
  // keeps these modes as the program's, and puts the player's back on the
  // way out.
  if (tcgetattr(STDIN_FILENO, &gameModes) == 0) {
    gameModes.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF);
    haveGameModes = tcsetattr(STDIN_FILENO, TCSADRAIN, &gameModes) == 0;
    def_prog_mode();
  }
  if (has_colors()) {
    start_color();
    palette = COLORS >= 16 ? TerminalColours::kSixteen : TerminalColours::kEight;
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
  catchUp();
  if (tooSmall()) {
    if (!noticeUp) showSizeNotice();
    fullRepaint = true;
    return;
  }
  if (!screen.changed && !fullRepaint) return;
  present(screen);
  lastChange = SteadyClock::now();
}

bool keyWaiting() {
  catchUp();
  // Behind the notice the game stands still, its animations too, until the
  // terminal is large enough again.
  if (tooSmall()) {
    while (tooSmall()) fetch(kUntilInput);
    return false;
  }
  if (!pending.empty()) return true;
  if (SteadyClock::now() - lastChange > kStillAfter) return fetch(kUntilInput);
  if (++passesSinceWait < kPassesPerWait) return false;
  passesSinceWait = 0;
  return fetch(kFastWaitMs);
}

KeyEvent readKey() {
  while (pending.empty()) fetch(kUntilInput);
  KeyEvent event = pending.front();
  pending.pop_front();
  return event;
}

void flushKeys() {
  pending.clear();
  catchUp();
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
  while (nanosleep(&wait, &wait) != 0 && errno == EINTR) catchUp();
}

}  // namespace backend
