#!/bin/bash
# Where the program stands after its start, and which folder it takes for its own.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

ln "$KORVO_BIN_DIR/korvo" korvo 2>/dev/null || cp "$KORVO_BIN_DIR/korvo" korvo || fail "no program"
KORVO_BIN_DIR=.
here="$(pwd -P)"

startDisplay

# expectFolder FOLDER: starts the program, asks it where it is, and ends it.
expectFolder() {
    startKorvo
    enter "RUN \"pwd -P > $here/folder.txt\""
    expectFile "$here/folder.txt" "$1"
    enter 'QUIT'
    expectEnd
    rm "$here/folder.txt"
}

# Without samples it stays in its own folder.
expectFolder "$here"

mkdir prgTest elsewhere
expectFolder "$here/prgTest"

# From anywhere else it stays, also by a relative path and when found by name.
cd elsewhere || exit 1
KORVO_BIN_DIR=..
expectFolder "$here/elsewhere"
