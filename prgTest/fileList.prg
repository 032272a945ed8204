// Список файлов: выгрузки магазинов отбираются по маске имени, их суммы складываются.

PROCEDURE removeSamples()
    VAR names = FILES("sample*");
    FOR i=1 TO names.SIZE() DO
        FILEDELETE(names.VALUEGET(i));
    ENDDO;
ENDPROCEDURE;

// Файлы для примера программа делает сама и в конце удаляет. Запись добавляет в конец файла,
// поэтому остатки прерванного запуска убираются и в начале.
removeSamples();
STRINGAPPENDTOFILE("15200.50", "sampleShop1.txt");
STRINGAPPENDTOFILE("980", "sampleShop2.txt");
STRINGAPPENDTOFILE("", "sampleShop3.txt");
STRINGAPPENDTOFILE("Чай;12", "sampleStock.csv");

// Маска: "*" - любые знаки, "?" - один знак. Имена идут по алфавиту.
shops = FILES("sampleShop?.txt");
? "Выгрузок: "+STRING(shops.SIZE());

total = 0;
FOR i=1 TO shops.SIZE() DO
    name = shops.VALUEGET(i);
    text = STRINGFROMFILE(name);
    IF VALUEISEMPTY(text) THEN
        ? name+": пусто";
    ELSE
        // Файл хранит текст, число из него делает NUMBER.
        sum = NUMBER(text);
        ? name+": "+FORMAT(sum, "N9.2");
        total = total+sum;
    ENDIF;
ENDDO;
? "Всего: "+FORMAT(total, "N9.2");

removeSamples();
left = FILES("sample*");
? "Осталось файлов: "+STRING(left.SIZE());
RETURN 1;
