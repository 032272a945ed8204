// The variables of each scope from the inside out, by a pattern of their names.
VAR alpha = 5;
beta = "text";
? MEMORYDISPLAYVARS("AL*");
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [AL*]
// expect match: в том числе список переменных с шаблоном имени [AL*] для *контекста [0x*]
// expect match: 0 [0x*] var [ALPHA] :  address: [0x*]  Type: [ЧИСЛО]  num: [5]  pointer: *  wStr: *  Val: [5]
// trace match: Accessible RAM:* func: dispMemo file: localContextListings.cpp
// expect: 1
MEMORYDISPLAYVARS();
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ ***************
// expect match: в том числе список переменных для *контекста [0x*]
// expect match: 0 [0x*] var [ALPHA] : *
// expect match: 1 [0x*] var [BETA] : *
// trace match: Accessible RAM:* func: dispMemo file: localContextListings.cpp
