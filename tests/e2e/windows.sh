#!/usr/bin/env bash
# The Windows build of the game played under wine, on wine's console in a
# terminal (tmux at 80x25): the title comes up, EXIT ends the game with code
# 0; NEW GAME reaches the ship map, which answers a key; Escape leaves
# Navigate Mothership and the deck menu; Ctrl+C ends the game with the code
# Windows gives (0xC000013A, of which a Unix shell sees 58) and the cursor is
# shown again.
# Usage: windows.sh path/to/skarmada.exe   (WINEPREFIX may name wine's prefix)
set -u
exe=$(realpath "$1")
for tool in tmux wine; do
  if ! command -v "$tool" >/dev/null 2>&1; then
    echo "SKIPPED: $tool is not installed"
    exit 77
  fi
done
export WINEDEBUG=-all

sock="skarmada-wine-$$"
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
  local until=$((SECONDS + ${2:-10}))
  while ((SECONDS < until)); do
    screen | grep -qF -- "$1" && return 0
    sleep 0.1
  done
  fail "\"$1\" never came on the screen"
}
# A screen that reads keys one at a time throws away what comes before its
# first look at the keys (the release of the key that opened it), and under
# a busy wine that look may come well after the screen is shown.
settled_on() {  # text
  wait_for "$1"
  sleep 0.7
}
wait_gone() {  # text
  local until=$((SECONDS + 10))
  while ((SECONDS < until)); do
    screen | grep -qF -- "$1" || return 0
    sleep 0.1
  done
  fail "\"$1\" stayed on the screen"
}
# Wine's console on a terminal now and then holds an arrow's escape sequence
# back until more input comes: a blank sent behind each arrow, which the
# title and the ship map ignore, pushes it through. Keys that reach the game
# as one burst count as one (a busy machine can hold wine's console up for a
# second), so each key waits for what it does before the next is sent.
key() { t send-keys -t game "$@"; sleep 0.8; }
arrow() { t send-keys -t game "$1"; sleep 0.1; key Space; }
pane() { t display-message -p -t game "$1"; }
# Waits until the text stands in the colours that the pattern of escape
# sequences gives, and fails saying what was never seen.
wait_coloured() {  # sequences text what
  local until=$((SECONDS + 10))
  while ((SECONDS < until)); do
    t capture-pane -e -p -t game | grep -qE "$1$2" && return 0
    sleep 0.1
  done
  fail "\"$2\" was never $3"
}
# The title's entry that is chosen: white on red.
wait_chosen() { wait_coloured $'\e\\[(97m\e\\[41|97;41|41;97)m' "$1" "chosen on the title"; }

# The game runs under a small shell that stays behind it and tells its exit
# code. Wine's first start in a fresh prefix takes a while. The terminal is
# left as it is, as a player would have it.
start() {
  t new-session -d -s game -x 80 -y 25 "trap true INT;
    env TERM=xterm-256color wine '$exe'; echo EXITED-\$?; sleep 60"
  wait_for "NEW GAME" 120
  wait_for "EXIT"
  [ "$(pane '#{cursor_flag}')" = 0 ] || fail "the cursor is shown on the title"
  sleep 1
}
# A deck menu's button that is lit: blue on white.
wait_lit() { wait_coloured $'\e\\[([0-9]+;)*107(;[0-9]+)*m' "$1" "lit"; }
ended_with() {  # code
  local until=$((SECONDS + 10))
  until screen | grep -q EXITED-; do
    ((SECONDS <= until)) || fail "the game did not end"
    sleep 0.1
  done
  screen | grep -q "EXITED-$1" || fail "the game did not end with code $1"
  [ "$(pane '#{cursor_flag}')" = 1 ] || fail "the cursor was left hidden"
}

# The title's menu comes up in its colours; EXIT ends the program with code 0.
start
t capture-pane -e -p -t game | grep -qE $'\e\\[[0-9;]*m[^\e]*NEW GAME' ||
  fail "the title's menu is not drawn in colour"
wait_chosen "NEW GAME"
arrow Up
wait_chosen EXIT
key Enter
ended_with 0
t kill-session -t game

# NEW GAME reaches the ship map. Escape, which wine's console sends with no
# character, leaves Navigate Mothership and then the deck's menu; an arrow
# walks to the next room.
start
key Enter
wait_for "DAY:    1"
wait_for "FUEL: 150,000"
wait_for " NAVIGATION:"
key Enter
settled_on "Navigate Mothership"
arrow Down
wait_lit "  Navigate Mothership"
key Enter
settled_on "Mothership's Destination"
key Escape
wait_gone "Mothership's Destination"
settled_on "Navigate Mothership"
key Escape
wait_for " NAVIGATION:"
arrow Right
wait_for " RESEARCH:"

# Ctrl+C ends the program at once and leaves the console as it was.
key C-c
ended_with 58
echo "PASS: the Windows build under wine: title, EXIT, ship map, Escape, Ctrl+C"
