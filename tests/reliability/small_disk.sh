#!/usr/bin/env bash
# The jobs on a real file system of 256 KiB that has less and less room left. The first argument is a
# build folder. Ends with 77 where no file system may be mounted.
set -euo pipefail

build=$(cd "$1" && pwd)
if [ "${2:-}" != mounted ]; then
    unshare -rm mount -t tmpfs tmpfs /mnt 2>/dev/null || { echo "No file system may be mounted here."; exit 77; }
    exec unshare -rm "$0" "$build" mounted
fi
examples=$(cd "$(dirname "$0")/../../examples" && pwd)
batch=$build/batch/trabeon-batch
work=$(mktemp -d)
disk=$work/disk
trap 'umount "$disk"; rm -rf "$work"' EXIT
mkdir "$disk" "$work/before"
mount -t tmpfs -o size=256k tmpfs "$disk"
export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0

fail() {
    echo "FAILED with $room KiB left, $*" >&2
    cat "$work/said" >&2
    exit 1
}
# An older project with its results, then ballast until so many KiB are left.
prepare() {
    rm -rf "${disk:?}"/*
    "$batch" unpack "$examples/two-span-floor-beam.TB" "$disk"
    "$batch" analyse "$disk"
    cp "$examples/two-span-floor-beam.TB" "$disk/Job.TB"
    cp "$examples/two-span-floor-beam.TB" "$disk/Example.TB"
    cp "$disk"/* "$work/before"
    local free
    free=$(df --output=avail -k "$disk" | tail -n 1)
    [ "$free" -le "$room" ] || head -c $(((free - room) * 1024)) /dev/zero > "$disk/ballast"
}
told() { grep -q "\"$disk.*\(could not be written (No space left on device)\|cannot write there\)" "$work/said"; }

refused=0 done=0
for room in 0 4 8 12 16 20 24 32 48 64 96; do
    for command in "analyse $disk --divisions 400" "design $disk" "tables $disk" \
        "pack $disk $disk/Job.TB --title Another" "unpack $examples/five-span-with-cantilever.TB $disk" \
        "run $examples/five-span-with-cantilever.TB --out $disk --divisions 200"; do
        prepare
        # shellcheck disable=SC2086
        if "$batch" $command > "$work/said" 2>&1; then
            done=$((done + 1))
            continue
        fi
        told || fail "$command says nothing of it"
        refused=$((refused + 1))
        [[ $command == run* ]] && continue # it unpacks first, and may get so far
        for file in "$work/before"/*; do
            cmp -s "$file" "$disk/${file##*/}" || fail "$command changed ${file##*/}"
        done
    done
    prepare
    "$build/tests/reliability/window_job" "$disk" > "$work/said" 2>"$work/errors" || told || fail "the window ends with $?"
    if grep -q '^flag 1' "$work/said"; then told || fail "the window says nothing of it"; fi
    "$batch" unpack "$disk/Job.TB" "$work/opened" || fail "Job.TB is not whole"
done
echo "A disk with less and less room: $refused commands were refused, $done were done."
