#!/bin/bash
# A program under TRACE, and a person who goes on typing meanwhile.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

printf 'a = 1;\nb = 2;\nRUN "touch traced";\n' >watched.prg

startDisplay
startKorvo
enter 'TRACE watched.prg'
windowOf 'watched\.prg'
waitFor 30 isActive "$window" || fail "the editor of the program did not get the keyboard"
typeAtOnce 'lost'
xdotool key --delay 15 Return ctrl+s
xdotool mousemove --window "$window" 200 100 click 2
expectFile traced ''
waitForRest
screenshot trace
[[ "$(xdotool getwindowname "$window")" == watched.prg ]] || fail "the program counts as changed"
# What is typed behind it is typed into it.
press End
typeText '// kept'
press ctrl+s
waitFor 30 grep -q kept watched.prg || fail "the editor stayed deaf"
[[ "$(<watched.prg)" == *'// kept'* && "$(<watched.prg)" != *lost* ]] ||
    fail "keys of the run came into the program: $(cat watched.prg)"
press alt+F4
waitFor 30 hasNoWindow 'watched\.prg' || fail "the editor did not close"
focus "$console"
enter 'RUN "touch goesOn"'
expectFile goesOn ''
enter 'QUIT'
expectEnd
