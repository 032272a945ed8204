// Names with blanks, quotes and Cyrillic letters.
MODULELOAD("data/base.prg");
base = opened();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
quote = CHR(34);
run(base,"create table "+quote+"my goods"+quote+" (a, "+quote+"b c"+quote+")");
run(base,"insert into "+quote+"my goods"+quote+" values (1,2)");
run(base,"create table "+quote+"it's"+quote+" (a)");
run(base,"create table Склады (Название)");
run(base,"insert into Склады values ('Основной')");
record = base.RECORDGET("my goods");
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
? record.SELECT("a=1");             // expect: ИСТИНА
? record.NEXT();                    // expect: ИСТИНА
? record.A;                         // expect: 1
record = base.RECORDGET("it's");
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
? record.SELECT();                  // expect: ИСТИНА
? record.NEXT();                    // expect: ЛОЖЬ
record = base.RECORDGET("Склады");
// trace match: Запись таблицы [*] adr [0x*
// trace match: Запись [Запись таблицы [*] adr [0x*
? record.SELECT();                  // expect: ИСТИНА
? record.NEXT();                    // expect: ИСТИНА
? record.название;                  // expect: Основной
