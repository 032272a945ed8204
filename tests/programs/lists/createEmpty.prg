list = CREATEOBJECT("VALUELIST");
? list.SIZE();                              // expect: 0
? VALUETYPEASSTRING(list);                  // expect: СПИСОКЗНАЧЕНИЙ
other = СОЗДАТЬОБЪЕКТ("СписокЗначений");
? other.КОЛИЧЕСТВО();                       // expect: 0
