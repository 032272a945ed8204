// In a value list each field is an item, its presentation the field's name, its value the four facts.
MODULELOAD("data/base.prg");
base = withGoods();
// expect many: CONNECT() try to connect fileNameForOpenQString=[data.sqlite]localDb::testDbInit выбран файл [
// expect many: база данных по адресу [data.sqlite] открыта успешно.
fields = CREATEOBJECT("VALUELIST");
fields.VALUEADD("old");
? base.TABLEFIELDS("Goods",fields); // expect: ИСТИНА
? fields.SIZE();                    // expect: 4
? fields.VALUEPRESENTATIONGET(4);   // expect: Цена
facts = fields.VALUEGETBYPRESENTATION("id");
? facts.SIZE();                     // expect: 4
? facts.VALUEGETBYPRESENTATION("Name");         // expect: id
? facts.VALUEGETBYPRESENTATION("Type");         // expect: 2
? facts.VALUEGETBYPRESENTATION("Length");       // expect: -1
? facts.VALUEGETBYPRESENTATION("Precision");    // expect: -1
