#include "localDb/index/localDbDataSource200123.h"

#include "support/localDbTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Source = localDbDataSource200123;

std::vector<std::string> texts(const localDbKey& key) {
    std::vector<std::string> all;
    for (const localDbKeyValue& value : key) {
        all.push_back(value.kind == localDbKeyValue::Kind::null ? "NULL" : narrow(value.text));
    }
    return all;
}

class localDbDataSourceTest : public localDbTest {
public:
    // Goods: 1000 of them, codes A0001 and on, two of each description.
    void makeGoods() {
        make("create table Ref03(id INTEGER PRIMARY KEY AUTOINCREMENT, parentid INT, isfolder INT,"
             " code CHAR(10), descr CHAR(50), price NUME(12));"
             "insert into Ref03 with recursive n(i) as (select 1 union all select i+1 from n limit"
             " 1000) select i, i%10, 0, printf('A%04d',i), printf('goods %04d',(i+1)/2), i*1.5"
             " from n;"
             "create index Ref03_CODE on Ref03(code);"
             "create index Ref03_DESCR on Ref03(descr);"
             "create index Ref03_CODEID on Ref03(code,id);"
             "create index Ref03_PDESCR on Ref03(parentid,isfolder,descr);");
    }
    static std::vector<Source::Alias> tov() { return {{.aliasName = u"tov", .dbtName = u"Ref03"}}; }
    static std::vector<Source::SqlExpression> idAndDescr() {
        return {{.sqlExpression = u"tov.id"}, {.sqlExpression = u"tov.descr", .aliasName = u"D"}};
    }
    std::unique_ptr<Source> source(std::u16string_view index,
                                   std::vector<std::u16string> fixed = {},
                                   std::vector<std::u16string> where = {}) {
        return Source::make(name, tov(), idAndDescr(), std::move(where), index, std::move(fixed));
    }
    static std::vector<std::string> ids(const Source& rows) {
        std::vector<std::string> all;
        for (std::size_t row = 0; row < rows.dataBuffer().size(); ++row) {
            all.push_back(rows.cell(row, 0).toStdString());
        }
        return all;
    }
    std::vector<std::string> firstColumn(const std::string& sql) const {
        std::vector<std::string> all;
        for (const auto& row : rows(sql)) {
            all.push_back(row[0]);
        }
        return all;
    }
};

// --- Construction

TEST_F(localDbDataSourceTest, theBufferBeginsAtTheTablesStart) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    ASSERT_NE(goods, nullptr);
    EXPECT_EQ(goods->dataBuffer().size(), 256);
    EXPECT_EQ(goods->currentIdx()->name, u"Ref03_CODE");
    EXPECT_THAT(goods->currentIdx()->keyFieldNames, ElementsAre(u"tov.code"));
    EXPECT_EQ(goods->currentIdx()->keyFields[0]->getName(), u"code");
    EXPECT_EQ(goods->fields().size(), 6);
    EXPECT_EQ(goods->dataBuffer()[0].size(), 3);
    EXPECT_EQ(goods->dataBuffer()[255][0], "A0256");
    EXPECT_EQ(goods->cell(255, 0), "256");
    EXPECT_EQ(goods->cell(255, 1), "goods 0128");
    EXPECT_EQ(goods->cell(255, 2), " illegal column!");
    EXPECT_EQ(goods->cell(256, 0), "");
    EXPECT_THAT(texts(goods->keyOfRow(255)), ElementsAre("A0256"));
    EXPECT_THAT(goods->keyOfRow(256), IsEmpty());
    EXPECT_THAT(host.calls, ElementsAre("beep"));
}

TEST_F(localDbDataSourceTest, anEmptyNameTakesTheFirstIndex) {
    makeGoods();
    EXPECT_EQ(source(u"")->currentIdx()->name, u"Ref03_CODE");
}

TEST_F(localDbDataSourceTest, anUnknownConnectionEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(Source(u"who", {}, {}, {}, u"", {}), testing::ExitedWithCode(1), "");
    EXPECT_EQ(Source::make(u"who", {}, {}, {}, u"", {}), nullptr);
    EXPECT_THAT(boxes(),
                ElementsAre("critical [localDbDataSource200123] html " +
                            htmlHead("localDbDataSource200123") + "database who not found!<BR/>"));
}

