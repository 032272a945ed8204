#include "localInterpretatorUTF8/program/localByteCode.h"

#include <gmock/gmock.h>

#include "support/language.h"

namespace {

class localByteCodeTest : public languageTest {
protected:
    int compile(std::u16string_view source) {
        int status = localErrorTypeOK;
        const bool done = code.compile(status, std::u16string(source));
        EXPECT_EQ(done, status == localErrorTypeOK);
        return status;
    }
    localByteCode code;
};

TEST_F(localByteCodeTest, aNumberBecomesALoad) {
    EXPECT_EQ(compile(u" // c\n 12.5"), 54);
    code.list();
    const std::vector<std::string> lines = output.rawLines();
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[0] + "\n" + lines[1], "ByteCode [ // c\n 12.5]");
    EXPECT_EQ(lines[2], "** DATA **");
    EXPECT_THAT(lines[3], testing::MatchesRegex(
                              " .0. . address: .*Type: .ЧИСЛО.  num: .12.5..*Val: .12.5. ."));
    EXPECT_EQ(lines[4], "** CODE **");
    EXPECT_EQ(lines[5], " [0] [1] [0] [localByteCode::LOAD number 12.5]");
}

TEST_F(localByteCodeTest, stringsAndNamesAddNothing) {
    for (const char16_t* source : {u"'text'", u"\"text\"", u"name", u"Имя", u"_x"}) {
        EXPECT_EQ(compile(source), 54) << utf8(source);
        output.clear();
        code.list();
        EXPECT_THAT(output.rawLines(), testing::ElementsAre("ByteCode [" + utf8(source) + "]",
                                                            "** DATA **", "** CODE **"));
    }
}

TEST_F(localByteCodeTest, anythingElseIsASyntaxError) {
    for (const char16_t* source : {u"", u"  ", u"+1", u"-1", u"(1)", u"#"}) {
        EXPECT_EQ(compile(source), 37) << utf8(source);
    }
    EXPECT_EQ(compile(u"12345678901234567"), 36);
}

TEST_F(localByteCodeTest, isReachedByTheTestFunction) {
    localContextUTF8 context;
    const evaluated good = evaluate("___TEST00001('7')", &context);
    EXPECT_TRUE(good.done);
    EXPECT_THAT(good.lines,
                testing::ElementsAre(" метод ___TEST00001()", "ByteCode [7]", "** DATA **",
                                     testing::StartsWith(" [0] "), "** CODE **",
                                     " [0] [1] [0] [localByteCode::LOAD number 7]"));
    const evaluated bad = evaluate("___TEST00001('+')", &context);
    EXPECT_FALSE(bad.done);
    EXPECT_EQ(bad.status, 37);
    ASSERT_GE(bad.lines.size(), 5U);
    EXPECT_EQ(bad.lines[1], "Error!!!");
    EXPECT_EQ(bad.lines[2], "ByteCode [+]");
}

}  // namespace
