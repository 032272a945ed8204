#!/bin/bash
# What a person wrote into the settings outlives the window's place, which the console writes there
# when it loses the keyboard.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

# settings X Y: the file as it must be, with the window at that place.
settings() {
    cat <<END
// My keys
{
	"F3": "RUN \"echo [a]{b} > brackets.txt\"", // brackets stay
	"on": true, "width": 610, "height": 310,
	"x": $1, "y":$2
}
END
}

startDisplay
settings 100 80 >localConsole.ini
startKorvo
press F3
expectFile brackets.txt '[a]{b}'

# Another window takes the keyboard, and nothing has changed.
enter 'EDIT COMMAND other.prg'
windowOf 'other\.prg'
focus "$window"
waitForRest
expectFile localConsole.ini "$(settings 100 80)"

# moveConsole X Y: moves the frame of the console's window there.
moveConsole() {
    focus "$console"
    xdotool windowmove "$console" "$1" "$2"
    sleep 0.3
    focus "$window"
    waitForRest
}
moveConsole 200 300
screenshot consoleSettings
place="$(sed -n 's/.*"x": \([0-9]*\), "y":\([0-9]*\)$/\1 \2/p' localConsole.ini)"
[[ $place != '100 80' ]] || fail "the place was not written"
# shellcheck disable=SC2086
expectFile localConsole.ini "$(settings $place)"

# Closing writes nothing else.
press alt+F4
focus "$console"
press alt+F4
expectEnd
# shellcheck disable=SC2086
expectFile localConsole.ini "$(settings $place)"

# And once more from there: the keys still mean the same.
rm brackets.txt
startKorvo
press F3
expectFile brackets.txt '[a]{b}'
enter 'QUIT'
expectEnd
# shellcheck disable=SC2086
expectFile localConsole.ini "$(settings $place)"
