#include "localInterpretatorUTF8/scanner/localScanner.h"

#include <gmock/gmock.h>

#include <vector>

#include "support/countedClass.h"
#include "support/language.h"

namespace {

using namespace localInterpretatorUTF8;

class localScannerTest : public languageTest {
protected:
    localScannerTest() {
        context.varDeclare(u"x").value->setVal(7.0);
        context.varDeclare(u"s").value->setVal(u"text");
        context.varDeclare(u"d").value->setVal(9.0);
        context.varDeclare(u"t").value->setBoolean(true);
        context.varDeclare(u"o").value->objectBind(new countedObject, countedClass());
        context.varDeclare(u"here").value->objectBind(&context,
                                                      localContextUTF8::classDeclaration());
    }
    localContextUTF8 context;
};

using scannerTest = localScannerTest;

// Primitives
// ---------------------------------------------------------------------------------------

TEST_F(scannerTest, blanksAndCommentsArePassedOver) {
    struct Row {
        std::u16string text;
        std::uint32_t from, to;
    };
    const Row rows[] = {
        {u"", 0, 0},
        {u"a", 0, 0},
        {u" \t\n\f\ra", 0, 5},
        {u"   ", 0, 3},
        {u"// comment", 0, 10},
        {u"// comment\na", 0, 11},
        {u" // one\n\t// two\n a", 0, 17},
        {u"/a", 0, 0},
        {u"/", 0, 0},
        {u"//", 0, 2},
        {u"a // b", 1, 6},
        {u"/* no */", 0, 0},
        {u"*/ no", 0, 0},
        {u"\va", 0, 0},       // a vertical tab is no blank
        {u"\u00A0a", 0, 0},   // nor is the no-break space
        {u"//\ra\nb", 0, 5},  // a carriage return does not end a comment
        {u"ab", 7, 2},        // a position past the end is the end
    };
    for (const Row& row : rows) {
        localPosition pos = row.from;
        scanStringSkipBlanks(row.text, pos);
        EXPECT_EQ(pos, row.to) << "[" << utf8(row.text) << "]";
    }
}

TEST_F(scannerTest, nameTokens) {
    struct Row {
        std::u16string text;
        std::string token;
        std::uint32_t pos;
    };
    const Row rows[] = {
        {u"", "", 0},           {u"abc", "abc", 3}, {u"  // c\n Имя_1 = 2", "Имя_1", 13},
        {u"1a", "1a", 2},       {u"a.b", "a", 1},   {u"a-b", "a", 1},
        {u"ёЁ", "ёЁ", 2},       {u"(a", "", 0},     {u" +", "", 1},
        {u"Straße", "Stra", 4},
    };
    for (const Row& row : rows) {
        localPosition pos = 0;
        EXPECT_EQ(utf8(scanStringGetNameToken(row.text, pos)), row.token) << utf8(row.text);
        EXPECT_EQ(pos, row.pos) << utf8(row.text);
    }
}

TEST_F(scannerTest, binaryOperations) {
    struct Row {
        std::u16string text;
        int operation;
        std::uint32_t pos;
    };
    const Row rows[] = {
        {u"-", 1, 1},     {u"+", 2, 1},   {u"/", 3, 1},     {u"%", 4, 1},       {u"*", 5, 1},
        {u"=", 8, 1},     {u"<>", 9, 2},  {u">=", 10, 2},   {u">", 11, 1},      {u"<=", 12, 2},
        {u"<", 13, 1},    {u"==", 8, 1},  {u"=<", 8, 1},    {u"> =", 11, 1},    {u"<>=", 9, 2},
        {u"AND", 7, 3},   {u"and", 7, 3}, {u"aNd x", 7, 3}, {u"И", 7, 1},       {u"и", 7, 1},
        {u"OR", 14, 2},   {u"or", 14, 2}, {u"oR", 14, 2},   {u"ИЛИ", 14, 3},    {u"или", 14, 3},
        {u"иЛи", 14, 3},  {u"ИЛ", 7, 1},  {u"Иван", 7, 1},  {u"ORDER", 14, 2},  {u"ANDY", 7, 3},
        {u"ИЛИЯ", 14, 3}, {u"AN", 0, 0},  {u"A", 0, 0},     {u"O", 0, 0},       {u"OX", 0, 0},
        {u"", 0, 0},      {u"  ", 0, 2},  {u"  +", 2, 3},   {u"// c\n*", 5, 6}, {u"//", 0, 2},
        {u"x", 0, 0},     {u"?", 0, 0},   {u")", 0, 0},     {u";", 0, 0},       {u"!", 0, 0},
        {u" x", 0, 1},    {u"1", 0, 0},   {u"\"", 0, 0},
    };
    for (const Row& row : rows) {
        localPosition pos = 0;
        EXPECT_EQ(scanStringGetBinaryOperation(row.text, pos), row.operation) << utf8(row.text);
        EXPECT_EQ(pos, row.pos) << utf8(row.text);
    }
}

TEST_F(scannerTest, fileNames) {
    struct Row {
        std::u16string text;
        std::string name;
        int status;
        std::uint32_t pos;
    };
    const Row rows[] = {
        {u"", "", 54, 0},
        {u"  // c", "", 54, 6},
        {u"a.prg", "a.prg", 99, 5},
        {u" a.prg b", "a.prg", 99, 7},  // one delimiter is consumed
        {u"a.prg\n", "a.prg", 99, 6},
        {u"a.prg\tb", "a.prg", 99, 6},
        {u"a.prg;", "a.prg;", 99, 6},  // a semicolon is none
        {u"a\rb c", "a\rb", 99, 4},
        {u"\"a b.prg\";", "a b.prg", 99, 9},
        {u"\"\"", "", 99, 2},
        {u"\"a b.prg", "", 37, 8},
        {u"'a b'", "'a", 99, 3},  // only double quotes hold a name
    };
    for (const Row& row : rows) {
        localPosition pos = 0;
        int status = 99;
        EXPECT_EQ(utf8(scanStringGetFileName(status, row.text, pos)), row.name) << utf8(row.text);
        EXPECT_EQ(status, row.status) << utf8(row.text);
        EXPECT_EQ(pos, row.pos) << utf8(row.text);
    }
}

TEST_F(scannerTest, numberTokens) {
    struct Row {
        std::u16string text;
        int status;
        std::string number;
        std::uint32_t pos;
    };
    const Row rows[] = {
        {u"0", 54, "0", 1},
        {u"12.5", 54, "12.5", 4},
        {u".5", 54, "0.5", 2},
        {u"5.", 54, "5", 2},
        {u".", 54, "0", 1},
        {u"", 54, "0", 0},
        {u"1.5.3", 54, "1.5", 3},
        {u"1e5", 54, "1", 1},
        {u"1,5", 54, "1", 1},
        {u"-5", 54, "-5", 2},
        {u"- \t5", 54, "-5", 4},
        {u"0.1", 54, "0.10000000000000000555", 3},
        {u"1234567890123456", 54, "1234567890123456", 16},
        {u"9999999999999999", 54, "10000000000000000", 16},
        {u"123456789.123456", 54, "123456789.12345600128", 16},
        {u"12345678901234567", 36, "", 17},
        {u"1234567890.123456", 36, "", 17},  // the point counts as a character
        {u"0000000000000001", 54, "1", 16},
        {u"00000000000000001", 36, "", 17},
        {u".000000000000001", 54, "1.0000000000000000777e-15", 16},
    };
    for (const Row& row : rows) {
        localPosition pos = 0;
        int status = localErrorTypeOK;
        localSlot value;
        const bool done =
            scanStringGetNumberTokenAndEvaluete(status, row.text, pos, value.asResult());
        EXPECT_EQ(done, row.status == 54) << utf8(row.text);
        EXPECT_EQ(status, row.status) << utf8(row.text);
        EXPECT_EQ(done ? utf8(value->toString()) : "", row.number) << utf8(row.text);
        EXPECT_EQ(pos, row.pos) << utf8(row.text);
    }
}

TEST_F(scannerTest, numberTokensAreReadAsTheLibraryReadsThem) {
    const char* const digits[] = {"0.3",
                                  "2.675",
                                  "1.15",
                                  "0.7",
                                  "123.456",
                                  "99999.99999",
                                  "9007199254740993",
                                  "0.00000000000012",
                                  "90071992547409.3",
                                  "4.35",
                                  "1.1",
                                  "8888888888888888",
                                  "9007199254740995",
                                  "9999999999999999",
                                  "99999999999999.9",
                                  ".999999999999999",
                                  "123456789012345.",
                                  ".1234567890123"};
    for (const char* text : digits) {
        localPosition pos = 0;
        int status = localErrorTypeOK;
        localSlot value;
        ASSERT_TRUE(scanStringGetNumberTokenAndEvaluete(status, wide(text), pos, value.asResult()));
        EXPECT_EQ(value->num, std::strtod(text, nullptr)) << text;
    }
}

TEST_F(scannerTest, stringTokens) {
    struct Row {
        std::u16string text;
        bool done;
        std::string content;
        std::uint32_t pos;
    };
    const Row rows[] = {
        {u"\"abc\" rest", true, "abc", 5},
        {u"'abc'", true, "abc", 5},
        {u"\"it's\"", true, "it's", 6},
        {u"'a \"b\" c'", true, "a \"b\" c", 9},
        {u"\"\"", true, "", 2},
        {u"\"two\nlines\"", true, "two\nlines", 11},
        {u"\"no \\\" escape", true, "no \\", 6},
        {u"\"a // b\"", true, "a // b", 8},
        {u"\"abc", false, "", 4},
        {u"'abc\"", false, "", 5},
        {u"\"", false, "", 1},
        {u"", false, "", 0},
    };
    for (const Row& row : rows) {
        localPosition pos = 0;
        localSlot value;
        EXPECT_EQ(scanStringGetStringTokenAndEvaluete(row.text, pos, value.asResult()), row.done)
            << utf8(row.text);
        EXPECT_EQ(value ? utf8(value->toString()) : "", row.content) << utf8(row.text);
        EXPECT_EQ(pos, row.pos) << utf8(row.text);
    }
}

// Expressions
// --------------------------------------------------------------------------------------

struct valueRow {
    std::string text;
    std::string type;
    std::string value;
};

TEST_F(scannerTest, values) {
    const std::string number = "ЧИСЛО";
    const std::string string = "СТРОКА";
    const std::string boolean = "БУЛЕВО";
    const valueRow rows[] = {
        {"1", number, "1"},
        {" \n// c\n 1 ", number, "1"},
        {"2+3*4", number, "14"},
        {"1-2+3", number, "-4"},
        {"10-2-3", number, "5"},
        {"1-2+3-4", number, "-8"},
        {"8/2*4", number, "1"},
        {"8/4/2", number, "1"},
        {"2*3+4", number, "10"},
        {"2+3*4-5%3*2", number, "9"},
        {"-2*3", number, "-6"},
        {"- 2", number, "-2"},
        {" -2", number, "-2"},
        {"// c\n !t", boolean, "ЛОЖЬ"},
        {"2*// c\n3", number, "6"},
        {"-x", number, "-7"},
        {"-(2)", number, "-2"},
        {"-2+5", number, "3"},
        {"2*(-3)", number, "-6"},
        {"(((5)))", number, "5"},
        {"(2+3)*4", number, "20"},
        {"7.6%2.4", number, "0"},
        {"1=1", boolean, "ИСТИНА"},
        {"1<>1", boolean, "ЛОЖЬ"},
        {"\"a\"=\"a\"", boolean, "ИСТИНА"},
        {"x>=7", boolean, "ИСТИНА"},
        {"(1=1) AND (2=2)", boolean, "ИСТИНА"},
        {"1=1 AND 2=2", boolean, "ИСТИНА"},
        {"1=1 И 2=3", boolean, "ЛОЖЬ"},
        {"(1=2)OR(2=2)", boolean, "ИСТИНА"},
        {"(1=2) ИЛИ (2=3)", boolean, "ЛОЖЬ"},
        {"!(1=2)", boolean, "ИСТИНА"},
        {"НЕ(1=1)", boolean, "ЛОЖЬ"},
        {"не t", boolean, "ЛОЖЬ"},
        {"NOT t", boolean, "ЛОЖЬ"},
        {"nott", boolean, "ЛОЖЬ"},  // no word boundary is asked for
        {"НЕt", boolean, "ЛОЖЬ"},
        {"\"it's\"", string, "it's"},
        {"'say \"x\"'", string, "say \"x\""},
        {"s+\" \"+s", string, "text text"},
        {"ИСТИНА", boolean, "ИСТИНА"},
        {"false", boolean, "ЛОЖЬ"},
        {"1?2:3", number, "2"},
        {"0?2:3", number, "3"},
        {"-1?2:3", number, "3"},
        {"1+0?2:3", number, "4"},
        {"1?2:1/0", number, "2"},
        {"0?1/0:3", number, "3"},
        {"0?unknown:3", number, "3"},
        {"1?2:unknown(5)", number, "2"},
        {"t?\"a\":2", string, "a"},
        {"s?1:2", number, "2"},  // the number in a string's cell decides
        {"1?0?10:20:30", number, "20"},
        {"0?1:0?2:3", number, "3"},
        {"1 ? 2 : 3 + 10", number, "2"},
        {"0 ? 2 : 3 + 10", number, "13"},
        {"1?2:3?4:5", number, "2"},
        {"2*(1?3:4)", number, "6"},
        {"2*1?3:4", number, "6"},
        {"1 // tail\n + 2", number, "3"},
    };
    for (const valueRow& row : rows) {
        const evaluated got = evaluate(row.text, &context);
        EXPECT_TRUE(got.done) << row.text << " status " << got.status;
        EXPECT_EQ(got.type, row.type) << row.text;
        EXPECT_EQ(got.text, row.value) << row.text;
        EXPECT_EQ(got.status, 54) << row.text;
        EXPECT_TRUE(got.lines.empty()) << row.text;
        // What can be computed can be checked, covers the same text and has the value 1.
        const evaluated checked = check(row.text);
        EXPECT_TRUE(checked.done) << row.text;
        EXPECT_EQ(checked.pos, got.pos) << row.text;
        EXPECT_EQ(checked.type + checked.text, "ЧИСЛО1") << row.text;
    }
}

TEST_F(scannerTest, blanksBehindAnExpressionStayUnread) {
    struct Row {
        std::string text;
        std::uint32_t pos;
    };
    for (const Row& row : {Row{"1 ", 1},
                           {"1+2 // c", 3},
                           {"1;", 1},
                           {"x  )", 1},
                           {"1 ?2:3  ;", 6},
                           {"f (x)", 1},
                           {"1 Z", 1},
                           {"12a", 2},
                           {"1e5", 1},
                           {"x THEN", 1},
                           {"1.2.3", 3},
                           {"2 AN", 1}}) {
        EXPECT_EQ(check(row.text).pos, row.pos) << row.text;
        EXPECT_TRUE(check(row.text).done) << row.text;
    }
}

TEST_F(scannerTest, faultsOfSyntaxAreSeenInBothModes) {
    struct Row {
        std::string text;
        int status;
        std::vector<std::string> lines = {};
    };
    const std::string quoteLine = "ОШИБКА при сборке СТРОКОВОЙ костанты . Ожидается символ '";
    const Row rows[] = {
        {"", 37},
        {"   ", 37},
        {"// c", 37},
        {"+1", 37},
        {"*", 37},
        {")", 37},
        {"()", 37},
        {"1+", 37},
        {"1+)", 37},
        {"2*-3", 37},
        {"2*!t", 37},
        {"--2", 37},
        {"!!t", 37},
        {"(1", 41},
        {"(1;", 41},
        {"((1)", 41},
        {"(1]", 41},
        {"1?2", 38},
        {"1?2;3", 38},
        {"1?2,3", 38},
        {"1?", 37},
        {"1?:2", 37},
        {"1?2:", 37},
        {"1?2:1+", 37},
        {"0?1+:3", 37},
        {"12345678901234567", 36},
        {"1+1234567890.123456", 36},
        {"0?12345678901234567:1", 36},
        {"\"abc", 37, {quoteLine + "\"'"}},
        {"1+'abc", 37, {quoteLine + "''"}},
        {"1?2:\"abc", 37, {quoteLine + "\"'"}},
        {"#", 37},
        {"$x", 37},
        {"&", 37},
    };
    for (const Row& row : rows) {
        for (localContextUTF8* const scope : {&context, static_cast<localContextUTF8*>(nullptr)}) {
            const evaluated got = evaluate(row.text, scope);
            const std::string mode = scope == nullptr ? " checked" : " evaluated";
            EXPECT_FALSE(got.done) << row.text << mode;
            EXPECT_EQ(got.status, row.status) << row.text << mode;
            EXPECT_EQ(got.type, "") << row.text << mode;
            EXPECT_EQ(got.lines, row.lines) << row.text << mode;
        }
    }
}

TEST_F(scannerTest, faultsOfValuesAreSeenWhenComputed) {
    const std::pair<std::string, int> rows[] = {
        {"1=\"1\"", 50}, {"1+s", 50},       {"s+1", 50},    {"t+1", 50},   {"!1", 50},
        {"-s", 50},      {"-t", 50},        {"!s", 50},     {"7/0", 21},   {"7%0", 21},
        {"1 AND 1", 16}, {"1 OR 1", 16},    {"t+t", 16},    {"t>t", 16},   {"s-s", 54},
        {"s*s", 54},     {"s AND s", 54},   {"s OR s", 54}, {"x+1<9", 50}, {"x=7 OR x=8", 16},
        {"unknown", 10}, {"x+unknown", 10}, {"o=o", 16},    {"o+1", 16},   {"(1=2) AND (1/0)", 21},
    };
    for (const auto& [text, status] : rows) {
        const evaluated got = evaluate(text, &context);
        EXPECT_FALSE(got.done) << text;
        EXPECT_EQ(got.status, status) << text;
        EXPECT_TRUE(check(text).done) << text;
    }
}

TEST_F(scannerTest, aFailureReleasesWhatItHolds) {
    const std::size_t used = localMemoryManager::manager->getUsedCount();
    for (const char* text : {"1+(2*(3+unknown))", "o.add(1,2,\"x\"", "o.add(1,o.add(2,", "s+1",
                             "o.add(1 2 3)", "1?o:", "o.nothing.more"}) {
        EXPECT_FALSE(evaluate(text, &context).done) << text;
        EXPECT_EQ(localMemoryManager::manager->getUsedCount(), used) << text;
    }
}

TEST_F(scannerTest, scanningBeginsAtThePosition) {
    EXPECT_EQ(evaluate("1+2;3+4", &context, 4).text, "7");
    EXPECT_EQ(evaluate("1+2", &context, 3).status, 37);
    EXPECT_EQ(evaluate("1+2", &context, 99).status, 37);
}

TEST_F(scannerTest, aZeroUnitIsNoBlankAndNoOperation) {
    std::u16string text = u"1+2";
    text += u'\0';
    text += u"+3";
    localPosition pos = 0;
    int status = localErrorTypeOK;
    localSlot value;
    EXPECT_TRUE(
        scanStringGetExpressionAndEvaluete(status, text, pos, value.asResult(), &context, false));
    EXPECT_EQ(pos, 3U);
    EXPECT_EQ(value->toString().view(), u"3");
}

TEST_F(scannerTest, anOperandIsAPartOfAnExpression) {
    struct Row {
        std::u16string text;
        std::string value;
        std::uint32_t pos;
    };
    for (const Row& row : {Row{u" 12+3", "12", 3},
                           {u"(1+2)*3", "3", 5},
                           {u"'a'+'b'", "a", 3},
                           {u"x*2", "7", 1},
                           {u"o.add(1,2) + 1", "3", 10}}) {
        localPosition pos = 0;
        int status = localErrorTypeOK;
        localSlot value;
        EXPECT_TRUE(scanStringGetOperandAndEvaluete(status, row.text, pos, value.asResult(),
                                                    &context, false));
        EXPECT_EQ(utf8(value->toString()), row.value);
        EXPECT_EQ(pos, row.pos);
    }
    localPosition pos = 0;
    int status = localErrorTypeOK;
    localSlot value;
    EXPECT_FALSE(
        scanStringGetOperandAndEvaluete(status, u"-1", pos, value.asResult(), &context, false));
    EXPECT_EQ(status, 37);
}

// Name paths and calls
// -----------------------------------------------------------------------------

TEST_F(scannerTest, paths) {
    const valueRow rows[] = {
        {"x", "ЧИСЛО", "7"},
        {"X", "ЧИСЛО", "7"},
        {"here.X", "ЧИСЛО", "7"},
        {"here. x", "ЧИСЛО", "7"},  // blanks behind the point are allowed
        {"here.\n// c\nx", "ЧИСЛО", "7"},
        {"here.here.x", "ЧИСЛО", "7"},
        {"here.o.add(1,2)", "ЧИСЛО", "3"},
        {"o.ADD(1,2)", "ЧИСЛО", "3"},
        {"o.сложить(x,o.add(1,1))", "ЧИСЛО", "9"},
        {"o.add(1 2)", "ЧИСЛО", "3"},  // nothing between two arguments is enough
        {"o.add( 1 , 2 )", "ЧИСЛО", "3"},
        {"o.add(// c\n1,\n2)", "ЧИСЛО", "3"},
        {"o.add(1+1(2))", "ЧИСЛО", "4"},
        {"o.toString()", "СТРОКА", "counted"},
        {"here.contextget().x", "ЧИСЛО", "7"},
    };
    for (const valueRow& row : rows) {
        const evaluated got = evaluate(row.text, &context);
        if (row.text == "here.contextget().x") {
            // A path ends with its call.
            EXPECT_TRUE(got.done);
            EXPECT_EQ(got.pos, 17U);
            continue;
        }
        EXPECT_TRUE(got.done) << row.text << " status " << got.status;
        EXPECT_EQ(got.type, row.type) << row.text;
        EXPECT_EQ(got.text, row.value) << row.text;
        EXPECT_TRUE(check(row.text).done) << row.text;
    }
}

TEST_F(scannerTest, aBlankBeforeThePointEndsTheName) {
    const evaluated got = evaluate("here . x", &context);
    EXPECT_TRUE(got.done);
    EXPECT_EQ(got.pos, 4U);
    EXPECT_EQ(got.type, "КОНТЕКСТ");
}

TEST_F(scannerTest, aBlankBeforeTheParenthesisMakesAVariableOfAName) {
    const evaluated got = evaluate("x (1)", &context);
    EXPECT_TRUE(got.done);
    EXPECT_EQ(got.text, "7");
    EXPECT_EQ(got.pos, 1U);
}

TEST_F(scannerTest, checkModeLooksNoNamesUp) {
    for (const char* text :
         {"nosuch", "nosuch(1)", "no.such.path", "no.such.call(1,2)", "x(", ""}) {
        const evaluated got = check(text);
        EXPECT_EQ(got.done, std::string(text) != "" && std::string(text) != "x(") << text;
    }
    EXPECT_TRUE(output.text().empty());
}

// "[" and units below the blank, too, begin a path with an empty name; no name is missed while
// checking.
TEST_F(scannerTest, anEmptyNameIsSeenWhenItIsRead) {
    for (const char* text : {"[", "@", "\x01", "1+\x7F"}) {
        const evaluated got = evaluate(text, &context);
        EXPECT_FALSE(got.done) << text;
        EXPECT_EQ(got.status, 10) << text;
        EXPECT_TRUE(check(text).done) << text;
    }
    EXPECT_EQ(check("[1]").pos, 0U);
    // As an argument it would be read again and again, so there it is a fault in both modes.
    EXPECT_EQ(check("o.add([)").status, 37);
    EXPECT_EQ(check("o.add(1, @)").status, 37);
    EXPECT_EQ(evaluate("o.add([)", &context).status, 10);
}

TEST_F(scannerTest, failedCallsWriteTheRest) {
    const evaluated got = evaluate("o.fail()+1", &context);
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 7);
    EXPECT_EQ(got.lines, (std::vector<std::string>{"", ">> fail() in )+1",
                                                   "ERROR!!! Выход за границы массива."}));
    const evaluated unknown = evaluate("NoSuch(5)", &context);
    EXPECT_EQ(unknown.status, 27);
    ASSERT_EQ(unknown.lines.size(), 3U);
    EXPECT_EQ(unknown.lines[1], ">> NoSuch() in )");
}

