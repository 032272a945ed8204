// Сортировка таблицы: "+" или ничего - по возрастанию, "-" - по убыванию.
goods = CREATEOBJECT("VALUETABLE");
goods.COLUMNADD("name");
goods.COLUMNADD("section");
goods.COLUMNADD("sold");

PROCEDURE add(name, section, sold)
    VAR row = goods.ROWADD();
    goods.VALUESET(row, "name", name);
    goods.VALUESET(row, "section", section);
    goods.VALUESET(row, "sold", sold);
ENDPROCEDURE;

PROCEDURE show(title)
    ? title;
    FOR row=1 TO goods.ROWSCOUNT() DO
        goods.ROWACTUALSET(row);
        ? "  "+goods.section+" / "+goods.name+" / "+STRING(goods.sold);
    ENDDO;
ENDPROCEDURE;

add("Молоко", "Молочное", 240);
add("Батон", "Хлеб", 310);
add("Кефир", "Молочное", 95);
add("Булка", "Хлеб", 120);
add("Творог", "Молочное", 120);

goods.SORT("name");
show("По названию");

// Порядок равных рядов не меняется, поэтому второй сортировкой получаются группы:
// по отделам, а внутри отдела по убыванию продаж.
goods.SORT("-sold");
goods.SORT("+section");
show("По отделам и продажам");

// О неизвестной колонке SORT отвечает ложью и порядок не трогает.
? goods.SORT("price");
RETURN 1;
