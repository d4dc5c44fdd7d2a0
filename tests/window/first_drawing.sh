#!/usr/bin/env bash
# Draws two lines with pointer and keys, takes them back, saves, closes, and opens them again.
set -eu
. "$(dirname "$0")/_window.sh"

# Places of a window of 1024 by 700 at the upper left of the screen: the drawing, and entries of its frame.
drawing="165 28 643 646"
line_button="27 69"
file=27 undo=73 redo=125

open_display
start_program
until_true title_has "(Enter beginning point of line:)"
pixels_are $drawing 0 || fail "the drawing isn't empty at the start"

# A line by two clicks, its rubber band on the way, and one by the typed length of 50 inches: 150 pixels.
press $line_button
press 265 128
until_true title_has "(Enter ending point of line:)"
point 365 128
until_true pixels_over 265 128 101 1 20
press 465 128
until_true pixels_are 265 128 201 1 201
point 465 200
xdotool type 50
xdotool key Return
until_true pixels_are 465 128 1 151 151
press 600 500 3
until_true title_has "(Enter beginning point of line:)"
point 600 600
until_true pixels_are $drawing 351
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/window.png"

# Undo and Redo, by key and by menu.
xdotool key ctrl+z
until_true pixels_are $drawing 201
xdotool key ctrl+y
until_true pixels_are $drawing 351
press $undo 14
until_true pixels_are $drawing 201
press $redo 14
until_true pixels_are $drawing 351

# Save under a name, close, open.
menu $file Down 3
until_true window_called "Save File"
xdotool key ctrl+a
xdotool type house
xdotool key Return
until_true no_window_called "Save File"
until_true test -s "$OUT_DIR/house.mtd"
until_true title_has "house.mtd"
menu $file Down 2
until_true title_has "untitled.mtd"
until_true pixels_are $drawing 0
menu $file Down 1
until_true window_called "Open Drawing"
xdotool type house
xdotool key Return
until_true title_has "house.mtd"
until_true no_window_called "Open Drawing"
until_true pixels_over $drawing 0

# 800 by 600 units, now fitted into the window: three pixels high for four wide.
shape=$(extent $drawing)
wide=${shape%x*} high=${shape#*x}
difference=$((wide * 3 - high * 4))
[ "$wide" -gt 300 ] && [ "${difference#-}" -le 8 ] || fail "opened lines have the shape $shape"
pixels_are $drawing $((wide + high - 1)) || fail "opened lines are not the two that were drawn"

menu $file Up 1
until_true program_ended
wait "$program" || fail "the program ended with status $?"
