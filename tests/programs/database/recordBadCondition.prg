// A condition that is none gives false, without a box; so does NEXT then, and before any SELECT.
MODULELOAD("data/base.prg");
base = withGoods();
record = base.RECORDGET("Goods");
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
? record.NEXT();                    // expect: ЛОЖЬ
? record.SELECT("no such thing");   // expect: ЛОЖЬ
? record.NEXT();                    // expect: ЛОЖЬ
? record.SELECT("CODE='a'b'");      // expect: ЛОЖЬ
? record.SELECT("CODE='001'");      // expect: ИСТИНА
? record.NEXT();                    // expect: ИСТИНА
