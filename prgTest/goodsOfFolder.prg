// Товары одной папки из файла данных: запись за записью. Файл строит пример demoData.prg.
// Запуск: korvo-run --data demo.sqlite goodsOfFolder.prg
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
IF base.CONNECT()=FALSE THEN
    RETURN "Файл данных не открыт.";
ENDIF;

record = base.RECORDGET("Ref03");
record.SELECT("isfolder=1 and code='П000002'");
IF record.NEXT()=FALSE THEN
    RETURN "Такой папки нет.";
ENDIF;
? record.descr+":";

// Поля читаются как тексты; для счета их переводят в числа.
count = 0;
dearest = "";
highest = 0;
record.SELECT("isfolder=0 and parentid="+record.id+" order by code");
WHILE record.NEXT() DO
    count = count+1;
    price = NUMBER(record.CenaK);
    IF price>highest THEN
        highest = price;
        dearest = record.descr;
    ENDIF;
    IF count<=5 THEN
        ? " "+record.code+" "+record.descr+FORMAT(price, "N10.2");
    ENDIF;
ENDDO;
? "Всего товаров в папке: "+STRING(count);
? "Дороже всех: "+dearest;
RETURN 1;
