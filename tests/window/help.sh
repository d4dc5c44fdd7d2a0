#!/usr/bin/env bash
# The manual: where it is missing, an empty form and a word in entry; where it is, a form a little smaller than the
# window that can be read by keys and can't be written into.
set -eu
. "$(dirname "$0")/_window.sh"

file=27 help_menu=892
entry_text="824 56 184 22"
page_text="400 80 560 560" # within the page, which stands beside its contents

# bright X Y W H: how many pixels of that part of the screen are those of letters.
bright() {
    import -window root -crop "$3x$4+$1+$2" +repage png:- |
        convert png:- -colorspace gray -threshold 55% -format '%[fx:round(mean*w*h)]' info:
}
brighter_than() { [ "$(bright "$2" "$3" "$4" "$5")" -gt "$1" ]; }
look() { import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- rgba:- | md5sum; }
looks_other() { [ "$(look "$2" "$3" "$4" "$5")" != "$1" ]; }
help_form() { xdotool search --all --onlyvisible --pid "$program" --name "Mirtane 4.00 Help" | tail -1; }
help_has_size() { xdotool getwindowgeometry "$(help_form)" | grep -q "Geometry: $1\$"; }

open_display
start_program

[ "$(bright $entry_text)" = 0 ] || fail "entry isn't empty at the start"
menu $help_menu Down 1
until_true window_called "Mirtane 4.00 Help"
[ "$(bright $page_text)" = 0 ] || fail "the form shows something, although the manual is missing"
xdotool windowmove "$(help_form)" 0 100 # it hides what entry says
until_true brighter_than 100 $entry_text

# It is no hindrance to the end of the program, and goes with it.
menu $file Up 1
until_true program_ended
wait "$program" || fail "the program ended with status $?"

# 1000 and 700 twips less than the window, at 15 to the pixel: 66.7 and 46.7 pixels.
cp "$(dirname "$MIRTANE")/mirtanehelp.txt" "$OUT_DIR"
start_program
menu $help_menu Down 1
until_true window_called "Mirtane 4.00 Help"
until_true help_has_size 957x653
until_true brighter_than 2000 $page_text
xdotool windowmove "$(help_form)" 0 100
sleep 0.3 # no window manager says when it has come
[ "$(bright $entry_text)" = 0 ] || fail "entry speaks of a missing manual, although there is one"
xdotool windowmove "$(help_form)" 33 23
sleep 0.3
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/help.png"

# Letters change nothing; Page Down goes on.
first=$(look $page_text)
xdotool type abc
xdotool key BackSpace Delete Return
looks_other "$first" $page_text && fail "the manual has been written into"
xdotool key Next
until_true looks_other "$first" $page_text
until_true brighter_than 2000 $page_text
