list = CREATEOBJECT("VALUELIST");
list.VALUEADD(1,"one");
? list.TOJSON();
// expect: [
// expect: {"p": "one","v": {"t": "NUM","vP": "1","v": "1"}}
// expect: ]
