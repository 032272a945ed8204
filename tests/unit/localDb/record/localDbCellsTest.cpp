#include "support/localDbTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class localDbCells : public localDbTest {
protected:
    // Cells of record 1 of T that come back, as "name type value".
    std::vector<std::string> comingBack() {
        QSqlRecord record;
        EXPECT_TRUE(localDb::dbtRecordGetById(name, u"T", 1, record));
        return comingBack(record);
    }
    std::vector<std::string> comingBack(const QSqlRecord& record) {
        std::vector<std::string> lines;
        for (const auto& cell : localDb::dbtCellsThatComeBack(name, u"T", 1, record)) {
            lines.push_back(narrow(cell.name + u" " + cell.type + u" ") + cell.value.toStdString());
        }
        return lines;
    }
};

TEST_F(localDbCells, typesFollowTheValue) {
    const auto type = [](const QVariant& value) {
        return narrow(localDb::cellOf(u"a", value).type);
    };
    EXPECT_EQ(type("text"), "CHAR");
    EXPECT_EQ(type(5), "INT");
    EXPECT_EQ(type(qlonglong(5)), "INT");
    EXPECT_EQ(type(1.5), "NUME");
    EXPECT_EQ(type(QByteArray("abc")), "unkn");
    EXPECT_EQ(type(QVariant(QMetaType(QMetaType::QString))), "unkn");
    EXPECT_EQ(type({}), "unkn");
    EXPECT_EQ(localDb::cellOf(u"a", 0.1 + 0.2).value, "0.30000000000000004");
}

TEST_F(localDbCells, whatComesBack) {
    make("create table T (id INTEGER PRIMARY KEY, \"the a\" CHAR(5), b INT, c NUME, d, e);"
         "insert into T values (1, 'it''s', -5, 0.1, 'x', 7);");
    EXPECT_THAT(comingBack(), ElementsAre("id INT 1", "\"the a\" CHAR it's", "b INT -5",
                                          "c NUME 0.1", "d CHAR x", "e INT 7"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbCells, whatDoesNot) {
    make("create table T (id INTEGER PRIMARY KEY, a CHAR(5), b CHAR(5), c, d, e CHAR(9), "
         "f GENERATED ALWAYS AS (1));"
         "insert into T values (1, NULL, x'0011', 5.0, cast(x'61ff' as text), "
         "cast(x'610062' as text));");
    EXPECT_THAT(comingBack(), ElementsAre("id INT 1"));
}

TEST_F(localDbCells, whatHasChangedSinceItWasRead) {
    make("create table T (id INTEGER PRIMARY KEY, a CHAR(5), b INT);"
         "insert into T values (1, 'x', 5);");
    QSqlRecord record;
    ASSERT_TRUE(localDb::dbtRecordGetById(name, u"T", 1, record));
    sqliteProgram(fileName, "update T set a='y';");
    EXPECT_THAT(comingBack(record), ElementsAre("id INT 1", "b INT 5"));
    sqliteProgram(fileName, "delete from T;");
    EXPECT_THAT(comingBack(record), IsEmpty());
    EXPECT_THAT(boxes(), IsEmpty());
}

}  // namespace
