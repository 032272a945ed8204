#include "support/localDbTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class localDbObjects : public localDbTest {
protected:
    localDb::Fields fieldsOf(const char* table) {
        return localDb::dbtFieldsDescriptionsGet(name, wide(table));
    }
    localDbObject object(const std::string& wanted) {
        std::vector<localDbObject> objects;
        EXPECT_TRUE(localDb::dbObjectsGet(name, objects));
        for (const localDbObject& each : objects) {
            if (narrow(each.name) == wanted) {
                return each;
            }
        }
        ADD_FAILURE() << "no object " << wanted;
        return {};
    }
    // The statement for an index of T when its column a is called as told; empty: taken out.
    std::string statement(const std::string& index, std::string_view a) {
        localDb::Fields fields = fieldsOf("T");
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            if (field->name == u"a") {
                field->name = wide(a);
                if (a.empty()) {
                    fields.erase(field);
                    break;
                }
            }
        }
        return narrow(localDb::dbObjectStatement(name, object(index), fields));
    }
};

TEST_F(localDbObjects, comeInTheOrderOfTheFile) {
    make("create table T (id INTEGER PRIMARY KEY, a CHAR(5) UNIQUE);"
         "create index I on T (a); create view V as select 1;"
         "create trigger G after delete on T begin select 1; end;");
    std::vector<localDbObject> objects;
    ASSERT_TRUE(localDb::dbObjectsGet(name, objects));
    std::vector<std::string> lines;
    for (const localDbObject& each : objects) {
        lines.push_back(narrow(each.type + u" " + each.name + u" " + each.table + u" " +
                               each.sql.substr(0, 14)));
    }
    EXPECT_THAT(lines, ElementsAre("table T T CREATE TABLE T", "index sqlite_autoindex_T_1 T ",
                                   "index I T CREATE INDEX I", "view V V CREATE VIEW V ",
                                   "trigger G T CREATE TRIGGER"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(localDbObjects, failureCostsTwoBoxes) {
    std::ofstream(fileName) << std::string(5000, 'x');
    localDbConnection::open(name, wide(fileName));
    std::vector<localDbObject> objects(1);
    EXPECT_FALSE(localDb::dbObjectsGet(name, objects));
    EXPECT_THAT(objects, IsEmpty());
    const std::string sql = "select * from sqlite_master ;";
    EXPECT_THAT(boxes(), ElementsAre(queryBox(sql, "file is not a database"),
                                     failedBox("dbObjectsGet", sql)));
}

TEST_F(localDbObjects, statementFollowsTheColumns) {
    make("create table T (id INTEGER PRIMARY KEY, a CHAR(5) UNIQUE, b CHAR(5));"
         "create index I on T (b, a desc);"
         "create unique index \"the second\" on T (A collate nocase);"
         "create index O on T (b, id); create index P on T (a) where b>1;"
         "create index E on T (upper(a));"
         "create trigger G after delete on T begin select 1; end;");
    // Nothing was renamed: as it was.
    EXPECT_EQ(statement("I", "a"), "CREATE INDEX I on T (b, a desc)");
    EXPECT_EQ(statement("I", "c"), "create index I on T (b collate BINARY, c collate BINARY desc)");
    EXPECT_EQ(statement("I", "the c"),
              "create index I on T (b collate BINARY, \"the c\" collate BINARY desc)");
    EXPECT_EQ(statement("I", ""), "");
    EXPECT_EQ(statement("the second", "c"),
              "create unique index \"the second\" on T (c collate nocase)");
    EXPECT_EQ(statement("O", ""), "CREATE INDEX O on T (b, id)");
    // Tried as they were.
    EXPECT_EQ(statement("P", "c"), "CREATE INDEX P on T (a) where b>1");
    EXPECT_EQ(statement("E", "c"), "CREATE INDEX E on T (upper(a))");
    EXPECT_EQ(statement("G", "c"), "CREATE TRIGGER G after delete on T begin select 1; end");
    EXPECT_EQ(statement("sqlite_autoindex_T_1", "a"), "");
}

TEST_F(localDbObjects, indexIsCreated) {
    make("create table T (id INTEGER PRIMARY KEY, a CHAR(5), b CHAR(5));"
         "insert into T values (1,'x','y'),(2,'x','z');");
    using Keys = localDbObject::Keys;
    EXPECT_TRUE(localDb::idxCreate(name, u"T", u"I", {u"a", u"b"}, Keys::unique));
    EXPECT_TRUE(localDb::idxCreate(name, u"T", u"J", {u"a"}, Keys::any));
    EXPECT_THAT(boxes(), IsEmpty());
    EXPECT_EQ(value("select sql from sqlite_master where name='I'"),
              "CREATE UNIQUE INDEX I on T (a, b)");
    EXPECT_FALSE(localDb::idxCreate(name, u"T", u"K", {u"a"}, Keys::unique));
    const std::string sql = "create unique index K on T (a);";
    EXPECT_THAT(boxes(),
                ElementsAre(queryBox(sql, "UNIQUE constraint failed: T.a", "Unable to fetch row"),
                            failedBox("dbObjectMake", sql)));
}

TEST_F(localDbObjects, namesAsWords) {
    for (const char* const plain : {"Goods", "goods_2", "_a", "Товары", "orders", "id"}) {
        EXPECT_EQ(narrow(localDb::nameWord(wide(plain))), plain);
    }
    EXPECT_EQ(narrow(localDb::nameWord(u"order")), "\"order\"");
    EXPECT_EQ(narrow(localDb::nameWord(u"Where")), "\"Where\"");
    EXPECT_EQ(narrow(localDb::nameWord(u"my goods")), "\"my goods\"");
    EXPECT_EQ(narrow(localDb::nameWord(u"2nd")), "\"2nd\"");
    EXPECT_EQ(narrow(localDb::nameWord(u"")), "\"\"");
    EXPECT_EQ(narrow(localDb::nameWord(u"a\"b")), "\"a\"\"b\"");
}

// Each word that stands bare must be one that the driver takes for a name.
TEST_F(localDbObjects, everyWordIsUnderstood) {
    make("");
    const std::string words =
        "abort action add after all alter analyze and as asc attach autoincrement before begin "
        "between by cascade case cast check collate column commit conflict constraint create "
        "cross current current_date current_time current_timestamp database default deferrable "
        "deferred delete desc detach distinct do drop each else end escape except exclude "
        "exclusive exists explain fail filter first following for foreign from full generated "
        "glob group groups having if ignore immediate in index indexed initially inner insert "
        "instead intersect into is isnull join key last left like limit match materialized "
        "natural no not nothing notnull null nulls of offset on or order others outer over "
        "partition plan pragma preceding primary query raise range recursive references regexp "
        "reindex release rename replace restrict returning right rollback row rows savepoint "
        "select set table temp temporary then ties to transaction trigger unbounded union unique "
        "update using vacuum values view virtual when where window with without";
    std::istringstream all(words);
    ASSERT_EQ(value("pragma synchronous=off"), "no row");
    for (std::string word; all >> word;) {
        const std::string made = narrow(localDb::nameWord(wide(word)));
        const auto done = [&](const std::string& sql) {
            QSqlQuery query(connection->database());
            EXPECT_TRUE(query.exec(QString::fromStdString(sql))) << sql;
        };
        done("create table " + made + " (" + made + " INT)");
        done("insert into " + made + " (" + made + ") values (5)");
        done("create index I on " + made + " (" + made + ")");
        EXPECT_EQ(value("select " + made + " is 5 from " + made + " where " + made + "=5"), "1");
        done("drop table " + made);
    }
}

TEST_F(localDbObjects, tableIsFoundByItsWord) {
    make("create table \"my goods\" (id INT); create table \"a\"\"b\" (id INT);");
    EXPECT_TRUE(localDb::dbTableExist(name, u"my goods"));
    EXPECT_TRUE(localDb::dbTableExist(name, u"\"my goods\""));
    EXPECT_TRUE(localDb::dbTableExist(name, u"\"a\"\"b\""));
    EXPECT_FALSE(localDb::dbTableExist(name, u"\"My goods\""));
    EXPECT_FALSE(localDb::dbTableExist(name, u"\""));
    host.answers = {recordingHost::Button::ok};
    EXPECT_TRUE(localDb::dbtDelete(name, u"\"my goods\""));
    EXPECT_EQ(value("select count(*) from sqlite_master"), "1");
}

TEST_F(localDbObjects, queryIsReadAsAsked) {
    make("create table T (id INT); insert into T values (1),(2);");
    QSqlQuery query(connection->database());
    ASSERT_TRUE(localDb::exec(query, "select * from T"));
    EXPECT_TRUE(query.isForwardOnly());
    ASSERT_TRUE(localDb::exec(query, "select * from T", localDb::Reading::anywhere));
    EXPECT_TRUE(query.last());
    EXPECT_TRUE(query.first());
    EXPECT_EQ(query.value(0), 1);
}

}  // namespace
