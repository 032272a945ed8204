// Отчет об остатках: что есть на складе, на какую сумму и что пора заказать.
stock = CREATEOBJECT("VALUETABLE");
stock.COLUMNADD("goods");
stock.COLUMNADD("quantity");
stock.COLUMNADD("minimum");
stock.COLUMNADD("price");

PROCEDURE add(goods, quantity, minimum, price)
    VAR row = stock.ROWADD();
    stock.VALUESET(row, "goods", goods);
    stock.VALUESET(row, "quantity", quantity);
    stock.VALUESET(row, "minimum", minimum);
    stock.VALUESET(row, "price", price);
ENDPROCEDURE;

add("Гвозди, кг", 120, 50, 95);
add("Шурупы, кг", 18, 40, 140);
add("Краска, банка", 36, 20, 410.5);
add("Кисть", 0, 25, 62);

total = 0;
toOrder = CREATEOBJECT("VALUELIST");
FOR row=1 TO stock.ROWSCOUNT() DO
    // Имя колонки читается у текущего ряда.
    stock.ROWACTUALSET(row);
    sum = stock.quantity*stock.price;
    total = total+sum;
    ? stock.goods+": "+STRING(stock.quantity)+" на сумму "+FORMAT(sum, "N9.2");
    IF stock.quantity<stock.minimum THEN
        // Сравнение сильнее вычитания, поэтому разность стоит отдельно от условия.
        toOrder.VALUEADD(stock.minimum-stock.quantity, stock.goods);
    ENDIF;
ENDDO;
? "Всего на складе: "+FORMAT(total, "N10.2");

? "Заказать:";
FOR i=1 TO toOrder.SIZE() DO
    ? " - "+toOrder.VALUEPRESENTATIONGET(i)+": "+STRING(toOrder.VALUEGET(i));
ENDDO;
RETURN 1;
