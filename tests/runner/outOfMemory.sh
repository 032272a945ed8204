#!/bin/bash
# Programs and typed lines in a process whose memory is limited: none ends by a signal, and the
# lines behind one that found no memory are acted on.

. "${BASH_SOURCE%/*}/support/wants.sh"

# A build with the address sanitizer reserves addresses without end, so that it cannot be limited.
(ulimit -v 1000000 && "$KORVO_RUN" --version) >/dev/null 2>&1 || exit 0

# limited KILOBYTES ARGUMENT...
limited() {
    (
        ulimit -v "$1"
        shift
        exec "$KORVO_RUN" "$@"
    )
}

# --- values, whose release must not ask for memory
cat >values.prg <<'KORVO'
j = '{"p": "a","v": {"t": "NUM","vP": "1","v": "1"}}';
FOR i=1 TO 17 DO j = j+(","+j); ENDDO;
v = VALUEFROMJSON("["+j+"]");
? v.SIZE();
KORVO
refused=0
for ((limit = 20000; limit <= 220000; limit += 8000)); do
    limited $limit values.prg >output 2>&1
    code=$?
    if [ $code -gt 1 ] || { [ $code -eq 1 ] && ! grep -q 'Недостаточно памяти!' output; }; then
        echo "values with $limit KB: exit code $code"
        head -n 3 output | cut -c 1-200
        failures=$((failures + 1))
    fi
    refused=$((refused + code))
done
if [ $refused -lt 5 ] || [ $refused -gt 25 ]; then
    echo "values: $refused of 26 limits were too low"
    failures=$((failures + 1))
fi

# --- typed lines
{
    echo 'a = "kept"'
    head -c 40000000 /dev/zero | tr '\0' y
    echo
    echo '? a'
} >lines.txt
limited 60000 <lines.txt >output 2>&1
if [ $? -ne 1 ] || [ "$(grep -c 'Недостаточно памяти!' output)" -ne 1 ] ||
    ! grep -qx kept output; then
    echo 'a line too long for the memory: wanted one line of it, "kept" and exit code 1, got'
    head -n 3 output | cut -c 1-200
    failures=$((failures + 1))
fi

finish
