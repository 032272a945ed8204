#include "support/localDbTest.h"

namespace {

using testing::ElementsAre;
using Button = localReport::Button;
using Field = localDbFieldDescription;

class localDbTableTest : public localDbTest {
public:
    void SetUp() override {
        make("create table t(id INTEGER PRIMARY KEY AUTOINCREMENT, a CHAR(40), b NUME(12));"
             "insert into t values(1,'one',1.5),(5,'five',5);"
             "create view v as select * from t;");
    }

    std::string schema(const std::string& table) const {
        return value("select sql from sqlite_master where name='" + table + "'");
    }
    static std::string about(const std::string& sql) {
        return "about [dbtAlter] html " + htmlHead("dbtAlter") + sql;
    }
    static std::string deletedBox(const std::string& table) {
        return "information [dbtDelete] html " + htmlHead("dbtDelete") + " Table " + table +
               " from test deleted successfully  !";
    }
    static std::string renamedBox(const std::string& from, const std::string& to) {
        return "information [dbtRename] html " + htmlHead("dbtRename") + " Table  " + from +
               " in test renamed to  " + to + " successfully!";
    }
};

TEST_F(localDbTableTest, namesOfTablesCountLetterForLetter) {
    EXPECT_TRUE(localDb::dbTableExist(name, u"t"));
    EXPECT_FALSE(localDb::dbTableExist(name, u"T"));
    EXPECT_FALSE(localDb::dbTableExist(name, u"v"));
}

// --- Fields

TEST_F(localDbTableTest, fieldsAreReadInTheirOrder) {
    trace();
    const localDb::Fields fields = localDb::dbtFieldsDescriptionsGet(name, u"t");
    EXPECT_THAT(statements, ElementsAre("PRAGMA  table_info(t);"));
    ASSERT_EQ(fields.size(), 3);
    EXPECT_EQ(fields[0].getName(), u"id");
    EXPECT_EQ(fields[0].getMyType(), u"INTEGER");
    EXPECT_EQ(fields[0].getLen(), 18);
    EXPECT_EQ(fields[1].getName(), u"a");
    EXPECT_EQ(fields[1].getLen(), 40);
    EXPECT_EQ(fields[2].getMyType(), u"NUME");
    EXPECT_TRUE(Field::areUnchanged(fields));
}

TEST_F(localDbTableTest, fieldsOfABrokenNameCostTwoBoxes) {
    EXPECT_TRUE(localDb::dbtFieldsDescriptionsGet(name, u"it's").empty());
    const std::string sql = "PRAGMA  table_info(it's);";
    EXPECT_THAT(boxes(), ElementsAre(queryBox(sql, "unrecognized token: \"'s);\""),
                                     failedBox("dbtFieldsDescriptionsGet", sql)));
}

// --- Create

TEST_F(localDbTableTest, aTableIsMade) {
    trace();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(localDb::dbtCreate(name, u"made",
                                   {Field(), Field(u"a", u"CHAR", 40, 0),
                                    Field(u"b", u"NUME", 12, 2), Field(u"c", u"INT", 0, 0)}));
    const std::string sql = "CREATE TABLE made (id INTEGER PRIMARY KEY AUTOINCREMENT , a CHAR(40), "
                            "b NUME(12), c INT);";
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "func: dbtCreate\nsqlCommand= '" + sql + "'\n");
    EXPECT_THAT(statements, testing::Contains(sql));
    EXPECT_EQ(schema("made") + ";", sql);
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbTableTest, aTableIsNotMadeTwice) {
    EXPECT_FALSE(localDb::dbtCreate(name, u"t", {}));
    EXPECT_THAT(boxes(), ElementsAre("warning [dbtCreate] html " + htmlHead("dbtCreate") +
                                     "Table t alredy exist in test!"));
}

TEST_F(localDbTableTest, aTableThatCannotBeMadeIsTold) {
    testing::internal::CaptureStdout();
    EXPECT_FALSE(localDb::dbtCreate(name, u"T", {}));
    const std::string sql = "CREATE TABLE T (id INTEGER PRIMARY KEY AUTOINCREMENT );";
    const std::string driver = "Unable to execute statement";
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "func: dbtCreate\nsqlCommand= '" + sql +
                  "'\ndbMain.lastError().databaseText() = ''\n"
                  "dbMain.lastError().driverText() = ''\n"
                  "query.lastError().databaseText() = 'table T already exists'\n"
                  "query.lastError().driverText() = '" +
                  driver + "'\n");
    EXPECT_THAT(boxes(),
                ElementsAre(queryBox(sql, "table T already exists"),
                            "critical [dbtCreate] " + plainHead("dbtCreate") +
                                " Unable to create a table \n\n\ntable T already exists\n" +
                                driver + "\n"));
}

