#!/bin/bash
# The middle button pastes what is selected; where nothing is, it does nothing.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

# middleClick WINDOW: into the text.
middleClick() {
    waitForRest
    xdotool mousemove --window "$1" 200 100 click 2
    waitForRest
    ! hasEnded || fail "korvo ended: $(cat korvo.err)"
}

startDisplay
startKorvo
middleClick "$console"
enter 'EDIT COMMAND note.prg'
windowOf 'note\.prg'
focus "$window"
middleClick "$window"

typeText 'ab'
press shift+Home
middleClick "$window"
press ctrl+s
expectFile note.prg 'abab'
press alt+F4
focus "$console"
enter 'QUIT'
expectEnd
