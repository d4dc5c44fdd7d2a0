#!/usr/bin/env bash
# The selection on a page: its picture follows the value typed, and the file has it centred, fitted and uncut.
set -eu
. "$(dirname "$0")/_window.sh"

line="27 69" circle="64 69" select_window="64 238" file=27

confined() {
    point "$1" "$2"
    press "$1" "$2"
}

# form_look: the left part of the form, where the picture of the page is.
form_look() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(xdotool search --all --onlyvisible --pid "$program" --name '^Print$')")"
    import -window root -crop "$WIDTH"x"$HEIGHT"+$X+$Y +repage "$OUT_DIR/$1.png"
    convert "$OUT_DIR/$1.png" -crop $((WIDTH - 300))x$HEIGHT+0+0 +repage "$OUT_DIR/$1.page.png"
}
pages_differ() {
    form_look "$2"
    [ "$(convert "$OUT_DIR/$1.page.png" rgba:- | md5sum)" != "$(convert "$OUT_DIR/$2.page.png" rgba:- | md5sum)" ]
}

# Cancel is the last button at the lower right of the form.
press_cancel() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(xdotool search --all --onlyvisible --pid "$program" --name '^Print$')")"
    xdotool mousemove $((X + WIDTH - 40)) $((Y + HEIGHT - 28)) mousedown 1
    xdotool mouseup 1
}

select_all() {
    press $select_window
    press 170 40
    press 780 660
    until_true title_has "(Place window around objects:)"
}
print() {
    menu $file Down "$print_entry"
    until_true window_called '^Print$'
}
# page NAME: the file as a picture of 72 dots to the inch, the program's name in its corner whitened.
page() {
    pdftoppm -r 72 -png -singlefile "$OUT_DIR/untitled.pdf" "$OUT_DIR/$1"
    convert "$OUT_DIR/$1.png" -fill white -draw 'rectangle 0,0 120,17' "$OUT_DIR/$1.objects.png"
}
# The dark part of such a page, as "W H X Y" with the size of the page behind it.
dark() { convert "$OUT_DIR/$1.objects.png" -threshold 85% -format '%@ %w %h' info: | tr 'x+' '  '; }
close_to() { [ $(($1 - $2)) -le "$3" ] && [ $(($2 - $1)) -le "$3" ]; }

print_entry=6

open_display
start_program
press $line
press 265 128
confined 665 128
press 760 600 3
press $line
press 265 128
confined 265 428
press 760 600 3
press $circle
press 565 328
confined 625 328
press 760 600 3

select_all
print
form_look fitted
xdotool key ctrl+a
xdotool type 40
until_true pages_differ fitted smaller
xdotool key ctrl+a
xdotool type 1
until_true pages_differ smaller refused
xdotool key Return
window_called '^Print$' || fail "a value below the fitted one was taken"
[ ! -e "$OUT_DIR/untitled.pdf" ] || fail "a page for a value that is refused"
press_cancel
until_true no_window_called '^Print$'

# The fitted page: as wide as the paper less half an inch, in the middle, whatever the paper.
select_all
print
xdotool key Return
until_true no_window_called '^Print$'
until_true test -s "$OUT_DIR/untitled.pdf"
page whole
read -r w h x y width height <<<"$(dark whole)"
close_to "$w" $((width - 36)) 3 || fail "not as wide as the page less half an inch: $w of $width"
close_to $((2 * x + w)) "$width" 3 || fail "not centred across: $x $w of $width"
close_to $((2 * y + h)) "$height" 3 || fail "not centred up and down: $y $h of $height"
close_to "$h" $((w * 3 / 4)) 4 || fail "the shape has changed: $w by $h"
