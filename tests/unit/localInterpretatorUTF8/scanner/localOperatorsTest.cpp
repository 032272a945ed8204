#include "localInterpretatorUTF8/scanner/localOperators.h"

#include <gmock/gmock.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <map>
#include <set>

#include "support/countedClass.h"
#include "support/language.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class localOperatorsTest : public languageTest {
protected:
    struct outcome {
        bool done = false;
        int status = localErrorTypeOK;
        std::string type;
        std::string text;
        friend bool operator==(const outcome&, const outcome&) = default;
        friend std::ostream& operator<<(std::ostream& stream, const outcome& shown) {
            return stream << (shown.done ? "done" : "failed") << " status " << shown.status << " "
                          << shown.type << " [" << shown.text << "]";
        }
    };

    // The outcome of `first operation second`, in the cell of the first as the language does it.
    outcome binary(int operation, const localValueDescription& first,
                   const localValueDescription& second) {
        localValueDescription cell(first);
        outcome result;
        result.done = binaryOperationByEnumEvaluate(result.status, cell, operation, cell, second);
        if (result.done) {
            result.type = utf8(cell.typeName());
            result.text = utf8(cell.toString());
        }
        return result;
    }
    outcome unary(int operation, const localValueDescription& argument) {
        localValueDescription cell(argument);
        outcome result;
        result.done = unaryOperationByEnumEvaluate(result.status, cell, operation, cell);
        if (result.done) {
            result.type = utf8(cell.typeName());
            result.text = utf8(cell.toString());
        }
        return result;
    }

    static localValueDescription number(double value) {
        localValueDescription cell;
        cell.setVal(value);
        return cell;
    }
    static localValueDescription text(std::u16string_view value) {
        localValueDescription cell;
        cell.setVal(value);
        return cell;
    }
    static localValueDescription boolean(double value) {
        localValueDescription cell;
        cell.setBoolean(true);
        cell.num = value;
        return cell;
    }
    static localValueDescription object() {
        localValueDescription cell;
        cell.objectBind(new countedObject, countedClass());
        return cell;
    }
    static localValueDescription ofUnknownType() {
        localValueDescription cell;
        cell.type = 9;
        return cell;
    }

    static outcome failed(int status) { return {false, status, "", ""}; }
    static outcome isNumber(std::string_view value) {
        return {true, 54, "ЧИСЛО", std::string(value)};
    }
    static outcome isText(std::string_view value) {
        return {true, 54, "СТРОКА", std::string(value)};
    }
    static outcome is(bool value) { return {true, 54, "БУЛЕВО", value ? "ИСТИНА" : "ЛОЖЬ"}; }
};

using operatorTest = localOperatorsTest;

TEST_F(operatorTest, codesAreThePriorities) {
    EXPECT_EQ(localBinaryOperationSUBTRACT, 1);
    EXPECT_EQ(localBinaryOperationADD, 2);
    EXPECT_EQ(localBinaryOperationDIVIDE, 3);
    EXPECT_EQ(localBinaryOperationREMAINDER, 4);
    EXPECT_EQ(localBinaryOperationMULTIPLY, 5);
    EXPECT_EQ(localBinaryOperationAND, 7);
    EXPECT_EQ(localBinaryOperationEQUAL, 8);
    EXPECT_EQ(localBinaryOperationNOTEQUAL, 9);
    EXPECT_EQ(localBinaryOperationGREATEROREQUAL, 10);
    EXPECT_EQ(localBinaryOperationGREATER, 11);
    EXPECT_EQ(localBinaryOperationLESSOREQUAL, 12);
    EXPECT_EQ(localBinaryOperationLESS, 13);
    EXPECT_EQ(localBinaryOperationOR, 14);
}

// Every operation on every pair of types: which status it leaves, 54 with success where it is
// defined.
TEST_F(operatorTest, everyPairOfTypesWithEveryCode) {
    struct operand {
        std::string name;
        localValueDescription cell;
    };
    const operand operands[] = {{"number", number(6)},
                                {"string", text(u"a")},
                                {"boolean", boolean(1)},
                                {"object", object()},
                                {"unknown", ofUnknownType()}};
    const std::map<std::string, std::set<int>> defined = {
        {"number", {1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13}},
        {"string", {2, 8, 9, 10, 11, 12, 13}},
        {"boolean", {7, 8, 9, 14}},
    };
    for (int operation = 0; operation <= 16; ++operation) {
        for (const operand& first : operands) {
            for (const operand& second : operands) {
                output.clear();
                const outcome got = binary(operation, first.cell, second.cell);
                const std::string which =
                    first.name + " " + std::to_string(operation) + " " + second.name;
                const bool hasOperators = defined.count(first.name) != 0;
                int wanted = localErrorTypeOK;
                bool done = false;
                bool line = false;
                if (!hasOperators || (first.name == "string" && second.name == "unknown")) {
                    wanted = localErrorTypeCODE;
                    line = true;
                } else if (first.name != second.name) {
                    wanted = localErrorTypeOPERANDTYPE;
                } else if (defined.at(first.name).count(operation) != 0) {
                    done = true;
                } else {
                    // Strings leave the status as it was.
                    wanted = first.name == "string" ? localErrorTypeOK : localErrorTypeCODE;
                }
                EXPECT_EQ(got.done, done) << which;
                EXPECT_EQ(got.status, wanted) << which;
                EXPECT_EQ(output.lines(),
                          line ? std::vector<std::string>{"Не могу выполниить операцию номер [" +
                                                          std::to_string(operation) + "]"}
                               : std::vector<std::string>{})
                    << which;
            }
        }
    }
    EXPECT_EQ(output.rawLines().size(), 1U);
    EXPECT_THAT(
        output.text(),
        testing::HasSubstr("] func: binaryOperationByEnumEvaluate file: localOperators.cpp "));
}

