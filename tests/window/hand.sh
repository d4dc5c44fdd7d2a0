#!/usr/bin/env bash
# The middle button drags and clicks, the wheel turns sideways; shortcuts and letters of menus; Escape; what is typed is
# read along, and the mark of a snap lies over the picture.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
drag_middle() { xdotool mousemove "$1" "$2" mousedown 2 mousemove "$3" "$4" mouseup 2; }
picture() { import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/$1.png"; }
# yellow X Y W H: how many pixels there have the colour of the mark.
yellow() { import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- -depth 8 txt:- | grep -ci '#ffcf5c' || true; }
has_mark() { [ "$(yellow "$@")" -gt 20 ]; }
has_no_mark() { [ "$(yellow "$@")" -lt 5 ]; }

open_display
start_program

# A level line 201 pixels long.
press 27 69
press 265 128
point 465 128
press 465 128
press 600 600 3
point 600 650
until_true pixels_are $drawing 201

# The hand moves it by as much as it moves itself; a shake of four pixels does not.
drag_middle 600 500 640 530
until_true pixels_are 305 158 201 1 201
drag_middle 600 500 604 496
settled
pixels_are 305 158 201 1 201 || fail "four pixels have moved the drawing"
drag_middle 640 530 600 500
until_true pixels_are 265 128 201 1 201

# The wheel turned sideways moves it by a tenth of the width of the drawing.
point 600 500
xdotool click --delay 0 7
until_true pixels_are 201 128 201 1 201
xdotool click --delay 0 6
until_true pixels_are 265 128 201 1 201

# Ctrl alone arms the snap and marks the end of the line; a shortcut lets go of it.
point 455 140
xdotool keydown ctrl
until_true has_mark 455 118 21 21
picture mark
xdotool key z
until_true pixels_are $drawing 0
xdotool key y
until_true pixels_are 265 128 201 1 201
point 460 145
has_no_mark $drawing || fail "a shortcut has left the snap armed"
xdotool keyup ctrl
xdotool key ctrl+z
until_true pixels_are $drawing 0
xdotool key ctrl+shift+z
until_true pixels_are 265 128 201 1 201

# Escape closes a form, and does nothing on the drawing.
xdotool key ctrl+s
until_true window_called "Save File"
xdotool key Escape
until_true no_window_called "Save File"
press 300 300
until_true title_has "(Enter ending point of line:)"
xdotool key Escape
title_has "(Enter ending point of line:)" || fail "Escape has done something on the drawing"

# What is typed is read along in the line at the foot.
point 400 400
xdotool type "6 1/2"
picture typed
press 600 600 3

# A letter with Alt opens its menu.
xdotool key alt+f Down Return
until_true window_called "Save File|Save Changes|Open Drawing"
xdotool key Escape
until_true no_window_called "Save File|Save Changes|Open Drawing"

# Delete, on the drawing, as the edits' own.
press 138 238
point 600 650
xdotool key Delete
until_true pixels_are $drawing 0
xdotool key ctrl+z
until_true pixels_are 265 128 201 1 201
xdotool key Home
until_true pixels_over $drawing 400

# A form keeps the keys wherever the pointer is; one that has to be answered takes them from it, and lets go of them.
press 138 238
press 600 600 3
until_true window_called Edits
point 300 520
point 330 540
xdotool key Escape
until_true no_window_called Edits
press 600 600 3
until_true window_called Edits
xdotool key ctrl+s
until_true window_called "Save File"
xdotool key Escape
until_true no_window_called "Save File"
press 138 238
press 600 600 3
until_true window_called Edits
xdotool key Delete
until_true no_window_called Edits
point 600 650
until_true pixels_are $drawing 0
