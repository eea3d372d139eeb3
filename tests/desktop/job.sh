#!/usr/bin/env bash
# A job as a person does it: the real program in a real window (Xvfb, openbox), keys from outside.
# Start, open an example, analyse, change an option, analyse again, try a second copy, save under a
# name, leave. The first argument is the folder of the built program.
set -euo pipefail

built=$1
work=$(mktemp -d)
program=$work/program
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*" >&2
    cat "$work/errors" >&2
    exit 1
}
# Waits until a condition holds; everything here happens on its own time.
until_true() {
    for _ in $(seq 600); do "$@" >/dev/null 2>&1 && return 0; sleep 0.05; done
    fail "waited in vain for: $*"
}
key() { xdotool key --clearmodifiers --delay 40 "$@"; }
type_text() { xdotool type --clearmodifiers --delay 8 "$1"; }
window() { xdotool search --onlyvisible --name "^$1\$"; }
active() { xdotool getactivewindow getwindowname | grep -qx "$1"; }
rows_of_first_span() { [ "$(grep -c '^' <(sed -n '2,/^Span 2 /p' "$program/BM.txt"))" -eq "$1" ]; }

cp -r "$built" "$program"
rm -f "$program"/*.lock  # of a copy that may be running where it was built
mkdir "$work/bin"
printf '#!/bin/sh\necho "$1" >> "%s/opened"\n' "$work" > "$work/bin/xdg-open"
chmod +x "$work/bin/xdg-open"
export ASAN_OPTIONS=detect_leaks=0  # the X11 side of the platform leaks; leaks are looked for offscreen
export PATH=$work/bin:$PATH XDG_RUNTIME_DIR=$work HOME=$work QT_QPA_PLATFORM=xcb

exec 3<> "$work/display"
Xvfb -displayfd 3 -screen 0 1366x768x24 >/dev/null 2>&1 &
until_true test -s "$work/display"
export DISPLAY=:$(head -n 1 "$work/display")
openbox >/dev/null 2>&1 &
until_true xdotool get_desktop

"$program/trabeon" 2> "$work/errors" &
run=$!
until_true window "Trabeon - Untitled"
until_true grep -q 'Contents%20and%20Index.htm' "$work/opened"
until_true active "Trabeon - Untitled"

key ctrl+o
until_true active "Open Trabeon File"
type_text "$program/examples/five-span-with-cantilever.TB"
key Return
name="Trabeon - ${program#/}/examples/five-span-with-cantilever.TB"
until_true active "$name"
test "$(grep -c '' "$program/Joint.txt")" -eq 6 || fail "the joints were not unpacked"

key alt+s a
key space
until_true rows_of_first_span 13

"$program/trabeon" 2>> "$work/errors" &
second=$!
until_true active "Trabeon"
key Return
wait "$second"
until_true active "$name"
rows_of_first_span 13 || fail "the second copy touched the files"

key alt+d o
type_text "20"
key alt+o
key alt+s a
key space
until_true rows_of_first_span 23

key alt+f a
until_true active "Save Trabeon File"
key ctrl+a
type_text "$work/job.TB"
key Return
until_true active "Trabeon - ${work#/}/job.TB"
grep -q '^Final ' "$work/job.TB" || fail "the saved project has no table"

key alt+f x
wait "$run" || fail "the program ended with $?"
test ! -e "$program/Joint.txt" || fail "the working files were left behind"
test -e "$program/BeamDim.txt" || fail "the beam dimensions went"
if grep -v 'propagateSizeHints\|XDG_RUNTIME_DIR' "$work/errors" | grep .; then fail "the program complained"; fi
echo "The job was done."
