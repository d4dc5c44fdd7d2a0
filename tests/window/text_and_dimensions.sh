#!/usr/bin/env bash
# Text with accents, underlined and turned, and every kind of dimension in every arrow style, by pointer and keys.
# The picture is kept in OUT_DIR.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 646"
circle="64 69" point="138 106" linear="101 143" radial="138 143" angular="27 180" leader="64 180" text="101 180"
edit_text="138 180" select_last="138 238" snap_point="27 296" ortho="119 447" turn="860 190"
file=27 dimensions=505 texts=572

look() { import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- rgba:- | md5sum; }
looks_other() { [ "$(look "$2" "$3" "$4" "$5")" != "$1" ]; }

# snap X Y: a click that takes the nearest point.
snap() {
    press $snap_point
    press "$1" "$2"
}
# line WORDS: typed and placed.
line() {
    type_letters "$1"
    xdotool key Return
}
rotation() {
    press $turn
    xdotool type -- "$1"
    xdotool key Return
}
# bright X Y W H LEAST: at least so many pixels come to stand there.
bright() { until_true pixels_over "$1" "$2" "$3" "$4" "$5"; }

open_display
start_program
press $ortho

# What is typed is shown at once, goes with Backspace, and stays after Enter; the next line stands below it.
press $text
until_true title_has "Place Text(Enter location of text line:)"
press 180 40
until_true title_has "(Enter text:)"
type_letters "Größe øx"
bright 175 35 150 25 100
before=$(look 175 35 150 25)
xdotool key BackSpace
until_true looks_other "$before" 175 35 150 25
line "5 çà é"
until_true title_has "(Enter new location of text line:)"
line "second ñ"
bright 175 53 150 10 20

# Underlined, and turned by 45 and 90 degrees about where it begins.
menu $texts Down 6
press $text
press 400 40
line "underlined"
bright 395 40 150 20 60
menu $texts Down 6
for turned in "45 560 110" "90 660 110"; do
    set -- $turned
    rotation "$1"
    press $text
    press "$2" "$3"
    line "turned"
    bright $(($2 - 20)) $(($3 - 60)) 80 62 60
done
rotation 0

# Slash, open, closed, as the menu has them, a column each.
for ((column = 0; column < 3; ++column)); do
    x=$((175 + 210 * column))
    menu $dimensions Down $((column + 1))

    # With room for its arrows, and, chained, without.
    press $point
    for at in 10 150 175; do press $((x + at)) 200; done
    press $linear
    until_true title_has "(Enter first dimension point:)"
    press $((x + 80)) 250 # not snapped: starts anew
    until_true title_has "(Enter first dimension point:)"
    snap $((x + 10)) 200
    until_true title_has "(Enter next dimension point:)"
    snap $((x + 150)) 200
    until_true title_has "(Enter off-set point:)"
    point $((x + 150)) 160
    bright $((x + 8)) 158 144 4 50
    press $((x + 150)) 150
    until_true title_has "(Enter next dimension point:)"
    snap $((x + 175)) 202
    bright $((x + 8)) 145 180 10 120
    press 700 660 3

    press $circle
    press $((x + 60)) 330
    press $((x + 105)) 330
    press $radial
    press $((x + 60)) 376
    until_true title_has "(Enter shoulder point:)"
    point $((x + 120)) 290
    press $((x + 120)) 285
    until_true title_has "(Click near circle or arc:)"
    bright $((x + 121)) 278 60 14 30
    press 700 660 3

    press $point
    press $((x + 20)) 560
    press $((x + 170)) 560
    press $((x + 20)) 420
    press $angular
    snap $((x + 20)) 560
    until_true title_has "(Enter first vertex:)"
    snap $((x + 170)) 560
    until_true title_has "(Enter second vertex:)"
    snap $((x + 20)) 420
    until_true title_has "(Enter off-set point:)"
    press $((x + 110)) 560
    until_true title_has "(Enter point of angle:)"
    bright $((x + 21)) 465 90 94 60
    press 700 660 3

    press $leader
    line "wäre $column"
    until_true title_has "(Enter beginning point of leader:)"
    press $((x + 60)) 640
    until_true title_has "(Enter shoulder point:)"
    press $((x + 100)) 600
    until_true title_has "(Enter leader text:)"
    bright $((x + 112)) 590 80 20 40
    press 700 660 3
done
import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/text_and_dimensions.png"

# A text under change hides; what stands there then is what was typed.
press $edit_text
press 180 40
until_true title_has "Text Edit(Edit text:)"
for ((i = 0; i < 2; ++i)); do xdotool key BackSpace; done
line " ü"
until_true title_has "Text Edit(Click near upper-left of text:)"

# The letters are in the file as they were typed, one byte each; what was replaced is not.
menu $file Down 3
until_true window_called "Save"
xdotool key Return
until_true test -s "$OUT_DIR/untitled.mtd"
for words in 'Größe ø5 çà ü' 'second ñ' 'wäre 2'; do
    LC_ALL=C grep -aqF "$(iconv -f UTF-8 -t WINDOWS-1252 <<<"$words")" "$OUT_DIR/untitled.mtd" || fail "not in the file: $words"
done
