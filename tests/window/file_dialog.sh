#!/usr/bin/env bash
# The file dialog by keys alone and by pointer alone, and a program that is left with unsaved work.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
file=27
first_file="290 203" open_button="610 541"

open_display
start_program
press 265 128
point 300 128
press 465 128
press 600 600 3
until_true pixels_are $drawing 201

# Leaving asks first; Escape takes it back and loses nothing. Tab goes from the name over files, folders and drives to
# the button.
menu $file Up 1
until_true window_called "Save Changes"
xdotool key Escape
until_true no_window_called "Save Changes"
menu $file Up 1
until_true window_called "Save Changes"
xdotool key ctrl+a
xdotool type barn
xdotool key Tab Tab Tab Tab Return
until_true program_ended
wait "$program" || fail "the program ended with status $?"
[ -s "$OUT_DIR/barn.mtd" ] || fail "the drawing was not saved before the end"

start_program
until_true title_has untitled.mtd
menu $file Down 1
until_true window_called "Open Drawing"
press $first_file
press $open_button
until_true title_has barn.mtd
until_true no_window_called "Open Drawing"
until_true pixels_over $drawing 200
[ "$(extent $drawing | sed 's/.*x//')" = 1 ] || fail "the opened line is not level"

# Nothing has changed since, so leaving asks nothing.
menu $file Up 1
until_true program_ended
wait "$program" || fail "the program ended with status $?"