TEST_F(localDbDataSourceTest, anIndexThatCannotBeSetEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    makeGoods();
    EXPECT_EXIT(Source(name, tov(), idAndDescr(), {}, u"no", {}), testing::ExitedWithCode(1), "");
    EXPECT_EQ(source(u"no"), nullptr);
    EXPECT_THAT(boxes(), ElementsAre("critical [localDbDataSource200123] " +
                                     plainHead("localDbDataSource200123") +
                                     "Не удалось установить индекс no"));
}

TEST_F(localDbDataSourceTest, withoutTablesThereIsNothingToDo) {
    Source empty(name, {}, {}, {}, u"", {});
    EXPECT_THAT(empty.dataBuffer(), IsEmpty());
    EXPECT_THAT(host.calls, IsEmpty());
    EXPECT_FALSE(empty.idxInit(u"x"));
    EXPECT_THAT(empty.getTmpRowById(1), IsEmpty());
    empty.fillFromKeyVal({});
    EXPECT_THAT(boxes(),
                ElementsAre("critical [fillFromKeyVal] html " + htmlHead("fillFromKeyVal") +
                            "database: test table: unkbown <BR/><BR/>"
                            " Для данного виджета (таблицы) не задано ни одного индексного поля.  "
                            "<BR/><BR/> Информация отображаться не будет.  <BR/><BR/><BR/>"));
}

TEST_F(localDbDataSourceTest, aTableWithoutIndexesWarnsOnce) {
    make("create table t(id integer primary key, a);");
    const auto empty = Source::make(name, {{.aliasName = u"", .dbtName = u"t"}}, {}, {}, u"", {});
    ASSERT_NE(empty, nullptr);
    EXPECT_THAT(empty->dataBuffer(), IsEmpty());
    EXPECT_EQ(empty->currentIdx(), nullptr);
    EXPECT_THAT(boxes(),
                ElementsAre("warning [localDbDataSource200123] html " +
                            htmlHead("localDbDataSource200123") +
                            "<BR/> Для таблицы t из БД test не задано ни одного индексного "
                            "файла!<BR/>"));
}

TEST_F(localDbDataSourceTest, indexesThatLackRowsOrHoldExpressionsAreNoOrders) {
    make("create table t(id integer primary key, a, b);"
         "create index t_part on t(a) where b>1; create index t_expr on t(a+b);"
         "create index t_b on t(b);");
    const auto rows =
        Source::make(name, {{.dbtName = u"t"}}, {{.sqlExpression = u"id"}}, {}, u"", {});
    ASSERT_EQ(rows->indexes().size(), 1);
    EXPECT_EQ(rows->indexes()[0]->name, u"t_b");
    EXPECT_EQ(rows->indexByName(u"t_part"), nullptr);
    EXPECT_EQ(Source::make(name, {{.dbtName = u"t"}}, {}, {}, u"t_part", {}), nullptr);
}

TEST_F(localDbDataSourceTest, aKeyColumnThatTheFieldsLackIsToldOf) {
    make("create table t(id integer primary key, a INT, g INT generated always as (a*2));"
         "create index t_g on t(g, a); insert into t(id,a) values(1,5),(2,3);");
    const auto rows =
        Source::make(name, {{.dbtName = u"t"}}, {{.sqlExpression = u"id"}}, {}, u"", {});
    EXPECT_THAT(boxes(), ElementsAre("warning [idxInit] html " + htmlHead("idxInit") +
                                     "<BR/><BR/> Ключевое поле [g] из индекса [t_g] "
                                     "<BR/><BR/> отсутствует в таблице t"));
    EXPECT_EQ(rows->currentIdx()->keyFields.size(), 1);
    EXPECT_THAT(ids(*rows), ElementsAre("2", "1"));
}

// --- Statements