TEST_F(scannerTest, faultsOfPaths) {
    struct Row {
        std::string text;
        int status;
        std::vector<std::string> lines;
    };
    const Row rows[] = {
        {"x.y", 51, {}},
        {"x.y.z", 51, {}},
        {"x.y()",
         51,
         {"ERROR в scanStringGetNameTokenAndEvaluete() (variable [y] is not OBJECT ) position: 4"}},
        {"unknown.y", 10, {}},
        {"o.nothing", 10, {}},
        {"o.ADD", 8, {}},
        {"o.add", 10, {}},  // an attribute is looked up as it is written
        {"here.unknown", 10, {}},
        {"o.add(1,2", 41, {"ожидается  ')' в позиции 9"}},
        {"o.add(1,2;", 37, {}},
        {"o.add(1,)",
         54,
         {"Error scanStringGetNameTokenAndEvaluete() ожидается  параметр в позиции 8"}},
        {"o.add(,1)", 37, {}},
        {"o.add(1,,2)", 37, {}},
        {"o.add(1,", 41, {"ожидается  ')' в позиции 8"}},
        {"o.add(", 41, {"ожидается  ')' в позиции 6"}},
        {"o.add(1", 41, {"ожидается  ')' в позиции 7"}},
    };
    for (const Row& row : rows) {
        const evaluated got = evaluate(row.text, &context);
        EXPECT_FALSE(got.done) << row.text;
        EXPECT_EQ(got.status, row.status) << row.text;
        EXPECT_EQ(got.lines, row.lines) << row.text;
    }
}

