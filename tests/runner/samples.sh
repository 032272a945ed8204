#!/bin/bash
# Each sample program runs in a copy of its folder, prints what support/samples/ tells, leaves no
# file behind, and is named on the manual's page of first steps.

samples=$KORVO_SOURCE/prgTest
wanted=${BASH_SOURCE%/*}/support/samples
failures=0

fail() {
    echo "$1"
    failures=$((failures + 1))
}

count=0
for program in "$samples"/*.prg; do
    name=$(basename "$program" .prg)
    [[ $name != testHelp* ]] || continue
    count=$((count + 1))
    echo "$name.prg" >>present
    cp -r "$samples" copy
    (cd copy && find . | sort) >before
    (cd copy && "$KORVO_RUN" "$name.prg") >output 2>&1 || fail "$name: ended with $?"
    diff "$wanted/$name.txt" output || fail "$name: printed otherwise"
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
