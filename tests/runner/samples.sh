#!/bin/bash
# Each sample program runs in a copy of its folder, prints what support/samples/ tells, leaves no
# file behind but the data file, and is named on the manual's page of first steps.

samples=$KORVO_SOURCE/prgTest
wanted=${BASH_SOURCE%/*}/support/samples
failures=0

fail() {
    echo "$1"
    failures=$((failures + 1))
}

# The data file that the first of the samples builds for others. Where it lies, and where objects
# do, is not told.
export KORVO_DATA=demo.sqlite
(cp -r "$samples" copy && cd copy && "$KORVO_RUN" demoData.prg) >/dev/null 2>&1
mv copy/demo.sqlite . && rm -r copy
told() {
    sed -E -e "s|\[$PWD/copy/|[|" -e 's/0x[0-9a-f]+/0x0/g' -e 's/ line: [0-9]+$/ line: 0/'
}

count=0
for program in "$samples"/*.prg; do
    name=$(basename "$program" .prg)
    [[ $name != testHelp* ]] || continue
    count=$((count + 1))
    echo "$name.prg" >>present
    cp -r "$samples" copy
    (cd copy && find . | sort) >before
    cp demo.sqlite copy
    # What a program shows in a window is read as it goes into a spreadsheet.
    shown=()
    [[ $name != sheet* ]] || shown=(--export ../sheet.csv)
    (cd copy && "$KORVO_RUN" "${shown[@]}" "$name.prg") >output 2>&1 || fail "$name: ended with $?"
    [[ $name != sheet* ]] || tr -d '\r' <sheet.csv >>output
    told <output | diff "$wanted/$name.txt" - || fail "$name: printed otherwise"
    rm copy/demo.sqlite
    (cd copy && find . | sort) | diff before - || fail "$name: changed what files there are"
    rm -r copy
done

# --- the page of first steps lists the samples, one a list item
grep '^ *"console": ' "$samples/testHelpLocalInterpretatorUtf8.json" |
    grep -oE '<LI><B>[A-Za-z]+\.prg</B>' | sed 's/<[^>]*>//g' | sort >listed
diff listed <(sort present) || fail 'the page of first steps lists other samples'
ls "$wanted" | sed 's/txt$/prg/' | sort | diff - <(sort present) ||
    fail 'support/samples tells of other samples'

echo "$count samples"
[ $count -gt 0 ] && [ $failures -eq 0 ]
