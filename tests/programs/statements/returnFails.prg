RETURN nobody;          // expect status: 10
// trace: localCompiledOperatorTypeRENURN with expression [(nobody)] file: localExecution.cpp
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
