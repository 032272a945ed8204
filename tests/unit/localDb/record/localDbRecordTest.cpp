#include "support/localDbTest.h"

namespace {

using testing::ElementsAre;
using testing::MatchesRegex;
using Button = localReport::Button;
using Field = localDbFieldDescription;

class localDbRecordTest : public localDbTest {
public:
    void SetUp() override {
        make("create table t(id integer primary key autoincrement, name CHAR(40), n INT, p NUME);"
             "insert into t values(1,'one',10,1.5),(2,'two',20,2.5);");
        trace();
    }

    static Field field(std::u16string_view name, std::u16string_view type,
                       std::u16string_view value, int dec = 0) {
        Field made(name, type, 10, dec);
        made.value = localString::toUtf8(value);
        return made;
    }
    static Field key(std::u16string_view id) {
        Field made;
        made.value = localString::toUtf8(id);
        return made;
    }

    static std::string block(const std::string& title, const std::string& function,
                             const std::string& firstLine, const std::string& complaint,
                             const std::string& sql,
                             const std::string& driver = "Unable to execute statement") {
        return "critical [" + title + "] " + plainHead(function) + firstLine +
               "Db databaseText   : \nDb driverText     : \nQuery databaseText: " + complaint +
               "\nQuery  driverText : " + driver + "\n)\n)SQL : " + sql + "\n)";
    }
};

// --- Count

TEST_F(localDbRecordTest, rowsAreCounted) {
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 2);
    EXPECT_THAT(statements, ElementsAre("SELECT COUNT (*) FROM t ;"));
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbRecordTest, aMissingTableHasNoRows) {
    EXPECT_EQ(localDb::dbtRecordCount("test", "no"), 0);
    const std::string sql = "SELECT COUNT (*) FROM no ;";
    EXPECT_THAT(boxes(),
                ElementsAre(queryBox(sql, "no such table: no"),
                            block("localDb::dbtRecordCount", "dbtRecordCount",
                                  " Unable to UPDATE a table \n", "no such table: no", sql)));
}

// --- Get

TEST_F(localDbRecordTest, aRowIsFoundById) {
    QSqlRecord record;
    testing::internal::CaptureStdout();
    EXPECT_TRUE(localDb::dbtRecordGetById(name, u"t", 2, record));
    EXPECT_THAT(testing::internal::GetCapturedStdout(),
                MatchesRegex("SqlCommand=\\[select \\* from t where id=2 ;\\] "
                             "[0-9]{2}\\.[0-9]{2}\\.[0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2} "
                             "func: dbtRecordGetById\n"));
    EXPECT_EQ(record.value("name").toString(), "two");
    EXPECT_THAT(statements, ElementsAre("select * from t where id=2 ;"));
}

TEST_F(localDbRecordTest, aMissingRowLeavesTheRecordEmpty) {
    QSqlRecord record = connection->database().record("t");
    EXPECT_FALSE(localDb::dbtRecordGetById(name, u"t", 3, record));
    EXPECT_TRUE(record.isEmpty());
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbRecordTest, aFailedGetCostsTwoBoxes) {
    QSqlRecord record;
    EXPECT_FALSE(localDb::dbtRecordGetById(name, u"no", 1, record));
    const std::string sql = "select * from no where id=1 ;";
    EXPECT_THAT(boxes(), ElementsAre(queryBox(sql, "no such table: no"),
                                     failedBox("dbtRecordGetById", sql)));
}

// --- Delete

TEST_F(localDbRecordTest, deletingAsksFirst) {
    EXPECT_FALSE(localDb::dbtRecordDelete(name, u"t", 1));
    EXPECT_THAT(statements, ElementsAre());
    EXPECT_THAT(boxes(), ElementsAre("question [localDb::dbtRecordDelete()] html "
                                     "Record will be deleted. <BR/> Are you sure? "));
    EXPECT_THAT(host.reports[0].buttons, ElementsAre(Button::ok, Button::cancel));
    EXPECT_EQ(host.reports[0].defaultButton, Button::cancel);

    host.answers = {Button::ok};
    EXPECT_TRUE(localDb::dbtRecordDelete(name, u"t", 1));
    EXPECT_THAT(statements, ElementsAre("delete from t where id=1 ;"));
    EXPECT_EQ(value("select count(*) from t"), "1");
}

TEST_F(localDbRecordTest, aFailedDeleteHasABoxWithoutATitle) {
    host.answers = {Button::ok};
    EXPECT_FALSE(localDb::dbtRecordDelete(name, u"no", 1));
    ASSERT_EQ(host.reports.size(), 3);
    EXPECT_EQ(boxes()[1], queryBox("delete from no where id=1 ;", "no such table: no"));
    EXPECT_EQ(boxes()[2], "critical [] " + plainHead("dbtRecordDelete") +
                              " Unable to delete record from table \n");
}

