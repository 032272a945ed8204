// Files that are locked, read-only, broken, replaced or full, and a process that is killed: each
// fault is really made.

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "localDb/index/localDbDataSource200123.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "support/localDbTest.h"

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Field = localDbFieldDescription;

class localDbFaultsTest : public localDbTest {
public:
    void SetUp() override {
        make("create table t(id integer primary key autoincrement, a CHAR(40));"
             "insert into t(a) with recursive n(i) as (select 1 union all select i+1 from n limit"
             " 5000) select printf('row %05d',i) from n; create index t_a on t(a);");
    }

    // Another process that runs statements and then sits on the file for a time.
    class Other {
    public:
        Other(const std::string& sql, double seconds) {
            process_ = popen(("sqlite3 " + std::string(fileName)).c_str(), "w");
            fputs((sql + ";\n.shell touch locked\n.shell sleep " + std::to_string(seconds) +
                   "\n.quit\n")
                      .c_str(),
                  process_);
            fflush(process_);
            while (!std::filesystem::exists("locked")) {
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
            std::filesystem::remove("locked");
        }
        ~Other() { pclose(process_); }
        Other(const Other&) = delete;
        Other& operator=(const Other&) = delete;

    private:
        FILE* process_;
    };

    bool append(const char16_t* text) const {
        Field field(u"a", u"CHAR", 40, 0);
        field.value = localString::toUtf8(text);
        return localDb::dbtRecordAppend(name, u"t", localDb::Fields{field});
    }
    std::unique_ptr<localDbDataSource200123> source() const {
        return localDbDataSource200123::make(name, {{.aliasName = u"t", .dbtName = u"t"}},
                                             {{.sqlExpression = u"t.id"}}, {}, u"t_a", {});
    }
    void overwrite(std::size_t from, std::size_t size) const {
        std::fstream file(fileName, std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(static_cast<std::streamoff>(from));
        file << std::string(size, 'Z');
    }
};

// --- Locked

TEST_F(localDbFaultsTest, aFileLockedForAShortTimeIsWaitedFor) {
    const Other other("begin exclusive", 0.4);
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 5000);
    EXPECT_THAT(host.calls, ElementsAre("cursor wait", "cursor restored"));
}

TEST_F(localDbFaultsTest, aFileLockedExclusivelyIsReportedAfterFiveSeconds) {
    const Other other("begin exclusive", 6);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 0);
    const std::chrono::duration<double> waited = std::chrono::steady_clock::now() - start;
    EXPECT_GT(waited.count(), 4.9);
    EXPECT_EQ(host.calls[0], "cursor wait");
    EXPECT_EQ(host.calls[1], "cursor restored");
    ASSERT_EQ(host.reports.size(), 2);
    EXPECT_THAT(boxes()[0], HasSubstr("database is locked"));
    EXPECT_THAT(boxes()[1], StartsWith("critical [localDb::dbtRecordCount]"));
}

TEST_F(localDbFaultsTest, aFileThatOthersReadIsReadToo) {
    const Other other("begin; select count(*) from t", 0.5);
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 5000);
    EXPECT_THAT(host.calls, ElementsAre());
}

TEST_F(localDbFaultsTest, aFileThatOthersReadIsWaitedForBeforeItIsWritten) {
    const Other other("begin; select count(*) from t", 0.5);
    EXPECT_TRUE(append(u"new"));
    EXPECT_THAT(host.calls, ElementsAre("cursor wait", "cursor restored"));
    EXPECT_EQ(value("select max(a) from t where id=5001"), "new");
}

// --- Not a file to write, not a file at all

TEST_F(localDbFaultsTest, aReadOnlyFileIsReadAndNotWritten) {
    if (geteuid() == 0) {
        // The system lets root write any file; the toolkit can be told to open it for reading.
        QSqlDatabase database = connection->database();
        database.close();
        database.setConnectOptions("QSQLITE_BUSY_TIMEOUT=0;QSQLITE_OPEN_READONLY");
        ASSERT_TRUE(database.open());
    } else {
        std::filesystem::permissions(fileName, std::filesystem::perms::owner_read);
        connection->database().close();
    }
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 5000);
    EXPECT_FALSE(append(u"new"));
    ASSERT_EQ(host.reports.size(), 2);
    EXPECT_THAT(boxes()[0], HasSubstr("attempt to write a readonly database"));
    EXPECT_THAT(boxes()[1], StartsWith("critical [localDb::dbtRecordAppend]"));
}

