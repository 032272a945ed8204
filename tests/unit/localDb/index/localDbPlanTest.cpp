// Every statement of the walk is a search on an index or on the row id, or reads along an index
// from its start; none scans a table and none sorts.

#include <random>

#include "localDb/index/localDbDataSource200123.h"
#include "support/localDbTest.h"

namespace {

using Source = localDbDataSource200123;

struct Order {
    const char* name;
    const char* key;
};

class localDbPlanTest : public localDbTest, public testing::WithParamInterface<Order> {
public:
    // Three columns of few different values, so that most keys have many rows.
    void SetUp() override {
        make(std::string("create table t(id INTEGER PRIMARY KEY, a INT, b CHAR(10), c NUME, d);"
                         "insert into t with recursive n(i) as (select 1 union all select i+1 from"
                         " n limit 3000) select i, i%3, printf('b%02d', i%7), i%11, i%5 from n;"
                         "insert into t(a,b) select null,null from t limit 300;"
                         "create index walked on t(") +
             GetParam().key + ");create index other on t(b); create index more on t(a,c);");
    }

    void expectServed() const {
        ASSERT_FALSE(statements.empty());
        for (const std::string& sql : statements) {
            if (!sql.starts_with("select")) {
                continue;
            }
            const bool hasCondition = sql.find(" where ") != std::string::npos;
            std::string whole;
            for (const std::string& line : plan(sql)) {
                whole += line + "\n";
                if (line.starts_with("SCAN")) {
                    EXPECT_FALSE(hasCondition) << sql << "\n" << line;
                    // The table itself lies in the order of its ids.
                    const bool byId = sql.find("order by  tov.id limit") != std::string::npos;
                    EXPECT_THAT(line, testing::HasSubstr(byId ? "SCAN tov" : "USING")) << sql;
                }
                EXPECT_THAT(line, testing::Not(testing::HasSubstr("TEMP B-TREE"))) << sql;
            }
            if (hasCondition) {
                EXPECT_THAT(whole, testing::HasSubstr("SEARCH tov USING")) << sql;
            }
        }
    }
};

TEST_P(localDbPlanTest, everyStatementIsServedByAnIndex) {
    const auto rows = Source::make(name, {{.aliasName = u"tov", .dbtName = u"t"}},
                                   {{.sqlExpression = u"tov.id"}, {.sqlExpression = u"tov.d"}}, {},
                                   u"walked", {});
    ASSERT_NE(rows, nullptr);
    trace();
    rows->fillFromKeyVal({});
    expectServed();
    for (const std::size_t row : {0U, 200U, 255U}) {
        rows->fillFromKeyVal({});
        const localDbKey key = rows->keyOfRow(row);
        ASSERT_FALSE(key.empty());
        statements.clear();
        const localDbKey before = rows->relativeKey(key, -128, false);
        rows->relativeKey(before, 0, true);
        rows->fillFromKeyVal(before);
        rows->fillFromKeyVal(key);
        // What a person types comes without what tells rows apart.
        localDbKey given;
        for (std::size_t i = 0; i < rows->currentIdx()->keyFieldNames.size(); ++i) {
            given.emplace_back(key[i].text);
            rows->fillFromKeyVal(given);
            rows->relativeKey(given, -128, true);
        }
        expectServed();
    }
    statements.clear();
    rows->fillFromKeyVal({u"1"});
    ASSERT_FALSE(rows->dataBuffer().empty());
    rows->idxSet(u"other", 7);
    rows->idxSet(u"more", 7);
    rows->idxSet(u"walked", 7);
    expectServed();
}

INSTANTIATE_TEST_SUITE_P(, localDbPlanTest,
                         testing::Values(Order{"one", "a"}, Order{"text", "b"},
                                         Order{"untyped", "d"}, Order{"oneAndId", "a, id"},
                                         Order{"two", "a, b"}, Order{"twoAndId", "b, a, id"},
                                         Order{"three", "a, b, c"},
                                         Order{"threeAndId", "a, b, c, id"}, Order{"idAlone", "id"},
                                         Order{"descending", "a desc"}, Order{"mixed", "a, b desc"},
                                         Order{"noCase", "b collate nocase"},
                                         Order{"noCaseDescending", "a, b collate nocase desc, c"}),
                         [](const auto& one) { return one.param.name; });

}  // namespace
