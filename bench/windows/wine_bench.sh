#!/usr/bin/env bash
# What the Windows build costs under wine, on wine's console in a terminal
# (tmux at 80x25):
#   ship map idle   CPU over 10 s of the game, and of wine's console and server
#                   that carry its calls; the game's wakes a second (voluntary
#                   context switches of all its threads); bytes written to
#                   the terminal
#   key to screen   a room move on the ship map: from the key to the first
#                   byte on the terminal, median and worst of 20; beside it
#                   the same for console_echo, which does nothing but draw a
#                   cell for a key, so that wine's own delay can be told apart
# Usage: bench/windows/wine_bench.sh build-windows   (WINEPREFIX as for wine)
set -eu
build=$(realpath "$1")
export WINEDEBUG=-all
idle_seconds=10
rounds=20

sock="skarmada-wine-bench-$$"
t() { tmux -L "$sock" -f /dev/null "$@"; }
out=$(mktemp)
trap 't kill-server >/dev/null 2>&1; rm -f "$out"' EXIT
wait_for() {
  local until=$((SECONDS + ${2:-30}))
  until t capture-pane -p -t game | grep -qF -- "$1"; do
    ((SECONDS < until)) || { echo "\"$1\" never came on the screen" >&2; exit 1; }
    sleep 0.1
  done
}
start() {  # program
  t kill-session -t game 2>/dev/null || true
  : >"$out"
  t new-session -d -s game -x 80 -y 25 "env TERM=xterm-256color wine '$1'"
  t pipe-pane -t game "cat >>'$out'"
}
now_ns() { date +%s%N; }
bytes() { stat -c %s "$out"; }
ms() { awk -v us="$1" 'BEGIN { printf "%.0f ms", us / 1000 }'; }
# CPU ticks of a process (user + system).
ticks() { awk '{ print $14 + $15 }' "/proc/$1/stat" 2>/dev/null || echo 0; }
# Times the threads of a process have waited and been woken.
wakes() { cat /proc/"$1"/task/*/status 2>/dev/null | awk '/^voluntary_ctxt_switches/ { n += $2 } END { print n + 0 }'; }
# A process of this wine prefix, by its name (its command line would also
# match tmux's server, which started it).
pid_of() {  # name
  for pid in $(pgrep -x "$1"); do
    if tr '\0' '\n' <"/proc/$pid/environ" 2>/dev/null |
      grep -qx "WINEPREFIX=${WINEPREFIX:-$HOME/.wine}"; then
      echo "$pid"
      return
    fi
  done
}
# Sends the keys in turn, one burst each, and prints the median and worst
# time to the first byte written.
key_to_screen() {  # keys...
  local times=() i before begin
  for ((i = 0; i < rounds; i++)); do
    sleep 0.3
    before=$(bytes)
    begin=$(now_ns)
    # shellcheck disable=SC2086
    t send-keys -t game ${@:$((i % $# + 1)):1}
    until (($(bytes) != before)); do
      (($(now_ns) - begin < 2000000000)) || break
    done
    times+=($((($(now_ns) - begin) / 1000)))
  done
  local sorted=($(printf '%s\n' "${times[@]}" | sort -n))
  echo "median $(ms "${sorted[rounds / 2]}"), worst $(ms "${sorted[rounds - 1]}") ($rounds keys)"
}

start "$build/skarmada.exe"
wait_for "NEW GAME" 120
sleep 1
t send-keys -t game Enter
wait_for "DAY:    1"
sleep 2

game=$(pid_of skarmada.exe)
console=$(pid_of conhost.exe)
server=$(pid_of 'wineserver(64)?')
hz=$(getconf CLK_TCK)
g0=$(ticks "$game") c0=$(ticks "$console") s0=$(ticks "$server") b0=$(bytes) w0=$(wakes "$game")
sleep "$idle_seconds"
g1=$(ticks "$game") c1=$(ticks "$console") s1=$(ticks "$server") b1=$(bytes) w1=$(wakes "$game")
percent() { awk -v d="$1" -v hz="$hz" -v s="$idle_seconds" 'BEGIN { printf "%.1f%%", 100 * d / hz / s }'; }
echo "ship map idle ${idle_seconds} s: game $(percent $((g1 - g0))) of one core," \
  "wine's console $(percent $((c1 - c0))), wine's server $(percent $((s1 - s0)))," \
  "the game woken $(awk -v w=$((w1 - w0)) -v s="$idle_seconds" 'BEGIN { printf "%.1f", w / s }') times a second," \
  "$((b1 - b0)) bytes written"

# Right and Left in turn between two rooms, each with a blank behind it that
# pushes the arrow through wine's console (which may hold an escape sequence
# back); the ship map ignores the blank.
echo "ship map room move, key to first byte: $(key_to_screen "Right Space" "Left Space")"

start "$build/console_echo.exe"
wait_for "READY" 60
sleep 1
echo "console_echo, the same keys: $(key_to_screen "Right Space" "Left Space")"
