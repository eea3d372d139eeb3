#!/usr/bin/env bash
# Installs the program into a folder and moves the folder. Then the three programs must run with the
# libraries in the folder, the program must say that there is no display, and the desktop entry must find
# it. Arguments: cmake, and the build folder.
set -euo pipefail

work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }
until_true() {
    for _ in $(seq 600); do "$@" && return 0; sleep 0.05; done
    fail "waited in vain for: $*"
}

"$1" --install "$2" --prefix "$work/installed" > "$work/log" || fail "cmake --install"
here="$work/my beams/Trabeon"
mkdir "$work/my beams" && mv "$work/installed" "$here"
cd /
unset QT_PLUGIN_PATH LD_LIBRARY_PATH DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=offscreen HOME=$work XDG_RUNTIME_DIR=$work XDG_DATA_HOME=$work/data
export ASAN_OPTIONS=detect_leaks=0

example=$here/examples/five-span-with-cantilever.TB
"$here/trabeon-batch" run "$example" | grep '^Final ' > /dev/null || fail "trabeon-batch"
LD_DEBUG=libs "$here/trabeon-report" "$example" --out "$work/beam.docx" 2> "$work/libraries" ||
    fail "trabeon-report"
test -s "$work/beam.docx" || fail "no document"
LD_DEBUG=libs "$here/trabeon" 2>> "$work/libraries" &
until_true test -e "$here/Joint.txt"
kill $! && wait $! || true
grep -q "calling init: $here/plugins/platforms/libqoffscreen" "$work/libraries" ||
    fail "the plugins are not the folder's"
if grep 'calling init: .*lib\(Qt6\|QCustomPlot\|quazip\|q[a-z]*\.so\)' "$work/libraries" | grep -vF "$here/"; then
    fail "the libraries above are not the folder's"
fi

for display in "" :987; do
    status=0
    env -u QT_QPA_PLATFORM DISPLAY=$display "$here/trabeon" 2> "$work/said" || status=$?
    sentence="Trabeon needs a display .*${display:-neither DISPLAY nor WAYLAND_DISPLAY}.*; trabeon-batch .*"
    [ "$status" -eq 1 ] && grep -qx "$sentence" "$work/said" && [ "$(wc -l < "$work/said")" -eq 1 ] ||
        fail "without a display ($display) the program ends with $status: $(cat "$work/said")"
done

if command -v desktop-file-validate > /dev/null; then desktop-file-validate "$here/trabeon.desktop"; fi
"$here/add-to-menu"
entry=$XDG_DATA_HOME/applications/trabeon.desktop
test -e "$entry" -a -e "$XDG_DATA_HOME/icons/hicolor/256x256/apps/trabeon.png" || fail "no entry"

# A desktop replaces %k in the entry by the path of the entry.
printf '#!/bin/sh\necho started > "%s/started"\n' "$work" > "$here/trabeon"
line=$(sed -n 's/^Exec=//p' "$here/trabeon.desktop" | sed 's/\\\\/\\/g')
for file in "$here/trabeon.desktop" "$entry"; do
    rm -f "$work/started"
    eval "${line/\%k/\"\$file\"}"
    test -e "$work/started" || fail "$file starts nothing"
done
rm -r "$here"
test ! -e "$entry" || fail "the entry outlives the folder"
echo "The installed folder works."
