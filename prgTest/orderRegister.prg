// Журнал заказов в файле данных: заказы добавляются, исправляются и складываются в отчет.
// Запуск: korvo-run --data demo.sqlite orderRegister.prg (файл строит пример demoData.prg)
CLASSLOAD("DATABASE");
base = CREATEOBJECT("DATABASE");
IF base.CONNECT()=FALSE THEN
    RETURN "Файл данных не открыт.";
ENDIF;

answer = CREATEOBJECT("VALUETABLE");
PROCEDURE run(query)
    IF base.QUERYTOVALUETABLE(query, answer)=FALSE THEN
        ? "Не выполнено: "+query;
    ENDIF;
ENDPROCEDURE;

// Апостроф внутри текста запроса пишется дважды.
FUNCTION quoted(text)
    VAR rest = text;
    VAR done = "";
    VAR at = STRINGPARTFIND(rest, "'");
    WHILE at>0 DO
        done = done+STRINGPARTLEFT(rest, at)+"'";
        rest = STRINGPARTRIGHT(rest, STRINGLEN(rest)-at);
        at = STRINGPARTFIND(rest, "'");
    ENDDO;
    RETURN "'"+done+rest+"'";
ENDFUNCTION;

run("drop table if exists Orders");
run("create table Orders (id INTEGER PRIMARY KEY AUTOINCREMENT, number CHAR(8), partner CHAR(40), goods CHAR(60), quantity INT(8), price NUME(12,2), paid INT(1))");
run("create index Orders_NUMBER on Orders (number)");

stock = base.RECORDGET("Ref03");
PROCEDURE add(number, partner, code, quantity)
    stock.SELECT("isfolder=0 and code="+quoted(code));
    IF stock.NEXT() THEN
        run("insert into Orders (number, partner, goods, quantity, price, paid) values ("+quoted(number)+", "+quoted(partner)+", "+quoted(stock.descr)+", "+STRING(quantity)+", "+stock.CenaK+", 0)");
    ELSE
        ? "Нет товара с кодом "+code;
    ENDIF;
ENDPROCEDURE;

// Заказ из нескольких строк записывается весь или никак.
run("BEGIN");
add("З-1", "ООО Ромашка", "000003", 10);
add("З-1", "ООО Ромашка", "000007", 2);
add("З-2", "Кафе д'Артаньян", "000012", 5);
add("З-3", "ИП Петров", "000020", 1);
add("З-3", "ИП Петров", "999999", 1);
run("COMMIT");

// Заказ З-2 оплачен, в З-1 первого товара нужно меньше.
run("update Orders set paid=1 where number='З-2'");
run("update Orders set quantity=4 where number='З-1' and goods like 'Краска%'");
// Эту правку передумали делать.
run("BEGIN");
run("delete from Orders");
run("ROLLBACK");

? "Заказ    Партнер             Сумма";
run("select number, partner, sum(quantity*price) as total, max(paid) as paid from Orders group by number order by number");
total = 0;
FOR row=1 TO answer.ROWSCOUNT() DO
    answer.ROWACTUALSET(row);
    name = STRINGPARTLEFT(answer.partner+"                    ", 16);
    total = total+NUMBER(answer.total);
    ? answer.number+"      "+name+FORMAT(NUMBER(answer.total), "N9.2")+IIF(answer.paid="1", "  оплачен", "");
ENDDO;
? "Всего:                   "+FORMAT(total, "N9.2");
RETURN 1;
