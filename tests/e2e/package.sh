#!/usr/bin/env bash
# The Debian package as a player gets it: cpack makes it from a build folder,
# dpkg installs it into a scratch root, and the installed game is played in
# tmux at 80x25 up to its title menu and out through EXIT.
# Usage: package.sh path/to/build-folder
set -u
build=$(realpath "$1")
for tool in cpack dpkg dpkg-deb tmux; do
  if ! command -v "$tool" >/dev/null 2>&1; then
    echo "SKIPPED: $tool is not installed, so the Debian package cannot be made and tried here"
    exit 77
  fi
done

scratch=$(mktemp -d)
sock="skarmada-package-$$"
t() { tmux -L "$sock" -f /dev/null "$@"; }
trap 't kill-server >/dev/null 2>&1; rm -rf "$scratch"' EXIT
fail() {
  echo "FAIL: $*"
  t capture-pane -p -t game 2>/dev/null | sed '1i --- screen ---'
  exit 1
}

# Make the package.
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$scratch/out" >"$scratch/cpack.log" 2>&1 ||
  { cat "$scratch/cpack.log"; fail "cpack did not make the package"; }
debs=("$scratch"/out/*.deb)
[ ${#debs[@]} = 1 ] && [ -f "${debs[0]}" ] || fail "cpack made ${#debs[@]} packages, not one"
deb=${debs[0]}

# Its metadata.
field() { dpkg-deb -f "$deb" "$1"; }
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
[ "$(field Package)" = skarmada ] || fail "package name is '$(field Package)'"
[ -n "$version" ] && [ "$(field Version)" = "$version" ] || fail "version '$(field Version)', project '$version'"
[ "$(field Architecture)" = "$(dpkg --print-architecture)" ] || fail "architecture is '$(field Architecture)'"
[ "$(field Section)" = games ] || fail "section is '$(field Section)', not games"
[ -n "$(field Maintainer)" ] || fail "no maintainer"
field Description | head -n 1 | grep -q "strategy game" || fail "description: $(field Description | head -n 1)"
for library in 'libncursesw[0-9]' 'libstdc\+\+[0-9]' 'libc6'; do
  field Depends | grep -qE "(^|, )$library" || fail "Depends ($(field Depends)) does not name $library"
done

# Install it with dpkg into an empty root. Its database starts empty, so the
# dependencies (the libraries of this machine) are taken as there.
root="$scratch/root"
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"
dpkg_root() { dpkg --root="$root" --log=/dev/null --force-not-root --force-depends "$@"; }
dpkg_root -i "$deb" >"$scratch/dpkg.log" 2>&1 || { cat "$scratch/dpkg.log"; fail "dpkg did not install the package"; }
dpkg_root -s skarmada | grep -qx "Status: install ok installed" || fail "dpkg does not list the package as installed"
game="$root/usr/games/skarmada"
manual="$root/usr/share/man/man6/skarmada.6.gz"
[ -x "$game" ] || fail "no game at /usr/games/skarmada; the package holds: $(dpkg-deb -c "$deb")"
[ -f "$root/usr/share/doc/skarmada/README.md" ] || fail "no README in /usr/share/doc/skarmada"
[ -f "$manual" ] || fail "no manual page at /usr/share/man/man6/skarmada.6.gz"
page=$(gzip -dc "$manual")
for text in '^\.TH SKARMADA 6 ' '^\.SH KEYS' 'artifacts\.txt' '80 columns by 25 rows'; do
  grep -qE "$text" <<<"$page" || fail "the manual page lacks /$text/"
done

# The installed game, started with arguments (which it ignores) from a folder
# of its own with a bare environment, shows its title menu; EXIT ends it with 0.
mkdir "$scratch/play"
t new-session -d -s game -x 80 -y 25 -c "$scratch/play" \
  "env -i TERM=xterm-256color LANG=C.UTF-8 ASAN_OPTIONS=detect_leaks=0 '$game' --help -v extra;
   echo EXITED-\$?; sleep 60"
screen() { t capture-pane -p -t game; }
until=$((SECONDS + 5))
until screen | grep -qF "NEW GAME"; do
  ((SECONDS < until)) || fail "\"NEW GAME\" never came on the screen"
  sleep 0.05
done
screen | grep -qF "EXIT" || fail "EXIT is not on the title menu"
t send-keys -t game Up
sleep 0.15
t send-keys -t game Enter
until=$((SECONDS + 2))
until screen | grep -q "EXITED-"; do
  ((SECONDS < until)) || fail "EXIT did not end the installed game"
  sleep 0.05
done
screen | grep -q "EXITED-0" || fail "EXIT did not end the installed game with code 0"

# Removing the package takes all its files away again.
dpkg_root --purge skarmada >"$scratch/dpkg.log" 2>&1 || { cat "$scratch/dpkg.log"; fail "dpkg did not remove the package"; }
left=$(find "$root/usr" -type f 2>/dev/null)
[ -z "$left" ] || fail "files left after removal: $left"
echo "PASS: the Debian package installs, runs to the title menu and removes cleanly"
