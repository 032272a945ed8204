// The walk beside plain SQL in the same order: random tables, random positions, random distances.

#include <random>

#include "localDb/index/localDbDataSource200123.h"
#include "support/localDbTest.h"

namespace {

using Source = localDbDataSource200123;

struct Model {
    const char* name;
    // Columns of the table, the key, and the order that means the same.
    const char* columns;
    const char* key;
    const char* order;
    const char* tail = "";
    bool cases = true;  // whether they count in keys
};

class localDbWalkModel : public localDbTest, public testing::WithParamInterface<Model> {
public:
    static constexpr int buffer = Source::bufferSize;
    std::mt19937 random{20260124};
    std::unique_ptr<Source> walked;
    // Ids in the order of the index.
    std::vector<std::string> order;

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }

    std::string randomValue(int variety) {
        switch (upTo(9)) {
            case 0:
                return "null";
            case 1:
                return std::to_string(upTo(variety)) + ".5";
            case 2:
                return "x'" + std::to_string(10 + upTo(9)) + "'";
            case 3:
                return "'t" + std::to_string(upTo(variety)) + "'";
            case 4:
                return "'T" + std::to_string(upTo(variety)) + "'";
            case 5:
                return "-" + std::to_string(upTo(variety));
            case 6:
                return "'" + std::to_string(upTo(variety)) + "'";
            default:
                return std::to_string(upTo(variety));
        }
    }

    void makeRandom(int rowCount, int variety) {
        std::string sql = std::string("begin; create table t(") + GetParam().columns + ")" +
                          GetParam().tail + ";";
        for (int i = 1; i <= rowCount; ++i) {
            sql += "insert into t values(" + std::to_string(i * 3) + "," + randomValue(variety) +
                   "," + randomValue(variety) + ");\n";
        }
        make(sql + "create index walked on t(" + GetParam().key + "); commit;");
        order.clear();
        for (const auto& row : rows(std::string("select id from t order by ") + GetParam().order)) {
            order.push_back(row[0]);
        }
        walked = Source::make(name, {{.aliasName = u"m", .dbtName = u"t"}},
                              {{.sqlExpression = u"m.id"}}, {}, u"walked", {});
        ASSERT_NE(walked, nullptr);
        ASSERT_THAT(boxes(), testing::IsEmpty());
    }

    std::vector<std::string> shown() const {
        std::vector<std::string> ids;
        for (std::size_t row = 0; row < walked->dataBuffer().size(); ++row) {
            ids.push_back(walked->cell(row, 0).toStdString());
        }
        return ids;
    }
    std::vector<std::string> wanted(std::size_t from) const {
        const auto first = order.begin() + static_cast<std::ptrdiff_t>(from);
        const auto last = order.end() - first > buffer ? first + buffer : order.end();
        return {first, last};
    }
    std::size_t placeOf(const std::string& id) const {
        return static_cast<std::size_t>(std::find(order.begin(), order.end(), id) - order.begin());
    }
    // The place of the first row with the key of a row.
    std::string keySql() const {
        std::string sql;
        for (const auto& column : walked->currentIdx()->keyFieldNames) {
            sql += (sql.empty() ? "" : "||'|'||") + ("quote(" + narrow(column) + ")");
        }
        return GetParam().cases ? sql : "lower(" + sql + ")";
    }
};

// Down and Up at the edges of the buffer, as a browse of 20 lines does it, from the table's start
// to its end and back: every row comes by, once and in order.
TEST_P(localDbWalkModel, aBrowseGoesThroughTheWholeTableAndBack) {
    constexpr std::size_t lines = 20;
    for (const int variety : {2, 40, 100000}) {
        makeRandom(900, variety);
        ASSERT_EQ(shown(), wanted(0)) << variety;
        std::size_t place = 0;
        for (int steps = 0; place + buffer < order.size(); ++steps) {
            ASSERT_LT(steps, 100) << "the walk stays at row " << place;
            const std::size_t top = walked->dataBuffer().size() - lines;
            walked->fillFromKeyVal(walked->keyOfRow(top));
            ASSERT_FALSE(walked->dataBuffer().empty());
            const std::size_t now = placeOf(walked->cell(0, 0).toStdString());
            ASSERT_EQ(shown(), wanted(now));
            // Rows with one key in front of the line on top may come again; nothing is passed over.
            ASSERT_LE(now, place + top);
            ASSERT_GT(now, place);
            place = now;
        }
        for (int steps = 0; place > 0; ++steps) {
            ASSERT_LT(steps, 100) << "the walk stays at row " << place;
            const localDbKey first = walked->keyOfRow(0);
            walked->fillFromKeyVal(walked->relativeKey(first, -buffer / 2, false));
            ASSERT_FALSE(walked->dataBuffer().empty());
            const std::size_t now = placeOf(walked->cell(0, 0).toStdString());
            ASSERT_EQ(shown(), wanted(now));
            ASSERT_LT(now, place);
            // The row that the walk came from is in the buffer.
            ASSERT_GT(now + buffer, place);
            place = now;
        }
        ASSERT_THAT(boxes(), testing::IsEmpty());
    }
}

