#!/usr/bin/env bash
# Runs commands on a real file system of 256 KiB with more and more free space. A command that fails must
# name the file and change no file. The first argument is a build folder. The exit code is 77 if the
# system does not allow a mount.
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

fail() {
    echo "FAILED with $room KiB left, $*" >&2
    cat "$work/said" >&2
    exit 1
}
# Writes an older project with its results, then fills the disk until $room KiB are free.
prepare() {
    rm -rf "${disk:?}"/*
    "$batch" unpack "$examples/two-span-floor-beam.TB" "$disk"
    "$batch" analyse "$disk"
    cp "$examples/two-span-floor-beam.TB" "$disk/Job.TB"
    cp "$disk"/* "$work/before"
    local free
    free=$(df --output=avail -k "$disk" | tail -n 1)
    [ "$free" -le "$room" ] || head -c $(((free - room) * 1024)) /dev/zero > "$disk/ballast"
}

refused=0 done=0
for room in 0 4 8 12 16 20 24 32 48 64 96; do
    for command in "analyse $disk --divisions 400" "pack $disk $disk/Job.TB --title Another" \
        "unpack $examples/five-span-with-cantilever.TB $disk"; do
        prepare
        # shellcheck disable=SC2086
        if "$batch" $command > "$work/said" 2>&1; then
            done=$((done + 1))
            continue
        fi
        grep -q "\"$disk.*could not be written (No space left on device)" "$work/said" ||
            fail "$command does not report the full disk"
        for file in "$work/before"/*; do
            cmp -s "$file" "$disk/${file##*/}" || fail "$command changed ${file##*/}"
        done
        refused=$((refused + 1))
    done
done
[ "$refused" -gt 0 ] && [ "$done" -gt 0 ] || fail "$refused commands were refused, $done were done"
echo "$refused commands were refused, $done were done."
