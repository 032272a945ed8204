#!/bin/bash
# A program's way from the editor to its end under DEBUG, as a person goes it: keys only.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

startDisplay
startKorvo

# hasEditors COUNT: so many windows of the program are on the screen.
hasEditors() {
    (($(xdotool search --onlyvisible --name '^sum\.prg$' | wc -l) == $1))
}

# The file does not exist yet: the editor opens on an empty one.
enter 'EDIT COMMAND sum.prg'
windowOf 'sum\.prg'
focus "$window"
typeText 'sum = 0;'
press Return
typeText 'FOR i = 1 TO 3 DO'
press Return
typeText '    sum = sum+i*i; // square'
press Return
typeText 'ENDDO;'
press Return
typeText 'RUN "echo " + STRING(sum) + " > sum.txt";'
press ctrl+s
waitFor 30 grep -q 'sum.txt' sum.prg || fail "Ctrl+S did not save: $(cat sum.prg)"
grep -q '^    sum = sum+i\*i; // square$' sum.prg || fail "wrong text saved: $(cat sum.prg)"
screenshot editor "$window"
press alt+F4
waitFor 30 hasNoWindow 'sum\.prg' || fail "the editor did not close"

focus "$console"
enter 'DEBUG sum.prg'
windowOf 'sum\.prg'
waitFor 30 consoleIsActive || fail "DEBUG did not give the keyboard back to the console"
[[ ! -e sum.txt ]] || fail "the program ran without STEP"

# The first stop stands before the first statement: there is no sum yet.
enter 'RUN "touch stopped"'
expectFile stopped ''
# Assignment, FOR, WHILE, two passes of the body with a step of the loop each.
for _ in 1 2 3 4 5 6 7; do
    enter 'STEP'
done
enter 'RUN "echo " + STRING(sum) + " > atStop.txt"'
expectFile atStop.txt 5
[[ ! -e sum.txt ]] || fail "the program ran on without STEP"
enter '? sum'
waitForRest
screenshot debugStop

# What is assigned at a stop is what the program goes on with.
enter 'sum = 100'
for _ in 1 2 3 4 5; do
    enter 'STEP'
done
expectFile sum.txt 109
enter 'RUN "touch behindTheEnd"'
expectFile behindTheEnd ''

# Another DEBUG begins with an editor of its own. When the console closes at a stop, the program
# does not go on, and the editors of both go, too.
rm sum.txt
enter 'DEBUG sum.prg'
waitFor 30 hasEditors 2 || fail "no second editor"
waitFor 30 consoleIsActive || fail "the second DEBUG did not give the keyboard back"
enter 'STEP'
enter 'QUIT'
expectEnd
[[ ! -e sum.txt ]] || fail "the program ran on when the console closed"
