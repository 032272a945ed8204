#include "localDb/connection/localDbConnection.h"

#include <QCoreApplication>
#include <QThread>

#include <filesystem>
#include <thread>

#include "support/localDbTest.h"

namespace {

using testing::ElementsAre;
using testing::Optional;

class localDbConnectionTest : public localDbTest {
public:
    void SetUp() override {
        localDb::applicationSetDataFullFileName(u"");
        for (const char* const file : {"mine.sqlite", "other.sqlite", "fallback.sqlite"}) {
            std::filesystem::remove(file);
        }
    }
    void TearDown() override { localDb::applicationSetDataFullFileName(u""); }
};

TEST_F(localDbConnectionTest, theLastHoldRemovesTheConnection) {
    EXPECT_FALSE(localDbConnection::exists(u"one"));
    {
        const localDbConnection first(u"one");
        {
            const localDbConnection second(u"one");
            EXPECT_TRUE(QSqlDatabase::contains("one"));
        }
        EXPECT_TRUE(QSqlDatabase::contains("one"));
        EXPECT_EQ(first.database().driverName(), "QSQLITE");
    }
    EXPECT_FALSE(QSqlDatabase::contains("one"));
}

TEST_F(localDbConnectionTest, anObjectsNameIsAStampOfTheTime) {
    EXPECT_THAT(narrow(localDbConnection::nameForObject()),
                testing::MatchesRegex("db-[0-9]{8}:[0-9]{2}:[0-9]{2}:[0-9]{2}"));
}

TEST_F(localDbConnectionTest, onOneThreadObjectsOfOneSecondShare) {
    std::u16string first;
    std::u16string second;
    do {
        first = localDbConnection::nameForObject();
        const localDbConnection held(first);
        second = localDbConnection::nameForObject();
    } while (first.substr(0, 20) != second.substr(0, 20));
    EXPECT_EQ(first, second);
}

TEST_F(localDbConnectionTest, onAnotherThreadAnObjectGetsAConnectionOfItsOwn) {
    std::u16string first;
    std::u16string second;
    do {
        first = localDbConnection::nameForObject();
        const localDbConnection held(first);
        std::thread([&] { second = localDbConnection::nameForObject(); }).join();
    } while (first.substr(0, 20) != second.substr(0, 20));
    EXPECT_EQ(second, first + u"#2");
}

TEST_F(localDbConnectionTest, withoutAChosenFileNothingOpens) {
    EXPECT_FALSE(connection->open());
    EXPECT_FALSE(localDbConnection::open(name, u""));
    EXPECT_EQ(connection->tables(), std::nullopt);
    EXPECT_FALSE(connection->database().isOpen());
    EXPECT_FALSE(localDbConnection::open(u"nobody's", u"data.sqlite"));
}

TEST_F(localDbConnectionTest, aStatementWithoutAFileSaysSo) {
    QSqlQuery query;
    EXPECT_FALSE(localDb::dbQueryExec(name, u"select 1;", query));
    EXPECT_THAT(boxes(), ElementsAre(queryBox("select 1;", "The connection is not open.", "")));
}

TEST_F(localDbConnectionTest, openForTheSameFileGoesOn) {
    make("create table t(id integer primary key); insert into t values(1),(2);");
    QSqlQuery underWay(connection->database());
    ASSERT_TRUE(underWay.exec("select id from t order by id"));
    ASSERT_TRUE(underWay.next());
    EXPECT_TRUE(localDbConnection::open(name, wide(fileName)));
    EXPECT_TRUE(localDbConnection::open(name, u"./data.sqlite"));
    EXPECT_TRUE(connection->open());
    EXPECT_TRUE(underWay.next());
    EXPECT_EQ(underWay.value(0).toInt(), 2);
}

TEST_F(localDbConnectionTest, openForAnotherFileClosesTheFirst) {
    make("create table a(id integer primary key);");
    sqliteProgram("other.sqlite", "create table b(id integer primary key);");
    EXPECT_THAT(connection->tables(), Optional(ElementsAre(u"a")));
    EXPECT_TRUE(localDbConnection::open(name, u"other.sqlite"));
    EXPECT_THAT(connection->tables(), Optional(ElementsAre(u"b")));
    EXPECT_EQ(connection->database().databaseName(), "other.sqlite");
}

TEST_F(localDbConnectionTest, aConnectionOfTheToolkitIsUsedAsItIs) {
    make("create table a(id integer primary key);");
    {
        QSqlDatabase others = QSqlDatabase::addDatabase("QSQLITE", "others");
        others.setDatabaseName(fileName);
        EXPECT_TRUE(localDb::dbTableExist(u"others", u"a"));
        EXPECT_TRUE(others.isOpen());
        EXPECT_FALSE(localDb::dbTableExist(u"others", u"b"));
    }
    QSqlDatabase::removeDatabase("others");
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(localDbConnectionTest, aFileIsOpenedWithTheFixedWords) {
    make("create table a(id integer primary key);");
    const QSqlDatabase database = connection->database();
    EXPECT_EQ(database.hostName().size(), 5);
    EXPECT_EQ(database.userName().size(), 5);
    EXPECT_EQ(database.password().size(), 8);
}

// --- Threads

TEST_F(localDbConnectionTest, anotherThreadIsToldThatItCannotUseAConnection) {
    make("create table t(id integer primary key);");
    std::thread([&] {
        EXPECT_TRUE(localDbConnection::exists(name));
        EXPECT_FALSE(localDbConnection::isHere(name));
        EXPECT_FALSE(connection->open());
        EXPECT_FALSE(localDbConnection::open(name, wide(fileName)));
        EXPECT_EQ(connection->tables(), std::nullopt);
        QSqlQuery query;
        EXPECT_FALSE(localDb::dbQueryExec(name, u"select * from t;", query));
        EXPECT_FALSE(localDb::dbtDelete(name, u"t"));
        EXPECT_EQ(localDb::dbtRecordCount("test", "t"), 0);
    }).join();
    const std::string text = "Connection test belongs to another thread!";
    EXPECT_THAT(boxes(),
                ElementsAre("warning [dbQueryExec] " + plainHead("dbQueryExec") + text,
                            "warning [dbtDelete] " + plainHead("dbtDelete") + text,
                            "warning [dbtRecordCount] " + plainHead("dbtRecordCount") + text));
    EXPECT_EQ(value("select count(*) from t"), "0");
}

TEST_F(localDbConnectionTest, whatAFinishedThreadLeftBehindIsToldOf) {
    make("create table t(id integer primary key);");
    std::unique_ptr<localDbConnection> left;
    std::thread([&] {
        left = std::make_unique<localDbConnection>(u"left");
        EXPECT_TRUE(localDbConnection::open(u"left", wide(fileName)));
        EXPECT_THAT(left->tables(), Optional(ElementsAre(u"t")));
    }).join();
    // A thread that comes later may get the number of the one that ended.
    std::thread([&] { EXPECT_FALSE(left->open()); }).join();
    EXPECT_FALSE(left->open());
    EXPECT_FALSE(localDb::dbTableExist(u"left", u"t"));
    EXPECT_THAT(boxes(), ElementsAre("warning [dbQueryExec] " + plainHead("dbQueryExec") +
                                     "Connection left belongs to another thread!"));
    left.reset();
    EXPECT_FALSE(localDbConnection::exists(u"left"));
}

TEST_F(localDbConnectionTest, aNewHoldTakesAConnectionOverFromAThreadThatEnded) {
    make("create table t(id integer primary key);");
    std::unique_ptr<localDbConnection> left;
    std::thread([&] { left = std::make_unique<localDbConnection>(u"left"); }).join();
    const localDbConnection mine(u"left");
    // Under the old name, but made on this thread.
    EXPECT_EQ(mine.database().driver()->thread(), QThread::currentThread());
    EXPECT_TRUE(localDbConnection::open(u"left", wide(fileName)));
    EXPECT_THAT(left->tables(), Optional(ElementsAre(u"t")));
}

TEST_F(localDbConnectionTest, twoThreadsReadOneFileOverConnectionsOfTheirOwn) {
    make("create table t(id integer primary key); insert into t values(7);");
    std::thread([&] {
        const localDbConnection own(u"own");
        EXPECT_TRUE(localDbConnection::open(u"own", wide(fileName)));
        EXPECT_EQ(localDb::dbtFieldGetMaxVal(u"own", u"t", u"id"), u"7");
    }).join();
    EXPECT_EQ(localDb::dbtFieldGetMaxVal(name, u"t", u"id"), u"7");
    EXPECT_THAT(boxes(), ElementsAre());
}

#ifndef NDEBUG
TEST_F(localDbConnectionTest, theHandleIsRefusedOnAnotherThread) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(std::thread([&] { localDbConnection::database(name); }).join(), "isHere");
}
#endif

// --- The data file

TEST_F(localDbConnectionTest, theNameThatWasSetIsTheAnswerWhenTheFileExists) {
    sqliteProgram("mine.sqlite", "create table t(id integer primary key);");
    localDb::applicationSetDataFullFileName(u"mine.sqlite");
    EXPECT_EQ(QCoreApplication::instance()->property("dataFileName").toString(), "mine.sqlite");
    EXPECT_EQ(localDb::applicationGetDataFullFileName(), u"mine.sqlite");
    EXPECT_THAT(host.calls, ElementsAre());
}

TEST_F(localDbConnectionTest, theDefaultNameIsTakenWhenItsFileExists) {
    std::filesystem::create_directories("in");
    std::filesystem::create_directories("lib");
    sqliteProgram("lib/Zakup200215.sqlite", "create table t(id integer primary key);");
    std::filesystem::current_path("in");
    localDb::applicationSetDataFullFileName(u"gone.sqlite");
    testing::internal::CaptureStdout();
    EXPECT_EQ(localDb::applicationGetDataFullFileName(), u"..\\lib\\Zakup200215.sqlite");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "defaultName=..\\lib\\Zakup200215.sqlite\n");
    std::filesystem::current_path("..");
    EXPECT_THAT(host.calls, ElementsAre());
    EXPECT_EQ(QCoreApplication::instance()->property("dataFileName").toString(),
              "..\\lib\\Zakup200215.sqlite");
}