// --- Append, copy

TEST_F(localDbTableTest, rowsAreAppendedFromAnotherTable) {
    rows("create table other(id integer primary key, a, b)");
    trace();
    EXPECT_TRUE(localDb::dbtAppendFromDbt(name, u"t", u"other", u"a,b"));
    EXPECT_THAT(statements, testing::Contains("INSERT INTO other (a,b ) SELECT a,b FROM t;"));
    EXPECT_THAT(rows("select a from other order by id"),
                ElementsAre(ElementsAre("one"), ElementsAre("five")));
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbTableTest, appendingChecksBothTables) {
    EXPECT_FALSE(localDb::dbtAppendFromDbt(name, u"no", u"t", u"a"));
    EXPECT_FALSE(localDb::dbtAppendFromDbt(name, u"t", u"no", u"a"));
    const std::string box = "warning [dbtAppendFromDbt] html " + htmlHead("dbtAppendFromDbt") +
                            "Table no not found in test!";
    EXPECT_THAT(boxes(), ElementsAre(box, box));
}

TEST_F(localDbTableTest, aFailedAppendHasTheWordsOfCreate) {
    EXPECT_FALSE(localDb::dbtAppendFromDbt(name, u"t", u"t", u"nocolumn"));
    ASSERT_EQ(host.reports.size(), 2);
    EXPECT_THAT(boxes()[1],
                testing::StartsWith("critical [dbtAppendFromDbt] " + plainHead("dbtAppendFromDbt") +
                                    " Unable to create a table \n"));
}

TEST_F(localDbTableTest, aTableIsCopied) {
    EXPECT_TRUE(localDb::dbtCopy(name, u"t", u"twin"));
    EXPECT_EQ(schema("twin"),
              "CREATE TABLE twin (id INTEGER PRIMARY KEY AUTOINCREMENT , a CHAR(40), b NUME(12))");
    EXPECT_EQ(rows("select * from twin"), rows("select * from t"));
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbTableTest, copyingChecksBothTables) {
    EXPECT_FALSE(localDb::dbtCopy(name, u"no", u"twin"));
    EXPECT_FALSE(localDb::dbtCopy(name, u"t", u"t"));
    const std::string head = "warning [dbtCopy] html " + htmlHead("dbtCopy");
    EXPECT_THAT(boxes(), ElementsAre(head + "Table no not found in test!",
                                     head + "Table t alredy exist in test!"));
}

TEST_F(localDbTableTest, aCopyThatCannotBeMadeIsTold) {
    EXPECT_FALSE(localDb::dbtCopy(name, u"t", u"T"));
    ASSERT_EQ(host.reports.size(), 3);
    EXPECT_EQ(boxes()[2],
              "warning [dbtCopy] html " + htmlHead("dbtCopy") + "Table T in test not created!");
}

// --- Alter

TEST_F(localDbTableTest, aTableIsRebuilt) {
    localDb::Fields fields = localDb::dbtFieldsDescriptionsGet(name, u"t");
    fields[1].name = u"title";
    fields[2].myType = u"INT";
    fields[2].len = 0;
    EXPECT_TRUE(localDb::dbtAlter(name, u"t", fields));
    EXPECT_THAT(boxes(),
                ElementsAre(about("INSERT INTO  tmp1(id, title, b) SELECT id, a, b FROM t;"),
                            deletedBox("t"), renamedBox("tmp1", "t")));
    EXPECT_EQ(schema("t"),
              "CREATE TABLE \"t\" (id INTEGER PRIMARY KEY AUTOINCREMENT , title CHAR(40), b INT)");
    EXPECT_THAT(rows("select id, title from t order by id"),
                ElementsAre(ElementsAre("1", "one"), ElementsAre("5", "five")));
}

TEST_F(localDbTableTest, viewsOfARebuiltTableGoOn) {
    EXPECT_TRUE(localDb::dbtAlter(name, u"t", localDb::dbtFieldsDescriptionsGet(name, u"t")));
    EXPECT_EQ(value("select a from v where id=5"), "five");
    // A table that is only renamed takes its views along.
    EXPECT_TRUE(localDb::dbtRename(name, u"t", u"u"));
    EXPECT_EQ(value("select a from v where id=5"), "five");
}

