// The arithmetic, comparison and logic of the language. An operation's code is at the same time its
// priority: the higher one binds tighter. The order is the language's own: "-" is weaker than "+",
// "/" weaker than "*", comparisons are tighter than arithmetic and OR is the tightest of all.
// Meant.
#pragma once

#include "localInterpretatorUTF8/value/localValueDescription.h"

enum localBinaryOperation : int {
    localBinaryOperationNONE = 0,
    localBinaryOperationSUBTRACT = 1,
    localBinaryOperationADD = 2,
    localBinaryOperationDIVIDE = 3,
    localBinaryOperationREMAINDER = 4,
    localBinaryOperationMULTIPLY = 5,
    localBinaryOperationAND = 7,
    localBinaryOperationEQUAL = 8,
    localBinaryOperationNOTEQUAL = 9,
    localBinaryOperationGREATEROREQUAL = 10,
    localBinaryOperationGREATER = 11,
    localBinaryOperationLESSOREQUAL = 12,
    localBinaryOperationLESS = 13,
    localBinaryOperationOR = 14,
};

enum localUnaryOperation : int {
    localUnaryOperationNONE = 0,
    localUnaryOperationNEGATE = 1,
    localUnaryOperationNOT = 2,
};

// Nothing is converted: both operands must be of one type. The result may be the cell of the first
// operand, and is in all uses of the language. Statuses 16, 21, 50; an operation that strings do
// not have gives false and leaves the status as it was. Meant.
bool binaryOperationByEnumEvaluate(int& status, localValueDescription& result, int operation,
                                   const localValueDescription& argFirst,
                                   const localValueDescription& argSecond);

// Negation of numbers, "not" of booleans. Statuses 16, 50.
bool unaryOperationByEnumEvaluate(int& status, localValueDescription& result, int operation,
                                  const localValueDescription& arg);
