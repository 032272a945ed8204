// The first item with the text counts; a text that none has gives the empty string and is no error.
list = CREATEOBJECT("VALUELIST");
list.VALUEADD(0);
list.VALUEADD(1,"a");
list.VALUEADD(2,"b");
list.VALUEADD(3,"a");
? list.VALUEGETBYPRESENTATION("a");                      // expect: 1
? list.ЗНАЧЕНИЕПОЛУЧИТЬПОПРЕДСТАВЛЕНИЮ("b");             // expect: 2
? list.VALUEGETBYPRESENTATION("");                       // expect: 0
? "["+list.VALUEGETBYPRESENTATION("A")+"]";              // expect: []
? VALUETYPEASSTRING(list.VALUEGETBYPRESENTATION("c"));   // expect: СТРОКА
