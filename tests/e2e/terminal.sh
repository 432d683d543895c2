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
scratch=$(mktemp -d)
t() { tmux -L "$sock" -f /dev/null "$@"; }
trap 't kill-server >/dev/null 2>&1; rm -rf "$scratch"' EXIT
# A session that lives as long as the test keeps tmux's server up between
# games: a server that has just lost its last session is on its way out, and
# a new session asked of it then fails ("server exited unexpectedly").
t new-session -d -s keeper "sleep 100000"
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
wait_for_either() {  # text text
  local until=$((SECONDS + 5))
  while ((SECONDS < until)); do
    screen | grep -qF -e "$1" -e "$2" && return 0
    sleep 0.05
  done
  fail "neither \"$1\" nor \"$2\" came on the screen"
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
resize() { t resize-window -t game -x "$1" -y "$2"; }
game_pid() { pgrep -P "$(pane '#{pane_pid}')" | head -n 1; }

# A screen that has stood still waits for the key itself, not on a timer:
# over two idle seconds the game wakes at most twice, and a key is still
# answered at once.
sleeps_when_still() {  # what is on the screen
  local game before after
  game=$(game_pid)
  sleep 1
  before=$(awk '/^voluntary_ctxt_switches/ { print $2 }' "/proc/$game/status")
  sleep 2
  after=$(awk '/^voluntary_ctxt_switches/ { print $2 }' "/proc/$game/status")
  ((after - before <= 2)) || fail "$1: the still screen woke $((after - before)) times in 2 s"
}

# The game runs under a small shell that stays behind it, so that what the
# game leaves of the terminal can be read: its exit code, whether the
# terminal modes are as before, the cursor and the main screen. The curses
# library keeps its terminal description until the process ends; that is
# not a leak worth a report on the terminal.
start() {  # [terminal type]
  t new-session -d -s game -x 80 -y 25 -c "${workdir:-$PWD}" "trap true INT; ulimit -c 0; before=\$(stty -g);
    env TERM=${1:-tmux-256color} ASAN_OPTIONS=detect_leaks=0 '$bin'; code=\$?;
    [ \"\$before\" = \"\$(stty -g)\" ] && echo MODES-RESTORED; echo EXITED-\$code; sleep 60"
}

ended() {  # seconds: true once the game has ended
  local until=$((SECONDS + $1))
  until screen | grep -q EXITED-; do
    ((SECONDS <= until)) || return 1
    sleep 0.05
  done
}
restored() {  # [what was done]
  screen | grep -q MODES-RESTORED || fail "${1:-}: the terminal's modes (echo, line editing, flow control) were not restored"
  [ "$(pane '#{alternate_on}')" = 0 ] || fail "${1:-}: the terminal was left on the game's screen"
  [ "$(pane '#{cursor_flag}')" = 1 ] || fail "${1:-}: the cursor was left hidden"
}

# The look of the cell where `text` starts on screen row `row` (0 to 24),
# as the terminal holds it: colours as terminal numbers, then attributes.
look_at() {  # row text
  local line prefix
  line=$(t capture-pane -e -p -t game | sed -n "$(($1 + 1))p")
  prefix=${line%%"$2"*}
  [ "$prefix" != "$line" ] || fail "\"$2\" is not on row $1"
  local fg=- bg=- bold=0 dim=0 under=0 rev=0 extended=
  while read -r p; do
    if [ -n "$extended" ]; then  # 38;5;n and 48;5;n
      [ "$p" = 5 ] && continue
      [ "$extended" = fg ] && fg=$p || bg=$p
      extended=
      continue
    fi
    case $p in
      0 | "") fg=- bg=- bold=0 dim=0 under=0 rev=0 ;;
      1) bold=1 ;; 2) dim=1 ;; 4) under=1 ;; 7) rev=1 ;;
      22) bold=0 dim=0 ;; 24) under=0 ;; 27) rev=0 ;;
      3[0-7]) fg=${p#3} ;; 39) fg=- ;; 38) extended=fg ;;
      4[0-7]) bg=${p#4} ;; 49) bg=- ;; 48) extended=bg ;;
      9[0-7]) fg=$((${p#9} + 8)) ;; 10[0-7]) bg=$((${p#10} + 8)) ;;
    esac
  done < <(grep -oE $'\e\\[[0-9;]*m' <<<"$prefix" | sed -E $'s/^\e\\[//; s/m$//; s/;/\\n/g')
  echo "$fg $bg bold=$bold dim=$dim underline=$under reverse=$rev"
}

# What a player sees of the screen, cell by cell: the glyph, its colours and
# attributes; a blank shows only its ground. tmux reports the same screen in
# different words depending on how it was drawn (and carries colours from
# one row to the next); this is the same for both.
visible() {
  t capture-pane -e -N -p -t game | LC_ALL=C awk '
    function reset() { fg = 7; bg = 0; bold = 0; dim = 0; ul = 0; rev = 0 }
    function sgr(list,   n, p, i) {
      n = split(list, p, ";")
      if (n == 0) reset()
      for (i = 1; i <= n; ++i) {
        if (p[i] == "" || p[i] == 0) reset()
        else if (p[i] == 1) bold = 1
        else if (p[i] == 2) dim = 1
        else if (p[i] == 4) ul = 1
        else if (p[i] == 7) rev = 1
        else if (p[i] == 22) { bold = 0; dim = 0 }
        else if (p[i] == 24) ul = 0
        else if (p[i] == 27) rev = 0
        else if (p[i] == 39) fg = 7
        else if (p[i] == 49) bg = 0
        else if (p[i] == 38 || p[i] == 48) { if (p[i] == 38) fg = "x" p[i + 2]; else bg = "x" p[i + 2]; i += 2 }
        else if (p[i] >= 30 && p[i] <= 37) fg = p[i] - 30
        else if (p[i] >= 40 && p[i] <= 47) bg = p[i] - 40
        else if (p[i] >= 90 && p[i] <= 97) fg = p[i] - 82
        else if (p[i] >= 100 && p[i] <= 107) bg = p[i] - 92
      }
    }
    BEGIN { reset() }
    {
      out = ""; kept = ""; line = $0
      while (length(line) > 0) {
        if (match(line, /^\033\[[0-9;]*m/)) {
          sgr(substr(line, 3, RLENGTH - 3)); line = substr(line, RLENGTH + 1); continue
        }
        c = substr(line, 1, 1); line = substr(line, 2)
        cell = "|" bg "/" rev "/" ul
        if (c != " ") cell = cell "/" c "/" fg "/" bold "/" dim
        out = out cell
        if (cell != "|0/0/0") kept = out
      }
      print NR ":" kept
    }'
}

# The screen must be what a clean redraw paints: a change of size while the
# game stands still repaints the whole of it from the game's model.
same_after_redraw() {  # what was done
  sleep 0.4
  local before after
  before=$(visible)
  resize 100 30
  sleep 0.3
  resize 80 25
  sleep 0.5
  after=$(visible)
  screen | grep -q "needs a terminal" && fail "$1: the size notice stayed"
  [ "$before" = "$after" ] || {
    diff <(tr '|' '\n' <<<"$before") <(tr '|' '\n' <<<"$after") | head -20
    fail "$1: the screen was not repainted"
  }
}

# A terminal the game cannot drive: one line on standard error, exit code 1,
# nothing written to standard output.
cat >"$scratch/refusals.sh" <<EOF
cd "$scratch"
try() { name=\$1; shift; timeout 5 "\$@" 2>"\$name.err"; echo \$? >"\$name.code"; }
try unset env -u TERM '$bin'
try empty env TERM= '$bin'
try dumb env TERM=dumb '$bin'
try unknown env TERM=no-such-terminal '$bin'
try file sh -c "exec '$bin' >file.out"
try pipe bash -c "set -o pipefail; '$bin' | cat >pipe.out"
echo REFUSALS-DONE
sleep 60
EOF
t new-session -d -s game -x 80 -y 25 "env ASAN_OPTIONS=detect_leaks=0 TERM=tmux-256color bash '$scratch/refusals.sh'"
wait_for REFUSALS-DONE 30
refused() {  # case, line
  [ "$(cat "$scratch/$1.code")" = 1 ] || fail "$1: exit code $(cat "$scratch/$1.code"), not 1"
  [ "$(cat "$scratch/$1.err")" = "skarmada: $2" ] || fail "$1: said \"$(cat "$scratch/$1.err")\""
}
refused unset "TERM is not set"
refused empty "TERM is not set"
refused dumb "the terminal type 'dumb' cannot position the cursor"
refused unknown "the terminal type 'no-such-terminal' is not known"
refused file "standard output is not a terminal"
refused pipe "standard output is not a terminal"
[ ! -s "$scratch/file.out" ] && [ ! -s "$scratch/pipe.out" ] || fail "escape codes went to a file"
[ "$(screen | grep -c .)" = 1 ] || fail "the refused games wrote to the terminal"
t kill-session -t game

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

# Without colours the selected title entry and the selected room stand out
# in reverse video, and the others do not.
start vt100
wait_for "NEW GAME"
[[ $(look_at 15 "NEW GAME") == *reverse=1 ]] || fail "vt100: NEW GAME is not in reverse video"
[[ $(look_at 17 "LOAD  GAME") == *reverse=0 ]] || fail "vt100: LOAD GAME is in reverse video"
key Down
[[ $(look_at 15 "NEW GAME") == *reverse=0 ]] || fail "vt100: NEW GAME stayed in reverse video"
[[ $(look_at 17 "LOAD  GAME") == *reverse=1 ]] || fail "vt100: the selection did not move"
keys Up Enter
wait_for "DAY:    1"
[[ $(look_at 3 "NAV") == *reverse=1 ]] || fail "vt100: the selected room does not stand out"
[[ $(look_at 2 "LIVING") == *reverse=0 ]] || fail "vt100: a room at rest looks selected"
key C-c
ended 1 || fail "vt100: Ctrl+C did not end the game"
restored vt100
t kill-session -t game

# With 8 colours the ship map's help text (black on dark grey) stays legible.
for type in xterm linux screen; do
  start $type
  wait_for "NEW GAME"
  key Enter
  wait_for "This is the bridge"
  read -r fg bg _ < <(look_at 20 "This is the bridge")
  [ "$fg" != "$bg" ] || fail "$type: the help text is drawn in the colour of its ground ($fg)"
  t kill-session -t game
done

# NEW GAME reaches the ship map.
start
wait_for "NEW GAME"
key Enter
wait_for "DAY:    1"
wait_for "FUEL: 150,000"
screen | sed -n 3,6p | grep -q "NAV" || fail "NAV COM room is not on the map"
wait_for " NAVIGATION:"
sleeps_when_still "the ship map"
key Right
wait_for " RESEARCH:" 1
key Left
wait_for " NAVIGATION:" 1

# A terminal too small shows only a notice, whole at any width from 20
# columns; keys typed behind it are lost, and at 80x25 again the game is
# where it stood. The game waits without a timer here, and still sees the
# changes of size.
sleep 0.7
shown=$(visible)
notice() {  # columns rows: the notice, alone on the terminal
  local text="Skarmada needs a terminal of 80x25; this one is $1x$2."
  local until=$((SECONDS + 3)) words
  while ((SECONDS < until)); do
    words=$(screen | sed 's/^ *//; s/ *$//' | grep . | tr '\n' ' ')
    [ "$words" = "$text " ] && return 0
    sleep 0.05
  done
  fail "at $1x$2 the notice is not whole and alone"
}
resize 79 24
notice 79 24
keys Right Enter
resize 20 5
notice 20 5
keys Down Enter Escape
resize 80 25
wait_for " NAVIGATION:" 2
sleep 0.5
[ "$(visible)" = "$shown" ] || fail "keys typed behind the notice changed the ship map"
resize 40 12
notice 40 12
resize 80 25
wait_for " NAVIGATION:" 2

# Flow control is off while the game runs: Ctrl+S does not freeze the screen.
stty -F "$(pane '#{pane_tty}')" -a | grep -qw -- -ixon || fail "flow control is on"
key C-s
key Right
wait_for " RESEARCH:" 2
key C-q
t capture-pane -e -p -t game | sed -n 8p | grep -qE $'\e\\[(1;)?(33|93|38;5;11)m[^\e]*SCIENTIFIC' ||
  fail "the research room is not lit yellow"

# A change of size while a room flashes: the living quarters only flash (a
# deck of their own would open behind the flash), and the ship map must come
# back whole, notice gone.
key Up
wait_for " LIVING:" 2
t send-keys -t game Enter
sleep 0.1
resize 60 20
sleep 0.2
resize 80 25
sleep 0.5
same_after_redraw "a change of size during a room's flash"
screen | grep -qF " LIVING:" || key Escape
wait_for " LIVING:" 2
key Down
wait_for " RESEARCH:" 2

# Bytes that are no key (Latin-1, broken UTF-8, 8-bit Alt), one at a time
# 5 ms apart, are ignored: the game goes on answering keys.
bytes=(e9 ff 80 e1)
for ((i = 0; i < 1100; ++i)); do
  printf 'send-keys -t game -H %s\nrun-shell -d 0.005\n' "${bytes[i % 4]}"
done >"$scratch/bytes.tmux"
t source-file "$scratch/bytes.tmux"
screen | grep -q EXITED- && fail "bytes that are no key ended the game"
key Left
wait_for " NAVIGATION:" 2
key Right
wait_for " RESEARCH:" 2

# End a day in the Library: the map comes back on day 2, Library selected.
key Down
wait_for " LIBRARY:"
end_day
wait_for "DAY:    2"
wait_for " LIBRARY:"

# The same while NAV COM flashes: the deck behind it comes whole.
keys Up Left
t send-keys -t game Enter
sleep 0.1
resize 60 20
sleep 0.2
resize 80 25
wait_for "Navigate Mothership"
same_after_redraw "a change of size during the flash before a deck"

# Alt with a letter comes as Escape and the letter: it does not leave the deck.
key M-x
sleep 0.3
wait_for "Navigate Mothership" 1

# Fly to sector I, fire the Ion Cannon once, end the day, read the report.
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
# A storm of changes of size while the feed plays, from tiny to large.
sizes=(20x5 132x43 60x20 100x30 79x25 80x24 40x12 81x26)
for ((i = 0; i < 200; ++i)); do
  size=${sizes[i % ${#sizes[@]}]}
  resize "${size%x*}" "${size#*x}"
  sleep 0.01
done
resize 80 25
wait_for "<<FIRE COMPLETED>>" 15
same_after_redraw "a storm of changes of size during the Ion Cannon's feed"
key x
wait_for "FUEL: 90,000"
keys Escape Escape Right Down
end_day
wait_for "Good Morning captain, I have 1 message for you."
wait_for "A SubSector of an unknown land type in Sector I has been leveled by"
wait_for "your Ion Cannon. Whatever was there before isn't there now."
key Escape
wait_for "DAY:    4"

# Ctrl+C ends the program at once, behind the notice of a terminal too
# small too, and leaves the terminal as it was.
resize 30 10
notice 30 10
key C-c
ended 1 || fail "Ctrl+C did not end the game within a second"
resize 80 25
restored "Ctrl+C"
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
# Each key waits for what it shows rather than for a fixed time (but Down,
# which only moves the menu's colours).
send() { t send-keys -t game "$1"; }
food() { screen | grep -o 'FOOD: *[0-9,]*'; }
for day in $(seq 2 31); do
  send Enter
  wait_for "End Turn Factor 6"
  fed=$(food)
  send d
  until=$((SECONDS + 5))
  until [ "$(food)" != "$fed" ]; do
    ((SECONDS < until)) || fail "the Library's food key did nothing"
    sleep 0.02
  done
  key Down
  send Enter
  wait_for "End Day?"
  send y
  morning="DAY: $(printf '%4d' "$day")"
  wait_for_either "$morning" "Good Morning"
  screen | grep -qF "Good Morning" && send Escape
  wait_for "$morning"
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
key Enter
wait_for "MERCENARY    MARKET"
sleeps_when_still "the Super Freighter"
t kill-session -t game

# Every signal that ends the process, as when the system shuts down or a
# limit is reached, also leaves the terminal as it was.
for signal in TERM HUP USR1 USR2 ALRM PIPE XCPU XFSZ VTALRM PROF; do
  start
  wait_for "NEW GAME"
  game=$(game_pid)
  [ -n "$game" ] || fail "the game's process was not found"
  kill -s "$signal" "$game"
  ended 2 || fail "SIG$signal did not end the game"
  restored "SIG$signal"
  t kill-session -t game
done

# Ctrl+Z gives the shell its terminal back; fg brings the game back whole.
t new-session -d -s game -x 80 -y 25 "env PS1='$ ' bash --norc --noprofile -i"
key "stty -g >'$scratch/modes'; env TERM=tmux-256color ASAN_OPTIONS=detect_leaks=0 '$bin'" Enter
wait_for "NEW GAME"
key Enter
wait_for " NAVIGATION:"
sleep 0.3
shown=$(visible)
key C-z
wait_for "Stopped"
[ "$(pane '#{alternate_on}')" = 0 ] || fail "Ctrl+Z left the terminal on the game's screen"
[ "$(pane '#{cursor_flag}')" = 1 ] || fail "Ctrl+Z left the cursor hidden"
key "[ \"\$(stty -g)\" = \"\$(cat '$scratch/modes')\" ] && echo MODES-BACK" Enter
wait_for "MODES-BACK" 2
key "fg" Enter
wait_for " NAVIGATION:"
sleep 0.5
[ "$(visible)" = "$shown" ] || fail "fg did not repaint the ship map"
key Right
wait_for " RESEARCH:" 2
t kill-session -t game

# The hold: artifacts named from artifacts.txt in the working directory, a
# high byte shown as its glyph; then the Library's hidden fuel key.
workdir="$scratch/work"
mkdir -p "$workdir"
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
