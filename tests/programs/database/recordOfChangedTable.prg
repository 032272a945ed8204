// A column added, and a table dropped, between two calls.
MODULELOAD("data/base.prg");
base = withGoods();
record = base.RECORDGET("Goods");
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
run(base,"alter table Goods add column UNIT CHAR(5) default 'шт'");
? record.SELECT("id=1");            // expect: ИСТИНА
? record.NEXT();                    // expect: ИСТИНА
? record.UNIT;                      // expect: шт
record.SELECT("id<0");
run(base,"drop table Goods");
? record.SELECT();                  // expect: ЛОЖЬ
? record.NEXT();                    // expect: ЛОЖЬ
table = base.Goods;
fields = table.FIELDS();
? fields.ROWSCOUNT();               // expect: 0
