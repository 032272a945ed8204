#!/bin/bash
# The data file in the terminal program: which one it is, and that nobody pays for the library who
# does not use it.

. "${BASH_SOURCE%/*}/support/wants.sh"

# What a file holds is told by the name of its one table.
cat >make.prg <<'KORVO'
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
base.CONNECT();
result = CREATEOBJECT("VALUETABLE");
query = "create table "+STRINGFROMFILE("name.txt")+" (id INTEGER PRIMARY KEY, n INT)";
base.QUERYTOVALUETABLE(query, result);
RETURN 1;
KORVO
cat >look.prg <<'KORVO'
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
base.CONNECT();
tables = base.TABLES();
? "holds "+tables.VALUEGET(1);
RETURN 1;
KORVO
mkdir -p 'with blank' lib
for name in first second third; do
    printf %s $name >name.txt
    : >"with blank/$name.sqlite"
    wants 0 'открыта успешно' "making $name" --data "with blank/$name.sqlite" make.prg
done

# --- the option, the variable, the option before the variable
unset KORVO_DATA
wants 0 '^holds first$' 'option' --data 'with blank/first.sqlite' look.prg
wants 0 '^holds first$' 'option behind the program' look.prg --data 'with blank/first.sqlite'
wants 0 '^holds first$' 'option with lines' --data 'with blank/first.sqlite' -c 'DO look.prg'
export KORVO_DATA='with blank/second.sqlite'
wants 0 '^holds second$' 'variable' look.prg
wants 0 '^holds first$' 'option and variable' --data 'with blank/first.sqlite' look.prg
export KORVO_DATA=$PWD/'with blank/third.sqlite'
wants 0 '^holds third$' 'variable with a full name' look.prg
# A name counts from where the program was started.
export KORVO_DATA='with blank/second.sqlite'
wants 0 '^holds second$' 'another folder at CLASSLOAD' -c 'x = CWD("lib")' -c 'DO ../look.prg'
export KORVO_DATA=
wants 1 'Файл не найден' 'an empty variable' look.prg
unset KORVO_DATA
wants 2 'needs a file' 'no file behind the option' --data

# --- files that cannot be data files; a dialog for another one gives nothing here
wants 1 '^defaultName=\.\.\\lib\\Zakup200215\.sqlite$' 'no data file' look.prg
wants 1 'Файл не найден' 'no data file' look.prg
wants 1 'Файл не найден' 'a missing file' --data missing.sqlite look.prg
wants 1 'Ошибка открытия базы' 'a folder' --data lib look.prg
wants 1 '^databaseText\(\) = file is not a database$' 'a text' --data look.prg look.prg

# --- the toolkit says nothing of its own, also where a user has no folder for what runs
(
    unset XDG_RUNTIME_DIR
    "$KORVO_RUN" --data 'with blank/first.sqlite' look.prg 2>errors >output
)
if [ -s errors ]; then
    echo "errors: wanted nothing, got"
    head -n 3 errors
    failures=$((failures + 1))
fi

# --- a file that another process has locked is waited for, 5 seconds, then told of, each time
cat >locked.prg <<'KORVO'
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
base.CONNECT();
record = base.RECORDGET("first");
BASE64APPENDTOFILE("", "ready");
WHILE FILEEXIST("held")=FALSE DO
    tries = 1;
ENDDO;
? "SELECT "+STRING(record.SELECT());
? "TABLES "+STRING(base.TABLES());
other = CREATEOBJECT("DATABASE");
? "CONNECT "+STRING(other.CONNECT());
RETURN 1;
KORVO
(
    until [ -e ready ]; do sleep 0.05; done
    sqlite3 'with blank/first.sqlite' 'begin exclusive' '.shell touch held' \
        '.shell until [ -e done ]; do sleep 0.1; done'
) &
before=${EPOCHREALTIME%.*}
wants 0 '^SELECT ЛОЖЬ$' 'SELECT of a locked file' --data 'with blank/first.sqlite' locked.prg
waited=$((${EPOCHREALTIME%.*} - before))
for line in 'TABLES ЛОЖЬ' 'CONNECT ЛОЖЬ' 'Ошибка открытия базы' \
    'databaseText() = database is locked'; do
    if ! grep -qxF -- "$line" output; then
        echo "a locked file: no line '$line'"
        failures=$((failures + 1))
    fi
done
if [ "$(grep -cxF 'Query databaseText: database is locked' output)" -ne 2 ] ||
    [ $waited -lt 15 ] || [ $waited -gt 25 ]; then
    echo "a locked file: wanted two boxes and one of the open within 15 s, got within $waited s"
    cat output
    failures=$((failures + 1))
fi
touch done
wait

# --- a walk over many records keeps its memory
cat >fill.sql <<'SQL'
with recursive numbers(x) as (select 1 union all select x+1 from numbers limit 1000000)
insert into first (n) select x*2 from numbers
SQL
cat >fill.prg <<'KORVO'
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
base.CONNECT();
result = CREATEOBJECT("VALUETABLE");
RETURN IIF(base.QUERYTOVALUETABLE(STRINGFROMFILE("fill.sql"), result), 1, 0);
KORVO
cat >walk.prg <<'KORVO'
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
base.CONNECT();
record = base.RECORDGET("first");
record.SELECT(STRINGFROMFILE("condition.txt"));
count = 0;
WHILE record.NEXT() DO
    count = count+1;
ENDDO;
? "read "+STRING(count)+" to "+record.n;
? STRINGFROMFILE("/proc/self/status");
RETURN 1;
KORVO
# Sets size to the most memory that the program ever had.
peak() {
    printf %s "$1" >condition.txt
    wants 0 "^read $2\$" "a walk of $1" --data 'with blank/first.sqlite' walk.prg
    size=$(grep -a '^VmHWM' output | tr -dc 0-9)
}
wants 0 'открыта успешно' 'a million records' --data 'with blank/first.sqlite' fill.prg
peak 'id<=1000' '1000 to 2000'
few=$size
peak 'id>0' '1000000 to 2000000'
many=$size
# A build with the address sanitizer keeps released memory back; it reserves addresses without end,
# which tells it apart.
if ! (ulimit -v 1000000 && "$KORVO_RUN" --version) >/dev/null 2>&1; then
    few=0 many=0
fi
if [ -z "$few" ] || [ -z "$many" ] || [ $((many - few)) -gt 3000 ]; then
    echo "memory: wanted the same for a thousand and a million records, got $few and $many KB"
    failures=$((failures + 1))
fi

# --- a program without a data file has nothing of the toolkit in it
wants 0 '^0$' 'no toolkit at the start' \
    -c 'm = STRINGFROMFILE("/proc/self/maps")' -c '? STRINGPARTFIND(m, "libQt")'
wants 0 '^[1-9][0-9]*$' 'the toolkit behind CLASSLOAD' \
    -c 'x = CLASSLOAD("DATABASE")' -c 'm = STRINGFROMFILE("/proc/self/maps")' \
    -c '? STRINGPARTFIND(m, "libQt")'
# Without the module beside the program the class is known, but not there.
mkdir bin
cp "$KORVO_RUN" bin/
KORVO_RUN=bin/korvo-run
wants 1 'моожет быть применен только в графической версии' 'no module' \
    -c 'x = CLASSLOAD("DATABASE")'

finish