TEST_F(scannerTest, anObjectWithoutClassHasNeitherMethodsNorAttributes) {
    int native = 0;
    context.varDeclare(u"bare").value->objectBind(&native, nullptr);
    EXPECT_EQ(evaluate("bare.x", &context).status, 14);
    EXPECT_EQ(evaluate("bare.x()", &context).status, 14);
}

TEST_F(scannerTest, arguments) {
    struct Row {
        std::u16string text;
        bool done;
        int status;
        std::string values;
        std::uint32_t pos;
    };
    const Row rows[] = {
        {u")", true, 54, "", 0},
        {u"  )", true, 54, "", 2},
        {u"", true, 54, "", 0},
        {u"1)", true, 54, "1 ", 1},
        {u"1,2)", true, 54, "1 2 ", 3},
        {u"1 2)", true, 54, "1 2 ", 3},
        {u"1 , 2 , 3", true, 54, "1 2 3 ", 9},
        {u"1,", true, 54, "1 ", 2},
        {u"'a','b')", true, 54, "a b ", 7},
        {u"1,2,3,4,5,6,7,8,9)", true, 54, "1 2 3 4 5 6 7 8 9 ", 17},
        {u"1,)", false, 54, "1 ", 2},
        {u",1)", false, 37, "", 0},
        {u"1,,2)", false, 37, "1 ", 2},
        {u"1+)", false, 37, "", 2},
        {u"1 ", false, 37, "", 2},  // behind a blank the end is no end of the arguments
    };
    for (const Row& row : rows) {
        const capturedOutput unseen;
        localPosition pos = 0;
        int status = localErrorTypeOK;
        std::vector<localSlot> values;
        values.push_back(localSlot::reserve());  // what the sequence held goes
        EXPECT_EQ(scanStringGetArguments(status, row.text, pos, values, &context, false), row.done)
            << utf8(row.text);
        EXPECT_EQ(status, row.status) << utf8(row.text);
        EXPECT_EQ(pos, row.pos) << utf8(row.text);
        if (row.done) {
            std::string text;
            for (const localSlot& value : values) {
                text += utf8(value->toString()) + " ";
            }
            EXPECT_EQ(text, row.values) << utf8(row.text);
        }
    }
}

