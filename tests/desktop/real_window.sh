# Helpers for tests in a real window: a display of their own, keys and clicks as a user gives them, and what is
# to be seen. Sourced.

# begin PROGRAM WORK WIDTHxHEIGHT FACTOR: a display, an install folder and the program.
begin() {
    program=$1 work=$2 screen=$3 factor=$4
    rm -rf "$work"
    mkdir -p "$work/install/io" "$work/shots"
    install=$(cd "$work/install" && pwd -P)
    io=$install/io
    cp "$program" "$install/vantore"
    width=${screen%x*} height=${screen#*x}
    printf '%s/\r\n %d           %d \r\n 1 \r\n' "$io" $((width / factor)) $((height / factor)) \
        >"$install/VANTORE.DRV"
    trap end EXIT
    start_display
    export QT_SCALE_FACTOR=$factor LC_ALL=C.UTF-8 HOME=$work
    unset WAYLAND_DISPLAY QT_QPA_PLATFORM
}

# A display of a number that no other test has, or the next one that is free. It must not start over (-noreset) when
# the last client leaves: whoever comes just then is turned away.
start_display() {
    for number in $(seq $((100 + $$ % 4000)) 4200); do
        Xvfb ":$number" -screen 0 "${screen}x24" -noreset -nolisten tcp 2>"$work/xvfb.log" &
        server=$!
        export DISPLAY=":$number"
        for _ in $(seq 100); do
            kill -0 "$server" 2>/dev/null || break
            if xdotool getdisplaygeometry >/dev/null 2>&1; then return 0; fi
            sleep .1
        done
    done
    fail "no display could be started"
}

# Ends what was started, the program before its display.
end() {
    for process in "${vantore:-}" "${server:-}"; do
        [ -z "$process" ] && continue
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
}

start_program() {
    "$install/vantore" 2>"$work/vantore.log" &
    vantore=$!
}

fail() {
    echo "FAILED: $*" >&2
    import -window root "$work/shots/failed.png" 2>/dev/null || true
    exit 1
}

# await WHAT COMMAND...: until the command succeeds, for 20 seconds at most.
await() {
    what=$1
    shift
    for _ in $(seq 200); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep .1
    done
    fail "waited in vain for $what"
}

# The visible window with exactly this title, the newest of several.
window_named() {
    xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -1
}

has_window() { [ -n "$(window_named "$1")" ]; }
no_window() { ! has_window "$1"; }
has_keyboard() { [ "$(xdotool getwindowfocus)" = "$(window_named "$1")" ]; }

# Waits for a window that has the keyboard.
expect_window() {
    await "the window '$1'" has_window "$1"
    await "the keyboard in '$1'" has_keyboard "$1"
    sleep .2
}

expect_no_window() { await "the end of '$1'" no_window "$1"; }

keys() { xdotool key --delay 40 "$@" && sleep .15; }
text() { xdotool type --delay 25 "$1" && sleep .15; }

# answer TITLE KEYS...: the next dialog with that title, which then goes away.
answer() {
    expect_window "$1"
    asked=$(window_named "$1")
    shift
    keys "$@"
    await "the answer" gone "$asked"
}
gone() { ! xdotool search --onlyvisible --name '.*' | grep -qx "$1"; }

# click LEFT TOP: a click at a place in twips of the 800x600 design.
click() {
    x=$(awk "BEGIN { print int($1 / 15 * $width / 800) }")
    y=$(awk "BEGIN { print int($2 / 15 * $height / 600) }")
    xdotool mousemove "$x" "$y" click 1
    sleep .2
}

# shot NAME: keeps a picture of the screen, which must show more than a few colours.
shot() {
    import -window root "$work/shots/$1.png"
    colours=$(identify -format %k "$work/shots/$1.png")
    [ "$colours" -gt 20 ] || fail "the screen $1 is blank ($colours colours)"
}

# on_screen TITLE: the whole window lies on the screen.
on_screen() {
    eval "$(xdotool getwindowgeometry --shell "$(window_named "$1")" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
    [ "$X" -ge 0 ] && [ "$Y" -ge 0 ] && [ $((X + WIDTH)) -le "$width" ] && [ $((Y + HEIGHT)) -le "$height" ] ||
        fail "the window '$1' at $X,$Y of ${WIDTH}x$HEIGHT reaches beyond the screen"
}

# holds FILE TEXT: the file holds the text.
holds() {
    await "the file $1" test -s "$1"
    grep -qF -- "$2" "$1" || { cat "$1" >&2; fail "$1 doesn't hold: $2"; }
}

# print_to FILE: the print window, which prints into that PDF file.
print_to() {
    expect_window 'Print - COG'
    [ -z "${2:-}" ] || shot "$2"
    keys alt+t End
    keys alt+f ctrl+a
    text "$1"
    keys alt+p
    expect_no_window 'Print - COG'
    await "the file $1" test -s "$1"
    pdftotext -layout "$1" "$1.txt"
}
