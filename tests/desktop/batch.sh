#!/bin/bash
# A program run by the window program without a console: behind a thousand words on the command
# line.
export QT_QPA_PLATFORM=offscreen
korvo="$KORVO_BIN_DIR/korvo"

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

words=()
for ((i = 0; i < 999; ++i)); do
    words+=(x)
done

# batch CODE FIRST: runs the program named by the first word; its output is in out.txt.
batch() {
    local code=0
    timeout 60 "$korvo" "$2" "${words[@]}" >out.txt 2>err.txt || code=$?
    [[ $code == "$1" ]] || fail "$2: exit code $code instead of $1: $(cat out.txt err.txt)"
}

holds() {
    grep -q -- "$1" out.txt || fail "no line [$1] in: $(cat out.txt)"
}

printf '? "it runs";\n' >first.prg
batch 0 first.prg
holds '^first.prg func: qMain file: qMain.cpp line: '
holds '^command: \[do first.prg\] func: qMain file: qMain.cpp line: '
holds '^it runs$'

# Nothing is written in a console nobody sees, nor said of an end that nobody asked for.
! grep -q 'Korvo interpreter\|Done!' out.txt || fail "too much: $(cat out.txt)"

# The name comes in the code page CP1251.
name="$(printf '\xef\xf0\xe8\xec\xe5\xf0.prg')"
printf '? "it runs too";\n' >пример.prg
batch 0 "$name"
holds '^пример.prg func: qMain'
holds '^it runs too$'

# And as the system writes it.
batch 0 "пример.prg"
holds '^пример.prg func: qMain'
holds '^it runs too$'

batch 0 '>first.prg'
! grep -q 'command:\|it runs' out.txt || fail "a redirection was run: $(cat out.txt)"

batch 0 missing.prg
holds '^command: \[do missing.prg\]'

# An error of the program is told and is no crash.
printf '? nothere;\n' >wrong.prg
batch 0 wrong.prg
holds 'ERROR!!!'

# One word less, and there is a console, which does not run the program.
words=("${words[@]:1}")
timeout 5 "$korvo" first.prg "${words[@]}" >out.txt 2>err.txt
[[ $? == 124 ]] || fail "no console: $(cat out.txt err.txt)"
! grep -q 'it runs' out.txt || fail "a program was run: $(cat out.txt)"
