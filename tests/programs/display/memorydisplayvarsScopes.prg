// Inside a function its own variables come first, then those of its caller.
inner = "outside";
FUNCTION show(alpha)
    VAR inner = "inside";
    ПАМЯТЬПОКАЗАТЬПЕРЕМЕННЫЕ("INNER");
    RETURN 1;
ENDFUNCTION;
show(1);
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [INNER]
// expect match: в том числе список переменных с шаблоном имени [INNER] для  контекста [0x*]  потомка контекста [0x*]
// expect match: 0 [0x*] var [INNER] : *Val: [inside]
// expect match: в том числе список переменных с шаблоном имени [INNER] для *
// expect match: 0 [0x*] var [INNER] : *Val: [outside]
// trace match: Accessible RAM:* func: dispMemo file: localContextListings.cpp
