# For the window tests: starts the program at a known place and size, drives it by pointer and keys, and looks at
# the pixels of the screen. To be sourced; wants MIRTANE, the program, and OUT_DIR, a folder of its own.

: "${MIRTANE:?the program to test}" "${OUT_DIR:?a folder for what the test writes}"
mkdir -p "$OUT_DIR"
cleanup=()

finish() {
    local status=$?
    for ((i = ${#cleanup[@]} - 1; i >= 0; --i)); do eval "${cleanup[i]}" || true; done
    exit $status
}
trap finish EXIT

fail() {
    echo "$*" >&2
    import -window root "$OUT_DIR/failed.png" || true
    exit 1
}

# until_true COMMAND...: waits up to twenty seconds for the command to succeed.
until_true() {
    local start=$SECONDS
    until "$@"; do
        ((SECONDS - start < 20)) || fail "in vain: $*"
        sleep 0.05
    done
}

# A screen of the test's own, unless it was given one; the settings are the test's own in any case. A number that the
# server chooses itself can't be one that another server has just taken.
open_display() {
    export HOME=$OUT_DIR XDG_CONFIG_HOME=$OUT_DIR/config XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$OUT_DIR/runtime}
    mkdir -p -m 700 "$XDG_RUNTIME_DIR"
    [ -z "${DISPLAY:-}" ] || return 0
    rm -f "$OUT_DIR/display"
    Xvfb -displayfd 3 -screen 0 "${screen_size:-1600x1200}x24" -dpi 96 -nolisten tcp -noreset \
        3>"$OUT_DIR/display" >/dev/null 2>&1 &
    screen=$!
    cleanup+=("kill $screen")
    until_true test -s "$OUT_DIR/display"
    DISPLAY=:$(cat "$OUT_DIR/display")
    export DISPLAY
}

# settled: waits until the program and its screen have done all that has come in so far: all their threads sleep, and
# have not woken up from one look to the next.
settled() {
    local before now= look
    for ((look = 0; look < 500; ++look)); do
        before=$now
        now=$(grep -hsE '^State|ctxt_switches' /proc/{${program:-none},${screen:-none}}/task/*/status || true)
        case $now in
        *\(running\)* | *"(disk sleep)"*) now= ;;
        "$before") return 0 ;;
        esac
        sleep 0.01
    done
}

# Whoever acts waits for what comes of it, so that no test need know how long that takes.
xdotool() {
    command xdotool "$@" || return
    case " $* " in
    *" click "* | *" mouse"* | *" key"* | *" type "*) settled ;;
    esac
}

# Starts the program, in a folder where it may write, with its window at the upper left, 1024 by 700.
start_program() {
    cp "$MIRTANE" "$OUT_DIR/mirtane"
    cleanup+=("rm -f '$OUT_DIR/mirtane'")
    launch "$OUT_DIR/mirtane" "$@"
    place_window
}

# launch COMMAND...: starts the program, and leaves its window where it comes up.
launch() {
    "$@" &
    program=$!
    cleanup+=("kill $program 2>/dev/null")
    until_true find_window
    settled
}

place_window() {
    xdotool windowsize "$window" 1024 700 windowmove "$window" 0 0
    until_true window_is_placed
    sleep 0.3 # the program itself waits for the size to rest
    settled
}

find_window() {
    window=$(xdotool search --all --onlyvisible --pid "$program" --name Mirtane 2>/dev/null | tail -1)
    [ -n "$window" ]
}

window_is_placed() {
    xdotool getwindowgeometry "$window" | tr -d '\n' | grep -q 'Position: 0,0.*Geometry: 1024x700'
}

title_has() { xdotool getwindowname "$window" | grep -qF -- "$1"; }
window_called() { xdotool search --all --onlyvisible --pid "$program" --name "$1" >/dev/null 2>&1; }
no_window_called() { ! window_called "$1"; }
program_ended() { ! kill -0 "$program" 2>/dev/null; }

# Screen pixels. Left to itself, a click of xdotool sleeps for a tenth of a second.
press() { xdotool mousemove "$1" "$2" click --delay 0 "${3:-1}"; }
point() { xdotool mousemove "$1" "$2"; }

# type_letters TEXT: also letters that the keyboard lacks. Each of those borrows a key for as long as the delay, which
# must last until a busy machine has looked at it.
type_letters() {
    local rest=$1 run
    while [ -n "$rest" ]; do
        run=${rest%%[!\ -~]*}
        [ -z "$run" ] || xdotool type -- "$run"
        rest=${rest#"$run"}
        [ -z "$rest" ] || xdotool type --delay 250 -- "${rest:0:1}"
        rest=${rest:1}
    done
}

# menu X KEY COUNT: opens the menu that stands at X on the bar and takes the entry that so many presses of Down or
# Up reach. Greyed entries are passed over.
menu() {
    press "$1" 14
    for ((i = 0; i < $3; ++i)); do xdotool key "$2"; done
    xdotool key Return
}

# pixels X Y W H: how many pixels of that part of the screen are not black.
pixels() {
    import -window root -crop "$3x$4+$1+$2" +repage -depth 8 gray:- | tr -d '\000' | wc -c
}
pixels_over() { [ "$(pixels "$1" "$2" "$3" "$4")" -gt "$5" ]; }
pixels_are() { [ "$(pixels "$1" "$2" "$3" "$4")" = "$5" ]; }

# extent X Y W H: "WxH" of what is not black in that part of the screen.
extent() {
    import -window root -crop "$3x$4+$1+$2" +repage png:- | convert png:- -bordercolor black -border 1 -trim -format '%wx%h' info:
}
