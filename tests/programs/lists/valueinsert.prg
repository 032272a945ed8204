list = CREATEOBJECT("VALUELIST");
list.VALUEADD("a","pa");
list.VALUEADD("b","pb");
? list.VALUEINSERT(1,"first");                       // expect: 3
? list.VALUEINSERT(3,"x","px");                      // expect: 4
? list.ЗНАЧЕНИЕВСТАВИТЬ(2.9,"y","py");               // expect: 5
s = "";
FOR i=1 TO list.SIZE() DO
    s = s+list.VALUEGET(i)+":"+list.VALUEPRESENTATIONGET(i)+" ";
ENDDO;
? s;                                                 // expect: first: y:py a:pa x:px b:pb
