#!/usr/bin/env bash
# Runs a command (wine and a Windows program) on a console of its own: wine
# gives a program a console only on a terminal, so script makes one. The
# program's output goes to a file and is shown when it ends, since the
# console would mix it with its own drawing. Script's input is kept open:
# at its end script would send an end-of-file character into the console,
# which wine turns into a key.
# Usage: in_console.sh command [arguments...]
set -u
if ! command -v script >/dev/null 2>&1; then
  echo "SKIPPED: script (util-linux) is not installed"
  exit 77
fi
log=$(mktemp)
exec 3< <(exec sleep 600)
keeper=$!
script -qec "$(printf '%q ' "$@") >'$log' 2>&1" /dev/null <&3
code=$?
kill "$keeper" 2>/dev/null
cat "$log"
rm -f "$log"
exit "$code"
