#include <gmock/gmock.h>

#include <string>

#include "library/libraryCall.h"

namespace {

using stringFunctionsTest = libraryTest;

TEST_F(stringFunctionsTest, replacingRefusesATextLongerThanAValueCanHold) {
    const std::u16string many(100000, u'a');
    const libraryOutcome outcome = call(u"STRINGPARTREPLACE", many, u"a", many);
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(outcome.status, localErrorTypeCODE);
    EXPECT_THAT(output.lines(), testing::ElementsAre("Слишком длинная строка!"));
}

TEST_F(stringFunctionsTest, replacingCountsWhatIsThereBeforeItRefuses) {
    const std::u16string longNew(100000, u'b');
    std::u16string text(100000, u'a');
    text[5] = u'x';
    const libraryOutcome once = call(u"STRINGPARTREPLACE", text, u"x", longNew);
    ASSERT_TRUE(once.done);
    EXPECT_EQ(once.result->wStr.size(), 199999U);
    const libraryOutcome limited = call(u"STRINGPARTREPLACE", text, u"a", longNew, 3.0);
    ASSERT_TRUE(limited.done);
    EXPECT_EQ(limited.result->wStr.size(), 100000U + 3 * 99999);
}

TEST_F(stringFunctionsTest, replacingNothingGivesTheSameText) {
    const libraryOutcome outcome = call(u"STRINGPARTREPLACE", u"abc", u"x", u"y");
    EXPECT_EQ(outcome.result->wStr.view(), u"abc");
}

TEST_F(stringFunctionsTest, aMillionReplacementsGiveTheWholeText) {
    std::u16string text;
    for (int i = 0; i < 1000000; ++i) {
        text += u"ab";
    }
    const libraryOutcome outcome = call(u"STRINGPARTREPLACE", text, u"b", u"cd");
    ASSERT_TRUE(outcome.done);
    ASSERT_EQ(outcome.result->wStr.size(), 3000000U);
    EXPECT_EQ(outcome.result->wStr.view().substr(2999997), u"acd");
}

TEST_F(stringFunctionsTest, searchingNearMissesCostsTheLengthsAndNotTheirProduct) {
    const std::u16string text(2000000, u'a');
    const std::u16string part = std::u16string(1000000, u'a') + u"b";
    EXPECT_EQ(call(u"FIND", text, part).result->num, 0.0);
    EXPECT_EQ(call(u"STRINGPARTFIND", text + u"b", part).result->num, 1000001.0);
    EXPECT_EQ(call(u"STRINGPARTREPLACE", text + u"b", part, u"c").result->wStr.size(), 1000001U);
}

TEST_F(stringFunctionsTest, placesBeyondAnyTextAreOutside) {
    EXPECT_EQ(call(u"FIND", u"abc", u"a", 1e300).result->num, 0.0);
    EXPECT_EQ(call(u"FIND", u"abc", u"a", -1e300).result->num, 1.0);
    EXPECT_EQ(call(u"STRINGPARTFIND", u"abc", u"a", 1e300).status, localErrorTypeOUTOFRANGE);
    EXPECT_EQ(call(u"STRINGPARTFIND", u"abc", u"a", -1e300).status, localErrorTypePARAMETERVALUE);
    EXPECT_EQ(call(u"STRINGPARTLEFT", u"abc", 1e300).result->wStr.view(), u"abc");
    EXPECT_EQ(call(u"STRINGPARTRIGHT", u"abc", -1e300).result->wStr.view(), u"");
}

}  // namespace
