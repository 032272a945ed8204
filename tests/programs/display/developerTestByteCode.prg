// A number becomes one instruction.
? ___TEST00001("12");
// trace:  метод ___TEST00001() func: ___TEST00001 file: localDeveloperFunctions.cpp
// expect: ByteCode [12]
// expect: ** DATA **
// expect match:  [0] [ address: [0x*]  Type: [ЧИСЛО]  num: [12]  pointer: [0x0]  wStr: []  Val: [12] ]
// expect: ** CODE **
// expect:  [0] [1] [0] [localByteCode::LOAD number 12]
// expect: 1
