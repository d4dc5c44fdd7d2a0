#!/usr/bin/env bash
# Break, Trim, Fillet and Stretch from the form that a right click brings up, with pointer and keys.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
line="27 69" select_object="27 238" select_window="64 238"

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

# edit X Y: a right click with a selection, and the button of the form that stands there.
edit() {
    press 760 600 3
    until_true window_called Edits
    in_form Edits "$1" "$2"
    until_true no_window_called Edits
}
select_in() {
    press $select_window
    press "$1" "$2"
    press "$3" "$4"
    until_true title_has "(Place window around objects:)"
}
select_at() {
    press $select_object
    until_true title_has "Object Select(Click near object:)"
    press "$1" "$2"
}

open_display
start_program
press $line
press 265 128
confined 465 128
press 760 600 3
away
until_true pixels_are $drawing 201

# Break: what lies between the feet of the two points goes, and one undo makes the line whole.
select_in 170 40 700 400
edit 330 26
until_true title_has "Break(Enter first break point:)"
press 330 160
until_true title_has "Break(Enter second break point:)"
press 400 180
away
until_true pixels_are $drawing 132
pixels_are 265 128 66 1 66 || fail "the first piece doesn't reach to the first break point"
pixels_are 400 128 66 1 66 || fail "the second piece doesn't begin at the second break point"
until_true title_has "Window Select(Place window around objects:)"
picture broken
xdotool key ctrl+z
until_true pixels_are $drawing 201

# Trim: too far from everything nothing happens; near the upright line, the level one is drawn out to it.
press $line
press 540 60
confined 540 300
press 760 600 3
away
until_true pixels_are $drawing 442
select_at 300 130
edit 330 62
until_true title_has "Trim(Click near object to which to trim:)"
press 620 400
away
title_has "Trim(Click near object to which to trim:)" || fail "a click beside everything has ended the trim"
press 546 220
away
until_true pixels_are 265 128 276 1 276
pixels_are $drawing 516 || fail "the trim has not drawn out one line alone"
picture trimmed

# Fillet: a typed radius of 10 inches, which are 30 pixels; then the corner is rounded and both lines end at the arc.
select_at 300 130
press 543 250
edit 330 98
until_true title_has "Fillet(Enter new radius ("
asked=$(xdotool getwindowname "$window")
xdotool type 10
xdotool key Return
asks_otherwise() { [ "$(xdotool getwindowname "$window")" != "$asked" ]; }
until_true asks_otherwise
press 490 180
away
until_true pixels_are 540 60 1 68 0
pixels_are 265 128 246 1 246 || fail "the level line doesn't reach to the arc"
pixels_are 540 158 1 143 143 || fail "the upright line doesn't begin at the arc"
pixels_over 529 134 5 6 2 || fail "there is no arc at the corner"
pixels_are 535 120 10 12 0 || fail "the corner is still there"
picture fillet

# Stretch: the end inside the window goes 100 pixels down, the other one stays.
select_in 170 40 525 140
edit 213 134
until_true title_has "Stretch(Place window around points to be moved:)"
press 250 110
point 280 150
until_true pixels_over 250 110 31 41 60
press 280 150
until_true title_has "Stretch(Enter reference point:)"
press 265 128
until_true title_has "Stretch(Enter new reference point:)"
confined 265 228
away
until_true pixels_over 264 226 4 4 1
until_true pixels_are 165 28 336 646 236
pixels_over 505 127 5 5 3 || fail "the end outside the window has moved"
pixels_are 540 158 1 143 143 || fail "a line that was not selected was stretched"
picture stretched
xdotool key ctrl+z
until_true pixels_are 265 128 246 1 246
