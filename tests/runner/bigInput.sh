#!/bin/bash
# Programs of outsized texts, strings and counts of values. What is big is made here.

. "${BASH_SOURCE%/*}/support/wants.sh"

overflow='^Error!!!  Memory manager \(localMemoryManager\) overflow\. Resize not available func: '
overflow+='exit_FAILURE '

{
    echo 'x = 0;'
    yes "x = x+1; // $(repeated 487 .)" | head -n 100000
    echo '? x;'
} >megabytes.prg
wants 0 '^100000$' '50 MB of program' megabytes.prg
rm megabytes.prg
{ printf '? 0'; repeated 1000000 +1; echo ';'; } >line.prg
wants 0 '^1000000$' 'huge line' line.prg
{ printf '? 0'; repeated 1000000 -1+1*1; echo ';'; } >line.prg
wants 0 '^-2000000$' 'huge line of all priorities' line.prg
{ printf 'x = "'; repeated 1000000 0123456789; echo '"; ? stringlen(x);'; } >line.prg
wants 0 '^10000000$' 'huge string' line.prg
{ printf '? 0'; repeated 1000000 +1; } >line.txt
wants 0 '^1000000$' 'huge line on standard input' <line.txt
{
    echo 'IF 1=2 THEN ? 1;'
    yes 'ELSEIF 1=2 THEN ? 2;' | head -n 20000
    echo 'ELSE ? 3; ENDIF;'
} >long.prg
wants 0 '^3$' '20,000 branches' long.prg

# --- a string that doubles for ever, with memory for less than the longest string
cat >doubles.prg <<'KORVO'
s = "0123456789abcdef";
WHILE 1 DO s = s+s; ENDDO;
KORVO
# A build with the address sanitizer reserves addresses without end and is limited by its own
# option.
cat >limited <<'SHELL'
#!/bin/bash
if (ulimit -v 1000000 && "$UNLIMITED" --version) >/dev/null 2>&1; then
    ulimit -v 1000000
else
    export ASAN_OPTIONS=max_allocation_size_mb=200:allocator_may_return_null=1
fi
exec "$UNLIMITED" "$@"
SHELL
chmod +x limited
UNLIMITED=$KORVO_RUN
export UNLIMITED
KORVO_RUN=./limited wants 1 'Недостаточно памяти!' 'string that doubles for ever' doubles.prg

# --- the slots
seq 103000 | sed 's/.*/v& = 1;/' >slots.prg
wants 1 "$overflow" '103,000 variables' slots.prg
{ printf '? max('; repeated 103000 '1 '; echo ');'; } >slots.prg
wants 1 "$overflow" '103,000 arguments' slots.prg
seq 102000 | sed 's/.*/v& = 1;/' >slots.prg
echo '? v102000;' >>slots.prg
wants 0 '^1$' '102,000 variables' slots.prg

finish
