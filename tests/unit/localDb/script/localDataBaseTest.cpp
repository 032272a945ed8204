// The objects behind the classes of the data file: their connections, threads and lives.
#include "localDb/script/localDataBase.h"

#include <QSqlDatabase>

#include <filesystem>
#include <fstream>
#include <functional>
#include <thread>

#include "localDb/localDb.h"
#include "localDb/script/localDataBaseRecord.h"
#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "support/language.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class localDataBaseTest : public languageTest {
public:
    void SetUp() override {
        fileMake("data.sqlite");
        localDb::applicationSetDataFullFileName(u"data.sqlite");
        base_.objectBind(new localDataBase, localDataBase::classDeclaration());
        EXPECT_TRUE(base().connect(status_));
        exec("create table Goods (id INTEGER PRIMARY KEY, CODE CHAR(9))");
        exec("insert into Goods (CODE) values ('001'),('002'),('003')");
    }
    void TearDown() override {
        record_.reset();
        base_.reset();
        localDb::applicationSetDataFullFileName(u"");
    }

    // An empty file is an empty data file.
    static void fileMake(const std::string& name) {
        std::filesystem::remove_all(name);
        std::ofstream(name).flush();
    }

    // A thread of a program, as DEBUG makes one: it has the turn while this thread waits.
    static void onThread(const std::function<void()>& work) {
        const localTurn::Pause pause;
        std::thread([&work] {
            const localTurn::Hold turn;
            work();
        }).join();
    }

    localDataBase& base() const { return *static_cast<localDataBase*>(base_.pointer); }
    // The first cell of what a statement gives.
    std::string exec(const std::string& sql) {
        localValueTable table;
        EXPECT_TRUE(localDb::queryExecToValueTable(base().here().name(), table, wide(sql))) << sql;
        return table.rowsCount() == 0 ? "" : utf8(table.cell(0, 0).toString());
    }
    localDataBaseRecord& goods() {
        if (record_.pointer == nullptr) {
            record_.objectBind(
                new localDataBaseRecord(new localDataBaseTable(base().reference(), u"Goods")),
                localDataBaseRecord::classDeclaration());
        }
        return *static_cast<localDataBaseRecord*>(record_.pointer);
    }
    std::string code() { return utf8(goods().context.varToString(u"CODE")); }

    int status_ = localErrorTypeOK;
    localValueDescription base_;
    localValueDescription record_;
};

TEST_F(localDataBaseTest, theLastObjectOfAConnectionRemovesIt) {
    const QString name = QString::fromStdU16String(base().name());
    EXPECT_TRUE(QSqlDatabase::contains(name));
    localValueDescription other;
    do {
        other.objectBind(new localDataBase, localDataBase::classDeclaration());
    } while (static_cast<localDataBase*>(other.pointer)->name() != base().name() && [&] {
        base_.objectBind(new localDataBase, localDataBase::classDeclaration());
        return static_cast<localDataBase*>(other.pointer)->name() != base().name();
    }());
    const QString shared = QString::fromStdU16String(base().name());
    base_.reset();
    EXPECT_TRUE(QSqlDatabase::contains(shared));
    other.reset();
    EXPECT_FALSE(QSqlDatabase::contains(shared));
    EXPECT_FALSE(QSqlDatabase::contains(name));
}

TEST_F(localDataBaseTest, countersTellWhatLives) {
    const std::int64_t bases = localDataBase::counterStaticTotal;
    const std::int64_t tables = localDataBaseTable::counterStaticTotal;
    const std::int64_t records = localDataBaseRecord::counterStaticTotal;
    EXPECT_EQ(bases, 1);
    goods();
    EXPECT_EQ(localDataBaseTable::counterStaticTotal, tables + 1);
    EXPECT_EQ(localDataBaseRecord::counterStaticTotal, records + 1);
    EXPECT_TRUE(base().connect(status_));
    EXPECT_EQ(localDataBaseTable::counterStaticTotal, tables + 2);
    record_.reset();
    base_.reset();
    EXPECT_EQ(localDataBase::counterStaticTotal, 0);
    EXPECT_EQ(localDataBaseTable::counterStaticTotal, 0);
    EXPECT_EQ(localDataBaseRecord::counterStaticTotal, records);
}

