#!/usr/bin/env bash
# The name that is proposed is typed over, also where a window that stood in front gives way to the dialog.
set -eu
. "$(dirname "$0")/_window.sh"

line="27 69" select_window="64 238"

# dialog_over_edits KEYS NAME: all is selected, and the edits stand in front when the keys ask for the dialog.
dialog_over_edits() {
    press $select_window
    xdotool key ctrl+a
    press 780 660 3
    until_true window_called '^Edits'
    xdotool key "$1"
    until_true window_called "$2"
    sleep 0.3
}
draw_line() {
    press $line
    press 265 "$1"
    point 465 "$1"
    press 465 "$1"
    press 760 600 3
}

open_display
start_program
y=128
for name in house plan barn; do
    draw_line $((y += 40))
    dialog_over_edits ctrl+s "Save File"
    xdotool type $name
    xdotool key Return
    until_true no_window_called "Save File"
    [ -s "$OUT_DIR/$name.mtd" ] || fail "$name was typed behind the name that was proposed"
done

draw_line 300
dialog_over_edits ctrl+o "Save Changes"
xdotool type shed
xdotool key Return
until_true test -s "$OUT_DIR/shed.mtd"
[ "$(find "$OUT_DIR" -name '*.mtd' | wc -l)" = 4 ] || fail "something else was saved"
