#include "localInterpretatorUTF8/container/localValueTable.h"
#include "support/localDbTest.h"

namespace {

using testing::ElementsAre;

class localDbQueryToTableTest : public localDbTest {
public:
    localValueTable table;

    void SetUp() override { make("create table t(id integer primary key, a CHAR(10), b);"); }

    std::string cell(std::size_t row, std::size_t column) const {
        return narrow(table.cell(row, column).toString().view());
    }
    std::vector<std::string> columns() const {
        std::vector<std::string> names;
        for (std::size_t i = 1; i <= table.columnsCount(); ++i) {
            names.push_back(narrow(table.columnName(i).view()));
        }
        return names;
    }
};

TEST_F(localDbQueryToTableTest, rowsAreCopiedAsTexts) {
    rows("insert into t values(1,'Гвоздь',1.5),(2,null,x'41')");
    table.columnAdd(u"old");
    table.rowAdd();
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"select * from t order by id"));
    EXPECT_THAT(columns(), ElementsAre("ID", "A", "B"));
    ASSERT_EQ(table.rowsCount(), 2);
    EXPECT_EQ(cell(0, 0), "1");
    EXPECT_EQ(table.cell(0, 0).type, localValueTypeSTRING);
    EXPECT_EQ(cell(0, 1), "Гвоздь");
    EXPECT_EQ(cell(0, 2), "1.5");
    EXPECT_EQ(cell(1, 1), "");
    EXPECT_EQ(cell(1, 2), "A");
}

TEST_F(localDbQueryToTableTest, hundredRowsAreTheMost) {
    rows(
        "insert into t(id) with recursive n(i) as (select 1 union all select i+1 from n limit 250) "
        "select i from n");
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"select id from t order by id"));
    EXPECT_EQ(table.rowsCount(), 100);
    EXPECT_EQ(cell(99, 0), "100");
}

TEST_F(localDbQueryToTableTest, aColumnWithoutANameGetsANumber) {
    EXPECT_TRUE(localDb::queryExecToValueTable(
        name, table, u"select count(*), 1 as \"  \", 2 as \" two \" from t"));
    EXPECT_THAT(columns(), ElementsAre("COUNT(*)", "FIELD2", "TWO"));
}

TEST_F(localDbQueryToTableTest, noRowsMeanNoColumns) {
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"select * from t"));
    EXPECT_EQ(table.columnsCount(), 0);
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"insert into t(id) values(5)"));
    EXPECT_EQ(value("select id from t"), "5");
}

TEST_F(localDbQueryToTableTest, aFailureIsTold) {
    EXPECT_FALSE(localDb::queryExecToValueTable(name, table, u"selekt 1"));
    EXPECT_THAT(boxes(), ElementsAre("critical [queryExecToValueTable] " +
                                     plainHead("queryExecToValueTable") +
                                     "Unable to execute query \nSQL : 'selekt 1'\n\n"
                                     "Db databaseText   : \nDb driverText     : \n"
                                     "Query databaseText: near \"selekt\": syntax error\n"
                                     "Query  driverText : Unable to execute statement\n"));
    EXPECT_THAT(columns(), ElementsAre("TYPE", "TEXT"));
    std::vector<std::string> cells;
    for (std::size_t row = 0; row < table.rowsCount(); ++row) {
        cells.push_back(cell(row, 0) + "|" + cell(row, 1));
    }
    EXPECT_THAT(cells, ElementsAre("Unable to execute query|", "SQL : |selekt 1",
                                   "Db databaseText: |", "Db driverText: |",
                                   "Query databaseText: |near \"selekt\": syntax error",
                                   "Query  driverText: |Unable to execute statement"));
    EXPECT_EQ(table.cell(0, 1).type, localValueTypeSTRING);
}

TEST_F(localDbQueryToTableTest, aConnectionWithoutAFileGivesAnEmptyTable) {
    const localDbConnection closed(u"closed");
    table.columnAdd(u"old");
    EXPECT_FALSE(localDb::queryExecToValueTable(u"closed", table, u"select 1"));
    EXPECT_EQ(table.columnsCount(), 0);
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbQueryToTableTest, aTransactionHoldsTogether) {
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"begin"));
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"insert into t(id) values(1)"));
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"rollback"));
    EXPECT_EQ(value("select count(*) from t"), "0");
}

}  // namespace
