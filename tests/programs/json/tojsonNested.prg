l = CREATEOBJECT("VALUELIST");
m = CREATEOBJECT("VALUELIST");
l.VALUEADD(m, "m");
m.VALUEADD(2);
? l.TOJSON();
// expect: [
// expect match: {"p": "m","v": {"t": "OBJ","tN": "VALUELIST","vP": "Список значений \[1\] links \[2\] adr \[0x*\] ","v": [
// expect: {"p": "","v": {"t": "NUM","vP": "2","v": "2"}}
// expect: ]}}
// expect: ]