// --- Append

TEST_F(localDbRecordTest, fieldsBecomeARow) {
    EXPECT_TRUE(localDb::dbtRecordAppend(name, u"t",
                                         localDb::Fields{field(u"name", u"CHAR", u"it's ёж"),
                                                         field(u"n", u"INT", u""),
                                                         field(u"p", u"NUME", u"1.5", 2)}));
    EXPECT_THAT(statements, ElementsAre("INSERT INTO t (name,n,p) VALUES ('it''s ёж',0,1.50);"));
    EXPECT_THAT(rows("select * from t where id=3"),
                ElementsAre(ElementsAre("3", "it's ёж", "0", "1.5")));
}

TEST_F(localDbRecordTest, aKeyAmongTheFieldsSetsTheId) {
    EXPECT_TRUE(localDb::dbtRecordAppend(
        name, u"t", localDb::Fields{key(u"77"), field(u"name", u"CHAR", u"")}));
    EXPECT_EQ(value("select max(id) from t"), "77");
}

TEST_F(localDbRecordTest, theEndsOf64BitsComeBack) {
    for (const std::string number : {"9223372036854775807", "-9223372036854775808"}) {
        EXPECT_TRUE(localDb::dbtRecordAppend(name, u"t",
                                             localDb::Fields{field(u"n", u"INT", wide(number))}));
        EXPECT_EQ(value("select n from t order by id desc"), number);
    }
}

TEST_F(localDbRecordTest, aLongTextComesBack) {
    std::string text(1 << 20, 'x');
    text[500000] = '\'';
    EXPECT_TRUE(
        localDb::dbtRecordAppend(name, u"t", localDb::Fields{field(u"name", u"CHAR", wide(text))}));
    EXPECT_EQ(value("select name from t where id=3"), text);
}

TEST_F(localDbRecordTest, theCellFormKeepsEveryLetter) {
    const QString text = QString::fromUtf8("5 € naïve 中 😀 'q'");
    EXPECT_TRUE(localDb::dbtRecordAppend(
        name, u"t",
        std::vector<localDbFieldValue>{{.name = u"name", .type = u"CHAR", .value = text},
                                       {.name = u"n", .type = u"INT", .value = "5"}}));
    EXPECT_THAT(rows("select name, n from t where id=3"),
                ElementsAre(ElementsAre(text.toStdString(), "5")));
}

TEST_F(localDbRecordTest, anUnknownTypeFailsInTheDriver) {
    testing::internal::CaptureStdout();
    EXPECT_FALSE(localDb::dbtRecordAppend(name, u"t", localDb::Fields{field(u"name", u"", u"x")}));
    const std::string sql = "INSERT INTO t (name) VALUES (Error);";
    EXPECT_THAT(testing::internal::GetCapturedStdout(),
                MatchesRegex("func: dbtRecordAppend\n file: ../lib/localDb\n line: [0-9]+\n\n"
                             "ERROR!!! INSERT INTO t \\(name\\) VALUES \\(Error\\);\n"));
    EXPECT_THAT(boxes(),
                ElementsAre(queryBox(sql, "no such column: Error"),
                            block("localDb::dbtRecordAppend", "dbtRecordAppend",
                                  " Unable to append record \n", "no such column: Error", sql)));
}

TEST_F(localDbRecordTest, theCellFormHasAnotherFirstLine) {
    EXPECT_FALSE(localDb::dbtRecordAppend(
        name, u"no", std::vector<localDbFieldValue>{{.name = u"a", .type = u"INT", .value = "1"}}));
    const std::string sql = "INSERT INTO no (a) VALUES (1);";
    EXPECT_THAT(boxes(),
                ElementsAre(queryBox(sql, "no such table: no"),
                            block("localDb::dbtRecordAppend", "dbtRecordAppend",
                                  " Unable to create a table \n", "no such table: no", sql)));
}

TEST_F(localDbRecordTest, aLostLetterIsReportedAndNothingWritten) {
    EXPECT_FALSE(
        localDb::dbtRecordAppend(name, u"t", localDb::Fields{field(u"name", u"CHAR", u"5 €")}));
    EXPECT_FALSE(
        localDb::dbtRecordUpdate(name, u"t", {key(u"1"), field(u"name", u"CHAR", u"5 €")}, u"id"));
    ASSERT_EQ(host.reports.size(), 2);
    EXPECT_THAT(boxes()[0], testing::HasSubstr("The value of name has a letter"));
    EXPECT_THAT(boxes()[1], testing::HasSubstr("The value of name has a letter"));
    EXPECT_THAT(statements, ElementsAre());
}