TEST_F(operatorTest, onNumbers) {
    struct Row {
        double first;
        int operation;
        double second;
        outcome wanted;
    };
    const Row rows[] = {
        {5, 1, 3, isNumber("2")},
        {5, 2, 3, isNumber("8")},
        {0.1, 2, 0.2, isNumber("0.30000000000000004441")},
        {5, 5, 3, isNumber("15")},
        {1e300, 5, 1e300, isNumber("inf")},
        {6, 3, 3, isNumber("2")},
        {1, 3, 3, isNumber("0.33333333333333331483")},
        {7, 3, 0, failed(21)},
        {7, 3, -0.0, failed(21)},
        {0, 3, 0, failed(21)},
        {7, 4, 3, isNumber("1")},
        {-7, 4, 3, isNumber("-1")},
        {7, 4, -3, isNumber("1")},
        {-7, 4, -3, isNumber("-1")},
        {7.6, 4, 2.4, isNumber("0")},
        {7.4, 4, 2.4, isNumber("1")},
        {2.5, 4, 10, isNumber("2")},  // to nearest, halves to the even one
        {3.5, 4, 10, isNumber("4")},
        {8, 4, 2.6, isNumber("2")},
        {8, 4, 2.5, isNumber("0")},
        {7, 4, 0, failed(21)},
        {7, 4, 0.4, failed(21)},  // what rounds to nothing divides as nothing
        {-9223372036854775808.0, 4, -1, isNumber("0")},
        {1, 8, 1, is(true)},
        {1, 8, 2, is(false)},
        {0.0, 8, -0.0, is(true)},
        {1, 9, 1, is(false)},
        {1, 9, 2, is(true)},
        {1, 10, 1, is(true)},
        {1, 10, 2, is(false)},
        {1, 11, 1, is(false)},
        {2, 11, 1, is(true)},
        {1, 12, 1, is(true)},
        {2, 12, 1, is(false)},
        {1, 13, 1, is(false)},
        {1, 13, 2, is(true)},
        {-infinity, 13, infinity, is(true)},
        {notANumber, 8, notANumber, is(false)},
        {notANumber, 8, 1, is(false)},
        {notANumber, 9, notANumber, is(true)},
        {notANumber, 13, 1, is(false)},
        {1, 10, notANumber, is(false)},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(binary(row.operation, number(row.first), number(row.second)), row.wanted)
            << row.first << " " << row.operation << " " << row.second;
    }
}

TEST_F(operatorTest, onStrings) {
    struct Row {
        std::u16string_view first;
        int operation;
        std::u16string_view second;
        outcome wanted;
    };
    const Row rows[] = {
        {u"ab", 2, u"cd", isText("abcd")}, {u"", 2, u"", isText("")},
        {u"ёж", 2, u"", isText("ёж")},     {u"a", 8, u"a", is(true)},
        {u"a", 8, u"A", is(false)},        {u"a", 8, u"ab", is(false)},
        {u"", 8, u"", is(true)},           {u"a", 9, u"a", is(false)},
        {u"a", 9, u"b", is(true)},         {u"a", 13, u"b", is(true)},
        {u"B", 13, u"a", is(true)},   // by code unit, so case counts
        {u"a", 13, u"ab", is(true)},  // the shorter one comes first
        {u"z", 13, u"А", is(true)},   // Latin comes before Cyrillic
        {u"Ё", 13, u"А", is(true)},   // Ё stands before the other Russian letters
        {u"я", 13, u"ё", is(true)},   // and ё behind them
        {u"a", 12, u"a", is(true)},        {u"b", 12, u"a", is(false)},
        {u"b", 11, u"a", is(true)},        {u"a", 11, u"a", is(false)},
        {u"a", 10, u"a", is(true)},        {u"10", 13, u"9", is(true)},  // as texts, not as numbers
    };
    for (const Row& row : rows) {
        EXPECT_EQ(binary(row.operation, text(row.first), text(row.second)), row.wanted)
            << utf8(row.first) << " " << row.operation << " " << utf8(row.second);
    }
}

