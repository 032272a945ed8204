#!/bin/bash
# Input that is no program, or hardly one: the terminal program answers with its exit code and
# words. Exit codes: 0 value 1, 1 compile or run error, 2 unreadable.

. "${BASH_SOURCE%/*}/support/wants.sh"

syntax='Синтаксическая ошибка\.'

# --- files that cannot be read as programs
wants 2 'Файл не найден\.' 'missing file' missing.prg
mkdir folder
wants 2 'Файл не найден\.' 'folder' folder
wants 2 'Файл не найден\.' 'folder to check' --check folder
wants 2 'Файл не найден\.' 'missing file to dump' --dump missing.prg
wants 2 'Файл не найден\.' 'missing file in a missing folder' nowhere/missing.prg
wants 2 'Файл не найден\.' 'name longer than any' "$(repeated 5000 n)"
wants 2 'Файл не найден\.' 'name that is no UTF-8' $'\xff\xfe.prg'
wants 1 'Файл не найден\.' 'missing file of DO' -c 'DO missing.prg'
wants 1 'Файл не найден\.' 'folder of DO' -c 'DO folder'

# --- hardly a program
: >empty.prg
wants 0 '' 'empty file' empty.prg
wants 0 'localCompiledOperatorTypeRENURN' 'empty file dumped' --dump empty.prg
wants 0 '' 'empty standard input' </dev/null
printf '? 1;\0\n? 2;\n' >zero.prg
wants 1 "$syntax" 'zero unit' zero.prg
head -c 65536 /dev/zero >zeros.prg
wants 1 "$syntax" 'zeros only' zeros.prg
printf '\xff\xfe? 1;\n' >invalid.prg
wants 1 "$syntax" 'invalid UTF-8' invalid.prg
printf '? "\xe2\x82\xac";\n' >unknown.prg
wants 0 $'^\xff\xff\xff$' 'letters that the language does not know' unknown.prg
head -c 300000 "$KORVO_RUN" >binary.prg
wants 1 '.' 'a program of the machine' binary.prg

# --- strings and numbers without an end
{ printf 'x = "'; repeated 1000000 'never '; } >string.prg
wants 1 "$syntax" 'string that never ends' string.prg
{ printf '? '; repeated 1000000 9; echo ';'; } >number.prg
wants 1 'Ошибка точности' 'number of a million digits' number.prg
{ repeated 1000000 name; echo ' = 1; ? 1;'; } >name.prg
wants 0 '^1$' 'name of four million letters' name.prg

# --- typed lines
wants 1 "$syntax" 'unended string typed' -c '? "abc'
printf '? 1\0 2\n? "\xff"\n? 3' >typed.txt
wants 0 '^3$' 'odd bytes on standard input, the last line without an end' <typed.txt
wants 1 '^Syntax ERROR: x$' 'one letter typed' -c x

finish
