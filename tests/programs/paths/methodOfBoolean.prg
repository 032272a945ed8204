? ИСТИНА.y();           // expect status: 51
// trace: ERROR в scanStringGetNameTokenAndEvaluete() (variable [y] is not OBJECT ) position: 9 func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ИСТИНА.y() func: execute file: localExecution.cpp
// trace: ERROR!!! Значение не является объектом. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: ИСТИНА.y() in  expression func: execute file: localExecution.cpp
// trace: Значение не является объектом. func: textExec file: localProgram.cpp
