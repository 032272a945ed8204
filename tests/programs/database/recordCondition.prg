// A condition is the text of a WHERE; a new SELECT begins anew.
MODULELOAD("data/base.prg");
base = withGoods();
record = base.RECORDGET("Goods");
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
? record.SELECT("Цена>50");         // expect: ИСТИНА
? record.NEXT();                    // expect: ИСТИНА
? record.CODE;                      // expect: 001
? record.SELECT("CODE='003' order by id");  // expect: ИСТИНА
? record.NEXT();                    // expect: ИСТИНА
? record.CODE;                      // expect: 003
? record.NEXT();                    // expect: ЛОЖЬ
? record.SELECT("CODE='999'");      // expect: ИСТИНА
? record.NEXT();                    // expect: ЛОЖЬ
? record.SELECT("");                // expect: ИСТИНА
? record.NEXT();                    // expect: ИСТИНА
? record.CODE;                      // expect: 001
