// Global functions that show something to a person or ask one.
#include "library/libraryCall.h"
#include "support/countedClass.h"

namespace {

class dialogFunctionsTest : public libraryTest {
protected:
    dialogFunctionsTest() { host.screen = true; }
};

TEST_F(dialogFunctionsTest, withoutAScreenAllAreRefused) {
    host.screen = false;
    EXPECT_EQ(call(u"STRINGSHOW", 1.0).status, localErrorTypeGRAPHICONLY);
    EXPECT_EQ(call(u"MESSAGEBOX", u"text").status, localErrorTypeGRAPHICONLY);
    EXPECT_EQ(call(u"DATECHOOSEASSTRING").status, localErrorTypeGRAPHICONLY);
    EXPECT_TRUE(host.calls.empty());
    EXPECT_TRUE(output.lines().empty());
}

TEST_F(dialogFunctionsTest, stringshowShowsTheTextOfAValue) {
    EXPECT_EQ(call(u"STRINGSHOW", u"Ёж").result->num, 1.0);
    EXPECT_TRUE(call(u"СТРОКАПОКАЗАТЬ", 2.5).done);
    EXPECT_THAT(host.calls, testing::ElementsAre("text [TE] [Ёж]", "text [TE] [2.5]"));
}

TEST_F(dialogFunctionsTest, messageboxHasAKind) {
    EXPECT_EQ(call(u"MESSAGEBOX", u"a").result->num, 1.0);
    for (const double kind : {0.0, 1.0, 2.0, 3.0, 4.0, -1.0, 1.5}) {
        EXPECT_TRUE(call(u"ПРЕДУПРЕЖДЕНИЕ", u"b", kind).done);
    }
    EXPECT_THAT(host.calls,
                testing::ElementsAre(
                    "message information [Сообщение] [a]", "message information [Сообщение] [b]",
                    "message warning [Сообщение] [b]", "message critical [Сообщение] [b]",
                    "message question [Сообщение] [b]", "message information [Сообщение] [b]",
                    "message information [Сообщение] [b]", "message information [Сообщение] [b]"));
}

TEST_F(dialogFunctionsTest, datechooseasstringGivesTheDateOrAnEmptyText) {
    host.answers = {std::u16string(u"20261114")};
    EXPECT_EQ(utf8(call(u"DATECHOOSEASSTRING", u"20261115").result->wStr), "20261114");
    const libraryOutcome rejected = call(u"ДАТАВЫБРАТЬКАКСТРОКА");
    EXPECT_TRUE(rejected.done);
    EXPECT_EQ(rejected.result->type, localValueTypeSTRING);
    EXPECT_TRUE(rejected.result->wStr.empty());
    EXPECT_THAT(host.calls, testing::ElementsAre("date [20261115]", "date []"));
}

}  // namespace
