#!/usr/bin/env bash
# On each screen the window comes up within it with its frame and all, and the prompt is seen.
set -eu
. "$(dirname "$0")/_window.sh"

# frame_of WINDOW: "left right top bottom", as the desktop says it.
frame_of() { xprop -id "$1" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g'; }
desktop_is_there() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
has_frame() { [ "$(frame_of "$window" | wc -w)" = 4 ]; }

# place_of WINDOW: "X Y WIDTH HEIGHT" on the screen, without the frame, which xdotool counts in.
place_of() {
    xwininfo -id "$1" | awk '/Absolute upper-left/ { print $NF } /^ *(Width|Height):/ { print $2 }' | paste -sd ' '
}

# fits WIDTH HEIGHT: the window with its frame, within a screen of that size.
fits() {
    local x y width height left right top bottom
    read -r x y width height <<<"$(place_of "$window")"
    read -r left right top bottom <<<"$(frame_of "$window")"
    echo "at $x,$y, $width by $height, framed $left $right $top $bottom" >"$OUT_DIR/place"
    [ $((x - left)) -ge 0 ] && [ $((y - top)) -ge 0 ] && [ $((x + width + right)) -le "$1" ] &&
        [ $((y + height + bottom)) -le "$2" ]
}

# has_letters X Y W H: some that are bright stand there.
has_letters() {
    [ "$(import -window root -crop "$3x$4+$1+$2" +repage png:- |
        convert png:- -colorspace gray -threshold 70% -format '%[fx:round(mean*w*h)]' info:)" -gt 100 ]
}

# The prompt stands at the lower left of the window.
shows_prompt() {
    local x y width height high=$1
    read -r x y width height <<<"$(place_of "$window")"
    has_letters $((x + 8)) $((y + height - high)) 200 "$high"
}

for row in 1024x768:1 1280x800:1 1366x768:1 1920x1080:1.5 1920x1080:2; do
    screen_size=${row%:*}
    export QT_SCALE_FACTOR=${row#*:}
    unset DISPLAY
    open_display
    openbox >/dev/null 2>&1 &
    desktop=$!
    cleanup+=("kill $desktop 2>/dev/null")
    until_true desktop_is_there
    launch "$MIRTANE"
    until_true has_frame
    settled
    until_true fits "${screen_size%x*}" "${screen_size#*x}"
    until_true shows_prompt "$(awk "BEGIN { print int(26 * $QT_SCALE_FACTOR) }")"
    import -window root "$OUT_DIR/${screen_size}_by_$QT_SCALE_FACTOR.png"
    kill "$program"
    wait "$program" 2>/dev/null || true
    kill "$desktop" "$screen"
    wait "$desktop" "$screen" 2>/dev/null || true
done
