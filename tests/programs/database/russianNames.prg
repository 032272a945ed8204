MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
base = СОЗДАТЬОБЪЕКТ("БАЗАДАННЫХ");
? base.ПОДКЛЮЧИТЬ();
// expect: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect: база данных по адресу [data.sqlite] открыта успешно.
// expect: ИСТИНА
? base.СТРОКА();                    // expect match: База данных [db-*] adr [0x*]
tables = base.ТАБЛИЦЫ();
? tables.VALUEGET(1);               // expect: Goods
result = CREATEOBJECT("VALUETABLE");
? base.ТАБЛИЦАПОЛЯ("Goods",result); // expect: ИСТИНА
? base.ЗАПРОСВТАБЛИЦУЗНАЧЕНИЙ("select 2+2",result);     // expect: ИСТИНА
? result.VALUEGET(1,1);             // expect: 4
? base.__ТЕСТ(0);                   // expect: ЛОЖЬ
