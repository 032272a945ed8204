#!/bin/bash
# Modules in the terminal program as it is built: a copy of it stands beside a module of the tests
# that goes under the name of the one for pictures.

. "${BASH_SOURCE%/*}/support/wants.sh"

graphic='моожет быть применен только в графической версии'
mkdir bin
cp "$KORVO_RUN" bin/
KORVO_RUN=bin/korvo-run

# --- nothing beside the program
wants 1 "$graphic" 'no module' -c '? PIXMAPASBASE64FROMFILEGET("1")'

# --- no library, and a library that is no module
echo 'no library' >bin/localPictureModule.so
wants 1 '^Module \[localPictureModule\] cannot be loaded: ' 'a text' \
    -c '? PIXMAPASBASE64FROMFILEGET("1")'
wants 1 "$graphic" 'the status of a text' -c '? PIXMAPASBASE64FROMFILEGET("1")'
cp "$KORVO_TEST_MODULES/entrylessModule.so" bin/localPictureModule.so
wants 1 '^Module \[localPictureModule\] .*localModule' 'no entry' \
    -c '? PIXMAPASBASE64FROMFILEGET("1")'
wants 1 "$graphic" 'the status without an entry' -c '? PIXMAPASBASE64FROMFILEGET("1")'

# --- a module that works
cp "$KORVO_TEST_MODULES/languageModule.so" bin/localPictureModule.so
wants 0 '^7$' 'evaluation' -c '? PIXMAPASBASE64FROMFILEGET("2*3+1")'
wants 0 '^42$' 'a variable' -c 'x=PIXMAPASBASE64PARTGET("variable",41,0)' -c '? fromTheModule+1'
wants 0 '^2$' 'an object of the language' -c 'x=PIXMAPASBASE64PARTGET("list",0,0)' -c '? x.SIZE()'
wants 0 '^kept$' 'an object of the module' \
    -c 'x=PIXMAPASBASE64FROMFILEGET("1")' -c 'x=CLASSLOAD("V77")' -c 'x=CREATEOBJECT("V77")' \
    -c 'x.KEEP("kept")' -c '? x.KEPT()'

# --- what fails in it ends the statement only, and all slots come back
cat >failures.lines <<'KORVO'
x = PIXMAPASBASE64FROMFILEGET("1")
x = 0
MEMORYDISPLAYDATA()
PIXMAPASBASE64PARTGET("range",0,0)
PIXMAPASBASE64PARTGET("memory",0,0)
PIXMAPASBASE64PARTGET("length",0,0)
PIXMAPASBASE64FROMFILEGET("1+")
MEMORYDISPLAYDATA()
? "alive"
KORVO
wants 1 '^alive$' 'the program lives' <failures.lines
wants 1 'Выход за границы массива\.' 'a status of the module' <failures.lines
wants 1 'Недостаточно памяти!' 'no memory' <failures.lines
"$KORVO_RUN" <failures.lines >output
used=$(grep '^used ' output | sort | uniq -c)
if [ "$(echo "$used" | wc -l)" -ne 1 ] || [[ $used != *' 2 used '* ]]; then
    echo "slots: wanted the same count twice, got"
    echo "$used"
    failures=$((failures + 1))
fi

finish
