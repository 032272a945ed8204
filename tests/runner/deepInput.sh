#!/bin/bash
# Deep nesting and recursion: the program fails with one line of its own and the process goes on.

. "${BASH_SOURCE%/*}/support/wants.sh"

tooDeep='Слишком глубокая вложенность или рекурсия!'

# --- what is reasonable works
{ printf '? '; repeated 1000 '('; printf 1; repeated 1000 ')'; echo ';'; } >deep.prg
wants 0 '^1$' '1,000 parentheses' deep.prg
{ repeated 200 'IF 1=1 THEN '; printf '? 7;'; repeated 200 'ENDIF;'; } >deep.prg
wants 0 '^7$' '200 IFs' deep.prg

# --- what goes beyond fails, when it is checked and when it runs
deep() {
    wants 1 "$tooDeep" "$1" deep.prg
    wants 1 "$tooDeep" "$1, checked" --check deep.prg
}
{ printf '? '; repeated 100000 '('; printf 1; repeated 100000 ')'; echo ';'; } >deep.prg
deep '100,000 parentheses'
{ printf '? '; repeated 100000 '('; } >deep.prg
deep '100,000 parentheses never closed'
{ repeated 100000 'IF 1=1 THEN '; printf '? 1;'; repeated 100000 'ENDIF;'; } >deep.prg
deep '100,000 IFs'
{ repeated 100000 'WHILE 1 DO '; printf '? 1;'; repeated 100000 'ENDDO;'; } >deep.prg
deep '100,000 WHILEs'
{ repeated 100000 'FOR i=1 TO 2 DO '; printf '? 1;'; repeated 100000 'ENDDO;'; } >deep.prg
deep '100,000 FORs'
{ repeated 100000 'FUNCTION f() '; printf '? 1;'; repeated 100000 'ENDFUNCTION;'; } >deep.prg
deep '100,000 functions'
{ printf '? '; repeated 100000 'abs('; printf 1; repeated 100000 ')'; echo ';'; } >deep.prg
deep '100,000 calls'
{ printf '? '; repeated 300000 '1?'; printf 1; repeated 300000 ':1'; echo ';'; } >deep.prg
deep '300,000 conditionals'
{ printf '? '; repeated 300000 '1?2:'; echo '1;'; } >deep.prg
deep '300,000 conditionals in a row'
{ printf '? '; repeated 100000 '('; } >deep.txt
wants 1 "$tooDeep" '100,000 parentheses typed' <deep.txt
{ printf 'c = contextget(); x = 5; ? '; repeated 100000 'c.'; echo 'x;'; } >deep.prg
wants 0 '^5$' 'path of 100,000 steps' deep.prg

echo 'FUNCTION f(x) RETURN f(x+1); ENDFUNCTION; ? f(1);' >recursion.prg
wants 1 "$tooDeep" 'endless recursion' recursion.prg
cat >recursion.prg <<'KORVO'
FUNCTION f(x) x = g(x); ENDFUNCTION;
FUNCTION g(x) WHILE f(x) DO x=1; ENDDO; ENDFUNCTION;
f(1);
KORVO
wants 1 "$tooDeep" 'endless recursion of two' recursion.prg
echo 'DO recursion.prg ;' >recursion.prg
wants 1 "$tooDeep" 'program that runs itself' recursion.prg
echo 'x = moduleload("recursion.prg");' >recursion.prg
wants 0 "$tooDeep" 'module that loads itself, whose failure is a value' recursion.prg

# --- a larger stack does not let a recursion use up the slots
if (ulimit -s 262144) 2>/dev/null; then
    printf '#!/bin/sh\nulimit -s 262144\nexec "%s" "$@"\n' "$KORVO_RUN" >wide
    chmod +x wide
    echo 'FUNCTION f(x) RETURN f(x+1); ENDFUNCTION; ? f(1);' >recursion.prg
    KORVO_RUN=./wide wants 1 "$tooDeep" 'endless recursion on a large stack' recursion.prg
fi

finish