TEST_F(localDbTableTest, theFreeNameIsTheFirstThatIsFree) {
    rows("create table tmp1(id integer primary key)");
    rows("create table tmp2(id integer primary key)");
    const localDb::Fields fields = localDb::dbtFieldsDescriptionsGet(name, u"t");
    EXPECT_TRUE(localDb::dbtAlter(name, u"t", fields));
    EXPECT_THAT(boxes()[0], testing::HasSubstr("INSERT INTO  tmp3("));
    host.reports.clear();
    EXPECT_TRUE(localDb::dbtAlter(name, u"t", fields, u" \n\twork"));
    EXPECT_THAT(boxes()[0], testing::HasSubstr("INSERT INTO  work1("));
}

TEST_F(localDbTableTest, anAddedFieldHasNoSourceAndTheTableSurvives) {
    localDb::Fields fields = localDb::dbtFieldsDescriptionsGet(name, u"t");
    fields.insert(fields.begin() + 1, Field(u"added", u"CHAR", 10, 0));
    EXPECT_FALSE(localDb::dbtAlter(name, u"t", fields));
    const std::string sql = "INSERT INTO  tmp1(id, added, a, b) SELECT id, , a, b FROM t;";
    EXPECT_THAT(boxes(), ElementsAre(about(sql), queryBox(sql, "near \",\": syntax error"),
                                     failedBox("dbtAlter", sql)));
    EXPECT_EQ(value("select count(*) from t"), "2");
    EXPECT_EQ(value("select count(*) from tmp1"), "0");
}

TEST_F(localDbTableTest, aTableThatCannotBeMadeEndsTheRebuild) {
    EXPECT_FALSE(localDb::dbtAlter(name, u"t", {Field(u"a b c(", u"CHAR", 10, 0)}));
    EXPECT_EQ(host.reports.size(), 2);
    EXPECT_EQ(value("select count(*) from t"), "2");
}

// --- Delete, rename

TEST_F(localDbTableTest, aTableIsDropped) {
    rows("drop view v");
    trace();
    EXPECT_TRUE(localDb::dbtDelete(name, u"t"));
    EXPECT_THAT(statements, testing::Contains("DROP TABLE t;"));
    EXPECT_THAT(boxes(), ElementsAre(deletedBox("t")));
    EXPECT_FALSE(localDb::dbTableExist(name, u"t"));
}

TEST_F(localDbTableTest, aTableInUseIsNotDropped) {
    QSqlQuery reading(connection->database());
    ASSERT_TRUE(reading.exec("select * from t"));
    ASSERT_TRUE(reading.next());
    EXPECT_FALSE(localDb::dbtDelete(name, u"t"));
    EXPECT_THAT(boxes(), ElementsAre(queryBox("DROP TABLE t;", "database table is locked",
                                              "Unable to fetch row"),
                                     "critical [dbtDelete] html " + htmlHead("dbtDelete") +
                                         " Unable to delete a table  t from test!"));
}

TEST_F(localDbTableTest, aTableThatIsNotThereIsToldOf) {
    EXPECT_FALSE(localDb::dbtDelete(name, u"v"));
    EXPECT_THAT(boxes(), ElementsAre("warning [dbtDelete] html " + htmlHead("dbtDelete") +
                                     "Table v not exist in test!"));
}

TEST_F(localDbTableTest, droppingCanAskFirst) {
    EXPECT_FALSE(localDb::dbtDeleteAfterAnswer(name, u"t"));
    EXPECT_THAT(boxes(), ElementsAre("question [localDb::dbtDeleteAfterAnswer] html "
                                     "Table \"t\" will be deleted. <BR/> Are you sure? "));
    EXPECT_THAT(host.reports[0].buttons, ElementsAre(Button::ok, Button::cancel));
    EXPECT_EQ(host.reports[0].defaultButton, Button::cancel);
    EXPECT_TRUE(localDb::dbTableExist(name, u"t"));
    host.answers = {Button::ok};
    EXPECT_TRUE(localDb::dbtDeleteAfterAnswer(name, u"t"));
    EXPECT_FALSE(localDb::dbTableExist(name, u"t"));
}

TEST_F(localDbTableTest, aTableIsRenamed) {
    trace();
    EXPECT_TRUE(localDb::dbtRename(name, u"t", u"Товары"));
    EXPECT_THAT(statements, testing::Contains("ALTER TABLE t RENAME TO Товары;"));
    EXPECT_THAT(boxes(), ElementsAre(renamedBox("t", "Товары")));
    EXPECT_EQ(value("select count(*) from Товары"), "2");
}

