#!/usr/bin/env bash
# A hatch, an associate and a set of multiple lines, each made from selected lines and placed, and an area measured.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
line="27 69" multiple_lines="64 143" select_window="64 238" snap_point="27 296" ortho="119 447"
utilities=184 sets=268 hatch=348 associates=418

picture() { import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/$1.png"; }
# letters: how many bright pixels the text in entry has.
letters() {
    import -window root -crop 184x22+824+56 +repage png:- |
        convert png:- -colorspace Gray -threshold 60% -format '%[fx:round(mean*w*h)]' info:
}
letters_over() { [ "$(letters)" -gt "$1" ]; }
away() { point 700 650; }
first_row() { press 916 380; }

# confined X Y: moves there and clicks, so that the point keeps to its axis.
confined() {
    point "$1" "$2"
    press "$1" "$2"
}
level_line() {
    press $line
    press "$1" "$3"
    confined "$2" "$3"
    press 760 600 3
}
select_both() {
    press $select_window
    press 170 40
    press 350 200
    until_true title_has "(Place window around objects:)"
}
name() {
    xdotool type "$1"
    xdotool key Return
}

# square: a boundary of 120 by 120 pixels, ended by a snap to its first point.
square() {
    press 400 300
    until_true title_has "$1"
    confined 520 300
    confined 520 420
    confined 400 420
    press $snap_point
    confined 402 303
    away
}

open_display
start_program
level_line 265 295 128
level_line 265 295 143
away
until_true pixels_are $drawing 62

# Nothing is made of nothing.
menu $hatch Down 3
title_has "Create Hatch" && fail "a hatch was begun without a selection"

# Hatch: a tile of 30 by 30 pixels with two lines; four rows of tiles fill the square with eight lines.
select_both
menu $hatch Down 3
until_true title_has "Create Hatch(Enter new hatch name:)"
name rows
until_true title_has "Create Hatch(Enter upper-left corner of hatch:)"
press 265 118
until_true title_has "Create Hatch(Enter lower-right corner of hatch:)"
press 295 148
away
until_true pixels_are $drawing 62
menu $hatch Down 1
first_row
until_true title_has "Place Hatch(Enter the first point on the boundary:)"
square "Place Hatch(Enter the next point on the boundary"
until_true pixels_are $drawing 1030
for y in 310 325 340 355 370 385 400 415; do
    pixels_are 400 $y 121 1 121 || fail "the hatch has no whole line at $y"
done
picture hatch
xdotool key ctrl+z
until_true pixels_are $drawing 62

# Associate: it follows the pointer, and a click leaves a copy there.
select_both
menu $associates Down 3
until_true title_has "Create Associate(Enter new associate name:)"
name pair
until_true title_has "Create Associate(Enter associate reference point:)"
press 265 128
away
until_true pixels_are $drawing 62
menu $associates Down 1
first_row
until_true title_has "Place Associate(Enter location of associate:)"
point 600 200
until_true pixels_over 600 200 31 16 20
press 500 400
until_true title_has "Place Associate(Select associate from list:)"
away
until_true pixels_are $drawing 124
pixels_are 500 400 31 1 31 || fail "the first line of the associate is not where it was placed"
pixels_are 500 415 31 1 31 || fail "the second line of the associate is not where it was placed"
picture associate
xdotool key ctrl+z
until_true pixels_are $drawing 62

# Multiple lines: 8 pixels above and 7 below the line that is drawn. The click that ends the run only gives the mitre:
# the outer line goes on by its distance, and the inner one ends as much before the corner. The reference point keeps
# to an axis as any second point does, hence without ortho.
press $ortho
select_both
menu $sets Down 1
until_true title_has "Create Multiple Lines(Enter Multiple Lines Name:)"
name track
until_true title_has "Create Multiple Lines(Enter reference point:)"
press 250 136
press $ortho
away
until_true pixels_are $drawing 62
press $multiple_lines
first_row
until_true title_has "Multiple Lines(Enter beginning point of reference line:)"
press 400 500
until_true title_has "Multiple Lines(Enter ending point of reference line:)"
confined 500 500
confined 500 560
press 760 600 3
away
until_true pixels_are $drawing 265
pixels_are 400 492 109 1 109 || fail "the outer line is not 8 pixels above, or doesn't reach to the mitre"
pixels_are 400 507 94 1 94 || fail "the inner line is not 7 pixels below, or doesn't reach to the mitre"
picture multiple_lines

# Area: the boundary shows while it is drawn; then there is a text in entry, and the drawing is as before.
menu $utilities Down 2
until_true title_has "Measure Area(Enter first point on boundary:)"
away
letters_over 40 && fail "there is a text in entry before anything was measured"
square "Measure Area(Enter next point on boundary)"
until_true letters_over 100
until_true pixels_are $drawing 265
picture area
