#!/usr/bin/env bash
# Circles, arcs, ellipse and curve, each drawn once with the pointer.
set -eu
. "$(dirname "$0")/_window.sh"

# drawn X Y W H: something new stands in that part of the drawing.
drawn() { until_true pixels_over "$1" "$2" "$3" "$4" 60; }

open_display
start_program
press 121 447 # ortho off

press 63 69 # 2pt. Circle
press 270 130
point 280 140
press 330 130
until_true title_has "Enter center of circle:"
drawn 205 65 130 130

press 99 69 # 3pt. Circle
press 400 130
press 480 130
point 450 80
press 440 70
until_true title_has "Enter first point on circle:"
drawn 380 40 120 130

press 138 69 # 2pt. Arc, counter-clockwise from the right
press 600 160
press 660 160
point 655 130
point 640 110
press 600 90
until_true title_has "Enter center of arc:"
drawn 595 95 70 70

press 27 106 # 3pt. Arc
press 300 300
press 280 260
point 250 245
press 220 300
until_true title_has "Enter first point on arc:"
drawn 210 250 100 60

press 99 106 # Ellipse
press 400 300
press 520 300
point 460 270
press 460 270
until_true title_has "Enter beginning point of first axis:"
drawn 395 265 130 70

press 63 106 # Curve
press 300 480
press 340 440
point 380 470
press 380 480
point 430 520
press 440 540
point 500 500
press 520 480
drawn 290 430 240 120
press 700 600 3 # the curve goes on until it is cancelled
until_true title_has "Enter first point on curve:"
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/round_things.png"
