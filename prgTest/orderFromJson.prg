// Заказ покупателя приходит текстом JSON: разбираем его и считаем сумму.
// Объект и массив JSON оба становятся списком значений; ключ - это представление.
text = '{
    "number": "A-17",
    "customer": "ООО \"Ромашка\"",
    "paid": true,
    "items": [
        {"goods": "Бумага А4", "quantity": 10, "price": 319.5},
        {"goods": "Ручка", "quantity": 50, "price": 18},
        {"goods": "Папка", "quantity": 12, "price": 74.25}
    ]
}';

заказ = РазобратьJson(text);
? "Заказ "+заказ.ЗначениеПолучитьПоПредставлению("number");
? "Покупатель: "+заказ.ЗначениеПолучитьПоПредставлению("customer");

// За вызовом нельзя поставить точку, поэтому вложенный список берем в переменную.
items = заказ.VALUEGETBYPRESENTATION("items");
итого = 0;
FOR i=1 TO items.SIZE() DO
    item = items.VALUEGET(i);
    quantity = item.VALUEGETBYPRESENTATION("quantity");
    price = item.VALUEGETBYPRESENTATION("price");
    sum = quantity*price;
    итого = итого+sum;
    ? СТРОКА(i)+". "+item.VALUEGETBYPRESENTATION("goods")+": "
        +STRING(quantity)+" x "+FORMAT(price, "N6.2")+" = "+FORMAT(sum, "N8.2");
ENDDO;
? "Итого: "+FORMAT(итого, "N10.2");

paid = заказ.VALUEGETBYPRESENTATION("paid");
IF paid THEN
    ? "Заказ оплачен";
ELSE
    ? "Заказ не оплачен";
ENDIF;
RETURN 1;