TEST_F(localDbDataSourceTest, aRefillRunsTheStatedStatements) {
    makeGoods();
    const auto goods = source(u"Ref03_CODEID");
    trace();
    goods->fillFromKeyVal({u"A0998", u"998"});
    const std::string head = "select tov.code, tov.id,tov.id,tov.descr as D from Ref03 tov where ";
    const std::string tail = " order by  tov.code, tov.id limit 256;";
    EXPECT_THAT(statements, ElementsAre(head + "(tov.code='A0998') and (tov.id=0998)" + tail,
                                        head + "(tov.code='A0998') and (tov.id>0998)" + tail,
                                        head + "(tov.code>'A0998')" + tail));
    EXPECT_THAT(ids(*goods), ElementsAre("998", "999", "1000"));
}

TEST_F(localDbDataSourceTest, noPositionMeansNoCondition) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    trace();
    goods->fillFromKeyVal({});
    EXPECT_THAT(statements, ElementsAre("select tov.code,tov.id,tov.descr as D from Ref03 tov"
                                        " order by  tov.code limit 256;"));
}

TEST_F(localDbDataSourceTest, aFullBufferStopsThePasses) {
    makeGoods();
    rows("update Ref03 set code='same'");
    rows("update Ref03 set code=printf('x%04d',id) where id>300");
    const auto goods = source(u"Ref03_CODEID");
    trace();
    goods->fillFromKeyVal({u"same"});
    EXPECT_EQ(statements.size(), 1);
    EXPECT_EQ(goods->dataBuffer().size(), 256);
}

TEST_F(localDbDataSourceTest, furtherConditionsStandInEveryStatement) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE", {}, {u"tov.id<=300", u"tov.id%2=0"});
    trace();
    goods->fillFromKeyVal({u"A0296"});
    goods->fillFromKeyVal({});
    const std::string head = "select tov.code,tov.id,tov.descr as D from Ref03 tov where ";
    const std::string more = "(tov.id<=300)  and (tov.id%2=0)  order by  tov.code limit 256;";
    EXPECT_THAT(statements,
                ElementsAre(head + "(tov.code='A0296') and " + more,
                            head + "(tov.code>'A0296') and " + more, head + " " + more));
    // All rows that the conditions leave out are passed over by the walk back, too.
    EXPECT_THAT(texts(goods->relativeKey({u"A0296"}, -128, false)), ElementsAre("A0040"));
}

TEST_F(localDbDataSourceTest, fixedValuesKeepTheWalkInside) {
    makeGoods();
    const auto goods = source(u"Ref03_PDESCR", {u"7"});
    EXPECT_EQ(ids(*goods), firstColumn("select id from Ref03 where parentid=7 order by descr, id"));
    trace();
    goods->fillFromKeyVal({u"7", u"0", u"goods 0495"});
    const std::string head = "select tov.parentid, tov.isfolder, tov.descr,tov.id,tov.descr as D "
                             "from Ref03 tov where (tov.parentid=07) and ";
    const std::string tail = " order by  tov.parentid, tov.isfolder, tov.descr limit 256;";
    EXPECT_THAT(statements,
                ElementsAre(head + "(tov.isfolder=00) and (tov.descr='goods 0495')" + tail,
                            head + "(tov.isfolder=00) and (tov.descr>'goods 0495')" + tail,
                            head + "(tov.isfolder>00)" + tail));
    EXPECT_THAT(texts(goods->relativeKey({u"7", u"0", u"goods 0019"}, -128, false)),
                ElementsAre("7", "0", "goods 0004"));
    EXPECT_THAT(goods->relativeKey({}, 0, false), IsEmpty());
}

TEST_F(localDbDataSourceTest, joinedTablesStandInTheFromText) {
    makeGoods();
    const auto goods = Source::make(
        name,
        {{.aliasName = u"tov", .dbtName = u"Ref03", .leftJoinCondition = u"ignored"},
         {.aliasName = u"p", .dbtName = u"Ref03", .leftJoinCondition = u"p.id=tov.parentid"}},
        {{.sqlExpression = u"p.code", .aliasName = u"PC"}}, {u"tov.id=12"}, u"Ref03_CODE", {});
    EXPECT_EQ(goods->cell(0, 0), "A0002");
    trace();
    goods->fillFromKeyVal({});
    EXPECT_THAT(statements, ElementsAre("select tov.code,p.code as PC from Ref03 tov left join "
                                        "Ref03 p on p.id=tov.parentid where  (tov.id=12)  "
                                        "order by  tov.code limit 256;"));
}

