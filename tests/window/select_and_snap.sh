#!/usr/bin/env bash
# Snaps by button and by held key, picks, window selections, the filter and the edits, with a real pointer and keys.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
line="27 69"
select_object="27 238" select_window="64 238" select_filtered="101 238" select_last="138 238"
snap_point="27 296" snap_object="64 296"
snap_point_button="12 281 30 30" snap_object_button="49 281 30 30"
snap_label="818 88 200 24"
ortho_field="860 144"
filter="680 14"

look() { import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- rgba:- | md5sum; }
looks_like() { [ "$(look "$2" "$3" "$4" "$5")" = "$1" ]; }
looks_other() { ! looks_like "$@"; }
picture() { import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/$1.png"; }

# confined X Y: moves there and clicks, so that the second point keeps to its axis.
confined() {
    point "$1" "$2"
    press "$1" "$2"
}

# in_form NAME X Y: a click at that place of a form, counted from its upper left corner, and as long as a hand holds it:
# the screen learns which window has the keys in the meantime.
in_form() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(xdotool search --all --onlyvisible --pid "$program" --name "$1")")"
    xdotool mousemove $((X + $2)) $((Y + $3)) mousedown 1
    xdotool mouseup 1
}

open_display
start_program

press $line
press 265 128
confined 465 128
press 600 600 3
point 600 650
until_true pixels_are $drawing 201

# An armed snap presses its button and is named; another takes its place; a click spends it.
resting=$(look $snap_point_button)
other_resting=$(look $snap_object_button)
unnamed=$(look $snap_label)
press $snap_object
point 600 650
until_true looks_other "$other_resting" $snap_object_button
press $snap_point
point 600 650
until_true looks_other "$resting" $snap_point_button
until_true looks_like "$other_resting" $snap_object_button
until_true looks_other "$unnamed" $snap_label
picture armed
press 270 133
until_true looks_like "$resting" $snap_point_button
until_true looks_like "$unnamed" $snap_label
confined 270 400
press 600 600 3
point 600 650
until_true pixels_are 265 128 1 273 273
pixels_are $drawing 473 || fail "the line from the snapped point is not the only new one"

# Shift holds Snap Object, Ctrl Snap Point: the points are on the first line, not where the pointer was.
xdotool mousemove 350 134 keydown shift click 1 keyup shift
confined 350 300
press 600 600 3
xdotool mousemove 460 133 keydown ctrl click 1 keyup ctrl
confined 465 300
press 600 600 3
point 600 650
until_true pixels_are $drawing 817
pixels_are 350 128 1 173 173 || fail "Shift has not snapped onto the line"
pixels_are 465 128 1 173 173 || fail "Ctrl has not snapped to the end of the line"
pixels_are 355 129 100 170 0 || fail "something stands between the two"

# A refused snap changes nothing: no perpendicular before the line has begun.
press 27 333
point 600 650
looks_like "$unnamed" $snap_label || fail "perpendicular was armed before the first click"

# A pick turns the line dotted, a second turns it back; beyond its end nothing is picked.
press $select_object
press 353 220
point 600 650
until_true title_has "Object Select(Click near object:)"
dotted() { [ "$(pixels 350 129 1 172)" -lt 130 ]; }
until_true dotted
press 350 304
point 600 650
dotted || fail "a click beyond the end has unmarked the line"
picture selected
press 600 600 3
until_true window_called Edits
picture edits
press 600 650
until_true no_window_called Edits
dotted || fail "a click beside everything has dropped the selection"
press 353 220
point 600 650
until_true pixels_are 350 128 1 173 173
press 600 600 3
no_window_called Edits || fail "the edits come up with nothing selected"

# A window takes what lies wholly inside; Deselect All, then Delete, in the form; Ctrl+Z brings back what was deleted.
press $select_window
press 340 320
until_true title_has "(Enter opposite corner of window:)"
point 480 100
until_true pixels_over 340 100 141 1 20
picture band
press 480 100
point 600 650
until_true dotted
pixels_are 265 128 201 1 201 || fail "a line that leaves the window was selected"
press 600 600 3
until_true window_called Edits
in_form Edits 213 170
until_true no_window_called Edits
point 600 650
until_true pixels_are $drawing 817
press 480 320
press 340 100
press 600 600 3
until_true window_called Edits
in_form Edits 82 170
until_true no_window_called Edits
point 600 650
until_true pixels_are $drawing 473
xdotool key ctrl+z
until_true pixels_are $drawing 817

# The filter: circles alone, of which there is none; then lines.
filter_to() {
    press $filter
    until_true window_called "Filter Settings"
    in_form "Filter Settings" 36 13
    for ((i = 0; i < $1; ++i)); do xdotool key Down; done
    xdotool key Return
    picture "filter$1"
    in_form "Filter Settings" 278 372
    until_true no_window_called "Filter Settings"
    press $select_filtered
    press 340 320
    press 480 100
    point 600 650
}
filter_to 2
until_true title_has "Window Select Filtered(Place window around objects:)"
pixels_are 350 128 1 173 173 || fail "a filter for circles has selected a line"
filter_to 1
until_true dotted
press $line
point 600 650
until_true pixels_are $drawing 817

# Select Last: what the last line is.
press 700 200
confined 700 300
press 600 600 3
press $select_last
point 600 650
until_true pixels_over 700 200 1 101 10
last_dotted() { [ "$(pixels 700 200 1 101)" -lt 80 ]; }
until_true last_dotted
pixels_are 350 128 1 173 173 || fail "Select Last has selected more than the last line"

# A key that is let go while another control has the keys is not held any longer.
press $line
point 600 640
xdotool keydown shift
press $ortho_field
xdotool keyup shift
press 465 400
press 600 600 3
press 469 250
confined 600 250
press 600 600 3
point 600 650
picture shift
pixels_are 469 250 132 1 132 || fail "the line does not begin where the pointer was"
pixels_are 466 250 3 1 0 || fail "Shift, let go in a field, still snaps"

# A key that goes down while a field has the keys snaps as well.
press $line
press 200 440
confined 300 440
press 600 600 3
press $line
press $ortho_field
xdotool keydown ctrl
press 305 444
xdotool keyup ctrl
confined 305 500
press 600 600 3
point 600 650
pixels_are 300 445 1 40 40 || { picture held; fail "Ctrl, pressed in a field, does not snap"; }
pixels_are 305 445 1 40 0 || fail "the line begins beside the end"
