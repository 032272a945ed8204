// A diagnostic line names the function, the source file and its line.
x = 1/0;                        // expect status: 21
// expect:
// expect match: >> X=1/0;  func: execute file: *.cpp line: *
// expect match: ERROR!!! Деление на 0! func: execute file: *.cpp line: *
// expect match: Деление на 0! func: textExec file: *.cpp line: *
