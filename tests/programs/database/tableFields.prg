// Fields of a table: name, type, length and precision as the driver tells them.
MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
fields = CREATEOBJECT("VALUETABLE");
fields.COLUMNADD("old");
? base.TABLEFIELDS("Goods",fields); // expect: ИСТИНА
? fields.COLUMNSCOUNT();            // expect: 4
? fields.COLUMNNAMEGET(1)+" "+fields.COLUMNNAMEGET(2)+" "+fields.COLUMNNAMEGET(3)+" "+fields.COLUMNNAMEGET(4);
// expect: NAME TYPE LENGTH PRECISION
FOR i=1 TO fields.ROWSCOUNT() DO
    ? fields.VALUEGET(i,1)+" "+STRING(fields.VALUEGET(i,2))+" "+STRING(fields.VALUEGET(i,3))+" "+STRING(fields.VALUEGET(i,4));
ENDDO;
// expect: id 2 -1 -1
// expect: CODE 10 -1 -1
// expect: descr 10 -1 -1
// expect: Цена 10 -1 -1
table = base.TABLEGET("Goods");
same = table.FIELDS();
? same.ROWSCOUNT();                 // expect: 4
? same.VALUEGET(4,"Name");          // expect: Цена
? base.TABLEFIELDS("Nothing",fields);   // expect: ЛОЖЬ
? fields.ROWSCOUNT();               // expect: 0
