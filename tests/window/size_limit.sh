#!/usr/bin/env bash
# No file may grow beyond a limit: what is drawn can't be kept any more, and the program goes on.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 600"
line_button="27 69"
export XDG_STATE_HOME=$OUT_DIR/state

open_display
cp "$MIRTANE" "$OUT_DIR/mirtane"
cleanup+=("rm -f '$OUT_DIR/mirtane'")
launch bash -c 'ulimit -f 0; exec "$0"' "$OUT_DIR/mirtane"
place_window
press $line_button
press 211 97
press 633 481
press 600 550 3
until_true pixels_over $drawing 300
sleep 3 # the pointer rests
! program_ended || fail "the limit ended the program"
