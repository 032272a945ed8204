// The models of the manager's windows: the list of objects, the rows of a table.
#include <gmock/gmock.h>

#include <QFile>
#include <QSqlQuery>

#include <memory>

#include "localDb/localDb.h"
#include "localDbVcl/manager/localDbManagerTableModel.h"
#include "manager/localDbtRowsModel.h"
#include "support/recordingHost.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class localDbManagerModels : public testing::Test {
protected:
    recordingHost host;
    std::unique_ptr<localDbConnection> connection = std::make_unique<localDbConnection>(u"test");

    void open(const QString& file) {
        ASSERT_TRUE(localDbConnection::open(u"test", file.toStdU16String()));
    }
    void run(const QString& sql) {
        QSqlQuery query(connection->database());
        EXPECT_TRUE(query.exec(sql)) << sql.toStdString();
    }
    void SetUp() override {
        QFile::remove("data.sqlite");
        open("data.sqlite");
        run("create table T (id INTEGER PRIMARY KEY, n INT)");
        run("with recursive x(n) as (select 1 union all select n+1 from x limit 1000) "
            "insert into T select n, n from x");
        run("create index I on T (n)");
        run("create table U (id INTEGER PRIMARY KEY)");
        run("create view V as select * from T");
    }

    static std::vector<std::string> column(const QAbstractItemModel& model, int number) {
        std::vector<std::string> texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            texts.push_back(model.index(row, number).data().toString().toStdString());
        }
        return texts;
    }
};

TEST_F(localDbManagerModels, rowsAreCountedWhenAskedFor) {
    localDbManagerTableModel model(u"test");
    using Model = localDbManagerTableModel;
    EXPECT_TRUE(model.isRead());
    EXPECT_THAT(column(model, Model::objName), ElementsAre("T", "I", "U", "V"));
    EXPECT_THAT(column(model, Model::rowCountColumn), ElementsAre("", "", "", ""));
    model.countRows();
    EXPECT_THAT(column(model, Model::rowCountColumn), ElementsAre("1000", "", "0", ""));
    EXPECT_THAT(host.calls, ElementsAre("cursor wait", "cursor restored"));
    ASSERT_TRUE(model.read());
    EXPECT_THAT(column(model, Model::rowCountColumn), ElementsAre("", "", "", ""));
}

TEST_F(localDbManagerModels, aTableGoesWithItsIndexesAndAnIndexAlone) {
    localDbManagerTableModel model(u"test");
    model.objectRemove(1);
    EXPECT_THAT(column(model, localDbManagerTableModel::objName), ElementsAre("T", "U", "V"));
    ASSERT_TRUE(model.read());
    model.objectRemove(0);
    EXPECT_THAT(column(model, localDbManagerTableModel::objName), ElementsAre("U", "V"));
}

TEST_F(localDbManagerModels, aFileThatIsNoneLeavesTheListAsItWas) {
    localDbManagerTableModel model(u"test");
    QFile other("none.sqlite");
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write(QByteArray(5000, 'x'));
    other.close();
    open("none.sqlite");
    EXPECT_FALSE(model.read());
    EXPECT_FALSE(model.isRead());
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_FALSE(host.reports.empty());
}

TEST_F(localDbManagerModels, rowsAreReadAsFarAsAskedFor) {
    localDbtRowsModel rows(u"test", u"T");
    for (const int count : {255, 510, 1000}) {
        EXPECT_EQ(rows.rowCount(), count);
        EXPECT_EQ(rows.canFetchMore(), count < 1000);
        EXPECT_EQ(rows.value(rows.index(count - 1, 0)).toInt(), count);
        rows.fetchMore();
    }
    EXPECT_EQ(rows.rowCount(), 1000);
    EXPECT_FALSE(rows.error().isValid());
}

// A table cannot be dropped while a statement stands, nor a file be written by others.
TEST_F(localDbManagerModels, noStatementIsLeftStanding) {
    localDbtRowsModel rows(u"test", u"T");
    ASSERT_TRUE(rows.canFetchMore());
    run("drop table U");
    const localDbConnection second(u"second");
    ASSERT_TRUE(localDbConnection::open(u"second", u"data.sqlite"));
    QSqlQuery query(second.database());
    EXPECT_TRUE(query.exec("update T set n=0"));
}

TEST_F(localDbManagerModels, readingAgainKeepsWhatWasRead) {
    localDbtRowsModel rows(u"test", u"T");
    rows.fetchMore();
    run("delete from T where id=7");
    rows.readAgain();
    EXPECT_EQ(rows.rowCount(), 510);
    EXPECT_EQ(rows.value(rows.index(6, 0)).toInt(), 8);
    run("delete from T where id>10");
    rows.readAgain();
    EXPECT_EQ(rows.rowCount(), 9);
    EXPECT_FALSE(rows.canFetchMore());
    run("drop table T");
    rows.readAgain();
    EXPECT_TRUE(rows.error().isValid());
    EXPECT_EQ(rows.rowCount(), 0);
}

TEST_F(localDbManagerModels, rowsOfAnotherFileAreNotReadOn) {
    localDbtRowsModel rows(u"test", u"T");
    open("second.sqlite");
    EXPECT_FALSE(rows.canFetchMore());
    EXPECT_FALSE(rows.file().stands());
    EXPECT_FALSE(rows.file().check());
    EXPECT_EQ(host.reports.size(), 1U);
    open("data.sqlite");
    EXPECT_TRUE(rows.canFetchMore());
    EXPECT_TRUE(rows.file().check());
}

TEST_F(localDbManagerModels, cellsInWords) {
    const auto shown = [](const QVariant& value, qsizetype longest) {
        return localDbtRowsModel::shownText(value, longest).toStdString();
    };
    EXPECT_EQ(shown(QVariant(QMetaType(QMetaType::QString)), 10), "NULL");
    EXPECT_EQ(shown(QByteArray("\0\1\2", 3), 10), "[3 bytes]");
    EXPECT_EQ(shown(1000000, 10), "1000000");
    EXPECT_EQ(shown("1234567890", 10), "1234567890");
    EXPECT_EQ(shown("12345678901", 10), "1234567...");
    EXPECT_EQ(shown("", 10), "");
}

}  // namespace
