#!/usr/bin/env bash
# Letters that a drawing can't keep, typed and pasted in the real window: they are not taken, and what is taken comes
# back from the file as it was shown.
set -eu
. "$(dirname "$0")/_window.sh"

text="101 180"
file=27 layers=625

# letters: how many bright pixels the text in entry has.
letters() {
    import -window root -crop 184x22+824+56 +repage png:- |
        convert png:- -colorspace Gray -threshold 60% -format '%[fx:round(mean*w*h)]' info:
}
entry_speaks() { [ "$(letters)" -gt 100 ]; }
in_file() { LC_ALL=C grep -aqF "$(iconv -f UTF-8 -t WINDOWS-1252 <<<"$1")" "$OUT_DIR/house.mtd"; }

open_display
start_program

press $text
press 300 300
type_letters "ø20 Ωä"
until_true entry_speaks
xdotool key Return
sleep 0.2
press 700 650 3

# Text to be pasted, with an accent that stands behind its letter: it is typed as a file's name, which may have any
# letters, and copied.
menu $file Down 3
until_true window_called "Save File"
sleep 0.3
type_letters "mure"
type_letters $'\u0301'
type_letters "s Ωß"
xdotool key ctrl+a ctrl+c
xdotool key Tab Tab Tab Tab Tab Return
until_true no_window_called "Save File"

menu $layers Down 7
sleep 0.2
xdotool key ctrl+v
until_true entry_speaks
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/pasted.png"
xdotool key Return
sleep 0.2

menu $file Down 3
until_true window_called "Save File"
sleep 0.3
xdotool type house
xdotool key Return
until_true no_window_called "Save File"
until_true test -s "$OUT_DIR/house.mtd"
for words in 'ø20 ä' 'murés ß'; do in_file "$words" || fail "not in the file: $words"; done

menu $file Up 1
until_true program_ended
wait "$program" || fail "the program ended with status $?"
