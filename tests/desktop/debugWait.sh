#!/bin/bash
# A typed command that waits for a program under DEBUG: what other windows hear meanwhile, and how
# the console is closed.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

cat >works.prg <<'END'
RUN "touch working";
WHILE NOT FILEEXIST("enough") DO
k = 1;
ENDDO;
END
printf 'DO "works.prg" ;\na = 1;\n' >watched.prg

# The program is in a statement that takes its time, and a command waits for it.
letACommandWait() {
    rm -f working enough
    enter 'DEBUG watched.prg'
    windowOf 'watched\.prg'
    waitFor 30 consoleIsActive || fail "DEBUG did not give the keyboard back to the console"
    enter 'STEP'
    expectFile working ''
    enterAtOnce 'RUN "touch done"'
    sleep 0.3
    [[ ! -e done ]] || fail "the command did not wait"
}

startDisplay
startKorvo
enter 'EDIT COMMAND other.prg'
windowOf 'other\.prg'
other="$window"
focus "$console"
enter 'EDIT COMMAND closed.prg'
windowOf 'closed\.prg'
closed="$window"
focus "$console"

# Keys for another window come to it when the wait is over; closing one is heard at once.
letACommandWait
focus "$closed"
xdotool key alt+F4
waitFor 30 hasNoWindow 'closed\.prg' || fail "a window did not close while a command waited"
focus "$other"
typeAtOnce 'kept'
xdotool key --delay 15 ctrl+s
sleep 0.5
! grep -q kept other.prg || fail "a key was acted on while a command waited"
screenshot debugWait
touch enough
expectFile done ''
waitFor 30 grep -q '^kept' other.prg || fail "keys of another window got lost: $(cat other.prg)"

# Keys for the console are dropped.
rm done
focus "$console"
letACommandWait
enterAtOnce 'RUN "touch lost"'
touch enough
expectFile done ''
enter 'RUN "touch kept"'
expectFile kept ''
[[ ! -e lost ]] || fail "a line typed while a command waited was acted on"

# A statement that works for ever does not keep the console from closing.
rm done
letACommandWait
xdotool key alt+F4
waitFor 30 hasNoWindow '^console\(\)$' || fail "the console did not close while a command waited"
[[ ! -e done ]] || fail "the command was acted on though the console closed"
windowOf 'other\.prg'
focus "$window"
press alt+F4
expectEnd