TEST_F(localDbFaultsTest, aFolderDoesNotOpen) {
    std::filesystem::create_directories("folder");
    EXPECT_FALSE(localDb::connectionOpen(name, u"folder", "caller"));
    EXPECT_THAT(boxes(), ElementsAre(StartsWith("critical [caller] " + plainHead("caller") +
                                                "Ошибка открытия базы\nfileName = folder\n")));
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 0);
    localValueTable table;
    EXPECT_FALSE(localDb::queryExecToValueTable(name, table, u"select 1"));
}

// --- Broken

TEST_F(localDbFaultsTest, aFileCutInHalfIsReported) {
    connection->database().close();
    std::filesystem::resize_file(fileName, std::filesystem::file_size(fileName) / 2);
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 0);
    EXPECT_THAT(boxes()[0], HasSubstr("malformed"));
    host.reports.clear();
    source();
    EXPECT_THAT(boxes()[0], HasSubstr("malformed"));
}

TEST_F(localDbFaultsTest, aFileOfOtherBytesIsReported) {
    connection->database().close();
    overwrite(0, 4096);
    testing::internal::CaptureStdout();
    EXPECT_FALSE(localDb::connectionOpen(name, wide(fileName), "caller"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_THAT(boxes(), ElementsAre("critical [caller] " + plainHead("caller") +
                                     "Ошибка открытия базы\nfileName = data.sqlite\n"
                                     "driverText()   = Unable to execute statement\n"
                                     "databaseText() = file is not a database\n"));
    host.reports.clear();
    EXPECT_EQ(connection->tables(), std::nullopt);
    EXPECT_THAT(boxes(), ElementsAre(HasSubstr("file is not a database")));
    host.reports.clear();
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 0);
    EXPECT_THAT(boxes()[0], HasSubstr("file is not a database"));
}

TEST_F(localDbFaultsTest, aFileOverwrittenWhileOpenIsReported) {
    const auto rowsShown = source();
    host.reports.clear();
    overwrite(4096, std::filesystem::file_size(fileName) - 4096);
    sqlite3_db_release_memory(handle());
    connection->database().close();
    rowsShown->fillFromKeyVal({u"row 00500"});
    EXPECT_THAT(rowsShown->dataBuffer(), testing::IsEmpty());
    ASSERT_GE(host.reports.size(), 2);
    EXPECT_THAT(boxes()[0], HasSubstr("malformed"));
    EXPECT_THAT(boxes()[1], StartsWith("warning [fillFromKeyVal]"));
}

TEST_F(localDbFaultsTest, aFileReplacedWhileOpenIsOpenedAnew) {
    const auto rowsShown = source();
    sqliteProgram("new.sqlite",
                  "create table t(id integer primary key, a CHAR(40));"
                  "insert into t values (1,'another file'); create index t_a on t(a);");
    std::filesystem::rename("new.sqlite", fileName);
    rowsShown->fillFromKeyVal({});
    EXPECT_EQ(rowsShown->dataBuffer().size(), 1U);
    EXPECT_TRUE(append(u"new"));
    sqliteProgram(fileName, "delete from t where a='new' and id=2;");
    EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 1);
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbFaultsTest, aTableThatTheNewFileLacksIsReported) {
    const auto rowsShown = source();
    std::filesystem::remove(fileName);
    sqliteProgram(fileName, "create table other(id integer primary key);");
    rowsShown->fillFromKeyVal({u"row 00500"});
    EXPECT_THAT(rowsShown->dataBuffer(), testing::IsEmpty());
    EXPECT_THAT(boxes()[0], HasSubstr("no such table: t"));
    EXPECT_TRUE(localDb::dbTableExist(name, u"other"));
}

TEST_F(localDbFaultsTest, aFileMadeAnewUnderItsNameIsOpenedAnew) {
    std::filesystem::remove(fileName);
    sqliteProgram(fileName, "create table other(id integer primary key);");
    EXPECT_TRUE(localDbConnection::open(name, wide(fileName)));
    EXPECT_THAT(connection->tables(), testing::Optional(ElementsAre(u"other")));
}

TEST_F(localDbFaultsTest, aFileThatIsGoneIsReportedAndNotMadeAnew) {
    std::filesystem::remove(fileName);
    EXPECT_FALSE(append(u"new"));
    EXPECT_THAT(boxes()[0], HasSubstr("The connection is not open."));
    EXPECT_FALSE(std::filesystem::exists(fileName));
    EXPECT_EQ(connection->tables(), std::nullopt);
    sqliteProgram(fileName, "create table t(id integer primary key, a CHAR(40));");
    EXPECT_TRUE(append(u"new"));
}

