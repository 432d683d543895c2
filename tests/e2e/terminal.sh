#!/usr/bin/env bash
# The real game in a real terminal: tmux at 80x25, one key at a time.
# Usage: terminal.sh path/to/skarmada
set -u
bin=$(realpath "$1")
if ! command -v tmux >/dev/null 2>&1; then
  echo "SKIPPED: tmux is not installed, so the game cannot be played in a terminal here"
  exit 77
fi

sock="skarmada-e2e-$$"
t() { tmux -L "$sock" -f /dev/null "$@"; }
trap 't kill-server >/dev/null 2>&1' EXIT
fail() {
  echo "FAIL: $*"
  echo "--- screen ---"
  t capture-pane -p -t game 2>/dev/null
  exit 1
}
screen() { t capture-pane -p -t game; }
wait_for() {  # text [seconds]
  local until=$((SECONDS + ${2:-5}))
  while ((SECONDS < until)); do
    screen | grep -qF -- "$1" && return 0
    sleep 0.05
  done
  fail "\"$1\" never came on the screen"
}
key() { t send-keys -t game "$@"; sleep 0.15; }
keys() { for k in "$@"; do key "$k"; done; }
# From the Library room of the ship map: end the day.
end_day() {
  key Enter
  wait_for "End Turn Factor 6"
  keys Down Enter
  wait_for "End Day?"
  key y
}
pane() { t display-message -p -t game "$1"; }

# The game runs under a small shell that stays behind it, so that what the
# game leaves of the terminal can be read: its exit code, whether the
# terminal modes are as before, the cursor and the main screen. The curses
# library keeps its terminal description until the process ends; that is
# not a leak worth a report on the terminal.
start() {
  t new-session -d -s game -x 80 -y 25 -c "${workdir:-$PWD}" "trap true INT; before=\$(stty -g);
    env TERM=xterm-256color ASAN_OPTIONS=detect_leaks=0 '$bin'; code=\$?;
    [ \"\$before\" = \"\$(stty -g)\" ] && echo MODES-RESTORED; echo EXITED-\$code; sleep 60"
}

ended() {  # seconds: true once the game has ended
  local until=$((SECONDS + $1))
  until screen | grep -q EXITED-; do
    ((SECONDS <= until)) || return 1
    sleep 0.05
  done
}
restored() {
  screen | grep -q MODES-RESTORED || fail "the terminal's modes (echo, line editing) were not restored"
  [ "$(pane '#{alternate_on}')" = 0 ] || fail "the terminal was left on the game's screen"
  [ "$(pane '#{cursor_flag}')" = 1 ] || fail "the cursor was left hidden"
}

# The title screen comes first; EXIT ends the program with code 0.
start
wait_for "NEW GAME"
wait_for "VIEW CREDITS"
key Up
key Enter
ended 2 || fail "EXIT did not end the program"
screen | grep -q EXITED-0 || fail "EXIT did not end with code 0"
restored
t kill-session -t game

# NEW GAME reaches the ship map.
start
wait_for "NEW GAME"
key Enter
wait_for "DAY:    1"
wait_for "FUEL: 150,000"
screen | sed -n 3,6p | grep -q "NAV" || fail "NAV COM room is not on the map"
wait_for " NAVIGATION:"
key Right
wait_for " RESEARCH:"
t capture-pane -e -p -t game | sed -n 8p | grep -qE $'\e\\[(1;)?(33|93|38;5;11)m[^\e]*SCIENTIFIC' ||
  fail "the research room is not lit yellow"

# End a day in the Library: the map comes back on day 2, Library selected.
key Down
wait_for " LIBRARY:"
end_day
wait_for "DAY:    2"
wait_for " LIBRARY:"

# Fly to sector I, fire the Ion Cannon once, end the day, read the report.
keys Up Left Enter
wait_for "Navigate Mothership"
keys Down Enter
wait_for "Mothership's Destination"
key Enter
wait_for "Fuel Req: 10,000"
keys Escape Escape
wait_for " NAVIGATION:"
keys Right Down
end_day
wait_for "DAY:    3"
wait_for "FUEL: 140,000"
keys Up Left Enter
wait_for "Super Ion Cannon Control"
keys Down Down Down Enter
wait_for "Known Enemy Pop:"
key Enter
wait_for "Fire Ion Cannon?"
key y
wait_for "<<FIRE COMPLETED>>" 5
key x
wait_for "FUEL: 90,000"
keys Escape Escape Right Down
end_day
wait_for "Good Morning captain, I have 1 message for you."
wait_for "A SubSector of an unknown land type in Sector I has been leveled by"
wait_for "your Ion Cannon. Whatever was there before isn't there now."
key Escape
wait_for "DAY:    4"

# Ctrl+C ends the program at once and leaves the terminal as it was.
key C-c
ended 1 || fail "Ctrl+C did not end the game within a second"
restored
t kill-session -t game

# Thirty days ended in orbit bring the Super Freighter: its room opens under
# the Library, Escape does nothing aboard, a front lights up, and Enter on the
# Mothership goes back to the map. A "d" in the Library keeps the crew fed.
start
wait_for "NEW GAME"
key Enter
wait_for "DAY:    1"
keys Right Down
wait_for " LIBRARY:"
for day in $(seq 2 31); do
  key Enter
  wait_for "End Turn Factor 6"
  keys d Down Enter
  wait_for "End Day?"
  key y
  sleep 0.2
  screen | grep -qF "Good Morning" && key Escape
  wait_for "DAY: $(printf '%4d' "$day")"
done
key Down
wait_for " SUPER FREIGHTER:"
key Enter
wait_for "SAL'S  SELECT  SPACECRAFT"
key Escape
screen | grep -qF "MERCENARY    MARKET" || fail "Escape left the Super Freighter"
key Up
t capture-pane -e -p -t game | sed -n 10p | grep -qE $'\e\\[(1;)?(33|93|38;5;11)m[^\e]*BOB' ||
  fail "the bazaar is not lit yellow"
keys Down Enter
wait_for " SUPER FREIGHTER:"
t kill-session -t game

# SIGTERM, as when the system shuts down, also leaves the terminal as it was.
start
wait_for "NEW GAME"
game=$(pgrep -P "$(pane '#{pane_pid}')" | head -n 1)
[ -n "$game" ] || fail "the game's process was not found"
kill -TERM "$game"
ended 1 || fail "SIGTERM did not end the game"
restored
t kill-session -t game
# The hold: artifacts named from artifacts.txt in the working directory, a
# high byte shown as its glyph; then the Library's hidden fuel key.
workdir=$(mktemp -d)
trap 't kill-server >/dev/null 2>&1; rm -rf "$workdir"' EXIT
printf 'Caf\xe9 Relic of Mars\r\nSecond line\n' >"$workdir/artifacts.txt"
start
wait_for "NEW GAME"
key Enter
wait_for " NAVIGATION:"
keys Right Right
wait_for " CARGO:"
key Enter
wait_for "View your Artifacts"
key Enter
wait_for "Total Artifacts: 5"
[ "$(screen | grep -c "CafΘ Relic of Mars ")" = 5 ] || fail "five artifacts named from the file"
keys Escape Escape
wait_for " CARGO:"
keys Left Down
wait_for " LIBRARY:"
key Enter
wait_for "End Turn Factor 6"
key h
wait_for "FUEL: 150,400"
t kill-session -t game

echo "PASS: the title and the ship map in a real terminal"
