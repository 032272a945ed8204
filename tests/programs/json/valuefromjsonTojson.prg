// What TOJSON of a list wrote is a list again, with a list inside and without items.
l = CREATEOBJECT("VALUELIST");
m = CREATEOBJECT("VALUELIST");
m.VALUEADD("глубоко", "k");
l.VALUEADD(5, "n");
l.VALUEADD(m, "список");
l.VALUEADD("s");
r = VALUEFROMJSON(l.TOJSON());
? VALUETYPEASSTRING(r);                                     // expect: СПИСОКЗНАЧЕНИЙ
? r.SIZE();                                                 // expect: 3
? r.VALUEGETBYPRESENTATION("n")+1;                          // expect: 6
? r.VALUEGET(3);                                            // expect: s
in = r.VALUEGETBYPRESENTATION("список");
? in.VALUEGETBYPRESENTATION("k");                           // expect: глубоко
e = CREATEOBJECT("VALUELIST");
r = VALUEFROMJSON(e.TOJSON());
? VALUETYPEASSTRING(r);                                     // expect: СПИСОКЗНАЧЕНИЙ
? r.SIZE();                                                 // expect: 0
r = VALUEFROMJSON(" // пусто");
// trace: Json Unabel resolve pos 9 in line with length 9 func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> VALUEFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> R=VALUEFROMJSON(" // пусто");  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
