#!/usr/bin/env bash
# Text boxes: what is typed reaches the program and not the box, a click clears a field, and a field that is left
# shows its value again. The drawing has the keys again after Enter.
set -eu
. "$(dirname "$0")/_window.sh"

ortho_field="860 144" snap_field="965 144"
ortho_text="830 136 70 16" snap_text="930 136 70 16"

# The look of a part of the screen, to compare.
look() { import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- rgba:- | md5sum; }
looks_like() { [ "$(look "$2" "$3" "$4" "$5")" = "$1" ]; }
looks_other() { ! looks_like "$@"; }

open_display
start_program
zero=$(look $ortho_text)
quarter=$(look $snap_text)

# Letters don't get into a field; a half-typed value is gone when the field is left.
press $ortho_field
until_true looks_other "$zero" $ortho_text
xdotool type xyz12
press 500 600
point 500 650
until_true looks_like "$zero" $ortho_text

# 45 degrees turn the cross of confined lines: a move to the right and a little up goes along the diagonal.
press $ortho_field
xdotool type 45
xdotool key Return
until_true looks_other "$zero" $ortho_text
press 500 600 3
press 300 400
point 400 310
press 400 310
press 600 600 3
point 620 620
until_true pixels_over 165 28 643 646 80
shape=$(extent 165 28 643 646)
wide=${shape%x*} high=${shape#*x}
difference=$((wide - high))
[ "${difference#-}" -le 1 ] && [ "$wide" -gt 80 ] || fail "the line at 45 degrees has the shape $shape"

# Tab goes on to the next field, and what is pasted counts as typed: 025.000 comes back letter by letter.
press $snap_field
until_true looks_other "$quarter" $snap_text
xdotool type 025.000
xdotool key ctrl+a ctrl+c
press 500 600 3
until_true looks_like "$quarter" $snap_text
press $snap_field
until_true looks_other "$quarter" $snap_text
xdotool type 33
xdotool key ctrl+a ctrl+v Return
until_true looks_like "$quarter" $snap_text
