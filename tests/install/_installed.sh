# For the tests of the installed program: what has to stand beneath a prefix, and a run of the programs from there.
# To be sourced; wants BUILD_DIR, the tree to install from, and OUT_DIR, a folder of its own.

: "${BUILD_DIR:?the build tree}"
. "$(dirname "${BASH_SOURCE[0]}")/../window/_window.sh"

drawing="165 28 643 646"
whole_drawing="165 28 899 746" # in a window that has its first size
associates=418 help_menu=892
second_folder="560 238" first_file="290 203" open_button="610 541"

# has PREFIX FILE...: each of them is there, for all to read.
has() {
    local prefix=$1 file
    shift
    for file; do
        [ -s "$prefix/$file" ] || fail "there is no $file"
        [ "$(stat -c %a "$prefix/$file")" = 644 ] || fail "not for all to read: $file"
    done
}

# has_all_files PREFIX [ENDING]: the ending is what a package adds to the names of manual pages.
has_all_files() {
    local prefix=$1 program size kind
    for program in mirtane mirtane-play mirtane-convert; do
        [ -x "$prefix/bin/$program" ] || fail "there is no program $program"
        has "$prefix" "share/man/man1/$program.1${2:-}"
    done
    has "$prefix" share/mirtane/{mirtanehelp.txt,samples/libraries.mtd,samples/first-drawing.play} \
        share/mirtane/libraries/{basin.mta,brick.mth,wall-4.mtm} share/doc/mirtane/copyright \
        share/applications/mirtane.desktop share/thumbnailers/mirtane.thumbnailer share/mime/packages/mirtane.xml \
        share/metainfo/org.mirtane.Mirtane.metainfo.xml share/icons/hicolor/scalable/apps/mirtane.svg
    for size in 16 22 24 32 48 64 128 256 512; do
        icon_is "$prefix" $size apps/mirtane
        for kind in drawing associate hatch multiple-lines; do
            icon_is "$prefix" $size mimetypes/application-x-mirtane-$kind
            has "$prefix" share/icons/hicolor/scalable/mimetypes/application-x-mirtane-$kind.svg
        done
    done
}

# icon_is PREFIX SIZE NAME: of that size, and with something in its middle while its corner is clear.
icon_is() {
    local icon=share/icons/hicolor/${2}x$2/$3.png seen
    has "$1" "$icon"
    seen=$(convert "$1/$icon" -format "%wx%h %[fx:p{0,0}.a<0.5] %[fx:p{w/2,h/2}.a>0.9]" info:)
    [ "$seen" = "${2}x$2 1 1" ] || fail "$icon looks wrong: $seen"
}

bright() {
    import -window root -crop "$3x$4+$1+$2" +repage png:- |
        convert png:- -colorspace gray -threshold 55% -format '%[fx:round(mean*w*h)]' info:
}
brighter_than() { [ "$(bright "$2" "$3" "$4" "$5")" -gt "$1" ]; }

# shows_drawing PREFIX FOLDER NAME: started in a folder with the name of a drawing, the program shows it, as large as
# the window has room for it.
shows_drawing() {
    local seen
    cd "$2"
    launch "$1/bin/mirtane" "$3"
    until_true title_has libraries.mtd
    until_true pixels_over $whole_drawing 20000
    seen=$(extent $whole_drawing)
    [ "${seen%x*}" -gt 800 ] || fail "the drawing is $seen"
    cd "$OUT_DIR"
}

leaves() {
    menu 27 Up 1
    until_true program_ended
    wait "$program" || fail "the program ended with status $?"
}

opens_manual() {
    menu $help_menu Down 1
    until_true window_called "Mirtane 4.00 Help"
    until_true brighter_than 2000 60 60 900 560
}

# The program's data are the last of the drives, and the libraries the first folder in them.
opens_library() {
    menu $associates Up 3
    until_true window_called "Open Associate"
    xdotool key Tab Tab Tab End Return
    press $second_folder
    press $first_file
    press $open_button
    until_true title_has "Place Associate"
}

# makes_thumbnails PREFIX: as a file manager does by the entry, of the size it asks for.
makes_thumbnails() {
    local entry=$1/share/thumbnailers/mirtane.thumbnailer line size
    for size in 128 512; do
        line=$(sed -n 's/^Exec=//p' "$entry")
        line=${line//%s/$size}
        line=${line//%i/$1/share/mirtane/samples/libraries.mtd}
        PATH=$1/bin:$PATH sh -c "${line//%o/$OUT_DIR/thumbnail-$size.png}" || fail "no thumbnail: $line"
        seen=$(convert "$OUT_DIR/thumbnail-$size.png" -format "%wx%h %[fx:mean>0.005]" info:)
        [ "$seen" = "${size}x$size 1" ] || fail "the thumbnail looks wrong: $seen"
    done
}

# runs_from PREFIX: all three programs, with what they find there.
runs_from() {
    open_display
    "$1/bin/mirtane-convert" "$1/share/mirtane/samples/libraries.mtd" -o "$OUT_DIR/sheet.png"
    [ -s "$OUT_DIR/sheet.png" ] || fail "mirtane-convert has written nothing"
    makes_thumbnails "$1"
    mkdir "$OUT_DIR/played"
    (cd "$OUT_DIR/played" && "$1/bin/mirtane-play" --home . "$1/share/mirtane/samples/first-drawing.play")
    ls "$OUT_DIR/played"/*.mtd >/dev/null || fail "mirtane-play has saved no drawing"

    shows_drawing "$1" "$1/share/mirtane/samples" libraries.mtd
    place_window
    opens_manual
    leaves
    shows_drawing "$1" / "$1/share/mirtane/samples/../samples/libraries.mtd"
    place_window
    opens_library # which counts as unsaved work, so the program isn't left but ended with the test
}
