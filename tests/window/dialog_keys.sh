#!/usr/bin/env bash
# The file dialog by the keyboard alone: into a folder and out of it, files by arrows, each button by Tab, names
# with accents and blanks.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
file=27

open_display
mkdir -p "$OUT_DIR/plans/deeper"
start_program
press 265 128
point 300 128
press 465 128
press 600 600 3
until_true pixels_are $drawing 201

# The pointer opens the menu and nothing else. The name is selected whole by its key, and Enter saves.
menu $file Down 3
until_true window_called "Save File"
xdotool key ctrl+a
type_letters "été à la mer"
xdotool key Return
until_true no_window_called "Save File"
until_true test -s "$OUT_DIR/été à la mer.mtd"

# Two Tabs lead over the files to the folders. A letter goes to the folder, Enter into it; two Tabs back is the name.
menu $file Down 3
until_true window_called "Save File"
xdotool key Tab Tab
xdotool type pl
xdotool key Return
xdotool key shift+Tab shift+Tab ctrl+a
xdotool type beta
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/save.png"
xdotool key Return
until_true no_window_called "Save File"
until_true test -s "$OUT_DIR/plans/beta.mtd"
until_true title_has beta.mtd

# Close clears; Open stands in the folder of the last save. Down goes to its one file, Enter opens it.
menu $file Down 2
until_true title_has untitled.mtd
until_true pixels_are $drawing 0
menu $file Down 1
until_true window_called "Open Drawing"
xdotool key Tab Down
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/open.png"
xdotool key Return
until_true no_window_called "Open Drawing"
until_true title_has beta.mtd
until_true pixels_over $drawing 200

# Up and out of the folder: its first row is the parent. From there the button is three Tabs on.
menu $file Down 2
until_true title_has untitled.mtd
menu $file Down 1
until_true window_called "Open Drawing"
xdotool key Tab Tab Home Return
xdotool key shift+Tab End
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/parent.png"
xdotool key Tab Tab Tab Return
until_true no_window_called "Open Drawing"
until_true title_has "été à la mer.mtd"

# The second button is one Tab further, and puts the dialog away; so does Space on it.
for last in Return space; do
    menu $file Down 3
    until_true window_called "Save File"
    xdotool key Tab Tab Tab Tab Tab $last
    until_true no_window_called "Save File"
done
title_has "été à la mer.mtd" || fail "a dialog that was put away has changed the name"
[ "$(find "$OUT_DIR" -name '*.mtd' | wc -l)" = 2 ] || fail "a dialog that was put away has saved a file"

# The drawing has the keys again.
until_true pixels_over $drawing 200
menu $file Up 1
until_true program_ended
wait "$program" || fail "the program ended with status $?"
