// Each list holds the one before; the last variable to go takes all of them along.
list = CREATEOBJECT("VALUELIST");
FOR i=1 TO 100000 DO
    outer = CREATEOBJECT("VALUELIST");
    outer.VALUEADD(list);
    list = outer;
ENDDO;
? list.SIZE();                              // expect: 1
outer = 0;
list = 0;
? "gone";                                   // expect: gone
