#!/usr/bin/env bash
# A job with the real window: start, open an example, analyse, start a second copy, change an option,
# analyse again, save under a name, leave. Arguments: the folder of the built program, and optionally
# "no-browser". The manual then opens in a window of the program, which must not take the keyboard.
. "$(dirname "$0")/desktop.sh"

start_program
open_example five-span-with-cantilever
test "$(grep -c '' "$program/Joint.txt")" -eq 6 || fail "the joints were not unpacked"

trabeon &
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

if [ "$browser" = no-browser ]; then
    key F1
    until_true active "$manual"
    key alt+F4
    until_true active "$name"
fi

save_as job type_text "$work/job.TB"
grep -q '^Final ' "$work/job.TB" || fail "the saved project has no table"

leave
test ! -e "$program/Joint.txt" || fail "the working files were left behind"
test -e "$program/BeamDim.txt" || fail "the beam dimensions are gone"
echo "The job was done."