TEST_F(localDbRecordTest, whatAStatementCannotHoldIsReportedAndNothingWritten) {
    for (const QString& text : {QString("a") + QChar(0) + "b", QString(QChar(0xD800)) + "b"}) {
        host.reports.clear();
        EXPECT_FALSE(localDb::dbtRecordAppend(
            name, u"t",
            std::vector<localDbFieldValue>{{.name = u"name", .type = u"CHAR", .value = text}}));
        ASSERT_EQ(host.reports.size(), 2);
        EXPECT_THAT(boxes()[0], testing::HasSubstr("A statement cannot hold"));
        EXPECT_THAT(boxes()[1], testing::HasSubstr("A statement cannot hold"));
    }
    EXPECT_THAT(statements, ElementsAre());
    EXPECT_EQ(value("select count(*) from t"), "2");
}

// --- Update

TEST_F(localDbRecordTest, theRowOfTheKeyIsChanged) {
    EXPECT_TRUE(localDb::dbtRecordUpdate(
        name, u"t", {key(u"2"), field(u"name", u"CHAR", u"zwei"), field(u"n", u"INT", u"22")},
        u"id"));
    EXPECT_THAT(statements, ElementsAre("UPDATE t SET name='zwei',n=22 WHERE id=2;"));
    EXPECT_THAT(rows("select name, n from t order by id"),
                ElementsAre(ElementsAre("one", "10"), ElementsAre("zwei", "22")));
}

TEST_F(localDbRecordTest, withoutTheKeyNoRowIsTouched) {
    EXPECT_TRUE(localDb::dbtRecordUpdate(name, u"t", {field(u"name", u"CHAR", u"all")}, u"id"));
    EXPECT_THAT(statements, ElementsAre("UPDATE t SET name='all' WHERE  0=1;"));
    EXPECT_EQ(value("select count(*) from t where name='all'"), "0");
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbRecordTest, theKeyAloneMakesNoStatement) {
    EXPECT_FALSE(localDb::dbtRecordUpdate(name, u"t", {key(u"1")}, u"id"));
    const std::string sql = "UPDATE t SET  WHERE id=1;";
    const std::string complaint = "near \"WHERE\": syntax error";
    EXPECT_THAT(boxes(), ElementsAre(queryBox(sql, complaint),
                                     block("dbtRecordUpdate", "dbtRecordUpdate",
                                           " Unable to UPDATE a table \n", complaint, sql)));
}

TEST_F(localDbRecordTest, cellsUpdateUnderAnOddName) {
    EXPECT_TRUE(localDb::d1btRecordUpdate(name, u"t",
                                          {{.name = u"id", .type = u"INT", .value = "1"},
                                           {.name = u"name", .type = u"CHAR", .value = "o'ne"}},
                                          u"id"));
    EXPECT_THAT(statements, ElementsAre("UPDATE t SET name='o''ne' WHERE id=1;"));
    EXPECT_FALSE(localDb::d1btRecordUpdate(name, u"t",
                                           {{.name = u"id", .type = u"INT", .value = "1"}}, u"id"));
    EXPECT_THAT(boxes()[1],
                testing::StartsWith("critical [d1btRecordUpdate] " + plainHead("d1btRecordUpdate") +
                                    " Unable to UPDATE a table \n"));
}

// --- Largest value

TEST_F(localDbRecordTest, theLargestValueIsAText) {
    EXPECT_EQ(localDb::dbtFieldGetMaxVal(name, u"t", u"name"), u"two");
    EXPECT_THAT(statements, ElementsAre("select MAX(name) from t ;"));
    EXPECT_EQ(localDb::dbtFieldGetMaxVal(name, u"no", u"name"), u"");
    EXPECT_EQ(localDb::dbtFieldGetMaxVal(name, u"t", u"nofield"), u"");
    EXPECT_THAT(boxes(), ElementsAre());
}

// --- Connections nobody knows

TEST_F(localDbRecordTest, anUnknownConnectionIsReportedShortly) {
    QSqlQuery query;
    QSqlRecord record;
    EXPECT_FALSE(localDb::dbQueryExec(u"who", u"select 1;", query));
    EXPECT_FALSE(localDb::dbtRecordGetById(u"who", u"t", 1, record));
    EXPECT_FALSE(localDb::dbtRecordDelete(u"who", u"t", 1));
    EXPECT_EQ(localDb::dbtFieldGetMaxVal(u"who", u"t", u"id"), u"");
    EXPECT_EQ(localDb::dbtRecordCount("who", "t"), 0);
    EXPECT_THAT(boxes(), ElementsAre("warning [localDb::dbQueryExec()] who not found!",
                                     "warning [localDb::dbTableRecordGetById] who not found!",
                                     "warning [localDb::dbTableRecordDelete() ] who not found!",
                                     "warning [localDb::dbtFieldGetMaxVal] who not found!",
                                     "warning [localDb::dbtRecordCount] who not found!"));
}

}  // namespace
