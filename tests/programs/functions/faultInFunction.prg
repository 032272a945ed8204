FUNCTION f(x) RETURN 1/x; ENDFUNCTION;
? f(2);                 // expect: 0.5
? f(0);                 // expect status: 21
// expect match: localCompiledOperatorTypeRENURN with expression [(1/x)] file: localExecution.cpp line: *
// expect: ERROR!!!
// expect:
// expect: >> f() in );
// expect: ERROR!!! Деление на 0!
// expect: f(0)
// expect: ERROR!!! Деление на 0! in  expression.
// expect: Expression below: f(0) in  expression
// expect: Деление на 0!
