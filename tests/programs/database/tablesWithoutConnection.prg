// A connection for which no file was chosen does not open.
MODULELOAD("data/base.prg");
base = CREATEOBJECT("DATABASE");
? base.TABLES();                    // expect: ЛОЖЬ
? base.TABLEGET("Goods");           // expect: ЛОЖЬ
? base.RECORDGET("Goods");          // expect: ЛОЖЬ
result = CREATEOBJECT("VALUETABLE");
result.COLUMNADD("old");
? base.QUERYTOVALUETABLE("select 1",result);    // expect: ЛОЖЬ
? result.COLUMNSCOUNT();            // expect: 0
? base.TABLEFIELDS("Goods",result); // expect: ЛОЖЬ
? base.CONNECTED();                 // expect: ИСТИНА
