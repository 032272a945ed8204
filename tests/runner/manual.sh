#!/bin/bash
# The manual: its book of pages and the program that opens it.

. "${BASH_SOURCE%/*}/support/wants.sh"

book=testHelpLocalInterpretatorUtf8.json
opener=testHelpLocalInterpretatorUtf8.prg
samples=$KORVO_SOURCE/prgTest

python3 "$KORVO_SOURCE/tests/runner/support/manual.py" "$samples/$book" ||
    failures=$((failures + 1))

# --- the language's own reader finds every page in it
cp "$samples/$book" .
cat >pages.prg <<'KORVO'
book = PARSEJSON(STRINGFROMFILE("testHelpLocalInterpretatorUtf8.json"));
classes = book.VALUEGETBYPRESENTATION("class");
pages = (book.SIZE()-1)+classes.SIZE();
FOR i=1 TO classes.SIZE() DO
    class = classes.VALUEGET(i);
    methods = class.VALUEGETBYPRESENTATION("method");
    pages = pages+methods.SIZE();
ENDDO;
? pages;
KORVO
# A method's page has one syntax, a class and the three front pages have one text each.
methods=$(grep -c '^ *"syntax": ' $book)
classes=$(grep -c '^ *"text": ' $book)
wants 0 "^$((3 + classes + methods))\$" 'pages read by the language' pages.prg
rm $book

# --- the opener finds the book wherever it may lie itself; showing it is for windows only
graphic='моожет быть применен только в графической версии'
mkdir -p bin/prgTest prgTest
cp "$KORVO_RUN" bin/
cp "$samples/$opener" .
KORVO_RUN=bin/korvo-run
wants 3 "^Руководство не открыть: файл $book не найден\.\$" 'no book' $opener
for place in . prgTest bin bin/prgTest; do
    cp "$samples/$book" $place
    wants 1 "$graphic" "book in $place" $opener
    rm $place/$book
done

finish
