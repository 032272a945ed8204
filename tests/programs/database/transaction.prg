// What BEGIN and ROLLBACK stand around is one piece, also when CONNECT comes between.
MODULELOAD("data/base.prg");
base = withGoods();
run(base,"BEGIN");
run(base,"delete from Goods");
base.CONNECT();
run(base,"ROLLBACK");
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
result = run(base,"select count(*) as n from Goods");
? result.VALUEGET(1,1);             // expect: 3
