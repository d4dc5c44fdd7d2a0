#!/usr/bin/env bash
# The window takes another size while a dialog of the toolkit's is up: the drawing is whole afterwards.
set -eu
. "$(dirname "$0")/_window.sh"

line="27 69" file=27
right_edge="700 120 20 300" # of the drawing in the larger window alone

sized() {
    xdotool windowsize "$window" "$1" "$2"
    sleep 0.4 # a size has to rest
    settled
}

open_display
start_program
press $line
press 710 128
point 710 400
press 710 400
press 600 600 3
point 600 650
until_true pixels_over $right_edge 200

sized 800 600
menu $file Up 3
until_true window_called "^Printer Setup"
sized 1024 700
xdotool key Escape
until_true no_window_called "^Printer Setup"
sleep 0.4
settled
pixels_over $right_edge 200 || fail "a part of the drawing is gone"