TEST_F(operatorTest, stringsLeaveTheStatusOfWhatTheyCannotDo) {
    for (const int operation : {1, 3, 4, 5, 6, 7, 14}) {
        localValueDescription cell = text(u"a");
        const localValueDescription other = text(u"b");
        int status = 12345;
        EXPECT_FALSE(binaryOperationByEnumEvaluate(status, cell, operation, cell, other));
        EXPECT_EQ(status, 12345) << operation;
        EXPECT_EQ(cell.toString().view(), u"a");
    }
}

TEST_F(operatorTest, aStringIsAddedToItselfAndInPlace) {
    localValueDescription cell = text(u"ab");
    int status = localErrorTypeOK;
    EXPECT_TRUE(binaryOperationByEnumEvaluate(status, cell, 2, cell, cell));
    EXPECT_EQ(cell.toString().view(), u"abab");
    EXPECT_EQ(output.text(), "");
}

TEST_F(operatorTest, aSumOfStringsInAnotherCellIsTold) {
    localValueDescription cell = number(1);
    const localValueDescription first = text(u"ab");
    const localValueDescription second = text(u"cd");
    int status = localErrorTypeOK;
    EXPECT_TRUE(binaryOperationByEnumEvaluate(status, cell, 2, first, second));
    EXPECT_EQ(cell.toString().view(), u"abcd");
    EXPECT_EQ(first.toString().view(), u"ab");
    EXPECT_EQ(output.lines(),
              std::vector<std::string>{"NOT!!! &result->wStr==&argFirst.wStr !!! "});
}

TEST_F(operatorTest, aStringBeforeNoTypeAtAllIsTold) {
    for (const int type : {-1, 4}) {
        output.clear();
        localValueDescription second;
        second.type = type;
        EXPECT_EQ(binary(2, text(u"a"), second), failed(16)) << type;
        EXPECT_EQ(output.lines(),
                  std::vector<std::string>{"Не могу выполниить операцию номер [2]"});
    }
}

TEST_F(operatorTest, onBooleans) {
    for (const double first : {0.0, 1.0}) {
        for (const double second : {0.0, 1.0}) {
            const bool a = first != 0;
            const bool b = second != 0;
            EXPECT_EQ(binary(7, boolean(first), boolean(second)), is(a && b));
            EXPECT_EQ(binary(14, boolean(first), boolean(second)), is(a || b));
            EXPECT_EQ(binary(8, boolean(first), boolean(second)), is(a == b));
            EXPECT_EQ(binary(9, boolean(first), boolean(second)), is(a != b));
        }
    }
    // Any number but 0 counts as true, and equality compares the numbers.
    EXPECT_EQ(binary(7, boolean(-1), boolean(2)), is(true));
    EXPECT_EQ(binary(14, boolean(-1), boolean(0)), is(true));
    EXPECT_EQ(binary(14, boolean(0), boolean(-1)), is(true));
    EXPECT_EQ(binary(8, boolean(-1), boolean(1)), is(false));
}

TEST_F(operatorTest, negation) {
    EXPECT_EQ(unary(1, number(5)), isNumber("-5"));
    EXPECT_EQ(unary(1, number(-5)), isNumber("5"));
    EXPECT_EQ(unary(1, number(0)), isNumber("0")) << "and not -0";
    EXPECT_EQ(unary(1, text(u"5")), failed(50));
    EXPECT_EQ(unary(1, boolean(1)), failed(50));
    EXPECT_EQ(unary(1, object()), failed(50));
    EXPECT_EQ(unary(1, ofUnknownType()), failed(50));
}

TEST_F(operatorTest, logicalNot) {
    EXPECT_EQ(unary(2, boolean(1)), is(false));
    EXPECT_EQ(unary(2, boolean(0)), is(true));
    EXPECT_EQ(unary(2, boolean(-1)), is(true)) << "what is 0 or below";
    EXPECT_EQ(unary(2, number(1)), failed(50));
    EXPECT_EQ(unary(2, text(u"")), failed(50));
    EXPECT_EQ(unary(2, object()), failed(50));
    EXPECT_EQ(output.text(), "");
}

TEST_F(operatorTest, anUnknownUnaryCodeIsTold) {
    for (const int operation : {0, 3, -1}) {
        output.clear();
        EXPECT_EQ(unary(operation, number(1)), failed(16));
        EXPECT_THAT(output.rawLines(),
                    testing::ElementsAre(testing::StartsWith(
                        "Не могу выполниить операцию номер [" + std::to_string(operation) +
                        "] func: unaryOperationByEnumEvaluate file: localOperators.cpp line: ")));
    }
}

TEST_F(operatorTest, theRemainderFollowsTheRoundingMode) {
    std::fesetround(FE_UPWARD);
    const outcome upward = binary(4, number(7.1), number(10));
    std::fesetround(FE_TONEAREST);
    EXPECT_EQ(upward, isNumber("8"));
    EXPECT_EQ(binary(4, number(7.1), number(10)), isNumber("7"));
}

}  // namespace
