// The functions of each scope from the inside out, by a pattern of their names.
FUNCTION STRINGMINE()
    RETURN 1;
ENDFUNCTION;
? FUNCTIONSDISPLAY("STRINGM*");
// expect:
// expect: СПИСОК ФУНКЦИЙ с шаблоном имени [STRINGM*]
// expect match: для  ГЛОБАЛЬНОГО  контекста [0x*]
// expect: 0 STRINGMINE()
// expect: 1
ФУНКЦИИПОКАЗАТЬ("STRINGT*");
// expect:
// expect: СПИСОК ФУНКЦИЙ с шаблоном имени [STRINGT*]
// expect match: для  ГЛОБАЛЬНОГО  контекста [0x*]
// expect: 0 STRINGTOUPPER()
// expect: 1 STRINGTRIMALL()
// expect: 2 STRINGTRIML()
// expect: 3 STRINGTRIMR()
