# Functions for the scripts beside it: a copy of the program, a screen (Xvfb, openbox), keys and clicks.
# Arguments: the folder of the built program, and optionally "no-browser".
set -euo pipefail

built=$1 browser=${2:-}
manual="Trabeon: Contents and Index"
work=$(mktemp -d)
program=$work/program
touch "$work/errors"
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*" >&2
    cat "$work/errors" >&2
    exit 1
}
# Waits until a command succeeds.
until_true() {
    for _ in $(seq 600); do "$@" >/dev/null 2>&1 && return 0; sleep 0.05; done
    fail "waited in vain for: $*"
}
key() { xdotool key --clearmodifiers --delay 40 "$@"; }
type_text() { xdotool type --clearmodifiers --delay 8 "$1"; }
# Clicks at a place in the active window, in pixels from its inner corner.
click() { xdotool mousemove --window "$(xdotool getactivewindow)" "$1" "$2" click 1; }
window() { xdotool search --onlyvisible --name "^$1\$"; }
active() { xdotool getactivewindow getwindowname | grep -qx "$1"; }
rows_of_first_span() { [ "$(grep -c '^' <(sed -n '2,/^Span 2 /p' "$program/BM.txt"))" -eq "$1" ]; }

# Returns when the window manager is ready. An earlier window may never get the keyboard.
start_screen() {
    mkfifo "$work/display" "$work/managed"
    Xvfb -noreset -displayfd 3 -screen 0 1366x768x24 3> "$work/display" >/dev/null 2>&1 &
    read -r DISPLAY < "$work/display"
    export DISPLAY=:$DISPLAY
    openbox --startup "sh -c 'echo > $work/managed'" >/dev/null 2>&1 &
    read -r < "$work/managed"
}

# Runs the program. Call it in the background. The program finds only the browser below.
trabeon() { PATH=$work/bin exec "$program/trabeon" 2>> "$work/errors"; }

# The browser only records its argument. With "no-browser" there is no browser.
start_program() {
    cp -r "$built" "$program"
    rm -f "$program"/*.lock  # of a program that may run in the build folder
    mkdir "$work/bin"
    if [ "$browser" != no-browser ]; then
        printf '#!/bin/sh\necho "$1" >> "%s/opened"\n' "$work" > "$work/bin/xdg-open"
        chmod +x "$work/bin/xdg-open"
    fi
    export ASAN_OPTIONS=detect_leaks=0  # the X11 platform leaks; tests offscreen check for leaks
    export XDG_RUNTIME_DIR=$work HOME=$work QT_QPA_PLATFORM=xcb
    start_screen

    trabeon &
    run=$!
    until_true window "Trabeon - Untitled"
    if [ "$browser" = no-browser ]; then until_true window "$manual"
    else until_true grep -q 'Contents%20and%20Index.htm' "$work/opened"; fi
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

asked_after() { active "Save Trabeon File" && [ "$(xdotool getactivewindow)" != "$1" ]; }
save_as() {  # arguments: the name, and the command that types the path
    key alt+f a
    until_true active "Save Trabeon File"
    key ctrl+a
    "${@:2}"
    local dialog=$(xdotool getactivewindow)
    key Return
    until_true asked_after "$dialog"
    key y  # the file does not exist yet: create it
    until_true active "Trabeon - ${work#/}/$1.TB"
}

leave() {
    key alt+f x
    wait "$run" || fail "the program ended with $?"
    if grep -v 'propagateSizeHints\|XDG_RUNTIME_DIR' "$work/errors" | grep .; then fail "the program complained"; fi
}
