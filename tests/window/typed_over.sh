#!/usr/bin/env bash
# What the program proposes is typed over, in the real window: the name of a file, the scale of a print, the row of a
# layer to be named. Once a form is up or a row clicked, it is done by keys alone.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
line="27 69" select_window="64 238"
file=27 layers=625
size_of() { stat -c %s "$OUT_DIR/$1"; }

# Opens the dialog and waits until it has the keys.
ask_for_name() {
    menu $file Down 3
    until_true window_called "Save File"
    sleep 0.3
}
confirm_name() {
    xdotool key Return
    until_true no_window_called "Save File"
}
draw_line() {
    press $line
    press "$1" "$2"
    point "$3" "$2"
    sleep 0.1
    press "$3" "$2"
    press 760 600 3
}

open_display
start_program
draw_line 265 128 465
ask_for_name
xdotool type house
confirm_name
until_true test -s "$OUT_DIR/house.mtd"
[ "$(find "$OUT_DIR" -name '*.mtd' | wc -l)" = 1 ] || fail "the name was not typed over"

# Another name, over the one that is proposed: the first drawing stays as it was.
before=$(size_of house.mtd)
draw_line 265 228 465
ask_for_name
xdotool type plan
confirm_name
until_true test -s "$OUT_DIR/plan.mtd"
[ "$(size_of house.mtd)" = "$before" ] || fail "the first drawing was written over"
[ "$(size_of plan.mtd)" -gt "$before" ] || fail "the second drawing has not its two lines"

# An arrow leads to the end of the proposed name, and what is typed there is added to it.
ask_for_name
xdotool key Right BackSpace BackSpace BackSpace BackSpace
xdotool type 2
confirm_name
until_true test -s "$OUT_DIR/plan2.mtd"
until_true title_has plan2.mtd

# Backspace takes all of it away; under no name nothing is saved.
ask_for_name
xdotool key BackSpace Return
sleep 0.3
window_called "Save File" || fail "something was saved under no name"
xdotool type barn
confirm_name
until_true test -s "$OUT_DIR/barn.mtd"

# The pointer, which puts the caret where it clicks, drops the selection.
ask_for_name
eval "$(xdotool getwindowgeometry --shell "$(xdotool search --all --onlyvisible --pid "$program" --name 'Save File')")"
press $((X + 300)) $((Y + 48))
sleep 0.2
xdotool key End BackSpace BackSpace BackSpace BackSpace
xdotool type s
confirm_name
until_true test -s "$OUT_DIR/barns.mtd"

# A layer: a click on its row, and the name is typed.
menu $layers Down 5
press 916 400
sleep 0.3
xdotool type walls
xdotool key Return
sleep 0.3
ask_for_name
confirm_name
grep -aq walls "$OUT_DIR/barns.mtd" || fail "the layer has not its name"
grep -aq 'Wk :' "$OUT_DIR/barns.mtd" && fail "the name was added to the row of the working layer"

# A scale.
press $select_window
press 170 40
press 780 660
until_true title_has "(Place window around objects:)"
menu $file Down 6
until_true window_called '^Print$'
sleep 0.3
xdotool type 100
xdotool key Return
until_true no_window_called '^Print$'
until_true test -s "$OUT_DIR/barns.pdf"
[ "$(pdfinfo "$OUT_DIR/barns.pdf" | sed -n 's/^Title: *//p')" = barns.mtd ] || fail "the page has not the drawing's name"

menu $file Up 1
until_true program_ended
wait "$program" || fail "the program ended with status $?"