TEST_F(localDbFaultsTest, aTransactionUnderWayInAReplacedFileIsTold) {
    localValueTable table;
    EXPECT_TRUE(localDb::queryExecToValueTable(name, table, u"BEGIN"));
    std::filesystem::remove(fileName);
    sqliteProgram(fileName, "create table t(id integer primary key);");
    EXPECT_FALSE(localDb::queryExecToValueTable(name, table, u"COMMIT"));
    EXPECT_THAT(boxes(), ElementsAre(HasSubstr("no transaction is active")));
}

TEST_F(localDbFaultsTest, aTableDroppedBetweenTwoCallsIsReported) {
    const auto rowsShown = source();
    host.reports.clear();
    sqliteProgram(fileName, "drop table t;");
    rowsShown->fillFromKeyVal(rowsShown->keyOfRow(100));
    EXPECT_THAT(rowsShown->dataBuffer(), testing::IsEmpty());
    EXPECT_EQ(host.reports.size(), 4);
    EXPECT_THAT(boxes()[0], HasSubstr("no such table: t"));
    EXPECT_EQ(rowsShown->idxSet(u"t_a", 0).row, -1);
    EXPECT_FALSE(localDb::dbtDelete(name, u"t"));
}

TEST_F(localDbFaultsTest, aFullDiskIsReportedAndNothingIsHalfWritten) {
    rows("pragma max_page_count=1");
    const std::u16string text(1 << 16, u'x');
    EXPECT_FALSE(append(text.c_str()));
    ASSERT_EQ(host.reports.size(), 2);
    EXPECT_THAT(boxes()[0], HasSubstr("database or disk is full"));
    host.reports.clear();
    EXPECT_FALSE(localDb::dbtAlter(name, u"t", localDb::dbtFieldsDescriptionsGet(name, u"t")));
    EXPECT_THAT(boxes()[0], HasSubstr("database or disk is full"));
    EXPECT_EQ(value("select count(*) from t"), "5000");
    EXPECT_EQ(value("pragma integrity_check"), "ok");
}

TEST_F(localDbFaultsTest, aQuoteInAKeyValueIsReported) {
    rows("update t set a='it''s' where id=1");
    const auto rowsShown = source();
    rowsShown->fillFromKeyVal({});
    ASSERT_EQ(rowsShown->cell(0, 0), "1");
    const localDbKey key = rowsShown->keyOfRow(0);
    EXPECT_THAT(boxes(), ElementsAre());
    rowsShown->fillFromKeyVal(key);
    EXPECT_EQ(host.reports.size(), 4);
    EXPECT_THAT(rowsShown->relativeKey(key, -128, false), testing::IsEmpty());
    EXPECT_EQ(host.reports.size(), 6);
}

// --- Killed

class localDbKilledTest : public localDbFaultsTest, public testing::WithParamInterface<int> {};

// A child process rebuilds the table and is killed at some place: between two steps, at the box of
// one, or somewhere inside a statement.
TEST_P(localDbKilledTest, everyRowIsInTheTableOrUnderTheFreeName) {
    connection.reset();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        class killer : public recordingHost {
        public:
            int left;
            explicit killer(int boxesLeft) : left(boxesLeft) {}
            Button report(const localReport& box) override {
                if (--left == 0) {
                    kill(getpid(), SIGKILL);
                }
                return recordingHost::report(box);
            }
        };
        const int place = GetParam();
        const killer dies(place < 10 ? place : 100);
        const localDbConnection own(u"own");
        localDbConnection::open(u"own", wide(fileName));
        const localDb::Fields fields = localDb::dbtFieldsDescriptionsGet(u"own", u"t");
        if (place >= 10) {
            // Counted in steps of SQLite's machine, so that it falls inside a statement.
            sqlite3* const handle =
                *static_cast<sqlite3* const*>(own.database().driver()->handle().constData());
            sqlite3_progress_handler(
                handle, place,
                [](void*) -> int {
                    static int calls = 0;
                    return ++calls == 50 ? kill(getpid(), SIGKILL) : 0;
                },
                nullptr);
        }
        localDb::dbtAlter(u"own", u"t", fields);
        _exit(7);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);

    connection = std::make_unique<localDbConnection>(name);
    ASSERT_TRUE(localDbConnection::open(name, wide(fileName)));
    EXPECT_EQ(value("pragma integrity_check"), "ok");
    const bool kept = localDb::dbTableExist(name, u"t");
    EXPECT_EQ(value(kept ? "select count(*) from t" : "select count(*) from tmp1"), "5000");
    EXPECT_EQ(value(kept ? "select a from t where id=77" : "select a from tmp1 where id=77"),
              "row 00077");
}

INSTANTIATE_TEST_SUITE_P(, localDbKilledTest, testing::Values(1, 2, 3, 10, 100, 400, 700, 1000));

}  // namespace
