#!/usr/bin/env bash
# Draws each circle, arc, ellipse and curve once with a real pointer, ortho on, and takes them back.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
circle_two="64 69" circle_three="101 69" arc_two="138 69"
arc_three="27 106" curve="64 106" ellipse="101 106"

# choose X Y PROMPT: presses the button of a function, which then asks for its first point.
choose() {
    press "$1" "$2"
    until_true title_has "($3:)"
}

# take X Y: a click with the pointer there beforehand, so that ortho knows the way.
take() {
    point "$1" "$2"
    press "$1" "$2"
}

lit_at() { pixels_over $(($1 - 1)) $(($2 - 1)) 3 3 0; }

# The outline passes there, all places of it.
outline() {
    while [ $# -gt 0 ]; do
        until_true lit_at "$1" "$2"
        shift 2
    done
}

# empty X Y: nothing about that place.
empty() { until_true pixels_are $(($1 - 6)) $(($2 - 6)) 13 13 0; }

open_display
start_program
pixels_are $drawing 0 || fail "the drawing isn't empty at the start"

# The band shows the circle and its spoke, the drawing the circle alone.
choose $circle_two "Enter center of circle"
take 260 120
until_true title_has "(Enter radius of circle:)"
point 320 120
until_true pixels_over 265 119 50 3 10
until_true pixels_over 255 59 11 3 1
press 320 120
until_true title_has "(Enter center of circle:)"
point 400 400
outline 320 120 260 60 200 120 260 180
empty 260 120
empty 290 120

choose $circle_three "Enter first point on circle"
take 420 140
until_true title_has "(Enter second point on circle:)"
take 540 140
until_true title_has "(Enter last point on circle:)"
take 480 80
until_true title_has "(Enter first point on circle:)"
point 400 400
outline 420 140 540 140 480 80 480 200 522 98
empty 480 140

# A quarter, the way that the pointer went.
choose $arc_two "Enter center of arc"
take 640 140
until_true title_has "(Enter radius of arc:)"
take 700 140
until_true title_has "(Enter end of arc:)"
point 695 110
point 670 90
take 640 80
until_true title_has "(Enter center of arc:)"
point 400 400
outline 700 140 682 98 640 80
empty 598 98
empty 598 182
empty 682 182
empty 640 140

choose $arc_three "Enter first point on arc"
take 320 300
until_true title_has "(Enter second point on arc:)"
take 302 258
until_true title_has "(Enter last point on arc:)"
take 260 240
until_true title_has "(Enter first point on arc:)"
point 400 400
outline 320 300 302 258 260 240
empty 218 258
empty 218 342
empty 302 342

# The cross of axes while it is drawn, and no ellipse; then the ellipse alone.
choose $ellipse "Enter beginning point of first axis"
take 420 300
until_true title_has "(Enter ending point of first axis:)"
take 540 300
until_true title_has "(Enter ending point of second axis:)"
point 480 270
until_true pixels_over 430 299 100 3 20
until_true pixels_over 479 272 3 56 10
empty 511 275
press 480 270
until_true title_has "(Enter beginning point of first axis:)"
point 400 400
outline 540 300 420 300 480 270 480 330
empty 480 300
empty 450 300

# Over the top and swinging out to the right, on to the upper half: three arcs.
choose $curve "Enter first point on curve"
take 600 300
until_true title_has "(Enter next point on curve:)"
take 640 260
take 680 300
take 720 340
take 760 300
press 400 400 3
until_true title_has "(Enter first point on curve:)"
point 400 420
outline 600 300 640 260 680 300 692 328 720 340 748 328 760 300
empty 640 340
empty 720 260

shown=$(pixels $drawing)
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/round_things.png"

# Five objects and the three arcs of the curve are taken back one by one, and come again.
for left in 7 6 5 4 3 2 1 0; do
    before=$(pixels $drawing)
    xdotool key ctrl+z
    if [ "$left" = 0 ]; then
        until_true pixels_are $drawing 0
    else
        fewer() { local now; now=$(pixels $drawing); [ "$now" -lt "$before" ] && [ "$now" -gt 0 ]; }
        until_true fewer
    fi
done
for _ in 1 2 3 4 5 6 7 8; do
    xdotool key ctrl+y
done
until_true pixels_are $drawing "$shown"