TEST_F(scannerTest, argumentsThatAreOnlyCheckedAreOnes) {
    const std::pair<std::u16string, std::size_t> rows[] = {
        {u")", 0}, {u"nobody, 'a')", 2}, {u"1/0 nobody(5,6) 3)", 3}};
    for (const auto& [text, count] : rows) {
        localPosition pos = 0;
        int status = localErrorTypeOK;
        std::vector<localSlot> values;
        values.push_back(localSlot::reserve());
        EXPECT_TRUE(scanStringGetArguments(status, text, pos, values, nullptr, true));
        EXPECT_EQ(pos, text.size() - 1) << utf8(text);
        ASSERT_EQ(values.size(), count) << utf8(text);
        for (const localSlot& value : values) {
            EXPECT_EQ(utf8(value->typeName() + value->toString().string()), "ЧИСЛО1");
        }
    }
}

// Contracts
// ----------------------------------------------------------------------------------------

TEST_F(scannerTest, aResultThatIsNotNullHalts) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    localPosition pos = 0;
    const std::u16string text = u"1";
    EXPECT_HALT(
        scanStringGetExpressionAndEvaluete(status, text, pos, result, &context, false),
        "localInterpretatorUTF8::scanStringGetExpressionAndEvaluete() result must be NULL!");
    EXPECT_HALT(scanStringGetOperandAndEvaluete(status, text, pos, result, &context, false),
                "localInterpretatorUTF8::scanStringGetOperandAndEvaluete() result must be NULL!");
    EXPECT_HALT(scanStringGetNameTokenAndEvaluete(status, text, pos, result, &context, false),
                "localInterpretatorUTF8::scanStringGetNameTokenAndEvaluete() result must be NULL!");
    EXPECT_HALT(
        scanStringGetNumberTokenAndEvaluete(status, text, pos, result),
        "localInterpretatorUTF8::scanStringGetNumberTokenAndEvaluete() result must be NULL!");
    EXPECT_HALT(
        scanStringGetStringTokenAndEvaluete(text, pos, result),
        "localInterpretatorUTF8::scanStringGetStringTokenAndEvaluete() result must be NULL!");
}

