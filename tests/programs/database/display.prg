// The variables of the objects: one a table, one a field. A record shows what it was read to.
MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
? base.DISPLAY();
// trace: Контекст: func: classImplementationMethodFunction file: localDataBaseClass.cpp
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ ***************
// expect match: в том числе список переменных для  контекста [0x*]  потомка контекста [0x*]
// expect match: 0 [0x*] var [GOODS] :  address: [0x*]  Type: [БАЗАДАННЫХТАБЛИЦА]  className: [DATABASETABLE]  num: [0]  pointer: [0x*]  wStr: []  Val: [Таблица базы данных [Goods] adr [0x*] ...]
// expect match: 1 [0x*] var [SQLITE_SEQUENCE] :  address: [0x*]  Type: [БАЗАДАННЫХТАБЛИЦА]  className: [DATABASETABLE]  num: [0]  pointer: [0x*]  wStr: []  Val: [Таблица базы данных [sqlite_sequence] adr [0x*...]
// expect match: в том числе список переменных для  ГЛОБАЛЬНОГО  контекста [0x*]
// expect match: 0 [0x*] var [BASE] :  address: [0x*]  Type: [БАЗАДАННЫХ]  className: [DATABASE]  num: [0]  pointer: [0x*]  wStr: []  Val: [База данных [db-*...]
// trace match: Accessible RAM: * func: dispMemo file: localContextListings.cpp
// expect: ИСТИНА
record = base.RECORDGET("Goods");
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
record.SELECT();
record.NEXT();
? record.DISPLAY();
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ ***************
// expect match: в том числе список переменных для  контекста [0x*]  потомка контекста [0x*]
// expect match: 0 [0x*] var [CODE] :  address: [0x*]  Type: [СТРОКА]  num: [0]  pointer: [0x0]  wStr: [001]  Val: [001]
// expect match: 1 [0x*] var [DESCR] :  address: [0x*]  Type: [СТРОКА]  num: [0]  pointer: [0x0]  wStr: [Гвозди]  Val: [Гвозди]
// expect match: 2 [0x*] var [ID] :  address: [0x*]  Type: [СТРОКА]  num: [0]  pointer: [0x0]  wStr: [1]  Val: [1]
// expect match: 3 [0x*] var [ЦЕНА] :  address: [0x*]  Type: [СТРОКА]  num: [0]  pointer: [0x0]  wStr: [95]  Val: [95]
// expect match: в том числе список переменных для  ГЛОБАЛЬНОГО  контекста [0x*]
// expect match: 0 [0x*] var [BASE] : *
// expect match: 1 [0x*] var [RECORD] : * Type: [БАЗАДАННЫХЗАПИСЬ]  className: [DATABASERECORD] * Val: [Запись таблицы [Goods] adr [0x*...]
// trace match: Accessible RAM: * func: dispMemo file: localContextListings.cpp
// expect: ИСТИНА
