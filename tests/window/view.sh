#!/usr/bin/env bash
# The view: the wheel zooms about the pointer, the arrow keys pan, and a window that grows shows more of the drawing.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"

open_display
start_program
press 265 128
point 300 128
press 465 128
press 600 600 3
point 265 128
until_true pixels_are $drawing 201

# The point under the pointer stays: the line still begins there and has become longer.
xdotool click 4
until_true pixels_over 265 128 500 1 201
pixels_are 165 28 98 646 0 || fail "zooming in has moved the point under the pointer to the left"
xdotool click 5
until_true pixels_are 265 128 201 1 201

# A tenth of the width and of the height: the line moves to the left by 64.3 pixels, and up by 64.6.
xdotool key Right
until_true pixels_are 200 128 201 1 201
xdotool key Down
until_true pixels_over 190 62 220 3 200
xdotool key Up Left
until_true pixels_are 265 128 201 1 201

# A larger window shows what lies beyond, at the same size.
press 265 400
point 300 400
press 700 400
point 700 450
xdotool type 150
xdotool key Return
press 600 300 3
point 610 310
xdotool windowsize "$window" 1024 1000
until_true pixels_are 700 400 1 451 451
