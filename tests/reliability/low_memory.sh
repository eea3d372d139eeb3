#!/usr/bin/env bash
# Runs each program with more and more memory, from what the loader needs to what the job needs. The
# program must say that memory has run out, or do the whole job. The argument is a build folder.
set -euo pipefail

build=$(cd "$1" && pwd)
example=$(cd "$(dirname "$0")/../../examples" && pwd)/five-span-with-cantilever.TB
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=offscreen
fail() { echo "FAILED: $*" >&2; exit 1; }

grow() {  # arguments: the output file, the least memory in KiB, the command
    local made=$1 room=$2 reported=0 status=0 whole
    shift 2
    cp "$example" "$work/Example.TB"  # window_job opens it and saves changes to it
    "$@" > /dev/null 2>&1 || fail "$1 does not work"
    whole=$(stat -c %s "$made")
    while :; do
        rm -f "$made"
        cp "$example" "$work/Example.TB"
        status=0
        (ulimit -v "$room" && exec "$@") > "$work/said" 2>&1 || status=$?
        [ $status -ne 0 ] || break
        if [ $status -eq 1 ] && tail -n 1 "$work/said" | grep -q "^There is not enough memory to go on\. "; then
            reported=$((reported + 1))
        elif [ $status -ne 127 ]; then  # the exit code of the loader
            fail "$1 with $room KiB ends with $status: $(cat "$work/said")"
        fi
        room=$((room + room / 40))
    done
    [ "$(stat -c %s "$made")" -eq "$whole" ] || fail "$1 with $room KiB leaves something out"
    [ $reported -gt 0 ] || fail "$1 was never short of memory"
    echo "${1##*/}: short of memory at $reported sizes, done with $room KiB"
}

"$build/batch/trabeon-batch" unpack "$example" "$work/beam"
grow "$work/beam/BM.txt" 3000 "$build/batch/trabeon-batch" analyse "$work/beam" --divisions 10000
grow "$work/beam.docx" 60000 "$build/output/trabeon-report" "$example" --out "$work/beam.docx"
grow "$work/DResult.txt" 60000 "$build/tests/reliability/window_job" "$work"
