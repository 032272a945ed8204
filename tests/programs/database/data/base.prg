// What the programs of this folder begin with: the data file, empty at first, and goods in it.
CLASSLOAD("DATABASE");
BASE64APPENDTOFILE("","data.sqlite");

FUNCTION opened()
    VAR base = CREATEOBJECT("DATABASE");
    base.CONNECT();
    RETURN base;
ENDFUNCTION;

FUNCTION run(base, sql)
    VAR result = CREATEOBJECT("VALUETABLE");
    base.QUERYTOVALUETABLE(sql, result);
    RETURN result;
ENDFUNCTION;

FUNCTION withGoods()
    VAR base = opened();
    run(base,"create table Goods (id INTEGER PRIMARY KEY AUTOINCREMENT, CODE CHAR(9), descr CHAR(40), Цена NUME(12,2))");
    run(base,"insert into Goods (CODE,descr,Цена) values ('001','Гвозди',95),('002','Шурупы',140.5),('003',null,3)");
    base.CONNECT();
    RETURN base;
ENDFUNCTION;

RETURN 1;
