# What a job at the window stands on; sourced by the scripts beside it. A copy of the program, a
# screen (Xvfb, openbox) and keys from outside. The first argument is the folder of the built program.
set -euo pipefail

built=$1
work=$(mktemp -d)
program=$work/program
touch "$work/errors"
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
# A place in the window in front, in pixels from its inner corner.
click() { xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click 1; }
window() { xdotool search --onlyvisible --name "^$1\$"; }
active() { xdotool getactivewindow getwindowname | grep -qx "$1"; }
rows_of_first_span() { [ "$(grep -c '^' <(sed -n '2,/^Span 2 /p' "$program/BM.txt"))" -eq "$1" ]; }

start_program() {
    cp -r "$built" "$program"
    rm -f "$program"/*.lock  # of a copy that may be running where it was built
    mkdir "$work/bin"
    printf '#!/bin/sh\necho "$1" >> "%s/opened"\n' "$work" > "$work/bin/xdg-open"
    chmod +x "$work/bin/xdg-open"
    export ASAN_OPTIONS=detect_leaks=0  # the X11 side of the platform leaks; leaks are looked for offscreen
    export PATH=$work/bin:$PATH XDG_RUNTIME_DIR=$work HOME=$work QT_QPA_PLATFORM=xcb

    exec 3<> "$work/display"
    Xvfb -noreset -displayfd 3 -screen 0 1366x768x24 >/dev/null 2>&1 &
    until_true test -s "$work/display"
    export DISPLAY=:$(head -n 1 "$work/display")
    openbox >/dev/null 2>&1 &
    until_true xdotool get_desktop

    "$program/trabeon" 2> "$work/errors" &
    run=$!
    until_true window "Trabeon - Untitled"
    until_true grep -q 'Contents%20and%20Index.htm' "$work/opened"
    until_true active "Trabeon - Untitled"
}

# Opens an example and analyses it.
open_example() {
    key ctrl+o
    until_true active "Open Trabeon File"
    type_text "$program/examples/$1.TB"
    key Return
    name="Trabeon - ${program#/}/examples/$1.TB"
    until_true active "$name"
    key alt+s a
    key space
    until_true rows_of_first_span 13
}

save_as() {  # what it is called, and how that is typed
    key alt+f a
    until_true active "Save Trabeon File"
    key ctrl+a
    "${@:2}"
    key Return
    until_true active "Trabeon - ${work#/}/$1.TB"
}

leave() {
    key alt+f x
    wait "$run" || fail "the program ended with $?"
    if grep -v 'propagateSizeHints\|XDG_RUNTIME_DIR' "$work/errors" | grep .; then fail "the program complained"; fi
}
