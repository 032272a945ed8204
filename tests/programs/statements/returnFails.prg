RETURN nobody;          // expect status: 10
// expect match: localCompiledOperatorTypeRENURN with expression [(nobody)] file: localExecution.cpp line: *
// expect: ERROR!!!
// expect: Неверный атрибут.
