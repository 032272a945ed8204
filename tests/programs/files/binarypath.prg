// The folder of the program file; both names tell the same.
? VALUETYPEASSTRING(BINARYPATH());            // expect: СТРОКА
? BINARYPATH()=ПРОГРАММАПУТЬ();               // expect: ИСТИНА
