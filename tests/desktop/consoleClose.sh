#!/bin/bash
# The console's window closed by the window manager ends the program as QUIT does.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

cat >slow.prg <<'END'
RUN "touch running";
FOR i = 1 TO 30000 DO
? i;
ENDDO;
RUN "touch finished";
END

startDisplay
startKorvo
press alt+F4
expectEnd

# While a program runs the window stays; it closes when the program has ended.
startKorvo
enter 'DO "slow.prg"'
expectFile running ''
xdotool key alt+F4
expectFile finished ''
expectEnd
