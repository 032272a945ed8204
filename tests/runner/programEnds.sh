#!/bin/bash
# How a program's end looks from outside: what is written of it and the exit code.

failures=0

# ends CODE PROGRAM LINES...: a program of that text ends so, its output having these lines, trace
# tails cut.
ends() {
    local code=0 wanted=$1 program=$2
    shift 2
    printf '%s' "$program" >program.prg
    "$KORVO_RUN" program.prg >raw 2>&1 || code=$?
    sed 's/ func: .*//' raw >got
    : >want
    [[ $# == 0 ]] || printf '%s\n' "$@" >want
    if [[ $code != "$wanted" ]] || ! diff want got; then
        echo "[$program] ended with $code instead of $wanted"
        failures=$((failures + 1))
    fi
}

ends 0 '? 1;' 1
ends 0 'RETURN 1;'
ends 3 'RETURN 2;'
# A BREAK outside any loop, and a failure without a status, end the program without a word of it.
ends 1 'BREAK;'
ends 1 'IF 1 THEN ENDIF;' 'Ок. Ошибки отсутствуют'
# A fault is told where it arose and once more by the program.
ends 1 '? nobody;' nobody 'ERROR!!! Неверный атрибут. in  expression.' \
    'Expression below: nobody in  expression' 'Неверный атрибут.' 'Неверный атрибут.'
ends 1 'RETURN [;' 'RETURN [;' 'Синтаксическая ошибка. Ожидается ";"' \
    'line: 1 pos: 6' 'char: 32' 'Синтаксическая ошибка. Ожидается ";"'

# A QUIT in a program that typed lines run ends neither them nor what they know.
printf '? 1;\nQUIT ;' >quit.prg
printf 'a = 7\nDO "quit.prg"\n? a\n' | "$KORVO_RUN" >got 2>&1
if [[ $(tail -1 got) != 7 ]]; then
    echo "the lines behind a program with QUIT were not run: $(cat got)"
    failures=$((failures + 1))
fi

exit $((failures > 0))
