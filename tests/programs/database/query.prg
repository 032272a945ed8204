// The first hundred rows of a statement, as texts; NULL is an empty one.
MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
result = CREATEOBJECT("VALUETABLE");
? base.QUERYTOVALUETABLE("select CODE, descr as ' name ', count(*), '' as '' from Goods group by id",result);
// expect: ИСТИНА
? result.COLUMNNAMEGET(1);          // expect: CODE
? result.COLUMNNAMEGET(2);          // expect: NAME
? result.COLUMNNAMEGET(3);          // expect: COUNT(*)
? result.COLUMNNAMEGET(4);          // expect: FIELD4
? result.ROWSCOUNT();               // expect: 3
? result.VALUEGET(1,"name");        // expect: Гвозди
? "["+result.VALUEGET(3,"name")+"]";    // expect: []
? base.QUERYTOVALUETABLE("with recursive n(x) as (select 1 union all select x+1 from n limit 250) select x from n",result);
// expect: ИСТИНА
? result.ROWSCOUNT();               // expect: 100
? result.VALUEGET(100,1);           // expect: 100
? base.QUERYTOVALUETABLE("select * from Goods where id<0",result);  // expect: ИСТИНА
? result.COLUMNSCOUNT();            // expect: 0
? base.QUERYTOVALUETABLE("update Goods set descr='Скобы' where id=3",result);   // expect: ИСТИНА
? base.QUERYTOVALUETABLE("select descr from Goods where id=3",result);  // expect: ИСТИНА
? result.VALUEGET(1,1);             // expect: Скобы
