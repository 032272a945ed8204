list = CREATEOBJECT("VALUELIST");
list.VALUEADD(1);
list.VALUEADD(2);
? list.TOSTRING();                          // expect match: Список значений [2] links [*] adr [0x*]
? list.toString();                          // expect match: Список значений [2] links [*] adr [0x*]
? list;                                     // expect match: Список значений [2] links [*] adr [0x*]
// Every further holder shows: another variable, a cell of a list.
? STRINGPARTREPLACE(list.TOSTRING(),"links [2]","two");  // expect match: Список значений [2] two adr [0x*]
same = list;
holder = CREATEOBJECT("VALUELIST");
holder.VALUEADD(list);
? STRINGPARTREPLACE(list.TOSTRING(),"links [4]","four"); // expect match: Список значений [2] four adr [0x*]
