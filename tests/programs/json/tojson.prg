// One item a line, the comma in front of it.
l = CREATEOBJECT("VALUELIST");
? l.TOJSON();
// expect: [
// expect: ]
l.VALUEADD(1);
l.VALUEADD("a/b", "ключ'");
l.VALUEADD(1=1, "z");
? l.tojson();
// expect: [
// expect: {"p": "","v": {"t": "NUM","vP": "1","v": "1"}}
// expect: ,{"p": "ключ\'","v": {"t": "STR","vP": "a\/b","v": "a\/b"}}
// expect: ,{"p": "z","v": {"t": "BOO","vP": "ИСТИНА","v": "true"}}
// expect: ]