TEST_F(localDbDataSourceTest, aRowIsReadByItsId) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    trace();
    EXPECT_THAT(goods->getTmpRowById(500), ElementsAre("A0500", "500", "goods 0250"));
    EXPECT_THAT(statements, ElementsAre("select tov.code,tov.id,tov.descr as D from Ref03 tov "
                                        "where tov.id=500;"));
    EXPECT_THAT(goods->getTmpRowById(5000), IsEmpty());
    rows("drop table Ref03");
    EXPECT_THAT(goods->getTmpRowById(1), IsEmpty());
    EXPECT_THAT(boxes().back(), testing::StartsWith("warning [getTmpRowById] "));
}

TEST_F(localDbDataSourceTest, everyFailedPassCostsTwoBoxes) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    rows("drop table Ref03");
    goods->fillFromKeyVal({u"A1"});
    EXPECT_THAT(goods->dataBuffer(), IsEmpty());
    const std::string head = "select tov.code,tov.id,tov.descr as D from Ref03 tov where ";
    const std::string first = head + "(tov.code='A1') order by  tov.code limit 256;";
    const std::string second = head + "(tov.code>'A1') order by  tov.code limit 256;";
    EXPECT_THAT(boxes(), ElementsAre(queryBox(first, "no such table: Ref03"),
                                     failedBox("fillFromKeyVal", first),
                                     queryBox(second, "no such table: Ref03"),
                                     failedBox("fillFromKeyVal", second)));
}

// --- The relative read

TEST_F(localDbDataSourceTest, aRelativeReadRunsTheStatedStatements) {
    makeGoods();
    trace();
    EXPECT_THAT(
        localDb::dbtRecordGetRelativelyByKeyAsVectorOfValues(
            name, u"Ref03", {u"id", u"descr"}, {u"code", u"id"}, 0, {u"A0005", u"5"}, -128, false),
        ElementsAre(u"1", u"goods 0001"));
    const std::string head = "select id, descr from Ref03 where ";
    const std::string order = " order by  code  desc , id  desc  limit ";
    EXPECT_THAT(statements, ElementsAre(head + "(code='A0005')  and (id=05) " + order + "129;",
                                        head + "(code='A0005')  and (id<05) " + order + "128;",
                                        head + "(code<'A0005') " + order + "128;"));
    statements.clear();
    EXPECT_THAT(localDb::dbtRecordGetRelativelyByKeyAsVectorOfValues(
                    name, u"Ref03", {u"code"}, {u"code"}, 0, {u"A0005x"}, 0, false),
                ElementsAre(u"A0006"));
    EXPECT_THAT(statements,
                ElementsAre("select code from Ref03 where (code='A0005x')  order by  code  asc  "
                            "limit 1;",
                            "select code from Ref03 where (code>'A0005x')  order by  code  asc  "
                            "limit 1;"));
}

TEST_F(localDbDataSourceTest, strictnessDecidesPastTheTablesStart) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    EXPECT_THAT(texts(goods->relativeKey({u"A0005"}, -128, false)), ElementsAre("A0001"));
    EXPECT_THAT(goods->relativeKey({u"A0005"}, -128, true), IsEmpty());
    EXPECT_THAT(texts(goods->relativeKey({u"A0005"}, -4, true)), ElementsAre("A0001"));
    EXPECT_THAT(texts(goods->relativeKey({u"A0500"}, -128, true)), ElementsAre("A0372"));
    EXPECT_THAT(texts(goods->relativeKey({u"A0500"}, 0, true)), ElementsAre("A0500"));
    EXPECT_THAT(goods->relativeKey({u"B"}, 0, false), IsEmpty());
}

