// The settings by themselves: what a file gives, and what is written.
#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QRect>

#include <optional>
#include <string>

#include "localConsole/console/localConsoleSettings.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"

namespace {

const QString fileName = "localConsole.ini";

class consoleSettings : public testing::Test {
protected:
    consoleSettings() { QFile::remove(fileName); }
    ~consoleSettings() override { QFile::remove(fileName); }

    static void write(const QByteArray& bytes) {
        QFile file(fileName);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static std::string read() {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
    }

    // Lists are made in a context: the console's stands before its settings.
    localContextUTF8 context;
};

using number = std::optional<int>;
using command = std::optional<QString>;

TEST_F(consoleSettings, aMissingFileGivesNothing) {
    const localConsoleSettings settings;
    EXPECT_EQ(settings.failure(), u"Файл не найден.");
    EXPECT_EQ(settings.text(), u"");
    EXPECT_EQ(settings.number(u"width"), number());
    EXPECT_EQ(settings.command(u"F1"), command());
}

TEST_F(consoleSettings, aPlainObjectGivesNumbersAndCommands) {
    write(R"({"width": 640.5, "x": -3.4, "y": 0, "F5": "? \"Ёж\"", "F8": ""})");
    const localConsoleSettings settings;
    EXPECT_EQ(settings.number(u"width"), number(641));
    EXPECT_EQ(settings.number(u"x"), number(-3));
    EXPECT_EQ(settings.number(u"y"), number(0));
    EXPECT_EQ(settings.number(u"height"), number());
    EXPECT_EQ(settings.command(u"F5"), command("? \"Ёж\""));
    EXPECT_EQ(settings.command(u"F8"), command(""));
    EXPECT_EQ(settings.command(u"F6"), command());
    EXPECT_EQ(settings.command(u"width"), command());
}

TEST_F(consoleSettings, numbersOutOfReasonAreNone) {
    write(R"({"width": 10000000, "height": -10000000, "x": 999999})");
    const localConsoleSettings settings;
    EXPECT_EQ(settings.number(u"width"), number());
    EXPECT_EQ(settings.number(u"height"), number());
    EXPECT_EQ(settings.number(u"x"), number(999999));
}

TEST_F(consoleSettings, whatIsSavedIsReadBackBesideTheRest) {
    write(R"({"F5": "? 5", "width": 1})");
    {
        localConsoleSettings settings;
        EXPECT_EQ(settings.failure(), u"");
        EXPECT_TRUE(settings.geometrySave(QRect(-7, 8, 640, 480)));
    }
    localConsoleSettings settings;
    EXPECT_EQ(settings.number(u"x"), number(-7));
    EXPECT_EQ(settings.number(u"y"), number(8));
    EXPECT_EQ(settings.number(u"width"), number(640));
    EXPECT_EQ(settings.number(u"height"), number(480));
    EXPECT_EQ(settings.command(u"F5"), command("? 5"));
    // Many times over: the file does not grow.
    EXPECT_TRUE(settings.geometrySave(QRect(-7, 8, 640, 480)));
    const qint64 size = QFile(fileName).size();
    for (int i = 0; i < 10; ++i) {
        EXPECT_TRUE(localConsoleSettings().geometrySave(QRect(-7, 8, 640, 480)));
    }
    EXPECT_EQ(QFile(fileName).size(), size);
}

TEST_F(consoleSettings, aFolderInThePlaceOfTheFileFailsTheSaving) {
    ASSERT_TRUE(QDir().mkdir(fileName));
    localConsoleSettings settings;
    EXPECT_FALSE(settings.geometrySave(QRect(1, 2, 3, 4)));
    ASSERT_TRUE(QDir().rmdir(fileName));
}

TEST_F(consoleSettings, whatAPersonWroteStaysByteForByte) {
    write("\xEF\xBB\xBF// own keys\r\n{\r\n\t\"F3\": \"? \\\"[a]{b}\\\"\", "
          "// brackets, \"quotes\"\r\n"
          "\t\"on\" : true, \"width\":640.5,\"bytes\": \"\xFF\",\r\n"
          "\t\"deep\": {\"height\": [1, {\"x\": 2}]}\r\n}\r\n behind");
    EXPECT_TRUE(localConsoleSettings().geometrySave(QRect(-7, 8, 641, 480)));
    EXPECT_EQ(
        read(),
        "\xEF\xBB\xBF// own keys\r\n{\r\n\t\"F3\": \"? \\\"[a]{b}\\\"\", "
        "// brackets, \"quotes\"\r\n"
        "\t\"on\" : true, \"width\":641,\"bytes\": \"\xFF\",\r\n"
        "\t\"deep\": {\"height\": [1, {\"x\": 2}]}, \"height\": 480, \"x\": -7, \"y\": 8\r\n}\r\n"
        " behind");
}

TEST_F(consoleSettings, theFourNumbersOfATypedListAreChangedInTheirPlaces) {
    write(R"({"t": "OBJ","tN": "VALUELIST","vP": "old","v": [
{"p": "F3","v": {"t": "STR","vP": "","v": "? \"\[a\]\""}}
,{"p": "y","v": {"t": "NUM","vP": "1","v": "1"}}
,{"p": "on","v": {"t": "BOO","vP": "TRUE","v": "true"}}
]} )");
    EXPECT_TRUE(localConsoleSettings().geometrySave(QRect(-7, 8, 641, 480)));
    EXPECT_EQ(read(), R"({"t": "OBJ","tN": "VALUELIST","vP": "old","v": [
{"p": "F3","v": {"t": "STR","vP": "","v": "? \"\[a\]\""}}
,{"p": "y","v": {"t": "NUM","vP": "8","v": "8"}}
,{"p": "on","v": {"t": "BOO","vP": "TRUE","v": "true"}}
,{"p": "width","v": {"t": "NUM","vP": "641","v": "641"}}
,{"p": "height","v": {"t": "NUM","vP": "480","v": "480"}}
,{"p": "x","v": {"t": "NUM","vP": "-7","v": "-7"}}
]} )");
}

