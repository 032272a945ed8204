// A name that is not among the tables: its letters count.
MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
? base.TABLEGET("goods");           // expect: ЛОЖЬ
? base.TABLEGET("");                // expect: ЛОЖЬ
? base.RECORDGET("Nothing");        // expect: ЛОЖЬ
? base.TABLEGET("Goods");           // expect match: Таблица базы данных [Goods] adr [0x*]
