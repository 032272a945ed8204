#!/bin/bash
# A program of the console reads a data file, which the environment names at the start.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

cat >goods.sql <<'SQL'
create table Goods (id INTEGER PRIMARY KEY, CODE CHAR(9), descr CHAR(40));
insert into Goods (CODE, descr) values ('001','Гвозди'),('002','Шурупы'),('003','Скобы');
SQL
mkdir 'with blank'
sqlite3 'with blank/goods.sqlite' <goods.sql || fail "no data file"

cat >read.prg <<'KORVO'
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
base.CONNECT();
record = base.RECORDGET("Goods");
record.SELECT("id>1");
text = "";
WHILE record.NEXT() DO
    ? record.CODE+" "+record.descr;
    text = text+record.CODE+" "+record.descr+";";
ENDDO;
STRINGAPPENDTOFILE(text, "read.txt");
RETURN 1;
KORVO

oneLess() {
    [[ "$(sqlite3 'with blank/goods.sqlite' 'select count(*) from Goods')" == 2 ]]
}

startDisplay
# As every session on a desktop has it.
export XDG_RUNTIME_DIR=$PWD/session
mkdir -m 700 session

# A name counts from where the program was started.
export KORVO_DATA='with blank/goods.sqlite'
startKorvo
enter 'DO read.prg'
expectFile read.txt '002 Шурупы;003 Скобы;'

# What the program left is there for typed lines.
enter 'base.QUERYTOVALUETABLE("delete from Goods where id=2", CREATEOBJECT("VALUETABLE"))'
waitFor 30 oneLess || fail "the typed line did not reach the file"
waitForRest
screenshot dataFile "$console"

enter 'QUIT'
expectEnd
[[ ! -s korvo.err ]] || fail "said on the standard error stream: $(cat korvo.err)"
