# A display of its own for a test of the built window program, and what to do on it.
# For bash, sourced; the script's folder is $KORVO_SOURCE/tests/desktop.

ownProcesses=()

fail() {
    echo "FAILED: $*" >&2
    if [[ -n ${DISPLAY:-} ]]; then
        import -window root "$KORVO_SCREENSHOTS/failed-$(basename "$0" .sh).png" 2>/dev/null
    fi
    exit 1
}

endOwnProcesses() {
    local process
    for process in "${ownProcesses[@]}"; do
        kill "$process" 2>/dev/null
        wait "$process" 2>/dev/null
    done
}
trap endOwnProcesses EXIT

# waitFor SECONDS COMMAND...: runs the command again and again until it succeeds. Fails after the
# time.
waitFor() {
    local end=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || return 1
        sleep 0.05
    done
}

# A screen of 1280 by 960, a window manager, and a keyboard with both alphabets.
startDisplay() {
    # The server takes a number that is free and tells it. It must not begin anew when a client
    # goes.
    Xvfb -displayfd 3 -noreset -screen 0 1280x960x24 -nolisten tcp 3>display.number 2>xvfb.log &
    ownProcesses=("$!" "${ownProcesses[@]}")
    waitFor 30 test -s display.number || fail "no display"
    DISPLAY=":$(tr -d '\n' <display.number)"
    export DISPLAY
    setxkbmap -layout us,ru || fail "no keyboard"
    openbox >openbox.log 2>&1 &
    ownProcesses=("$!" "${ownProcesses[@]}")
    waitFor 30 windowManagerStands || fail "no window manager"
    # It takes keys a while later: its key for the bare desktop tells when.
    waitFor 30 toggleDesktop 1 && waitFor 30 toggleDesktop 0 ||
        fail "the window manager takes no keys"
}

windowManagerStands() {
    xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

# toggleDesktop STATE: whether that was what it took to show the bare desktop (1) or the windows
# (0).
toggleDesktop() {
    xdotool key super+d
    sleep 0.1
    xprop -root _NET_SHOWING_DESKTOP | grep -q "= $1\$"
}

# startKorvo ARGUMENTS...: the console is on the screen and has the keyboard; its process is $korvo.
startKorvo() {
    # Without a history a box would stand before the console.
    : >>console_history.log
    "$KORVO_BIN_DIR/korvo" "$@" >korvo.out 2>korvo.err &
    korvo=$!
    ownProcesses=("$korvo" "${ownProcesses[@]}")
    waitFor 60 xdotool search --onlyvisible --name '^console\(\)$' || fail "no console"
    console="$(xdotool search --onlyvisible --name '^console\(\)$' | head -1)"
    waitFor 30 consoleIsActive || fail "the console did not get the keyboard"
}

consoleIsActive() {
    isActive "$console"
}

# focus WINDOW: that window has the keyboard.
focus() {
    xdotool windowactivate "$1"
    waitFor 30 isActive "$1" || fail "a window did not get the keyboard"
}

isActive() {
    [[ "$(xdotool getactivewindow)" == "$1" ]]
}

# windowOf NAME: the last window of that name is on the screen, as $window.
windowOf() {
    waitFor 30 xdotool search --onlyvisible --name "$1" || fail "no window $1"
    window="$(xdotool search --onlyvisible --name "$1" | tail -1)"
}

hasNoWindow() {
    ! xdotool search --onlyvisible --name "$1"
}

# Keys pressed while korvo is busy are dropped. So these wait until it has done with what came
# before; the ones whose names end in AtOnce do not.
typeText() {
    waitForRest
    typeAtOnce "$1"
}

typeAtOnce() {
    xdotool type --delay 15 -- "$1"
}

# enter LINE: types a line and the Return key.
enter() {
    waitForRest
    enterAtOnce "$1"
}

enterAtOnce() {
    typeAtOnce "$1"
    xdotool key --delay 15 Return
}

# press KEYS...: keys by their names.
press() {
    waitForRest
    xdotool key --delay 15 "$@"
}

waitForRest() {
    waitFor 60 isAtRest || fail "korvo does not come to rest"
}

# The windows' thread has slept in its event loop for a while.
isAtRest() {
    local before
    before="$(restOf)"
    sleep 0.06
    [[ $before == S* && "$(restOf)" == "$before" ]]
}

# Whether the windows' thread sleeps, and how often it has gone to sleep.
restOf() {
    sed -n 's/^State:\t\(.\).*/\1/p; s/^voluntary_ctxt_switches:\t//p' \
        "/proc/$korvo/task/$korvo/status"
}

# expectFile NAME TEXT: the file comes to hold the text.
expectFile() {
    waitFor 30 fileHolds "$1" "$2" || fail "$1: wanted [$2], got [$(cat "$1" 2>&1)]"
}

fileHolds() {
    [[ -f $1 && "$(<"$1")" == "$2" ]]
}

# expectEnd: the program ends by itself, with exit code 0.
expectEnd() {
    waitFor 30 hasEnded || fail "korvo did not end"
    local code=0
    wait "$korvo" || code=$?
    [[ $code == 0 ]] || fail "korvo ended with exit code $code: $(cat korvo.err)"
}

hasEnded() {
    ! kill -0 "$korvo"
}

screenshot() {
    import -window "${2:-root}" "$KORVO_SCREENSHOTS/$1.png" || fail "no screenshot $1"
}
