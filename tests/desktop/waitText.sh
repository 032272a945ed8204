#!/bin/bash
# The wait text stands on the screen while a program works that writes nothing.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

cat >silent.prg <<'END'
RUN "touch running";
WHILE NOT FILEEXIST("enough") DO
k = 1;
ENDDO;
END
printf '? "a line";\nDO "silent.prg" ;\n' >loud.prg
cat >lines.prg <<'END'
FOR i = 1 TO 60 DO
? i;
ENDDO;
END

# lastLine NAME: takes a picture of where the last line of a full console begins.
lastLine() {
    import -window "$console" png:- | convert - -gravity SouthWest -crop 70x34+0+0 "$1.png"
    [[ -s $1.png ]] || fail "no picture"
}
# lastLineDuring PROGRAM: the same while the program works.
lastLineDuring() {
    rm -f running enough
    enter "DO \"$1.prg\""
    expectFile running ''
    lastLine "$1"
    touch enough
    waitForRest
}
differ() {
    (($(compare -metric AE "$1.png" "$2.png" null: 2>&1) > 0))
}

startDisplay
startKorvo
enter 'DO "lines.prg"'
waitForRest
lastLine idle
lastLineDuring loud
lastLineDuring silent
differ idle loud || fail "no wait text"
! differ silent loud || fail "no wait text before a silent program works"
enter 'QUIT'
expectEnd