TEST_F(scannerTest, evaluatingWithoutContextHalts) {
    localValueDescription* result = nullptr;
    int status = localErrorTypeOK;
    localPosition pos = 0;
    const std::u16string text = u"1";
    EXPECT_HALT(scanStringGetExpressionAndEvaluete(status, text, pos, result, nullptr, false),
                "localInterpretatorUTF8::scanStringGetExpressionAndEvaluete() context may be NULL "
                "only in onlyCheck!");
    EXPECT_HALT(
        scanStringGetOperandAndEvaluete(status, text, pos, result, nullptr, false),
        "localInterpretatorUTF8::scanStringGetOperandAndEvaluete() context may be NULL only "
        "in onlyCheck!");
    EXPECT_HALT(scanStringGetNameTokenAndEvaluete(status, text, pos, result, nullptr, false),
                "localInterpretatorUTF8::scanStringGetNameTokenAndEvaluete() context may be NULL "
                "only in onlyCheck!");
    std::vector<localSlot> values;
    EXPECT_HALT(scanStringGetArguments(status, text, pos, values, nullptr, false),
                "localInterpretatorUTF8::scanStringGetArguments() context may be NULL only in "
                "onlyCheck!");
}

// Depth
// --------------------------------------------------------------------------------------------

TEST_F(scannerTest, aHundredThousandParenthesesAreRefusedOrRead) {
    const std::string text = std::string(100000, '(') + "1" + std::string(100000, ')');
    for (localContextUTF8* const scope : {&context, static_cast<localContextUTF8*>(nullptr)}) {
        const evaluated got = evaluate(text, scope);
        EXPECT_FALSE(got.done);
        EXPECT_EQ(got.status, 16);
        EXPECT_EQ(got.lines.size(), 1U);
    }
    EXPECT_EQ(evaluate("((1))", &context).text, "1") << "the next one works as before";
}

TEST_F(scannerTest, deepConditionalsAndCallsAreRefused) {
    std::string conditional;
    std::string calls;
    for (int i = 0; i < 1000000; ++i) {
        conditional += "1?";
        calls += "f(";
    }
    for (const std::string& text : {conditional, calls}) {
        const evaluated got = check(text);
        EXPECT_FALSE(got.done);
        EXPECT_EQ(got.status, 16);
    }
}

TEST_F(scannerTest, longFlatExpressionsNeedNoDepth) {
    std::string sum = "0";
    std::string path = "here";
    for (int i = 0; i < 100000; ++i) {
        sum += "+1";
    }
    for (int i = 0; i < 20000; ++i) {
        path += ".here";
    }
    EXPECT_EQ(evaluate(sum, &context).text, "100000");
    EXPECT_EQ(evaluate(path + ".x", &context).text, "7");
}

}  // namespace
