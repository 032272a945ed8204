#!/bin/bash
# What is selected with the mouse in the console and copied by the menu of the right button.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

cat >lines.prg <<'END'
s = "0123456789";
FOR i = 1 TO 9 DO
s = s+s;
ENDDO;
? "first";
? s;
? "last";
END

# byMenu KEYS...: opens the right button's menu over the output and presses the keys there.
byMenu() {
    waitForRest
    xdotool mousemove --window "$console" 60 250 click 3
    sleep 0.4
    press "$@"
    sleep 0.2
}

# pasteIntoFile NAME: the clipboard goes into that file, by the editor.
pasteIntoFile() {
    focus "$console"
    enter "EDIT COMMAND $1"
    windowOf "$1"
    focus "$window"
    press ctrl+v
    press ctrl+s
    sleep 0.3
    press alt+F4
    waitFor 30 hasNoWindow "$1" || fail "the editor did not close"
    focus "$console"
}

startDisplay
# The settings cannot be written: the console tells that when its menu takes the keyboard.
mkdir localConsole.ini
startKorvo
# A double click selects a word of the greeting; the first line begins below the tool bar.
xdotool mousemove --window "$console" 30 30 click --repeat 2 --delay 60 1
waitForRest
screenshot consoleCopy
byMenu c
pasteIntoFile word.txt
expectFile word.txt 'This'

# A line that is longer than the console lays out at once is one line.
enter 'DO "lines.prg"'
byMenu Up Return
byMenu c
pasteIntoFile all.txt
grep -A2 '^first$' all.txt | tail -2 >copied.txt
long="$(sed -n 1p copied.txt)"
[[ ${#long} == 5120 && "$(sed -n 2p copied.txt)" == last ]] ||
    fail "the long line was copied as ${#long} letters: $(head -c 300 copied.txt)"
(($(grep -c 'Не удалось записать файл настроек' all.txt) == 1)) ||
    fail "the failure was not told once: $(grep -v 0123 all.txt)"
enter 'QUIT'
expectEnd
