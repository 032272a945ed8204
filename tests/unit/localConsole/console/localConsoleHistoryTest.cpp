// The history of commands by itself: its file, and the places that back and forward go to.
#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <optional>

#include "localConsole/console/localConsoleHistory.h"
#include "support/recordingHost.h"

namespace {

const QString fileName = "console_history.log";

class consoleHistoryList : public testing::Test {
protected:
    consoleHistoryList() { QFile::remove(fileName); }
    ~consoleHistoryList() override { QFile::remove(fileName); }

    static void write(const QByteArray& bytes) {
        QFile file(fileName);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    static std::string bytes() {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
    }

    recordingHost host;
};

using line = std::optional<QString>;

TEST_F(consoleHistoryList, aMissingFileIsToldAndMadeByTheFirstCommand) {
    localConsoleHistory history;
    EXPECT_EQ(host.reports.size(), 1U);
    EXPECT_EQ(bytes(), "(no file)");
    EXPECT_EQ(history.back(), line());
    EXPECT_EQ(history.forward(), line());
    history.enter("? 1");
    EXPECT_EQ(bytes(), "? 1\n");
}

TEST_F(consoleHistoryList, anEmptyFileIsNoMissingOne) {
    write("");
    EXPECT_TRUE(localConsoleHistory().lines().isEmpty());
    EXPECT_TRUE(host.reports.empty());
}

TEST_F(consoleHistoryList, blankLinesAreNoLines) {
    write("\n a \r\n\t\nЁж\n\n");
    EXPECT_EQ(localConsoleHistory().lines(), QStringList({"a", "Ёж"}));
}

TEST_F(consoleHistoryList, backStopsAtTheOldestAndForwardAtTheEnd) {
    write("a\nb\nc\n");
    localConsoleHistory history;
    EXPECT_EQ(history.forward(), line());
    EXPECT_EQ(history.back(), line("c"));
    EXPECT_EQ(history.back(), line("b"));
    EXPECT_EQ(history.back(), line("a"));
    EXPECT_EQ(history.back(), line());
    EXPECT_EQ(history.forward(), line("b"));
    EXPECT_EQ(history.forward(), line("c"));
    EXPECT_EQ(history.forward(), line(""));
    EXPECT_EQ(history.forward(), line());
    EXPECT_EQ(history.back(), line("c"));
}

TEST_F(consoleHistoryList, enteringStandsBehindTheLast) {
    write("a\nb\n");
    localConsoleHistory history;
    history.back();
    history.back();
    history.enter("b");
    EXPECT_EQ(history.lines(), QStringList({"a", "b"}));
    EXPECT_EQ(history.back(), line("b"));
    history.enter("a");
    EXPECT_EQ(history.lines(), QStringList({"a", "b", "a"}));
    EXPECT_EQ(history.back(), line("a"));
    EXPECT_EQ(bytes(), "a\nb\na\n");
}

TEST_F(consoleHistoryList, aLastLineWithoutAnEndIsEndedFirst) {
    write("a\nb");
    localConsoleHistory history;
    history.enter("c");
    history.enter("d");
    EXPECT_EQ(bytes(), "a\nb\nc\nd\n");
}

TEST_F(consoleHistoryList, twoConsolesWriteIntoOneFile) {
    write("a\n");
    localConsoleHistory first;
    localConsoleHistory second;
    first.enter("b");
    second.enter("c");
    first.enter("d");
    EXPECT_EQ(bytes(), "a\nb\nc\nd\n");
}

TEST_F(consoleHistoryList, aFileThatCannotBeWrittenLosesNothingInMemory) {
    localConsoleHistory history;
    ASSERT_TRUE(QDir().mkdir(fileName));
    history.enter("a");
    EXPECT_EQ(history.back(), line("a"));
    ASSERT_TRUE(QDir().rmdir(fileName));
    history.enter("b");
    EXPECT_EQ(bytes(), "b\n");
}

}  // namespace
