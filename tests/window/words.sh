#!/usr/bin/env bash
# Asked for its version or its help, the program says so and ends, also where there is no display.
set -eu
. "$(dirname "$0")/_window.sh"
sample=$(realpath "$(dirname "$0")/../../data/samples/house.mtd")
unset DISPLAY WAYLAND_DISPLAY

says() {
    local word=$1 told
    shift
    told=$(timeout 20 "$MIRTANE" "$word" 2>"$OUT_DIR/complaints") || fail "$word ends with status $?: $(cat "$OUT_DIR/complaints")"
    grep -qE -- "$1" <<<"$told" || fail "$word says: $told"
    [ ! -s "$OUT_DIR/complaints" ] || fail "$word complains: $(cat "$OUT_DIR/complaints")"
}

says --version '^Mirtane 4\.00$'
says --help '^Usage: mirtane \[DRAWING\]'
says --help '--version'
"$MIRTANE" --help >/dev/full 2>/dev/null && fail "what can't be told is no success"

# A drawing may have such a name.
open_display
mkdir -p "$OUT_DIR/home"
cd "$OUT_DIR/home"
cp "$sample" ./--help.mtd
launch "$MIRTANE" ./--help.mtd
until_true title_has "--help.mtd"
