// Data files that the program sqlite3 made, with what this system never makes.

#include "localDb/index/localDbDataSource200123.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "support/localDbTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Source = localDbDataSource200123;

class localDbFilesOfOthers : public localDbTest {
public:
    std::unique_ptr<Source> source(const char16_t* table, const char16_t* index = u"",
                                   const char16_t* expression = u"rowid") {
        return Source::make(name, {{.dbtName = table}}, {{.sqlExpression = expression}}, {}, index,
                            {});
    }
    static std::vector<std::string> shown(const Source& rows) {
        std::vector<std::string> all;
        for (std::size_t row = 0; row < rows.dataBuffer().size(); ++row) {
            all.push_back(rows.cell(row, 0).toStdString());
        }
        return all;
    }
};

TEST_F(localDbFilesOfOthers, viewsAndTriggers) {
    make("create table t(id integer primary key, a INT); create table log(id integer primary key,"
         " said); create view v as select a*2 as twice from t;"
         "create trigger tr after insert on t begin insert into log(said) values(new.a); end;");
    localDbFieldDescription field(u"a", u"INT", 0, 0);
    field.value = "5";
    EXPECT_TRUE(localDb::dbtRecordAppend(name, u"t", localDb::Fields{field}));
    EXPECT_EQ(value("select said from log"), "5");
    EXPECT_FALSE(localDb::dbTableExist(name, u"v"));
    ASSERT_EQ(localDb::dbtFieldsDescriptionsGet(name, u"v").size(), 1);
    EXPECT_EQ(localDb::dbtRecordCount("test", "v"), 1);
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_THAT(source(u"v")->dataBuffer(), IsEmpty());
    EXPECT_THAT(boxes(), ElementsAre(testing::HasSubstr("не задано ни одного индексного файла")));
}

