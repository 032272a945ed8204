// A data file that is there is opened, and says so.
MODULELOAD("data/base.prg");
base = CREATEOBJECT("DATABASE");
? base.CONNECT();
// expect: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect: база данных по адресу [data.sqlite] открыта успешно.
// expect: ИСТИНА
? base.CONNECTED();     // expect: ИСТИНА
tables = base.TABLES();
? tables.SIZE();        // expect: 0
