# Helpers for tests in a real window: a display and a window manager of their own, keys and clicks as a user gives
# them, and what is to be seen. Nothing sleeps for luck: each step waits for the state that it needs. Sourced.

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
    start_window_manager
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

# A window manager that frames windows, gives new ones the keyboard, and has no keys of its own.
start_window_manager() {
    cat >"$work/openbox.xml" <<'XML'
<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><focusLast>yes</focusLast><followMouse>no</followMouse></focus>
  <keyboard></keyboard>
  <mouse><context name="Client"><mousebind button="Left" action="Press"><action name="Focus"/></mousebind></context></mouse>
</openbox_config>
XML
    openbox --sm-disable --config-file "$work/openbox.xml" 2>"$work/openbox.log" &
    manager=$!
    await "the window manager" xdotool get_num_desktops
}

# Ends what was started, the program before its display.
end() {
    for process in "${vantore:-}" "${manager:-}" "${server:-}"; do
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
}

# expect_other_window WINDOW, expect_same_window WINDOW: whatever their titles, another one has the keyboard, or that one.
expect_other_window() { await "another window in use" other_window "$1"; }
expect_same_window() { await "the window before" same_window "$1"; }
other_window() { [ "$(xdotool getactivewindow)" != "$1" ]; }
same_window() { [ "$(xdotool getactivewindow)" = "$1" ]; }

expect_no_window() { await "the end of '$1'" no_window "$1"; }

keys() { xdotool key --delay 40 "$@"; }
text() { xdotool type --delay 25 "$1"; }

# answer TITLE KEYS...: the next dialog with that title, which then goes away.
answer() {
    expect_window "$1"
    asked=$(window_named "$1")
    shift
    keys "$@"
    await "the answer" gone "$asked"
}
gone() { ! xdotool search --onlyvisible --name '.*' | grep -qx "$1"; }

# click LEFT TOP: a click at a place in twips of the 800x600 design of the window with the keyboard. The launcher's
# window is as large as the screen; framed, it is drawn smaller.
click() {
    window=$(xdotool getactivewindow)
    zoom=1
    if [ "$(xdotool getwindowname "$window")" = VANTORE ]; then
        eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
        zoom=$(awk "BEGIN { x = $WIDTH / $width; y = $HEIGHT / $height; print x < y ? x : y }")
    fi
    x=$(awk "BEGIN { print int($1 / 15 * $width / 800 * $zoom) }")
    y=$(awk "BEGIN { print int($2 / 15 * $height / 600 * $zoom) }")
    xdotool mousemove --sync --window "$window" "$x" "$y" click 1
}

# shot NAME: keeps a picture of the screen once it is still; it must show more than a few colours.
shot() {
    await "a picture of $1" still "$work/shots/$1.png"
}
still() {
    import -window root "$1"
    import -window root "$1.next.png"
    [ "$(identify -format %k "$1")" -gt 20 ] && cmp -s "$1" "$1.next.png"
    unchanged=$?
    rm "$1.next.png"
    return $unchanged
}

# on_screen TITLE: the whole window lies on the screen.
on_screen() { await "the whole window '$1' on the screen" lies_on_screen "$1"; }
lies_on_screen() {
    eval "$(xwininfo -id "$(window_named "$1")" | awk '
        /Absolute upper-left X/ { print "X=" $4 } /Absolute upper-left Y/ { print "Y=" $4 }
        /Width:/ { print "WIDTH=" $2 } /Height:/ { print "HEIGHT=" $2 }')"
    [ "$X" -ge 0 ] && [ "$Y" -ge 0 ] && [ $((X + WIDTH)) -le "$width" ] && [ $((Y + HEIGHT)) -le "$height" ]
}

# holds FILE TEXT: the file holds the text.
holds() {
    for _ in $(seq 200); do
        if grep -qsF -- "$2" "$1"; then return 0; fi
        sleep .1
    done
    cat "$1" >&2
    fail "$1 doesn't hold: $2"
}

# print_to FILE TITLE [SHOT]: the preview of that title, which then prints into that PDF file.
print_to() {
    expect_window "Print - $2"
    [ -z "${3:-}" ] || shot "$3"
    keys ctrl+p
    expect_window Print
    keys alt+f ctrl+a
    text "$1"
    keys Return
    expect_no_window Print
    expect_no_window "Print - $2"
    await "the end of $1" whole_pdf "$1"
    pdftotext -layout "$1" "$1.txt"
}
whole_pdf() { tail -c 8 "$1" | grep -q EOF; }

# no_pictures FILE: the PDF file is made of texts and lines alone.
no_pictures() {
    [ "$(pdfimages -list "$1" | grep -c image)" -le 0 ] || fail "there is a picture in $1"
}