TEST_F(localDataBaseTest, anObjectUsedOnAnotherThreadHasAConnectionThere) {
    onThread([this] {
        EXPECT_TRUE(base().hasTable(u"Goods"));
        EXPECT_NE(base().here().name(), base().name());
        EXPECT_EQ(exec("select count(*) from Goods"), "3");
        exec("insert into Goods (CODE) values ('004')");
        EXPECT_TRUE(goods().select(status_, u"id>2"));
        EXPECT_TRUE(goods().next(status_));
        EXPECT_EQ(code(), "003");
    });
    EXPECT_EQ(base().here().name(), base().name());
    EXPECT_EQ(exec("select count(*) from Goods"), "4");
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(localDataBaseTest, aWalkGoesOnOnlyWhereItWasBegun) {
    EXPECT_TRUE(goods().select(status_, u""));
    EXPECT_TRUE(goods().next(status_));
    onThread([this] {
        output.clear();
        EXPECT_FALSE(goods().next(status_));
        EXPECT_EQ(status_, 22);
        EXPECT_THAT(output.text(), HasSubstr("NEXT() goes on where SELECT() was called"));
    });
    status_ = localErrorTypeOK;
    EXPECT_TRUE(goods().next(status_));
    EXPECT_EQ(code(), "002");
    // Begun anew there, it is at home there.
    onThread([this] {
        EXPECT_TRUE(goods().select(status_, u""));
        EXPECT_TRUE(goods().next(status_));
        EXPECT_EQ(code(), "001");
    });
    EXPECT_FALSE(goods().next(status_));
    EXPECT_EQ(status_, 22);
}

TEST_F(localDataBaseTest, anObjectOfAThreadThatEndedIsUsedOn) {
    std::u16string name;
    onThread([this, &name] {
        record_.reset();
        base_.objectBind(new localDataBase, localDataBase::classDeclaration());
        EXPECT_TRUE(base().connect(status_));
        name = base().name();
        EXPECT_TRUE(goods().select(status_, u""));
        EXPECT_TRUE(goods().next(status_));
    });
    EXPECT_EQ(base().here().name(), name);
    EXPECT_TRUE(base().hasTable(u"Goods"));
    EXPECT_EQ(exec("select count(*) from Goods"), "3");
    // Its connection is a new one, so the walk cannot go on.
    EXPECT_FALSE(goods().next(status_));
    EXPECT_EQ(status_, 22);
    status_ = localErrorTypeOK;
    EXPECT_TRUE(goods().select(status_, u""));
    EXPECT_TRUE(goods().next(status_));
    EXPECT_EQ(code(), "001");
}

TEST_F(localDataBaseTest, anObjectOfAThreadMayBeDroppedElsewhere) {
    onThread([this] { EXPECT_TRUE(goods().select(status_, u"")); });
    onThread([this] {
        EXPECT_TRUE(base().open());
        record_.reset();
        base_.reset();
    });
    EXPECT_EQ(localDataBase::counterStaticTotal, 0);
    for (const QString& name : QSqlDatabase::connectionNames()) {
        EXPECT_FALSE(name.startsWith("db-")) << name.toStdString();
    }
}

TEST_F(localDataBaseTest, aFileChosenOnOneThreadIsThatOfAll) {
    fileMake("other.sqlite");
    onThread([this] {
        EXPECT_TRUE(base().hasTable(u"Goods"));
        localDb::applicationSetDataFullFileName(u"other.sqlite");
        EXPECT_TRUE(base().connect(status_));
        EXPECT_FALSE(base().hasTable(u"Goods"));
    });
    EXPECT_FALSE(base().hasTable(u"Goods"));
}

TEST_F(localDataBaseTest, theWindowsReadTheFileMeanwhile) {
    ASSERT_TRUE(localDb::testDbInit(u"data.sqlite"));
    onThread([this] {
        EXPECT_FALSE(localDbConnection::isHere(localDbConnection::mainName));
        exec("insert into Goods (CODE) values ('004')");
        // The windows' connection is not for programs on another thread: they are told so.
        output.clear();
        EXPECT_FALSE(localDb::testDbSqliteInit(u"data.sqlite"));
        EXPECT_FALSE(host.calls.empty());
    });
    EXPECT_EQ(localDb::dbtRecordCount("dbMain", "Goods"), 4);
}

TEST_F(localDataBaseTest, aFolderIsNoDataFile) {
    std::filesystem::create_directory("folder");
    localDb::applicationSetDataFullFileName(u"folder");
    EXPECT_FALSE(base().connect(status_));
    EXPECT_EQ(status_, localErrorTypeOK);
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(utf8(host.reports[0].title), "classImplementationMethodFunction");
    EXPECT_THAT(utf8(host.reports[0].text), HasSubstr("Ошибка открытия базы\nfileName = folder\n"));
    EXPECT_FALSE(base().open());
    EXPECT_FALSE(base().hasTable(u"Goods"));
}

TEST_F(localDataBaseTest, aWalkThatCannotReadOnSaysSo) {
    // Elsewhere, so that this connection has no pages in its memory.
    onThread([this] {
        exec("with recursive n(x) as (select 1 union all select x+1 from n limit 100000) "
             "insert into Goods (CODE) select 'code'||x from n");
    });
    EXPECT_TRUE(goods().select(status_, u""));
    EXPECT_TRUE(goods().next(status_));
    // Other bytes stand where the rows were.
    {
        std::fstream file("data.sqlite", std::ios::in | std::ios::out | std::ios::binary);
        const auto size = std::filesystem::file_size("data.sqlite");
        file.seekp(static_cast<std::streamoff>(size / 2));
        file << std::string(size / 2, '\xff');
    }
    bool more = true;
    int read = 1;
    while (more) {
        more = goods().next(status_);
        ++read;
    }
    EXPECT_LT(read, 100000);
    EXPECT_EQ(status_, 22);
    EXPECT_THAT(output.text(),
                HasSubstr("NEXT() cannot read on: database disk image is malformed"));
}

TEST_F(localDataBaseTest, aWalkEndsWithTheConnectionThatItWasBegunOn) {
    fileMake("other.sqlite");
    EXPECT_TRUE(goods().select(status_, u""));
    EXPECT_TRUE(goods().next(status_));
    localDb::applicationSetDataFullFileName(u"other.sqlite");
    EXPECT_TRUE(base().connect(status_));
    output.clear();
    EXPECT_FALSE(goods().next(status_));
    EXPECT_EQ(status_, localErrorTypeDATABASECONNECTION);
    EXPECT_THAT(output.text(), HasSubstr("NEXT() cannot read on: "));
}

TEST_F(localDataBaseTest, aFileMadeAnewUnderItsNameIsConnectedTo) {
    EXPECT_TRUE(goods().select(status_, u""));
    fileMake("data.sqlite");
    EXPECT_TRUE(base().connect(status_));
    EXPECT_FALSE(base().hasTable(u"Goods"));
    // SELECT has read the first row ahead.
    EXPECT_TRUE(goods().next(status_));
    EXPECT_FALSE(goods().next(status_));
    EXPECT_EQ(status_, localErrorTypeDATABASECONNECTION);
    EXPECT_THAT(host.calls, IsEmpty());
}

TEST_F(localDataBaseTest, aFileOfOtherBytesIsToldOfByEachCall) {
    goods();
    {
        std::fstream file("data.sqlite", std::ios::in | std::ios::out | std::ios::binary);
        file << std::string(4096, 'Z');
    }
    // The connection has pages in its memory until others have changed the file.
    localDbConnection::database(base().name()).close();
    EXPECT_FALSE(base().connect(status_));
    EXPECT_EQ(status_, localErrorTypeOK);
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_THAT(utf8(host.reports[0].text), HasSubstr("Ошибка открытия базы"));
    EXPECT_THAT(utf8(host.reports[0].text), HasSubstr("databaseText() = file is not a database"));
    EXPECT_FALSE(base().hasTable(u"Goods"));
    localValueTable fields;
    EXPECT_FALSE(base().fieldsToValueTable(u"Goods", fields));
    ASSERT_EQ(host.reports.size(), 3U);
    EXPECT_THAT(utf8(host.reports[2].text), HasSubstr("file is not a database"));
    host.reports.clear();
    EXPECT_FALSE(goods().select(status_, u""));
    ASSERT_EQ(host.reports.size(), 1U);
    EXPECT_THAT(utf8(host.reports[0].text), HasSubstr("file is not a database"));
    // Of a condition that is none nobody is told, nor of one that no statement can hold.
    fileMake("data.sqlite");
    EXPECT_TRUE(base().connect(status_));
    exec("create table Goods (id INTEGER PRIMARY KEY)");
    EXPECT_FALSE(goods().select(status_, u"no such thing"));
    EXPECT_FALSE(goods().select(status_, std::u16string_view(u"id=1\0", 5)));
    EXPECT_EQ(host.reports.size(), 1U);
}

TEST_F(localDataBaseTest, aFileThatIsGoneIsToldOfByEachCall) {
    EXPECT_TRUE(goods().select(status_, u""));
    std::filesystem::remove("data.sqlite");
    localValueTable table;
    EXPECT_FALSE(localDb::queryExecToValueTable(base().name(), table, u"select 1"));
    EXPECT_FALSE(goods().select(status_, u""));
    EXPECT_FALSE(goods().next(status_));
    EXPECT_EQ(status_, localErrorTypeOK);
    EXPECT_FALSE(base().hasTable(u"Goods"));
    EXPECT_FALSE(base().fieldsToValueTable(u"Goods", table));
    EXPECT_EQ(localDb::dbtFieldGetMaxVal(base().name(), u"Goods", u"id"), u"");
    ASSERT_EQ(host.reports.size(), 4U);
    for (const localReport& report : host.reports) {
        EXPECT_THAT(utf8(report.text), HasSubstr("Ошибка открытия базы"));
        EXPECT_THAT(utf8(report.text), HasSubstr("databaseText() = There is no such file."));
    }
    EXPECT_FALSE(std::filesystem::exists("data.sqlite"));
}

TEST_F(localDataBaseTest, aNullResultIsWantedOfTheCaller) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    void* object = nullptr;
    goods();
    const auto method = [](localClassDeclaration* declaration) {
        return declaration->memberFind(u"~")->methodFunction;
    };
    EXPECT_HALT(
        method(localDataBase::classDeclaration())(status_, nullptr, object, u"", nullptr, result),
        "localDataBase::classImplementationMethodFunction() result must be NULL!");
    // The record says it under the neighbour's name, its fields under its own.
    EXPECT_HALT(method(localDataBaseRecord::classDeclaration())(status_, nullptr, object, u"",
                                                                nullptr, result),
                "localDataBaseTable::classImplementationMethodFunction() result must be NULL!");
    EXPECT_HALT(localDataBaseRecord::classDeclaration()->classImplementationAttribGetFunction(
                    status_, nullptr, record_.pointer, u"CODE", result),
                "localDataBaseRecord::classImplementationMethodFunction() result must be NULL!");
}

}  // namespace
