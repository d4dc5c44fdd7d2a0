#!/usr/bin/env bash
# The program is killed at random moments of a session, asked to end, and left without its screen. What was drawn before
# the pointer rested is offered at the next start and comes back. Two hundred times where MIRTANE_LONG is set.
set -eu
. "$(dirname "$0")/_window.sh"

drawing="165 28 643 600"
line_button="27 69"
restore="846 658"
kills=6
[ -z "${MIRTANE_LONG:-}" ] || kills=200
RANDOM=2004

export XDG_STATE_HOME=$OUT_DIR/state
kept="$XDG_STATE_HOME/mirtane"

# A new screen, as the one before may have been killed.
new_display() {
    unset DISPLAY
    open_display
}
kept_files() { find "$kept" -name 'work-*.mtd' 2>/dev/null | wc -l; }
is_kept() { [ "$(kept_files)" = 1 ] && [ "$(bytes_kept)" -ge "$1" ]; }
bytes_kept() { cat "$kept"/work-*.mtd | wc -c; }

# draw FROM TO: a polyline of so many legs, slanted, each with its own end.
draw() {
    press $line_button
    for ((i = $1; i <= $2; ++i)); do press $((200 + (i * 37) % 500)) $((60 + (i * 53) % 500)); done
    press 600 550 3
}

end_it() {
    case $1 in
    0) kill -9 "$program" ;;
    1) kill "$program" ;;
    2) kill -HUP "$program" ;;
    3) kill -9 "$screen" ;;
    esac
    wait "$program" 2>/dev/null || true
}

record=90
most_missing=0

new_display
for ((kill_number = 0; kill_number < kills; ++kill_number)); do
    how=$((kill_number % 4))
    rm -rf "$kept"
    start_program
    legs=$((2 + RANDOM % 5))
    draw 0 $legs
    until_true is_kept $((legs * record)) # the pointer rests
    more=$((1 + RANDOM % 6))
    draw 10 $((10 + more))
    sleep 0.$((RANDOM % 10))
    end_it $how
    [ $how != 3 ] || new_display

    [ "$(kept_files)" = 1 ] || fail "kill $kill_number by way $how left $(kept_files) files"
    found=$(($(bytes_kept) / record - 1)) # a header and the last record have some bytes more
    ((found >= legs)) || fail "kill $kill_number by way $how: $found of $legs legs that were kept are left"
    if [ $how != 0 ] && ((found < legs + more)); then
        fail "kill $kill_number by way $how: $found of $((legs + more)) legs are left"
    fi
    ((legs + more - found <= most_missing)) || most_missing=$((legs + more - found))
    ((kill_number < 4)) || continue

    # Offered in the strip, brought back by its button, and unsaved until it is saved.
    start_program
    pixels_are $drawing 0 || fail "the drawing isn't empty at the start"
    import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/offered$how.png"
    press $restore
    until_true pixels_over $drawing 300
    import -window root -crop 1024x700+0+0 +repage "$OUT_DIR/restored$how.png"
    kill "$program"
    wait "$program" 2>/dev/null || true
    [ "$(kept_files)" = 1 ] || fail "what was brought back and not saved is gone"
done
echo "$kills kills: at most $most_missing legs missing, all of them drawn after the pointer last rested"
