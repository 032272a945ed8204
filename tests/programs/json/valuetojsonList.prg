l = CREATEOBJECT("VALUELIST");
l.VALUEADD(1, "x");
? VALUETOJSON(l);
// expect match: {"t": "OBJ","tN": "VALUELIST","vP": "Список значений \[1\] links \[*\] adr \[0x*\] ","v": [
// expect: {"p": "x","v": {"t": "NUM","vP": "1","v": "1"}}
// expect: ]}