TEST_F(localDbDataSourceTest, aFixedCountThatLeavesNoPassGivesNothing) {
    makeGoods();
    EXPECT_THAT(localDb::dbtRecordGetRelativelyByKeyAsVectorOfValues(
                    name, u"Ref03", {u"id"}, {u"code"}, 2, {u"A0001"}, 0, false),
                IsEmpty());
    EXPECT_THAT(localDb::dbtRecordGetRelativelyByKeyAsVectorOfValues(name, u"Ref03", {u"id"},
                                                                     {u"code"}, 1, {}, 0, false),
                IsEmpty());
}

TEST_F(localDbDataSourceTest, aFailedRelativeReadGivesNothing) {
    makeGoods();
    EXPECT_THAT(localDb::dbtRecordGetRelativelyByKeyAsVectorOfValues(
                    name, u"Ref03", {u"id"}, {u"code"}, 0, {u"it's"}, 0, false),
                IsEmpty());
    const std::string sql =
        "select id from Ref03 where (code='it's')  order by  code  asc  limit 1;";
    EXPECT_THAT(boxes(),
                ElementsAre(testing::StartsWith("critical [dbQueryExec]"),
                            failedBox("dbtRecordGetRelativelyByKeyAsVectorOfValues", sql)));
}

// --- Another index

TEST_F(localDbDataSourceTest, anIndexIsChangedAroundTheRecord) {
    makeGoods();
    const auto goods = source(u"Ref03_PDESCR");
    goods->fillFromKeyVal({u"3", u"0", u"goods 0302"});
    ASSERT_EQ(goods->cell(0, 0), "603");
    const Source::IdxSetResult result = goods->idxSet(u"Ref03_CODE", 0);
    EXPECT_TRUE(result.changed);
    EXPECT_EQ(goods->currentIdx()->name, u"Ref03_CODE");
    EXPECT_EQ(result.row, 128);
    EXPECT_EQ(goods->cell(128, 0), "603");
}

// The row of the buffer on which the cursor belongs; there must be one.
std::size_t rowOf(const Source::IdxSetResult& result) {
    return static_cast<std::size_t>(result.row);
}

TEST_F(localDbDataSourceTest, oneOfSeveralRowsWithOneKeyStaysTheRecord) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    for (const char16_t* const code : {u"A0601", u"A0602"}) {
        goods->idxSet(u"Ref03_CODE", 0);
        goods->fillFromKeyVal({code});
        const QString id = goods->cell(0, 0);
        const Source::IdxSetResult there = goods->idxSet(u"Ref03_DESCR", 0);
        ASSERT_GE(there.row, 0);
        EXPECT_EQ(goods->cell(rowOf(there), 0), id);
        const Source::IdxSetResult back = goods->idxSet(u"Ref03_CODE", rowOf(there));
        EXPECT_EQ(goods->cell(rowOf(back), 0), id);
    }
    // From a buffer that was filled without telling rows apart.
    goods->idxSet(u"Ref03_DESCR", 0);
    goods->fillFromKeyVal({u"goods 0300"});
    ASSERT_EQ(goods->cell(1, 0), "600");
    const Source::IdxSetResult result = goods->idxSet(u"Ref03_CODE", 1);
    EXPECT_EQ(goods->cell(rowOf(result), 0), "600");
}

TEST_F(localDbDataSourceTest, anUnknownIndexChangesNothing) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    trace();
    EXPECT_FALSE(goods->idxSet(u"no", 5).changed);
    EXPECT_EQ(goods->currentIdx()->name, u"Ref03_CODE");
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(localDbDataSourceTest, theCursorIsPutOnARowByItsKey) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    EXPECT_EQ(goods->rowOfKey({u"A0100"}), 99);
    EXPECT_EQ(goods->rowOfKey({u"A0100x"}), 100);
    EXPECT_EQ(goods->rowOfKey({u"B"}), -1);
}

