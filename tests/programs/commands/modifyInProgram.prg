// Acts when it is compiled and when it runs.
? fileexist("new.prg");
MODIFY COMMAND "new.prg";
// expect: host: openOutsideEditor new.prg
// expect: ИСТИНА
// expect: host: openOutsideEditor new.prg