TEST_P(localDbWalkModel, randomReadsFindTheRowsOfPlainSql) {
    for (const int variety : {2, 40, 100000}) {
        makeRandom(600, variety);
        std::vector<std::string> keys;
        for (const auto& row :
             rows("select " + keySql() + " from t m order by " + std::string(GetParam().order))) {
            keys.push_back(row[0]);
        }
        for (int round = 0; round < 150; ++round) {
            if (walked->dataBuffer().empty()) {
                walked->fillFromKeyVal({});
            }
            const auto row =
                static_cast<std::size_t>(upTo(static_cast<int>(walked->dataBuffer().size()) - 1));
            const localDbKey key = walked->keyOfRow(row);
            const std::size_t place = placeOf(walked->cell(row, 0).toStdString());
            const bool apart = key.size() > walked->currentIdx()->keyFieldNames.size();
            const std::int32_t back = upTo(200);
            // Without what tells rows apart, a position is that of the last row of its key when
            // the walk goes back, and of the first one when it goes on.
            std::size_t last = place;
            std::size_t first = place;
            while (!apart && last + 1 < keys.size() && keys[last + 1] == keys[place]) {
                ++last;
            }
            while (!apart && first > 0 && keys[first - 1] == keys[place]) {
                --first;
            }
            const auto distance = static_cast<std::size_t>(back);
            const localDbKey strict = walked->relativeKey(key, -back, true);
            ASSERT_EQ(strict.empty(), distance > last);
            const localDbKey found = walked->relativeKey(key, -back, false);
            ASSERT_FALSE(found.empty());
            if (GetParam().cases) {
                ASSERT_EQ(walked->relativeKey(key, 0, true), key);
            }
            if (round % 2 == 0) {
                walked->fillFromKeyVal(found);
                std::size_t start = distance > last ? 0 : last - distance;
                while (!apart && start > 0 && keys[start - 1] == keys[start]) {
                    --start;
                }
                ASSERT_EQ(shown(), wanted(start)) << "round " << round;
            } else {
                walked->fillFromKeyVal(key);
                ASSERT_EQ(shown(), wanted(first)) << "round " << round;
            }
        }
        ASSERT_THAT(boxes(), testing::IsEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    , localDbWalkModel,
    testing::Values(
        Model{"typed", "id integer primary key, a INT, b CHAR(9)", "a, b", "a, b, id"},
        Model{"number", "id integer primary key, a NUME, b CHAR(9)", "a", "a, id"},
        Model{"otherNumber", "id integer primary key, a NUMERIC, b REAL", "b, a", "b, a, id"},
        Model{"untyped", "id integer primary key, a, b BLOB", "a, b", "a, b, id"},
        Model{"descending", "id integer primary key, a INT, b", "a desc, b", "a desc, b, id"},
        Model{"descendingLast", "id integer primary key, a, b", "a, b desc", "a, b desc, id"},
        Model{"noCase", "id integer primary key, a TEXT, b", "a collate nocase",
              "a collate nocase, id", "", false},
        Model{"noCaseColumn", "id integer primary key, a TEXT collate nocase, b collate nocase",
              "a, b", "a, b, id", "", false},
        Model{"binaryOnNoCase", "id integer primary key, a TEXT collate nocase, b",
              "a collate binary desc", "a collate binary desc, id"},
        Model{"unique", "id integer primary key, a INT, b", "a, id", "a, id"},
        Model{"withoutRowId", "id integer primary key, a INT, b", "b", "b, id", "without rowid"}),
    [](const auto& one) { return one.param.name; });

}  // namespace
