// What a module brings stays in the scope of the function that loaded it, and goes with it.
FUNCTION load()
    MODULELOAD("data/modules/good.txt");
    RETURN twice(21);
ENDFUNCTION;
? load();                                   // expect: 42
? twice(1);                                 // expect status: 27
