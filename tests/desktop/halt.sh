#!/bin/bash
# The end of the slots halts the program: a box says so, and the process ends with exit code 1.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

for ((i = 0; i <= 102400; ++i)); do
    echo "v$i = 1;"
done >greedy.prg

startDisplay
startKorvo
enter 'DO "greedy.prg"'
waitFor 60 xdotool search --onlyvisible --name '^Halt!!! Runtime error\.$' || fail "no box"
waitForRest
screenshot halt
press Return
waitFor 30 hasEnded || fail "korvo did not end"
code=0
wait "$korvo" || code=$?
[[ $code == 1 ]] || fail "exit code $code: $(cat korvo.err)"
