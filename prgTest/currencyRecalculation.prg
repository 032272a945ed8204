// Пересчет цен по курсам валют. Курсы лежат в списке: значение - курс, представление - валюта.
rates = CREATEOBJECT("VALUELIST");
rates.VALUESETBYPRESENTATION(1, "RUB");
rates.VALUESETBYPRESENTATION(92.5, "USD");
rates.VALUESETBYPRESENTATION(100.25, "EUR");
rates.VALUESETBYPRESENTATION(12.8, "CNY");

// Курс валюты; у неизвестной валюты он 0. Отсутствующее представление дает пустую строку.
FUNCTION rateOf(currency)
    VAR rate = rates.VALUEGETBYPRESENTATION(currency);
    // Знак ? смотрит на один операнд перед ним, поэтому сравнение стоит в скобках.
    RETURN (VALUETYPEASSTRING(rate)="ЧИСЛО") ? rate : 0;
ENDFUNCTION;

// Сумма в другой валюте, округленная до копеек. Скобки нужны: деление слабее умножения.
FUNCTION convert(sum, from, into)
    RETURN ROUND(sum*(rateOf(from)/rateOf(into)), 2);
ENDFUNCTION;

PROCEDURE show(sum, from, into)
    // ИЛИ сильнее сравнения, поэтому обе его стороны стоят в скобках.
    IF (rateOf(from)=0) OR (rateOf(into)=0) THEN
        ? "Нет курса: "+from+" - "+into;
    ELSE
        ? FORMAT(sum, "N10.2")+" "+from+" = "+FORMAT(convert(sum, from, into), "N10.2")+" "+into;
    ENDIF;
ENDPROCEDURE;

show(100, "USD", "RUB");
show(100, "EUR", "USD");
show(50000, "RUB", "CNY");
show(10, "GBP", "RUB");

// Новый курс заменяет прежний: представление то же самое.
rates.VALUESETBYPRESENTATION(93, "USD");
show(100, "USD", "RUB");
? "Валют в списке: "+STRING(rates.SIZE());
RETURN 1;
