#!/usr/bin/env bash
# No file may grow beyond a limit: what is drawn can't be kept any more. The program goes on, says so, and says it no
# more once it is kept; nobody touches it meanwhile.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 600"
line_button="27 69"
strip="170 650 500 14" # black as the drawing while nothing is said
export XDG_STATE_HOME=$OUT_DIR/state

is_kept() { compgen -G "$XDG_STATE_HOME/mirtane/work-*.mtd" >/dev/null; }

open_display
cp "$MIRTANE" "$OUT_DIR/mirtane"
cleanup+=("rm -f '$OUT_DIR/mirtane'")
launch bash -c 'ulimit -S -f 0; exec "$0"' "$OUT_DIR/mirtane"
place_window
pixels_are $strip 0 || fail "something is said though nothing is drawn"
press $line_button
press 211 97
press 633 481
press 600 550 3
until_true pixels_over $drawing 300
until_true pixels_over $strip 6000
! program_ended || fail "the limit ended the program"
! is_kept || fail "it is kept beyond the limit"

prlimit --pid "$program" --fsize=unlimited
until_true is_kept
until_true pixels_are $strip 0
