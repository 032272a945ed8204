#!/bin/bash
# The console as a person uses it: keys in, files and the screen out.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

cat >slow.prg <<'END'
RUN "touch running";
FOR i = 1 TO 20000 DO
? i;
ENDDO;
RUN "touch finished";
END
cat >file.prg <<'END'
// Squares for the picture, and a file for the test.
FOR i = 1 TO 4 DO
? i*i;
ENDDO;
путь = "made-by-program";
RUN "touch " + путь;
END
printf '? 1;\nQUIT ;' >quits.prg
cat >argument.prg <<'END'
RUN "touch made-by-argument";
END

startDisplay
# A file named on the command line is not run, and the toolkit gets no words either.
startKorvo argument.prg -platform nonsense
grep -q '^localMemoryManager::manager->getReservedCount()= 0$' korvo.out ||
    fail "the start did not tell the length of the store: $(cat korvo.out)"

enter '? 2+3*4'
enter 'имя = "Корво Ёё"'
enter '? имя'
enter 'RUN "echo " + имя + " > name.txt"'
expectFile name.txt 'Корво Ёё'

enter 'DO "file.prg"'
expectFile made-by-program ''
enter '? путь'
# A program's text with QUIT does not compile; the console stays, with its variables.
enter 'DO "quits.prg"'
enter 'RUN "touch stays-" + путь'
expectFile stays-made-by-program ''
enter 'q'
typeText 'half a command, пол'
waitForRest
screenshot console "$console"
press --repeat 19 BackSpace

# The cursor stops at the prompt, so the line is whole whatever was pressed too often.
typeText 'RUX "echo kept > edited.txt"'
press Home Left Left BackSpace Right Right Delete
typeText 'N'
press Return
expectFile edited.txt kept

# A click into the output does not take the keys away from the input line.
typeText 'RUN "echo kept '
waitForRest
xdotool mousemove --window "$console" 60 60 click 1
enter '> clicked.txt"'
expectFile clicked.txt kept

# Keys that are pressed while a program runs are lost.
enter 'DO "slow.prg"'
expectFile running ''
enterAtOnce 'RUN "touch lost"'
[[ ! -e finished ]] || fail "the slow program was too fast for this test"
waitFor 120 test -e finished || fail "the slow program did not end"
enter 'RUN "echo kept > after.txt"'
expectFile after.txt kept
[[ ! -e lost ]] || fail "a line typed while a program ran was acted on"

[[ ! -e made-by-argument ]] || fail "a program named on the command line was run"

enter 'QUIT'
expectEnd
