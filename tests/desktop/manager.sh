#!/bin/bash
# A data file looked into and changed by hand: typed command, keys in its windows, and what another
# program then finds in the file.
source "$KORVO_SOURCE/tests/desktop/support/display.sh"

sqlite3 goods.sqlite <<'SQL'
create table Goods (id INTEGER PRIMARY KEY AUTOINCREMENT, code CHAR(9), descr CHAR(40), price INT);
with recursive numbers(n) as (select 1 union all select n+1 from numbers limit 1000)
insert into Goods (code, descr, price) select printf('%03d', n), 'Nail '||n, n*10 from numbers;
create index Goods_CODE on Goods (code);
create table Prices (id INTEGER PRIMARY KEY AUTOINCREMENT, price INT);
SQL

# expectSql STATEMENT TEXT: another program comes to find that in the file.
expectSql() {
    waitFor 30 sqlGives "$1" "$2" ||
        fail "$1: wanted [$2], got [$(sqlite3 goods.sqlite "$1" 2>&1)]"
}

sqlGives() {
    [[ "$(sqlite3 goods.sqlite "$1" 2>&1)" == "$2" ]]
}

# expectWindow TITLE: a window of that title, a regular expression, has the keyboard; it is $window.
expectWindow() {
    waitFor 30 hasTitle "$1" || fail "no window $1 in front"
    window="$(xdotool getactivewindow)"
}

hasTitle() {
    xdotool getactivewindow getwindowname | grep -q -- "^$1\$"
}

startDisplay
startKorvo
enter 'manage = 5'
enter 'MANAGE goods.sqlite'
expectWindow 'dbManage()'
press F5
waitForRest
screenshot managerDesktop

# A record, deleted after its question: the first answer is no, the second yes.
press F4
expectWindow 'Goods\.dbMain'
press Down Delete
expectWindow 'localDb::dbtRecordDelete()'
press Return
expectWindow 'Goods\.dbMain'
expectSql 'select count(*) from Goods' 1000
press Delete
expectWindow 'localDb::dbtRecordDelete()'
press Left space
expectWindow 'Goods\.dbMain'
expectSql 'select id from Goods limit 3' $'1\n3\n4'

# The end of the table, and a record that is looked at and stays as it is.
press ctrl+End F4
expectWindow 'localDbTableView::activatedSlot()'
screenshot managerRecordDesktop
press Return
expectWindow 'Goods\.dbMain'
expectSql 'select code, typeof(price) from Goods where id=1000' '1000|integer'
press Escape

# Another name for a column; the index comes back with it.
expectWindow 'dbManage()'
press shift+F4
expectWindow 'Goods'
press Down F2 ctrl+a
typeText 'artikul'
press Return
waitForRest
screenshot managerStructureDesktop "$window"
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool mousemove --window "$window" $((WIDTH - 137)) $((HEIGHT - 22)) click 1
expectWindow 'dbtAlter'
press Return
expectWindow 'dbtAlter'
press Return
expectWindow 'dbtDelete'
press Return
expectWindow 'dbtRename'
press Return
expectWindow 'dbManage()'
expectSql "select group_concat(name) from pragma_table_info('Goods')" 'id,artikul,descr,price'
expectSql "select group_concat(name) from pragma_index_info('Goods_CODE')" 'artikul'
expectSql 'select count(*), sum(price) from Goods' '999|5004980'
expectSql 'select name from sqlite_master order by name' \
    $'Goods\nGoods_CODE\nPrices\nsqlite_sequence'
screenshot managerChangedDesktop

# The name of the command is still a variable's.
press Escape
waitFor 30 consoleIsActive || fail "the console did not get the keyboard back"
enter 'text = STRING(manage)'
enter 'RUN "echo " + text + " > manage.txt"'
expectFile manage.txt 5
enter 'QUIT'
expectEnd
