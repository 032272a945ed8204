// The position in a directory beside plain SQL: random keys that walk folders and change the
// regime.
#include "directory/localRefBrowsePosition.h"
#include "support/localDbBrowseModel.h"

namespace {

class localRefBrowseModel : public localDbBrowseModel, public testing::WithParamInterface<int> {
public:
    std::unique_ptr<localRefBrowsePosition> position;
    // The ids of the path to the folder in view, root first.
    std::vector<std::string> path;
    bool hierarchical = false;

    // Folders are the first rows, each in one before it.
    void makeDirectory(int rowCount, bool unique) {
        std::string sql =
            "begin; create table t(id integer primary key, parentid INT, isfolder INT, code"
            " CHAR(12), descr CHAR(60));";
        const int folders = std::min(rowCount / 3, 12);
        for (int i = 1; i <= rowCount; ++i) {
            const bool folder = i <= folders;
            const auto most = static_cast<std::uint32_t>(folder ? std::max(0, i - 1) : folders);
            // Half of the rows lie in the root or in the first folder; a few folders stay empty.
            const std::uint32_t parent = upTo(upTo(1) == 0 ? std::min(most, 1U) : most);
            const int descr = unique ? i * 7919 % 1000003 : static_cast<int>(upTo(9));
            sql += "insert into t values(" + std::to_string(i) + "," +
                   std::to_string(folder && parent >= static_cast<std::uint32_t>(i) ? 0 : parent) +
                   "," + (folder ? "1" : "0") + ",'c" + std::to_string(rowCount - i) + "','d" +
                   std::to_string(descr) + "');\n";
        }
        make(sql + "create index t_CODE on t(code); create index t_DESCR on t(descr);"
                   "create index t_PCODE on t(parentid, isfolder, code);"
                   "create index t_PDESCR on t(parentid, isfolder, descr); commit;");
        source = Source::make(name, {{.aliasName = u"m", .dbtName = u"t"}},
                              {{.sqlExpression = u"m.id"},
                               {.sqlExpression = u"m.parentid"},
                               {.sqlExpression = u"m.isfolder"}},
                              {}, u"t_CODE", {});
        ASSERT_NE(source, nullptr);
        at = nullptr;
        position = std::make_unique<localRefBrowsePosition>(*source, anyWindow());
        at = position.get();
        path.clear();
        hierarchical = false;
        looked = 0;
        showsOrder();
    }

    std::string folder() const { return path.empty() ? "0" : path.back(); }
    std::string valueOf(const std::string& column, const std::string& id) const {
        return value("select " + column + " from t where id=" + id);
    }
    // What plain SQL gives now.
    void showsOrder() {
        const std::string by = QString(source->currentIdx()->name == u"t_CODE" ||
                                               source->currentIdx()->name == u"t_PCODE"
                                           ? "code,id"
                                           : "descr,id")
                                   .toStdString();
        order = ids(hierarchical ? "where parentid=" + folder() + " order by isfolder," + by
                                 : "order by " + by);
        lookAtBuffer();
        ASSERT_EQ(position->isHierarchical(), hierarchical);
        ASSERT_EQ(at->headRows, 1 + path.size());
        for (std::uint32_t row = 1; row < at->headRows; ++row) {
            ASSERT_EQ(position->pinnedCell(row, 0).toStdString(), path[row - 1]);
        }
    }
    std::string record() const { return order.empty() ? std::string() : order[place()]; }

