#!/bin/bash
# A table of a million goods in folders, browsed as a person does it: sorted, searched, folders
# walked, cells copied. What is copied is compared with what SQL gives.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

# The tables of the demonstration file, filled by SQL alone: that takes seconds.
count=1000000
sqlite3 demo.sqlite >sqlite.out <<END || fail "no data file: $(cat sqlite.out)"
pragma journal_mode=off; pragma synchronous=off; begin;
create table Ref03 (id INTEGER PRIMARY KEY AUTOINCREMENT, parentid INT(18), isfolder INT(1),
    code CHAR(12), descr CHAR(60), ismark INT(1), CenaK NUME(14,2), Art CHAR(20),
    KoefMin NUME(8,2));
with recursive n(i) as (select 1 union all select i+1 from n where i<$count/1000)
    insert into Ref03 select i, case when i<=10 then 0 else 1+i%10 end, 1, printf('F%07d', i),
    'Folder ' || i, 0, null, null, null from n;
with recursive n(i) as (select 1 union all select i+1 from n where i<$count)
    insert into Ref03 select $count/1000+i, 1+(i-1)/1000, 0, printf('%07d', i),
    'Goods ' || (i*7919%$count), 0, i%90+10, 'A-' || i, 1 from n;
create index Ref03_ID on Ref03 (id);
create index Ref03_CODE on Ref03 (code);
create index Ref03_DESCR on Ref03 (descr);
create index Ref03_PCODE on Ref03 (parentid, isfolder, code);
create index Ref03_PDESCR on Ref03 (parentid, isfolder, descr);
commit;
END

sql() {
    sqlite3 -separator $'\t' demo.sqlite "$1"
}

# expectClipboard WHAT SELECT: what was copied is what SQL gives.
expectClipboard() {
    local wanted
    wanted="$(sql "$2")"
    waitFor 20 clipboardHolds "$wanted" ||
        fail "$1: wanted [$wanted], got [$(xclip -selection clipboard -o 2>&1)]"
}

clipboardHolds() {
    [[ "$(xclip -selection clipboard -o)" == "$1" ]]
}

browseIsActive() {
    [[ "$(xdotool getactivewindow getwindowname)" == 'Товары' ]]
}

# expectCell WHAT SELECT: the cursor's cell.
expectCell() {
    press ctrl+c
    expectClipboard "$1" "$2"
}

# cursorIn COLUMN: the cursor goes to a column, counted from 1.
cursorIn() {
    press --repeat 8 Left
    (($1 == 1)) || press --repeat $(($1 - 1)) Right
}

startDisplay
KORVO_DATA=demo.sqlite startKorvo
enter 'CLASSLOAD("DATABASE")'
enter 'base = CREATEOBJECT("DATABASE")'
enter 'base.__TEST(2)'
waitFor 30 browseIsActive || fail "no window of the goods"
screenshot browseMillion "$(xdotool getactivewindow)"

# --- the whole table by description
byDescr='from Ref03 order by descr, id limit 1 offset'
cursorIn 3
expectCell 'the first row' "select descr $byDescr 0"
press --repeat 300 Down
expectCell 'after 300 times Down' "select descr $byDescr 300"
press --repeat 40 Up
expectCell 'and 40 times Up' "select descr $byDescr 260"
press ctrl+End
expectCell 'the last row' "select descr from Ref03 order by descr desc, id desc limit 1"

# --- found by typing, and sorted by another column around what was found
typeText 'Goods 77123'
waitForRest
screenshot browseMillionFound "$(xdotool getactivewindow)"
found="descr >= 'Goods 77123' order by descr, id limit 1"
expectCell 'what was typed' "select descr from Ref03 where $found"
press ctrl+2
cursorIn 2
expectCell 'by code, the same row' "select code from Ref03 where $found"
press Down
code="(select code from Ref03 where $found)"
expectCell 'the next code' "select code from Ref03 where code > $code order by code limit 1"

# --- folders
next="(select id from Ref03 where code > $code order by code limit 1)"
press ctrl+h
expectCell 'in its folder' "select code from Ref03 where id=$next"
parent="(select parentid from Ref03 where id=$next)"
inside="from Ref03 where parentid=$parent order by isfolder, descr, id limit 1"
press ctrl+Home
cursorIn 3
expectCell 'the first row of the folder' "select descr $inside"
press shift+Right shift+Down
press ctrl+c
expectClipboard 'a block' "select descr, parentid ${inside}+1"
press ctrl+Up ctrl+Home
cursorIn 3
around="(select parentid from Ref03 where id=$parent)"
expectCell 'the folder around' "select descr from Ref03 where parentid=$around order by isfolder, \
descr, id limit 1"
press ctrl+End
folder="parentid=$around order by isfolder desc, descr desc, id desc limit 1"
expectCell 'its last row' "select descr from Ref03 where $folder"
screenshot browseMillionFolder "$(xdotool getactivewindow)"
press ctrl+Down
expectCell 'inside of that' "select descr from Ref03 where parentid=(select id from Ref03 where \
$folder) order by isfolder, descr, id limit 1"
press ctrl+h
expectCell 'flat again' "select descr from Ref03 where parentid=(select id from Ref03 where \
$folder) order by isfolder, descr, id limit 1"

press alt+F4
waitFor 30 consoleIsActive || fail "the console did not get the keyboard back"
enter 'QUIT'
expectEnd
