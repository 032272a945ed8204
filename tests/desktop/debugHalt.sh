#!/bin/bash
# The end of the slots in a program under DEBUG: the box comes up, and the process ends with exit
# code 1 though it is another thread than that of the windows that halts it.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

for ((i = 0; i <= 102400; ++i)); do
    echo "v$i = 1;"
done >greedy.prg
echo 'DO "greedy.prg" ;' >watched.prg

boxIsActive() {
    [[ "$(xdotool getactivewindow getwindowname)" == 'Halt!!! Runtime error.' ]]
}

startDisplay
startKorvo
enter 'DEBUG watched.prg'
waitFor 30 xdotool search --onlyvisible --name '^watched\.prg$' || fail "no editor"
waitFor 30 consoleIsActive || fail "DEBUG did not give the keyboard back to the console"
enter 'STEP'
waitFor 120 boxIsActive || fail "no box"
xdotool key Return
waitFor 30 hasEnded || fail "korvo did not end"
code=0
wait "$korvo" || code=$?
[[ $code == 1 ]] || fail "exit code $code: $(cat korvo.err)"
! grep -q 'Sanitizer' korvo.err || fail "$(cat korvo.err)"