TEST_F(localDbDataSourceTest, theCursorFindsThePlaceOfANumberThatIsNoRowsKey) {
    makeGoods();
    rows("create index Ref03_PRICE on Ref03(price)");
    rows("create index Ref03_DOWN on Ref03(price desc)");
    rows("delete from Ref03 where id=60");
    const auto goods = source(u"Ref03_PRICE");
    // As texts, "9" would stand behind all of them.
    EXPECT_EQ(goods->rowOfKey({u"9"}), 5);
    EXPECT_EQ(goods->rowOfKey({u"90"}), 59);
    EXPECT_EQ(goods->rowOfKey({{u"-1", localDbKeyValue::Kind::number}}), 0);
    EXPECT_EQ(goods->rowOfKey({{u"a", localDbKeyValue::Kind::text}}), -1);
    const auto falling = source(u"Ref03_DOWN");
    EXPECT_EQ(falling->rowOfKey({u"1490.2"}), 7);
    EXPECT_EQ(falling->rowOfKey({u"2000"}), 0);
    EXPECT_EQ(falling->rowOfKey({u"1"}), -1);
}

TEST_F(localDbDataSourceTest, aKeyTellsARowApartWhereOthersHaveIt) {
    makeGoods();
    const auto goods = source(u"Ref03_DESCR");
    trace();
    EXPECT_THAT(texts(goods->exactKeyOfRow(3)), ElementsAre("goods 0002", "4"));
    EXPECT_THAT(texts(goods->exactKeyOfRow(2)), ElementsAre("goods 0002", "3"));
    EXPECT_EQ(statements.size(), 2);
    rows("update Ref03 set descr='goods 0128x' where id=256");
    goods->fillFromStart();
    // Alone in the buffer; whether others follow is not seen there.
    EXPECT_THAT(texts(goods->exactKeyOfRow(255)), ElementsAre("goods 0128x", "256"));
    trace();
    EXPECT_THAT(texts(goods->exactKeyOfRow(254)), ElementsAre("goods 0128"));
    EXPECT_THAT(goods->exactKeyOfRow(256), IsEmpty());
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(localDbDataSourceTest, theEndIsOneReadAway) {
    makeGoods();
    const auto goods = source(u"Ref03_DESCR");
    trace();
    EXPECT_THAT(texts(goods->keyBeforeEnd(1)), ElementsAre("goods 0500", "999"));
    EXPECT_EQ(statements.size(), 1);
    EXPECT_THAT(texts(goods->keyBeforeEnd(127)), ElementsAre("goods 0437", "873"));
    EXPECT_THAT(texts(goods->keyBeforeEnd(5000)), ElementsAre("goods 0001", "1"));
    const auto folder = source(u"Ref03_PDESCR", {u"7"});
    EXPECT_THAT(texts(folder->keyBeforeEnd(1)), ElementsAre("7", "0", "goods 0494", "987"));
    EXPECT_THAT(texts(folder->keyBeforeEnd(500)), ElementsAre("7", "0", "goods 0004", "7"));
}

TEST_F(localDbDataSourceTest, aRecordOfAnotherIndexIsShownInTheOrderThereIs) {
    makeGoods();
    const auto goods = source(u"Ref03_DESCR");
    const std::ptrdiff_t row =
        goods->fillAroundRecord(*goods->indexByName(u"Ref03_CODE"), {u"A0602"});
    ASSERT_GE(row, 0);
    EXPECT_EQ(goods->currentIdx()->name, u"Ref03_DESCR");
    EXPECT_EQ(goods->cell(static_cast<std::size_t>(row), 0), "602");
    EXPECT_EQ(goods->fillAroundRecord(*goods->currentIdx(), {u"goods 0300"}), 128);
    EXPECT_EQ(goods->cell(128, 0), "599");
}

TEST_F(localDbDataSourceTest, indexesAreReadAnew) {
    makeGoods();
    const auto goods = source(u"Ref03_CODE");
    rows("create index Ref03_PRICE on Ref03(price)");
    EXPECT_TRUE(goods->idxInit(u"Ref03_PRICE"));
    EXPECT_EQ(goods->currentIdx()->name, u"Ref03_PRICE");
    EXPECT_TRUE(goods->currentIdx()->keyFields[0]->isNumeric());
    EXPECT_FALSE(goods->idxInit(u"no"));
    EXPECT_EQ(goods->currentIdx(), nullptr);
}

}  // namespace
