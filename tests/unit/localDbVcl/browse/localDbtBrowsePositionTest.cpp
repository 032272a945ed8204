// What the moves of a browse ask of the data file, and how they count.
#include "browse/localDbtBrowsePosition.h"

#include "support/localDbBrowseTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Source = localDbDataSource200123;

class localDbtBrowsePositionTest : public localDbBrowseTest {
public:
    static constexpr std::uint32_t screen = 20;
    std::unique_ptr<Source> source;
    std::unique_ptr<localDbtBrowsePosition> at;

    void browse(int rowCount, std::uint32_t visibleRows = screen) {
        make("create table t(id integer primary key, code CHAR(9), price NUME);"
             "insert into t with recursive n(i) as (select 1 union all select i+1 from n limit " +
             std::to_string(rowCount) +
             ") select i, printf('A%05d',i), i/2 from n;"
             "create index t_code on t(code); create index t_price on t(price)");
        source = Source::make(name, {{.aliasName = u"m", .dbtName = u"t"}},
                              {{.sqlExpression = u"m.id"}}, {}, u"t_code", {});
        at = std::make_unique<localDbtBrowsePosition>(*source, visibleRows);
        host.calls.clear();
        trace();
    }
    std::string id() const { return source->cell(at->mCurRec(), 0).toStdString(); }
};

TEST_F(localDbtBrowsePositionTest, movesWithinTheBufferRunNoStatement) {
    browse(1000);
    for (int i = 0; i < 255; ++i) {
        at->down();
    }
    for (int i = 0; i < 255; ++i) {
        at->up();
    }
    for (int i = 0; i < 10; ++i) {
        at->pageDown();
    }
    for (int i = 0; i < 5; ++i) {
        at->pageUp();
        at->scrollDown();
        at->scrollUp();
    }
    at->resize(50);
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(localDbtBrowsePositionTest, downBehindTheBufferReadsFromTheTopRow) {
    browse(1000);
    for (int i = 0; i < 256; ++i) {
        at->down();
    }
    EXPECT_EQ(id(), "257");
    EXPECT_EQ(at->mRec1, 1);
    // The top row, and what follows it.
    EXPECT_THAT(statements, ElementsAre(testing::HasSubstr("(m.code='A00238')"),
                                        testing::HasSubstr("(m.code>'A00238')")));
    EXPECT_THAT(host.calls, ElementsAre("beep", "beep"));
}

TEST_F(localDbtBrowsePositionTest, upBeforeTheBufferReadsTheStartTwice) {
    browse(1000);
    at->idxSet(u"t_code");
    source->fillFromKeyVal({u"A00500"});
    at->place(0);
    trace();
    host.calls.clear();
    at->up();
    EXPECT_EQ(id(), "499");
    EXPECT_EQ(at->mRec1, 127);
    // Two passes of the relative read, twice, and two of the refill.
    EXPECT_EQ(statements.size(), 6);
    EXPECT_THAT(host.calls, ElementsAre("beep"));
}

TEST_F(localDbtBrowsePositionTest, upAtTheFirstRowLooksForOneBeforeIt) {
    browse(1000);
    at->up();
    EXPECT_EQ(id(), "1");
    EXPECT_EQ(at->mRec1, 0);
    EXPECT_THAT(host.calls, ElementsAre("beep"));
}

TEST_F(localDbtBrowsePositionTest, aFullBufferMayHoldTheWholeTable) {
    browse(256);
    for (int i = 0; i < 300; ++i) {
        at->down();
    }
    EXPECT_EQ(id(), "256");
    browse(257);
    for (int i = 0; i < 300; ++i) {
        at->down();
    }
    EXPECT_EQ(id(), "257");
}

TEST_F(localDbtBrowsePositionTest, theWheelAtAnEndRunsNoStatement) {
    browse(300);
    at->scrollUp();
    EXPECT_THAT(statements, IsEmpty());
    for (int i = 0; i < 290; ++i) {
        at->scrollDown();
    }
    EXPECT_EQ(id(), "282");
    trace();
    host.calls.clear();
    at->scrollDown();
    EXPECT_THAT(statements, IsEmpty());
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(localDbtBrowsePositionTest, theEndIsOneRelativeReadAway) {
    browse(1000);
    at->toEnd();
    EXPECT_EQ(id(), "1000");
    EXPECT_EQ(at->mCurRow, screen - 1);
    EXPECT_EQ(std::count_if(
                  statements.begin(), statements.end(),
                  [](const std::string& sql) { return sql.find(" desc") != std::string::npos; }),
              1);
    EXPECT_THAT(host.calls, ElementsAre("beep"));
}

TEST_F(localDbtBrowsePositionTest, rowsWithOneKeyAreWalkedOneByOne) {
    browse(1000);
    at->idxSet(u"t_price");
    at->toStart();
    for (int i = 1; i < 1000; ++i) {
        EXPECT_EQ(id(), std::to_string(i));
        at->down();
    }
    for (int i = 1000; i > 1; --i) {
        EXPECT_EQ(id(), std::to_string(i));
        at->up();
    }
}

TEST_F(localDbtBrowsePositionTest, aRecordThatHasGoneLeavesItsPlace) {
    browse(1000);
    for (int i = 0; i < 100; ++i) {
        at->down();
    }
    rows("delete from t where id between 95 and 110");
    at->fillAround({u"A00101"});
    EXPECT_EQ(id(), "111");
    rows("delete from t where id>300");
    at->fillAround({u"A00900"});
    EXPECT_EQ(id(), "300");
    rows("delete from t");
    at->fillAround({u"A00200"});
    EXPECT_EQ(at->mCurRow, 0);
    EXPECT_FALSE(at->hasRow());
}

TEST_F(localDbtBrowsePositionTest, numbersAreFoundAsNumbers) {
    browse(1000);
    const auto& byPrice = *source->indexByName(u"t_price");
    EXPECT_TRUE(at->find(byPrice, {u"90"}));
    EXPECT_EQ(id(), "180");
    EXPECT_FALSE(at->find(byPrice, {u"x"}));
    EXPECT_EQ(id(), "180");
    EXPECT_FALSE(at->find(byPrice, {u"1.5"}));
}

}  // namespace
