#!/usr/bin/env bash
# A day in the drawing office: the house of the samples, drawn with every function by pointer and keys, saved, opened
# again, exported and printed. The window is so large that a pixel is 4 units all along, as when it starts.
set -eu
here=$(dirname "$0")
. "$here/_window.sh"

source_dir=$here/../..
drawing="165 28 1029 772"
screen_size=2800x1700

open_display
cp "$source_dir"/data/libraries/*.mt? "$OUT_DIR/"
start_program
xdotool windowsize "$window" 2790 1670
sleep 0.5 # the program itself waits for the size to rest
python3 "$here/_by_hand.py" "$source_dir/data/samples/house.play" "$window" "$program" "$screen" "$source_dir" ||
    fail "the house was not drawn"

until_true test -s "$OUT_DIR/house.pdf"
bytes_of() { stat -c %s "$1"; }
[ "$(bytes_of "$OUT_DIR/house.mtd")" = "$(bytes_of "$source_dir/data/samples/house.mtd")" ] ||
    fail "the drawing has not the objects of the sample"
grep -q EOF "$OUT_DIR/house.dxf" || fail "the DXF file has no end"

# The picture of a whole window of common size.
xdotool windowsize "$window" 1410 826
sleep 0.5 # the program itself waits for the size to rest
press 27 391
until_true pixels_over $drawing 20000
point 700 800
import -window root -crop 1410x826+0+0 +repage "$OUT_DIR/house.png"
