// The chain is listed from the inside out.
FUNCTION f(inner)
    DISP MEMO *NER ;
    RETURN 1;
ENDFUNCTION;
outer = 1;
x = f(2);
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [*NER]
// expect match: в том числе список переменных с шаблоном имени [*NER] для  контекста [0x*]  потомка контекста [0x*]
// expect match: 0 [0x*] var [INNER] : *
// expect match: в том числе список переменных с шаблоном имени [*NER] для  ГЛОБАЛЬНОГО  контекста [0x*]
// expect match: 0 [0x*] var [OUTER] : *
// trace match: Accessible RAM: * func: dispMemo file: localContextListings.cpp