TEST_F(localDbTableTest, renamingChecksBothNames) {
    EXPECT_FALSE(localDb::dbtRename(name, u"no", u"x"));
    EXPECT_FALSE(localDb::dbtRename(name, u"t", u"t"));
    EXPECT_FALSE(localDb::dbtRename(name, u"t", u"a b"));
    const std::string head = "[dbtRename] html " + htmlHead("dbtRename");
    EXPECT_THAT(boxes(),
                ElementsAre("warning " + head + "Table no not exist in test!",
                            "warning " + head + "Table t already exist in test!",
                            queryBox("ALTER TABLE t RENAME TO a b;", "near \"b\": syntax error"),
                            "critical " + head + " Unable to rename a table  t in test to  a b!"));
}

// --- Indexes

TEST_F(localDbTableTest, indexesAreListedAndDropped) {
    rows("create index t_b on t(b, a)");
    rows("create index t_a on t(a)");
    trace();
    EXPECT_THAT(localDb::dbtGetIdxNames(name, u"t"), ElementsAre(u"t_a", u"t_b"));
    EXPECT_THAT(localDb::idxKeyFieldNamesGet(name, u"t_b"), ElementsAre(u"b", u"a"));
    EXPECT_TRUE(localDb::idxDelete(name, u"t_a"));
    EXPECT_THAT(statements,
                ElementsAre("PRAGMA index_list(t) ", "PRAGMA index_info(t_b)", "drop index t_a;"));
    EXPECT_THAT(boxes(), ElementsAre("warning [idxDelete] html " + htmlHead("idxDelete") +
                                     "Индекс t_a удалён! "));
    EXPECT_THAT(localDb::dbtGetIdxNames(name, u"t"), ElementsAre(u"t_b"));
}

TEST_F(localDbTableTest, failuresWithIndexesCostTwoBoxes) {
    EXPECT_FALSE(localDb::idxDelete(name, u"no"));
    EXPECT_TRUE(localDb::dbtGetIdxNames(name, u"a b").empty());
    EXPECT_TRUE(localDb::idxKeyFieldNamesGet(name, u"a b").empty());
    EXPECT_THAT(boxes(),
                ElementsAre(queryBox("drop index no;", "no such index: no"),
                            failedBox("idxDelete", "drop index no;"),
                            queryBox("PRAGMA index_list(a b) ", "near \"b\": syntax error"),
                            failedBox("dbtGetIdxNames", "PRAGMA index_list(a b) "),
                            queryBox("PRAGMA index_info(a b)", "near \"b\": syntax error"),
                            failedBox("idxKeyFieldNamesGet", "PRAGMA index_info(a b)")));
}

TEST_F(localDbTableTest, droppingAnIndexCanAskFirst) {
    rows("create index t_a on t(a)");
    EXPECT_FALSE(localDb::idxDeleteAfterAnswer(name, u"t_a"));
    EXPECT_THAT(boxes(), ElementsAre("question [localDb::dbtDeleteAfterAnswer] html "
                                     "Index \"t_a\" will be deleted. <BR/> Are you sure? "));
    EXPECT_THAT(host.reports[0].buttons, ElementsAre(Button::ok, Button::cancel));
    EXPECT_EQ(host.reports[0].defaultButton, Button::cancel);
    host.answers = {Button::ok};
    EXPECT_TRUE(localDb::idxDeleteAfterAnswer(name, u"t_a"));
    EXPECT_TRUE(localDb::dbtGetIdxNames(name, u"t").empty());
}

// --- Connections nobody knows

TEST_F(localDbTableTest, anUnknownConnectionIsReportedWithItsPlace) {
    EXPECT_FALSE(localDb::dbtCreate(u"who", u"t", {}));
    EXPECT_FALSE(localDb::dbtCopy(u"who", u"t", u"u"));
    EXPECT_FALSE(localDb::dbtAppendFromDbt(u"who", u"t", u"u", u"a"));
    EXPECT_FALSE(localDb::dbtDelete(u"who", u"t"));
    EXPECT_FALSE(localDb::dbtRename(u"who", u"t", u"u"));
    EXPECT_FALSE(localDb::idxDelete(u"who", u"t_a"));
    std::vector<std::string> wanted;
    for (const std::string function : {"dbtCreate", "dbtCopy", "dbtAppendFromDbt"}) {
        wanted.push_back("warning [" + function + "] html " + htmlHead(function) +
                         "БД whonot found!");
    }
    for (const std::string function : {"dbtDelete", "dbtRename", "idxDelete"}) {
        wanted.push_back("warning [" + function + "] html " + htmlHead(function) +
                         "database who not found!");
    }
    EXPECT_EQ(boxes(), wanted);
}

}  // namespace
