#!/usr/bin/env bash
# A line saved as a DXF file and opened again from it; nothing is saved of nothing.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
utilities=184 file=27
select_last="138 238" first_file="290 203" open_button="610 541"

letters_in_entry() {
    import -window root -crop 184x22+824+56 +repage png:- |
        convert png:- -colorspace Gray -threshold 60% -format '%[fx:round(mean*w*h)]' info:
}
entry_speaks() { [ "$(letters_in_entry)" -gt 40 ]; }

open_display
start_program
press 265 128
point 300 128
press 465 128
press 600 600 3
until_true pixels_are $drawing 201

menu $utilities Up 1
until_true entry_speaks
window_called "Save DXF" && fail "a DXF file was offered without a selection"

press $select_last
menu $utilities Up 1
until_true window_called "Save DXF"
xdotool key ctrl+a
xdotool type plan
xdotool key Return
until_true no_window_called "Save DXF"
[ -s "$OUT_DIR/plan.dxf" ] || fail "no DXF file was written"
until_true pixels_are $drawing 201

# The line was never saved as a drawing, so that is offered first.
menu $utilities Up 2
until_true window_called "Save Changes"
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/save_changes.png"
xdotool key Tab Tab Tab Tab Tab Return
until_true window_called "Open DXF"
press $first_file
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/open_dxf.png"
press $open_button
until_true no_window_called "Open DXF"
until_true title_has plan.mtd
until_true pixels_over $drawing 300
[ "$(extent $drawing | sed 's/.*x//')" = 1 ] || fail "the opened line is not level"
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/opened.png"
