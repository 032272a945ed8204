// Records are read one at a time, fields as texts, by their names in any case of letters.
MODULELOAD("data/base.prg");
base = withGoods();
record = base.RECORDGET("Goods");
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
? record;                           // expect match: Запись таблицы [Goods] adr [0x*]
? record.CODE;                      // expect: value of [CODE]
? record.Цена;                      // expect: value of [Цена]
? record.SELECT();                  // expect: ИСТИНА
? record.CODE;                      // expect: value of [CODE]
WHILE record.NEXT() DO
    ? record.id+" "+record.Code+" ["+record.DESCR+"] "+record.цена;
ENDDO;
// expect: 1 001 [Гвозди] 95
// expect: 2 002 [Шурупы] 140.5
// expect: 3 003 [] 3
? record.NEXT();                    // expect: ЛОЖЬ
// The last record stays.
? record.CODE;                      // expect: 003
? VALUETYPEASSTRING(record.Цена);   // expect: СТРОКА
