#!/usr/bin/env bash
# The program started with the name of a drawing: shown as Open Drawing shows it; a file that is missing leaves the
# dialog up with its name; a name like an option is a name.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 899 746" # in a window of the first size
file=27 file_name="640 218" close_button="852 592"

look() { import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- rgba:- | md5sum; }
looks() { [ "$(look $drawing)" = "$1" ]; }
leave() {
    menu $file Up 1
    until_true program_ended
    wait "$program" || fail "the program ended with status $?"
}

open_display
cd "$OUT_DIR"
cp "$MIRTANE" mirtane
cleanup+=("rm -f '$OUT_DIR/mirtane'")
mkdir plans
cp "$(dirname "${BASH_SOURCE[0]}")/../../data/samples/libraries.mtd" sheet.mtd
cp sheet.mtd "plans/my sheet.mtd"
cp -- sheet.mtd ./--help.mtd

launch ./mirtane
pixels_are $drawing 0 || fail "the drawing isn't empty at the start"
empty=$(look $drawing)
menu $file Down 1
until_true window_called "Open Drawing"
xdotool type sheet
xdotool key Return
until_true title_has sheet.mtd
until_true no_window_called "Open Drawing"
until_true pixels_over $drawing 20000
opened=$(look $drawing)
leave

# shows ARGUMENT NAME
shows() {
    launch "$OUT_DIR/mirtane" "$1"
    until_true title_has "Drawing Name: $2 "
    until_true looks "$opened"
    leave
}
shows sheet.mtd sheet.mtd
shows "plans/my sheet.mtd" "my sheet.mtd"
shows "$OUT_DIR/plans/../sheet.mtd" sheet.mtd
shows ./--help --help.mtd
cd plans
shows ../sheet sheet.mtd
cd ..

# What was wrong is in the dialog, in its folder, and can be put right there.
launch ./mirtane plans/other.mtd
until_true window_called "Open Drawing"
until_true title_has "Drawing Name: untitled.mtd "
press $file_name
xdotool key ctrl+a
xdotool type "my sheet"
xdotool key Return
until_true title_has "Drawing Name: my sheet.mtd "
until_true looks "$opened"
leave

# A name of nothing, one like an option of the toolkit, and a folder.
launch ./mirtane ""
until_true title_has "Drawing Name: untitled.mtd "
until_true looks "$empty"
window_called "Open Drawing" && fail "an empty name has brought up the dialog"
leave
for wrong in -platform --version plans /; do
    launch ./mirtane "$wrong" nonsense
    until_true window_called "Open Drawing"
    title_has "Drawing Name: untitled.mtd " || fail "$wrong has been opened"
    press $close_button
    until_true no_window_called "Open Drawing"
    leave
done
