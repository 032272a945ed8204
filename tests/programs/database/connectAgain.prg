// A second CONNECT leaves what is under way, and finds the tables made since.
MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
record = base.RECORDGET("Goods");
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
record.SELECT();
record.NEXT();
run(base,"create table Partners (id INTEGER PRIMARY KEY, name CHAR(40))");
base.CONNECT();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
? record.NEXT();                    // expect: ИСТИНА
? record.CODE;                      // expect: 002
table = base.partners;
fields = table.FIELDS();
? fields.ROWSCOUNT();               // expect: 2
