// The browse's position beside plain SQL in the same order: random keys on tables of many sizes.
#include "support/localDbBrowseModel.h"

namespace {

struct Table {
    int rows;
    bool unique;
    int keyColumns;
};

class localDbtBrowseModel : public localDbBrowseModel, public testing::WithParamInterface<int> {
public:
    std::unique_ptr<localDbtBrowsePosition> position;
    std::map<std::u16string, std::vector<std::string>> orders;

    void makeTable(const Table& table) {
        std::string sql =
            "begin; create table t(id integer primary key, a INT, b CHAR(9), c NUME);";
        const auto most = static_cast<std::uint32_t>(table.rows);
        for (int i = 1; i <= table.rows; ++i) {
            const std::uint32_t variety = table.unique ? 9 : std::max(2U, most / 40);
            const std::string last =
                table.unique ? std::to_string(i * 7919 % 1000003) : std::to_string(upTo(most / 4));
            const bool one = table.keyColumns == 1;
            sql += "insert into t values(" + std::to_string(i) + "," +
                   (one ? last : std::to_string(upTo(variety))) + ",'" +
                   (table.keyColumns == 2 ? "v" + last : "w" + std::to_string(upTo(3))) + "'," +
                   last + ");\n";
        }
        const char* const keys[] = {"a", "a,b", "a,b,c"};
        sql += std::string("create index walked on t(") + keys[table.keyColumns - 1] +
               "); create index byText on t(b); create index byId on t(id); commit;";
        make(sql);
        orders.clear();
        orders[u"walked"] = ids("order by " + std::string(keys[table.keyColumns - 1]) + ",id");
        orders[u"byText"] = ids("order by b,id");
        orders[u"byId"] = ids("order by id");
        source = Source::make(name, {{.aliasName = u"m", .dbtName = u"t"}},
                              {{.sqlExpression = u"m.id"}, {.sqlExpression = u"m.b"}}, {},
                              u"walked", {});
        ASSERT_NE(source, nullptr);
        at = nullptr;
        position = std::make_unique<localDbtBrowsePosition>(*source, anyWindow());
        at = position.get();
        looked = 0;
        order = orders[u"walked"];
        lookAtBuffer();
    }
    void changeOrder() {
        const std::string record = order.empty() ? "" : order[place()];
        const char16_t* const names[] = {u"walked", u"byText", u"byId"};
        const std::u16string wanted = names[upTo(2)];
        ASSERT_TRUE(at->idxSet(wanted));
        order = orders[wanted];
        lookAtBuffer();
        if (!order.empty()) {
            ASSERT_EQ(order[place()], record);
        }
        ASSERT_FALSE(at->idxSet(u"no"));
    }
    void find() {
        // By id, in whatever order there is: a person types the first digits of one.
        const std::string typed = std::to_string(upTo(static_cast<std::uint32_t>(order.size())));
        const std::u16string word = wide(typed);
        const std::size_t before = order.empty() ? 0 : place();
        const Source::Index& byId = *source->indexByName(u"byId");
        const bool found = at->find(byId, {word});
        lookAtBuffer();
        const auto& all = orders[u"byId"];
        const auto first = std::find_if(all.begin(), all.end(), [&](const std::string& id) {
            return std::stoi(id) >= std::stoi(typed);
        });
        ASSERT_EQ(found, first != all.end() && first->starts_with(typed));
        if (found) {
            ASSERT_EQ(order[place()], *first);
        } else if (!order.empty()) {
            ASSERT_EQ(place(), before);
        }
    }
};

TEST_P(localDbtBrowseModel, randomKeysStayInTheOrderOfPlainSql) {
    constexpr int keysInEach = 1700;
    for (const bool unique : {true, false}) {
        for (const int keyColumns : {1, 2, 3}) {
            makeTable({GetParam(), unique, keyColumns});
            ASSERT_FALSE(HasFatalFailure());
            for (int pressed = 0; pressed < keysInEach;) {
                const std::uint32_t key = upTo(moves + 1);
                for (int rest = times(key); rest > 0 && !HasFatalFailure(); --rest) {
                    const auto before = standing();
                    key < moves ? move(key) : key == moves ? changeOrder() : find();
                    wantsCursorInData();
                    ++pressed;
                    rest = standing() == before ? 1 : rest;
                }
                ASSERT_FALSE(HasFatalFailure())
                    << after(key, pressed) << ", " << keyColumns
                    << (unique ? " columns, unique" : " columns, equal keys");
            }
            ASSERT_THAT(boxes(), testing::IsEmpty());
        }
    }
    if (GetParam() == 10000) {
        EXPECT_GT(left[Leaves::pageDownJumpAtEnd], 0);
        EXPECT_GT(left[Leaves::pageUpToBufferStart], 0);
    }
}

INSTANTIATE_TEST_SUITE_P(, localDbtBrowseModel,
                         testing::Values(0, 1, 2, 10, 127, 128, 129, 255, 256, 257, 10000));

}  // namespace
