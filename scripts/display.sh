# shellcheck shell=bash
# Runs the program where there is no display: on a virtual screen, with a window manager and a picture of its main
# window. Sourced by run and by scripts/on-screen, after lib.sh. Every process started here is ended by its id, whichever way run ends.

program_pid='' manager_pid='' screen_pid=''

end_all() {
    local pid
    trap '' INT TERM HUP
    for pid in $program_pid $manager_pid $screen_pid; do
        if kill "$pid" 2>/dev/null; then wait "$pid" || true; fi
    done
}

# until_true SECONDS COMMAND...: asks again and again; fails when the time is up or the program has ended.
until_true() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$deadline" ] || return 1
        [ -z "$program_pid" ] || kill -0 "$program_pid" 2>/dev/null || return 1
        sleep 0.2
    done
}

start_screen() {
    local number='' answer
    answer=$(mktemp -u)
    mkfifo "$answer"
    Xvfb -displayfd 3 -screen 0 "${SCREEN:-1440x1000x24}" -nolisten tcp 3>"$answer" >/dev/null 2>&1 &
    screen_pid=$!
    read -r -t 30 number <"$answer" || true
    rm -f "$answer"
    [ -n "$number" ] || die "Xvfb did not start"
    export DISPLAY=:$number QT_QPA_PLATFORM=xcb
}

start_window_manager() {
    openbox --sm-disable >/dev/null 2>&1 &
    manager_pid=$!
    until_true 10 window_manager_answers || say "No window manager answers; going on without"
}

window_manager_answers() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

main_window() { xwininfo -root -tree | awk '/"Tolmark :/ { print $1; exit }'; }

main_window_viewable() {
    local window
    window=$(main_window)
    [ -n "$window" ] && xwininfo -id "$window" 2>/dev/null | grep -q 'IsViewable'
}

# Takes pictures into FILE until two in a row are the same, so that nothing is caught half drawn.
picture_settled() {
    local before=$last_picture
    import -silent -frame -window "$(main_window)" "$1" 2>/dev/null || return 1
    last_picture=$(identify -format '%#' "$1")
    [ "$last_picture" = "$before" ]
}

take_picture() {
    local file=$1 last_picture=''
    if ! until_true 60 main_window_viewable; then
        ! kill -0 "$program_pid" 2>/dev/null || say "No main window after 60 seconds, so no picture"
        return
    fi
    until_true 5 picture_settled "$file" || true
    [ ! -s "$file" ] || say "A picture of the main window: $file"
}

# run_on_virtual_screen PROGRAM PICTURE: stays until the program ends; the exit code is the program's.
run_on_virtual_screen() {
    local program=$1 picture=$2 code=0
    trap end_all EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
    start_screen
    start_window_manager
    say "There is no display: Tolmark runs on the virtual screen $DISPLAY. Ctrl-C ends it."
    rm -f "$picture"
    "$program" &
    program_pid=$!
    take_picture "$picture"
    wait "$program_pid" || code=$?
    program_pid=''
    exit "$code"
}