TEST_F(consoleSettings, whatIsWrittenAfterTheStartStays) {
    write("{}");
    localConsoleSettings settings;
    write(R"({"F3": "? 3"})");
    EXPECT_TRUE(settings.geometrySave(QRect(1, 2, 3, 4)));
    EXPECT_EQ(read(), R"({"F3": "? 3", "width": 3, "height": 4, "x": 1, "y": 2})");
}

TEST_F(consoleSettings, aTextThatIsNoListStays) {
    for (const char* const text :
         {"width = 640", R"({"width": 640, "hei)", R"({"width": 640,})", R"({"F3" "? 3"})",
          "[1, 2]", "7", R"({"a": })", R"({"a": [1, {"b": 2})", R"({"a": "\\)",
          R"({"t": "NUM", "v": 5})", R"({"t": "OBJ"})"}) {
        write(text);
        EXPECT_FALSE(localConsoleSettings().geometrySave(QRect(1, 2, 3, 4))) << text;
        EXPECT_EQ(read(), text);
    }
}

TEST_F(consoleSettings, anEmptyFileBecomesAList) {
    for (const char* const text : {"", " \r\n"}) {
        write(text);
        EXPECT_TRUE(localConsoleSettings().geometrySave(QRect(1, 2, 3, 4)));
        EXPECT_EQ(localConsoleSettings().number(u"height"), number(4));
    }
}

TEST_F(consoleSettings, slotsAreGivenBack) {
    write(R"({"width": 640, "deep": {"a": [1, {"b": 2}]}})");
    const auto used = localMemoryManager::manager->getUsedCount();
    {
        localConsoleSettings settings;
        EXPECT_TRUE(settings.geometrySave(QRect(1, 2, 3, 4)));
        EXPECT_GT(localMemoryManager::manager->getUsedCount(), used);
    }
    EXPECT_EQ(localMemoryManager::manager->getUsedCount(), used);
}

}  // namespace