TEST_F(localDbFilesOfOthers, tablesWithoutRowIdsAndCompositeKeys) {
    make("create table t(a INT, b CHAR(5), c INT, primary key(a, b)) without rowid;"
         "create index t_c on t(c);"
         "insert into t with recursive n(i) as (select 1 union all select i+1 from n limit 600)"
         " select i%4, printf('b%03d',i), 1 from n;");
    const auto byKey = source(u"t", u"sqlite_autoindex_t_1", u"b");
    EXPECT_THAT(byKey->currentIdx()->keyFieldNames, ElementsAre(u"a", u"b"));
    EXPECT_EQ(byKey->cell(0, 0), "b004");
    byKey->fillFromKeyVal(byKey->keyOfRow(200));
    EXPECT_EQ(byKey->cell(0, 0).toStdString(),
              value("select b from t order by a, b limit 1 offset 200"));
    // Every row has the same key here.
    const auto crowded = source(u"t", u"t_c", u"b");
    crowded->fillFromKeyVal(crowded->keyOfRow(200));
    EXPECT_EQ(crowded->cell(0, 0).toStdString(),
              value("select b from t order by c, a, b limit 1 offset 200"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbFilesOfOthers, generatedColumns) {
    make("create table t(id integer primary key, a INT, s INT generated always as (a+1) stored,"
         " w INT as (a*2)); create index t_a on t(a); insert into t(a) values(3),(1);");
    const localDb::Fields fields = localDb::dbtFieldsDescriptionsGet(name, u"t");
    EXPECT_EQ(fields.size(), 2);
    EXPECT_EQ(source(u"t", u"t_a", u"s")->cell(0, 0), "2");
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbFilesOfOthers, automaticIndexes) {
    make("create table t(id integer primary key, a CHAR(5) unique); insert into t(a) "
         "values('y'),(null),('x'),(null);");
    const auto rowsShown = source(u"t", u"sqlite_autoindex_t_1", u"id");
    EXPECT_THAT(shown(*rowsShown), ElementsAre("2", "4", "3", "1"));
    rowsShown->fillFromKeyVal(rowsShown->keyOfRow(1));
    EXPECT_THAT(shown(*rowsShown), ElementsAre("2", "4", "3", "1"));
    EXPECT_FALSE(localDb::idxDelete(name, u"sqlite_autoindex_t_1"));
    EXPECT_THAT(boxes()[0], testing::HasSubstr("index associated with UNIQUE"));
}

TEST_F(localDbFilesOfOthers, nullsByTheHundredAreWalkedThrough) {
    make("create table t(id integer primary key, a INT); create index t_a on t(a);"
         "insert into t(a) with recursive n(i) as (select 1 union all select i+1 from n limit 1000)"
         " select case when i>700 then i end from n;");
    const auto rowsShown = source(u"t", u"t_a", u"id");
    for (int step = 0; step < 7; ++step) {
        rowsShown->fillFromKeyVal(rowsShown->keyOfRow(128));
    }
    EXPECT_EQ(rowsShown->cell(0, 0), "897");
    for (int step = 0; step < 7; ++step) {
        rowsShown->fillFromKeyVal(rowsShown->relativeKey(rowsShown->keyOfRow(0), -128, false));
    }
    EXPECT_EQ(rowsShown->cell(0, 0), "1");
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbFilesOfOthers, namesInCyrillic) {
    make(
        "create table Товары(id integer primary key, Код CHAR(9), Имя CHAR(40));"
        "create index Товары_КОД on Товары(Код); insert into Товары(Код,Имя) values('Ё2','гвоздь'),"
        "('Ё1','молоток');");
    EXPECT_TRUE(localDb::dbTableExist(name, u"Товары"));
    const auto goods =
        Source::make(name, {{.aliasName = u"т", .dbtName = u"Товары"}},
                     {{.sqlExpression = u"т.Имя", .aliasName = u"Имя"}}, {}, u"Товары_КОД", {});
    ASSERT_NE(goods, nullptr);
    EXPECT_THAT(shown(*goods), ElementsAre("молоток", "гвоздь"));
    EXPECT_EQ(goods->relativeKey({u"Ё1"}, 0, true),
              (localDbKey{{u"Ё1", localDbKeyValue::Kind::text}}));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbFilesOfOthers, namesWithBlanksAndQuotes) {
    make("create table \"my goods\"(id integer primary key, \"the code\" CHAR(9));"
         "create index \"by code\" on \"my goods\"(\"the code\");"
         "create table \"it's\"(id integer primary key);"
         "insert into \"my goods\" values(1,'b'),(2,'a');");
    // As they are, such names break the statement, which is told; in quotes they stand.
    EXPECT_EQ(localDb::dbtRecordCount("test", "my goods"), 0);
    EXPECT_EQ(localDb::dbtRecordCount("test", "it's"), 0);
    EXPECT_EQ(host.reports.size(), 4);
    host.reports.clear();
    EXPECT_EQ(localDb::dbtRecordCount("test", "\"my goods\""), 2);
    const auto goods = Source::make(name, {{.aliasName = u"g", .dbtName = u"\"my goods\""}},
                                    {{.sqlExpression = u"g.id"}}, {}, u"by code", {});
    ASSERT_NE(goods, nullptr);
    EXPECT_THAT(shown(*goods), ElementsAre("2", "1"));
    goods->fillFromKeyVal(goods->keyOfRow(1));
    EXPECT_THAT(shown(*goods), ElementsAre("1"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbFilesOfOthers, writeAheadLogs) {
    make("pragma journal_mode=wal; create table t(id integer primary key, a CHAR(5));"
         "insert into t(a) values('x');");
    localDbFieldDescription field(u"a", u"CHAR", 5, 0);
    field.value = "y";
    EXPECT_TRUE(localDb::dbtRecordAppend(name, u"t", localDb::Fields{field}));
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 2);
    EXPECT_TRUE(localDb::dbtAlter(name, u"t", localDb::dbtFieldsDescriptionsGet(name, u"t")));
    EXPECT_EQ(value("select group_concat(a) from t"), "x,y");
    connection->database().close();
}

TEST_F(localDbFilesOfOthers, textsInUtf16) {
    make("pragma encoding='UTF-16le'; create table t(id integer primary key, a CHAR(9));"
         "create index t_a on t(a); insert into t(a) values('ёж'),('жук'),('€uro'),('😀');");
    const auto rowsShown = source(u"t", u"t_a", u"a");
    // Texts lie in the order of their bytes, which is another one here.
    std::vector<std::string> inOrder;
    for (const auto& row : rows("select a from t order by a")) {
        inOrder.push_back(row[0]);
    }
    ASSERT_EQ(inOrder.size(), 4);
    EXPECT_EQ(shown(*rowsShown), inOrder);
    rowsShown->fillFromKeyVal(rowsShown->keyOfRow(2));
    EXPECT_THAT(shown(*rowsShown), ElementsAre(inOrder[2], inOrder[3]));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbFilesOfOthers, aCollationNobodyHasIsReported) {
    make("create table t(id integer primary key, a CHAR(9)); create index t_a on t(a);");
    rows("pragma writable_schema=on");
    rows("update sqlite_master set sql='create index t_a on t(a collate foreign_one)' "
         "where name='t_a'");
    connection->database().close();
    const auto rowsShown = source(u"t", u"t_a", u"id");
    EXPECT_FALSE(host.reports.empty());
}

}  // namespace
