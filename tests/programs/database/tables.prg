// Tables come as a list of their names, and each is an attribute of the base in any case of letters.
MODULELOAD("data/base.prg");
base = withGoods();
run(base,"create table Товары (id INTEGER PRIMARY KEY)");
run(base,"create view Cheap as select * from Goods where Цена<100");
base.CONNECT();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
tables = base.TABLES();
? tables.SIZE();                    // expect: 3
? tables.VALUEGET(1);               // expect: Goods
? tables.VALUEGET(3);               // expect: Товары
? tables.VALUEPRESENTATIONGET(3);   // expect: Товары
? base.goods;                       // expect match: Таблица базы данных [Goods] adr [0x*]
? base.ТОВАРЫ;                      // expect match: Таблица базы данных [Товары] adr [0x*]
? VALUETYPEASSTRING(base.Goods);    // expect: БАЗАДАННЫХТАБЛИЦА
