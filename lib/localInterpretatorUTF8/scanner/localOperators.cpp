#include "localInterpretatorUTF8/scanner/localOperators.h"

#include <cmath>
#include <cstdint>
#include <string>

#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

bool fail(int& status, int code) {
    status = code;
    return false;
}

bool cannotDo(int& status, int operation, std::string_view function) {
    traceLine({u"Не могу выполниить операцию номер [", numberToString(operation), u"]"}, function);
    return fail(status, localErrorTypeCODE);
}

// The outcome of a comparison of any ordered operands; false for a code that is no comparison.
template <class Operand>
bool compare(int operation, const Operand& a, const Operand& b, bool& outcome) {
    switch (operation) {
        case localBinaryOperationEQUAL:
            outcome = a == b;
            return true;
        case localBinaryOperationNOTEQUAL:
            outcome = a != b;
            return true;
        case localBinaryOperationGREATEROREQUAL:
            outcome = a >= b;
            return true;
        case localBinaryOperationGREATER:
            outcome = a > b;
            return true;
        case localBinaryOperationLESSOREQUAL:
            outcome = a <= b;
            return true;
        case localBinaryOperationLESS:
            outcome = a < b;
            return true;
        default:
            return false;
    }
}

// Both operands are rounded to whole numbers first, so 7.6%2.4 is 8%2; a divisor that rounds to
// nothing divides as 0 does.
bool remainder(int& status, double first, double second, double& outcome) {
    const std::int64_t divisor = std::llrint(second);
    if (divisor == 0) {
        return fail(status, localErrorTypeDIVISIONBYZERO);
    }
    outcome = divisor == -1 ? 0.0 : static_cast<double>(std::llrint(first) % divisor);
    return true;
}

bool onNumbers(int& status, localValueDescription& result, int operation, double first,
               double second) {
    double number = 0.0;
    switch (operation) {
        case localBinaryOperationSUBTRACT:
            number = first - second;
            break;
        case localBinaryOperationADD:
            number = first + second;
            break;
        case localBinaryOperationMULTIPLY:
            number = first * second;
            break;
        case localBinaryOperationDIVIDE:
            if (second == 0.0) {
                return fail(status, localErrorTypeDIVISIONBYZERO);
            }
            number = first / second;
            break;
        case localBinaryOperationREMAINDER:
            if (!remainder(status, first, second, number)) {
                return false;
            }
            break;
        default: {
            bool outcome = false;
            if (!compare(operation, first, second, outcome)) {
                return fail(status, localErrorTypeCODE);
            }
            result.setBoolean(outcome);
            return true;
        }
    }
    result.setVal(number);
    return true;
}

bool onStrings(int& status, localValueDescription& result, int operation,
               const localValueDescription& first, const localValueDescription& second) {
    if (operation == localBinaryOperationADD) {
        if (first.wStr.size() + second.wStr.size() > localText::maxLength) {
            traceLine(u"Слишком длинная строка!", "binaryOperationByEnumEvaluate");
            return fail(status, localErrorTypeCODE);
        }
        if (&result == &first) {
            result.wStr.append(second.wStr);
            return true;
        }
        traceLine(u"NOT!!! &result->wStr==&argFirst.wStr !!! ", "binaryOperationByEnumEvaluate");
        localText sum = first.wStr;
        sum.append(second.wStr);
        result.setVal(std::move(sum));
        return true;
    }
    bool outcome = false;
    if (!compare(operation, first.wStr.view(), second.wStr.view(), outcome)) {
        return false;  // the status stays 54, whose words say that all is well. Meant.
    }
    result.setBoolean(outcome);
    return true;
}

bool onBooleans(int& status, localValueDescription& result, int operation, double first,
                double second) {
    switch (operation) {
        case localBinaryOperationAND:
            result.setBoolean(first != 0.0 && second != 0.0);
            return true;
        case localBinaryOperationOR:
            result.setBoolean(first != 0.0 || second != 0.0);
            return true;
        case localBinaryOperationEQUAL:
            result.setBoolean(first == second);
            return true;
        case localBinaryOperationNOTEQUAL:
            result.setBoolean(first != second);
            return true;
        default:
            return fail(status, localErrorTypeCODE);
    }
}

}  // namespace

bool binaryOperationByEnumEvaluate(int& status, localValueDescription& result, int operation,
                                   const localValueDescription& argFirst,
                                   const localValueDescription& argSecond) {
    switch (argFirst.type) {
        case localValueTypeNUMBER:
            if (argSecond.type != localValueTypeNUMBER) {
                return fail(status, localErrorTypeOPERANDTYPE);
            }
            return onNumbers(status, result, operation, argFirst.num, argSecond.num);
        case localValueTypeSTRING:
            if (argSecond.type == localValueTypeSTRING) {
                return onStrings(status, result, operation, argFirst, argSecond);
            }
            if (argSecond.type >= localValueTypeNUMBER && argSecond.type <= localValueTypeOBJECT) {
                return fail(status, localErrorTypeOPERANDTYPE);
            }
            break;
        case localValueTypeBOOLEAN:
            if (argSecond.type != localValueTypeBOOLEAN) {
                return fail(status, localErrorTypeOPERANDTYPE);
            }
            return onBooleans(status, result, operation, argFirst.num, argSecond.num);
        default:
            break;
    }
    return cannotDo(status, operation, "binaryOperationByEnumEvaluate");
}

bool unaryOperationByEnumEvaluate(int& status, localValueDescription& result, int operation,
                                  const localValueDescription& arg) {
    switch (operation) {
        case localUnaryOperationNEGATE:
            if (arg.type != localValueTypeNUMBER) {
                return fail(status, localErrorTypeOPERANDTYPE);
            }
            result.setVal(0.0 - arg.num);  // so that the negation of 0 is +0
            return true;
        case localUnaryOperationNOT:
            if (arg.type != localValueTypeBOOLEAN) {
                return fail(status, localErrorTypeOPERANDTYPE);
            }
            result.setBoolean(arg.num <= 0.0);
            return true;
        default:
            return cannotDo(status, operation, "unaryOperationByEnumEvaluate");
    }
}