TEST_F(localDbConnectionTest, elseAPersonChooses) {
    host.answers = {std::u16string(u"chosen.sqlite")};
    EXPECT_EQ(localDb::applicationGetDataFullFileName(), u"chosen.sqlite");
    const std::string folder = std::filesystem::current_path();
    EXPECT_THAT(host.calls,
                ElementsAre("file [Open file database ] [" + folder + "] |*.sqlite *.sqlite|"));
    EXPECT_EQ(QCoreApplication::instance()->property("dataFileName").toString(), "chosen.sqlite");
}

TEST_F(localDbConnectionTest, anEmptyChoiceKeepsTheDefaultName) {
    EXPECT_EQ(localDb::applicationGetDataFullFileName(), u"..\\lib\\Zakup200215.sqlite");
}

TEST_F(localDbConnectionTest, theMainConnectionOpensOnAFile) {
    sqliteProgram("mine.sqlite", "create table t(id integer primary key);");
    for (const auto init : {localDb::testDbInit, localDb::testDbSqliteInit}) {
        testing::internal::CaptureStdout();
        EXPECT_TRUE(init(u"mine.sqlite"));
        EXPECT_EQ(testing::internal::GetCapturedStdout(),
                  "fileNameForOpenQString=[mine.sqlite]localDb::testDbInit выбран файл "
                  "[mine.sqlite]\nбаза данных по адресу [mine.sqlite] открыта успешно.\n");
        EXPECT_TRUE(localDb::dbTableExist(u"dbMain", u"t"));
    }
    EXPECT_THAT(host.calls, ElementsAre());
}

TEST_F(localDbConnectionTest, theMainConnectionFallsBackToTheDataFile) {
    sqliteProgram("fallback.sqlite", "create table t(id integer primary key);");
    localDb::applicationSetDataFullFileName(u"fallback.sqlite");
    EXPECT_TRUE(localDb::testDbInit(u"gone.sqlite"));
    EXPECT_TRUE(localDb::dbTableExist(u"dbMain", u"t"));
}

TEST_F(localDbConnectionTest, aFolderDoesNotOpen) {
    std::filesystem::create_directories("folder");
    EXPECT_FALSE(localDb::testDbInit(u"folder"));
    EXPECT_TRUE(localDbConnection::exists(u"dbMain"));
    EXPECT_THAT(boxes(), ElementsAre("critical [testDbInit] " + plainHead("testDbInit") +
                                     "Ошибка открытия базы\nfileName = folder\n"
                                     "driverText()   = Error opening database\n"
                                     "databaseText() = unable to open database file\n"));
}

}  // namespace
