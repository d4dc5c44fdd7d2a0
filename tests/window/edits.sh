#!/usr/bin/env bash
# Edits of the selection by form and by list, with typed numbers, and the layers by menu and list: pointer and keys.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
line="27 69" circle="64 69" select_window="64 238"
file=27 layers=625
box="916 332"

look() { import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- rgba:- | md5sum; }
picture() { import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/$1.png"; }
away() { point 700 650; }

# in_form NAME X Y: a click at that place of a form, counted from its upper left corner, held as long as a hand does.
in_form() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(xdotool search --all --onlyvisible --pid "$program" --name "$1")")"
    xdotool mousemove $((X + $2)) $((Y + $3)) mousedown 1
    xdotool mouseup 1
}

# confined X Y: moves there and clicks, so that the second point keeps to its axis.
confined() {
    point "$1" "$2"
    press "$1" "$2"
}

# select_in X Y X Y: all that lies in that window. edit COLUMN ROW: then the button of the form that stands there.
select_in() {
    press $select_window
    press "$1" "$2"
    press "$3" "$4"
    until_true title_has "(Place window around objects:)"
}
edit() {
    local columns=(82 213 330)
    press 760 600 3
    until_true window_called Edits
    in_form Edits "${columns[$1]}" $((26 + 36 * $2))
    until_true no_window_called Edits
}
number() {
    xdotool type -- "$1"
    xdotool key Return
}
row() { press 916 $((380 + 18 * $1)); }
row_look() { look 822 $((372 + 18 * $1)) 150 16; } # beside the scroll bar
row_is() { [ "$(row_look "$1")" = "$2" ]; }
row_is_other() { [ "$(row_look "$1")" != "$2" ]; }

open_display
start_program
press $line
press 265 128
confined 465 128
press 760 600 3
away
until_true pixels_are $drawing 201

# Move: the objects follow the pointer; a right click gives them back, a second click lays them down.
select_in 170 40 700 400
edit 1 0
until_true title_has "Move(Enter reference point:)"
press 300 128
until_true title_has "Move(Enter new reference point:)"
point 300 178
until_true pixels_over 265 178 201 1 40
pixels_are 320 128 146 1 0 || fail "the line is still at its old place under its ghost"
picture ghost
press 760 600 3
away
until_true pixels_are 265 128 201 1 201
pixels_are $drawing 201 || fail "a move that was given up left something"
select_in 170 40 700 400
edit 1 0
press 300 128
confined 300 228
away
until_true pixels_are 265 228 201 1 201
pixels_are $drawing 201 || fail "the moved line is not the only one"
until_true title_has "Window Select(Place window around objects:)"
xdotool key ctrl+z
until_true pixels_are 265 128 201 1 201
xdotool key ctrl+y
until_true pixels_are 265 228 201 1 201

# Copy, from the list: 10 inches down by key, and the same once more by a click anywhere.
select_in 170 40 700 400
row 3
until_true title_has "Copy(Enter reference point:)"
press 310 228
point 310 328
number 10
until_true title_has "(Left click for another copy:)"
press 500 600
press 760 600 3
away
until_true pixels_are $drawing 603
pixels_are 265 258 201 1 201 || fail "no copy 30 pixels below the line"
pixels_are 265 288 201 1 201 || fail "no second copy at the same spacing"
picture copies
xdotool key ctrl+z ctrl+z
until_true pixels_are $drawing 201

# Rotate by -90 degrees: letters don't get into the number.
select_in 170 40 700 400
edit 1 1
press 265 228
until_true title_has "(Enter number of degrees:)"
number -9x0
away
until_true pixels_are 265 228 1 201 201

# Scale: half as high.
select_in 170 40 700 600
edit 1 2
press 265 228
until_true title_has "(Enter X scale:)"
number 1
until_true title_has "(Enter Y scale:)"
number .5
away
until_true pixels_are $drawing 101
pixels_are 265 228 1 101 101 || fail "the line is not half as high"

# Radial Copy: two over 180 degrees are one new one, opposite.
select_in 170 40 700 600
edit 0 2
press 400 228
until_true title_has "(Enter total number of degrees:)"
number 180
until_true title_has "(Enter total number of copies:)"
number 2
away
until_true pixels_are $drawing 202
pixels_are 535 128 1 101 101 || fail "the radial copy is not opposite"
xdotool key ctrl+z
until_true pixels_are $drawing 101

# Mirror Copy at an upright line.
select_in 170 40 700 600
edit 0 1
press 330 500
confined 330 560
away
until_true pixels_are $drawing 202
pixels_are 395 228 1 101 101 || fail "the mirrored line is not at the other side"

# Concentric Copy: ten inches more are thirty pixels; lines make none.
press $circle
press 600 400
confined 650 400
press 760 600 3
away
until_true pixels_over 645 395 10 10 5
select_in 170 40 790 600
edit 0 3
until_true title_has "Concentric Copy(Enter off-set distance:)"
number 10
away
until_true pixels_over 675 395 10 10 5
pixels_over 645 395 10 10 5 || fail "the circle itself has gone"
picture concentric

# Change: the lines become red, and the circles stay.
select_in 170 200 450 400
edit 2 3
until_true window_called "Change Properties"
in_form "Change Properties" 90 13
for _ in 1 2 3 4; do xdotool key Down; done
xdotool key Return
picture change
in_form "Change Properties" 278 372
until_true no_window_called "Change Properties"
away
count_red() { import -window root -crop 300x200+200+200 +repage png:- | convert png:- txt:- | grep -ci '#FF0000'; }
lines_are_red() { [ "$(count_red)" = 202 ]; }
until_true lines_are_red
xdotool key ctrl+z
none_is_red() { [ "$(count_red)" = 0 ]; }
until_true none_is_red

# Delete, by the list.
select_in 500 250 790 600
row 13
away
until_true pixels_are $drawing 202
row 13
pixels_are $drawing 202 || fail "a delete of nothing has deleted something"

# Layers: a new line on layer 3 goes and comes with it, and never while it is the working one.
menu $layers Down 1
row 3
press $line
press 265 500
confined 465 500
press 760 600 3
away
until_true pixels_are $drawing 403
menu $layers Down 4
row 3
away
pixels_are $drawing 403 || fail "the working layer was hidden"
menu $layers Down 1
row 1
menu $layers Down 4
shown=$(row_look 3)
row 3
away
until_true pixels_are $drawing 202
until_true row_is_other 3 "$shown"
picture hidden
row 3
away
until_true pixels_are $drawing 403
menu $layers Down 2
until_true pixels_are $drawing 202
menu $layers Down 3
until_true pixels_are $drawing 403

# A name goes into the list, and with the drawing into its file and back.
unnamed=$(row_look 3)
menu $layers Down 5
row 3
press $box
number walls
until_true row_is_other 3 "$unnamed"
away
named=$(row_look 3)
menu $layers Down 7
number roof
picture added
menu $file Down 3
until_true window_called "Save File"
xdotool key ctrl+a
xdotool type house
xdotool key Return
until_true no_window_called "Save File"
menu $file Down 2
until_true title_has untitled.mtd
until_true row_is_other 3 "$named"
menu $file Down 1
until_true window_called "Open Drawing"
number house
until_true no_window_called "Open Drawing"
away
until_true row_is 3 "$named"

# The layer alone, into a file of its own.
menu $layers Down 9
row 3
until_true window_called "Save Layer"
xdotool key Return
until_true no_window_called "Save Layer"
until_true test -s "$OUT_DIR/walls.mtd"
menu $layers Down 6
row 3
until_true row_is_other 3 "$named"
picture unnamed