    void changeRegime() {
        const std::string before = record();
        const std::string emptied = order.empty() ? folder() : "0";
        hierarchical = !hierarchical;
        path.clear();
        if (hierarchical && !before.empty()) {
            for (std::string up = valueOf("parentid", before); up != "0";
                 up = valueOf("parentid", up)) {
                path.insert(path.begin(), up);
            }
        }
        if (at->visibleRows < 2 + path.size()) {
            at->resize(static_cast<std::uint32_t>(2 + path.size()));
        }
        position->setHierarchical(hierarchical);
        showsOrder();
        if (!before.empty()) {
            ASSERT_EQ(record(), before);
        } else if (emptied != "0") {
            ASSERT_EQ(record(), emptied);
        }
    }
    void enter() {
        const std::string before = record();
        const bool can = hierarchical && !before.empty() && valueOf("isfolder", before) == "1";
        if (can && at->visibleRows < at->headRows + 2) {
            at->resize(at->headRows + 2);
        }
        ASSERT_EQ(position->enterFolder(), can);
        if (can) {
            path.push_back(before);
            showsOrder();
            ASSERT_EQ(at->mRec1, 0);
            ASSERT_EQ(at->mCurRow, order.empty() ? at->headRows - 1 : at->headRows);
        } else if (!order.empty()) {
            ASSERT_EQ(record(), before);
        }
    }
    void leave() {
        const std::uint32_t row = at->mCurRow;
        const bool can = !path.empty();
        ASSERT_EQ(position->leaveFolder(), can);
        if (can) {
            path.pop_back();
            showsOrder();
            ASSERT_EQ(at->mRec1, 0);
            ASSERT_EQ(at->mCurRow, std::min<std::size_t>(std::max(row - 1, at->headRows),
                                                         at->headRows + last()));
        }
    }
    void changeOrder() {
        const std::string before = record();
        const bool byCode = upTo(1) == 0;
        ASSERT_TRUE(at->idxSet(hierarchical ? (byCode ? u"t_PCODE" : u"t_PDESCR")
                                            : (byCode ? u"t_CODE" : u"t_DESCR")));
        showsOrder();
        if (!order.empty()) {
            ASSERT_EQ(record(), before);
        }
    }
    void find() {
        const std::string word = "d" + std::to_string(upTo(9));
        const Source::Index& index = *source->indexByName(hierarchical ? u"t_PDESCR" : u"t_DESCR");
        const std::string before = record();
        const std::string like = "descr like '" + word + "%'";
        const auto wanted = hierarchical ? ids("where parentid=" + folder() + " and " + like +
                                               " order by isfolder,descr,id limit 1")
                                         : ids("where " + like + " order by descr,id limit 1");
        ASSERT_EQ(hierarchical ? position->findInFolder(index, wide(word))
                               : at->find(index, {wide(word)}),
                  !wanted.empty());
        lookAtBuffer();
        if (!order.empty()) {
            ASSERT_EQ(record(), wanted.empty() ? before : wanted[0]);
        }
    }
};

TEST_P(localRefBrowseModel, randomKeysStayInTheOrderOfPlainSql) {
    for (const bool unique : {true, false}) {
        makeDirectory(GetParam(), unique);
        ASSERT_FALSE(HasFatalFailure());
        for (int pressed = 0; pressed < 1500;) {
            const std::uint32_t key = upTo(moves + 7);
            for (int rest = times(key); rest > 0 && !HasFatalFailure(); --rest) {
                const auto before = standing();
                switch (key) {
                    case moves:
                        changeRegime();
                        break;
                    case moves + 1:
                    case moves + 2:
                    case moves + 3:
                        enter();
                        break;
                    case moves + 4:
                    case moves + 5:
                        leave();
                        break;
                    case moves + 6:
                        changeOrder();
                        break;
                    case moves + 7:
                        find();
                        break;
                    default:
                        move(key);
                        break;
                }
                wantsCursorInData();
                ++pressed;
                rest = standing() == before ? 1 : rest;
            }
            ASSERT_FALSE(HasFatalFailure()) << after(key, pressed) << (unique ? "" : ", equal")
                                            << (hierarchical ? ", in folder " + folder() : "");
        }
        ASSERT_THAT(boxes(), testing::IsEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(, localRefBrowseModel,
                         testing::Values(0, 1, 2, 10, 127, 128, 129, 255, 256, 257, 10000));

}  // namespace
