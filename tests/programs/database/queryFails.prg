// A statement that fails is told of in a box and in the table.
MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
result = CREATEOBJECT("VALUETABLE");
? base.QUERYTOVALUETABLE("select * from Missing",result);
// expect: queryExecToValueTable: func: queryExecToValueTable
// expect:  file: ../lib/localDb
// expect match:  line: *
// expect:
// expect: Unable to execute query
// expect: SQL : 'select * from Missing'
// expect:
// expect: Db databaseText   :
// expect: Db driverText     :
// expect: Query databaseText: no such table: Missing
// expect: Query  driverText : Unable to execute statement
// expect:
// expect: ЛОЖЬ
? result.COLUMNNAMEGET(1)+" "+result.COLUMNNAMEGET(2);
// expect: TYPE TEXT
? result.ROWSCOUNT();               // expect: 6
? result.VALUEGET(1,1)+"["+result.VALUEGET(1,2)+"]";    // expect: Unable to execute query[]
? result.VALUEGET(2,1)+result.VALUEGET(2,2);            // expect: SQL : select * from Missing
? result.VALUEGET(5,1)+result.VALUEGET(5,2);            // expect: Query databaseText: no such table: Missing
