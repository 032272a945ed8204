#include "localInterpretatorUTF8/file/localFile.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "localInterpretatorUTF8/file/localStd.h"
#include "support/language.h"
#include "support/ownFolder.h"

namespace {

using namespace localString;
using testing::ElementsAre;
using testing::StartsWith;

class localFileTest : public testing::Test {
protected:
    static void put(const std::string& name, std::string_view bytes) {
        std::ofstream(name, std::ios::binary) << bytes;
    }
    static std::string bytesOf(const std::string& name) {
        std::ifstream file(name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    const ownFolder folder;
    capturedOutput output;
    recordingHost host;
};

TEST_F(localFileTest, linesAreJoinedAndEmptyOnesAtTheStartVanish) {
    struct Row {
        std::string bytes;
        std::u16string read;    // behind an empty text
        std::u16string behind;  // behind the text "t"
        std::u16string loaded;
    };
    const Row rows[] = {
        {"", u"", u"t", u""},
        {"a", u"a", u"t\na", u"a"},
        {"a\n", u"a", u"t\na", u"a"},
        {"a\n\n", u"a\n", u"t\na\n", u"a\n"},
        {"a\nb", u"a\nb", u"t\na\nb", u"a\nb"},
        {"a\n\nb\n", u"a\n\nb", u"t\na\n\nb", u"a\n\nb"},
        {"\n\ntext\n", u"text", u"t\n\n\ntext", u"\n\ntext"},
        {"\n", u"", u"t\n", u""},
        {"\n\n\n", u"", u"t\n\n\n", u"\n\n"},
        {"a\r\nb\r\n", u"a\r\nb\r", u"t\na\r\nb\r", u"a\r\nb\r"},
        {" \n", u" ", u"t\n ", u" "},
        // Half a letter at the end of a line does not take the line end with it.
        {"a\xD0\nb\xD1\n\nc\xD0\n", u"a\u00FF\nb\u00FF\n\nc\u00FF",
         u"t\na\u00FF\nb\u00FF\n\nc\u00FF", u"a\u00FF\nb\u00FF\n\nc\u00FF"},
    };
    for (const Row& row : rows) {
        put("file.txt", row.bytes);
        std::u16string text;
        EXPECT_TRUE(fileRead(u"file.txt", text, codePageUtf8));
        EXPECT_EQ(text, row.read) << "[" << row.bytes << "]";
        text = u"t";
        EXPECT_TRUE(fileRead(u"file.txt", text, codePageUtf8));
        EXPECT_EQ(text, row.behind) << "[" << row.bytes << "]";
        int status = localErrorTypeOK;
        EXPECT_TRUE(loadFileToText(status, u"file.txt", text, u"Utf8"));
        EXPECT_EQ(text, row.loaded) << "[" << row.bytes << "]";
        EXPECT_EQ(status, localErrorTypeOK);
    }
}

TEST_F(localFileTest, zeroBytesAndLongLinesAreRead) {
    const std::string bytes = std::string("a\0b\n", 4) + std::string(300000, 'x');
    put("file.txt", bytes);
    std::u16string text;
    EXPECT_TRUE(fileRead(u"file.txt", text, codePageUtf8));
    EXPECT_EQ(text, std::u16string(u"a\0b\n", 4) + std::u16string(300000, u'x'));
}

TEST_F(localFileTest, readingFollowsTheCodePage) {
    const std::u16string_view name = u"file.txt";
    std::u16string text;
    put("file.txt", "\xCF\xF0\xE8");
    EXPECT_TRUE(fileRead(name, text, codePageCP1251));
    EXPECT_EQ(utf8(text), "При");
    int status = localErrorTypeOK;
    EXPECT_TRUE(loadFileToText(status, name, text, u" cp125 "));
    EXPECT_EQ(utf8(text), "При");
    put("file.txt", "\x8F\xE0\xA8");
    EXPECT_TRUE(loadFileToText(status, name, text, u"CP86"));
    EXPECT_EQ(utf8(text), "При");
    put("file.txt", "При");
    for (const char16_t* codePage : {u"Utf8", u"", u"cp", u"KOI8-R"}) {
        EXPECT_TRUE(loadFileToText(status, name, text, codePage));
        EXPECT_EQ(utf8(text), "При");
    }
    text.clear();
    EXPECT_TRUE(fileRead(name, text, codePageNative));
    EXPECT_EQ(utf8(text), "При");
}

TEST_F(localFileTest, base64TakesTheBytesAsTheyAre) {
    put("file.bin", std::string("\0\n\xFF\n", 4));
    std::u16string text = u"before ";
    EXPECT_TRUE(fileRead(u"file.bin", text, codePageBase64));
    EXPECT_EQ(utf8(text), "before AAr/Cg==");
    EXPECT_TRUE(fileWrite(FileWriteMode::truncate, codePageBase64, u"AAr/Cg==", u"copy.bin"));
    EXPECT_EQ(bytesOf("copy.bin"), bytesOf("file.bin"));
}

TEST_F(localFileTest, whatCannotBeReadGivesFalse) {
    std::filesystem::create_directory("folder");
    // The last one is opened, and reading it fails.
    for (const char16_t* name :
         {u"missing.txt", u"folder", u"", u"no/such/file", u"/proc/self/mem"}) {
        std::u16string text = u"before";
        EXPECT_FALSE(fileRead(name, text, codePageUtf8)) << utf8(name);
        EXPECT_EQ(text, u"before") << utf8(name);
        EXPECT_FALSE(fileRead(name, text, codePageBase64)) << utf8(name);
        int status = localErrorTypeOK;
        EXPECT_FALSE(loadFileToText(status, name, text, u"Utf8")) << utf8(name);
        EXPECT_EQ(status, 23) << utf8(name);
        EXPECT_EQ(text, u"") << utf8(name);
    }
    EXPECT_EQ(output.text(), "");
    EXPECT_TRUE(host.calls.empty());
}

TEST_F(localFileTest, namesMayUseBothSlashesAndRussianLetters) {
    std::filesystem::create_directory("папка");
    EXPECT_TRUE(fileWrite(FileWriteMode::truncate, codePageUtf8, u"x", u"папка\\файл.txt"));
    EXPECT_EQ(bytesOf("папка/файл.txt"), "x");
    std::u16string text;
    EXPECT_TRUE(fileRead(u".\\папка/файл.txt", text, codePageUtf8));
    EXPECT_EQ(text, u"x");
}

TEST_F(localFileTest, writingTruncatesOrAppends) {
    EXPECT_TRUE(fileWrite(FileWriteMode::append, codePageUtf8, u"Раз", u"file.txt"));
    EXPECT_TRUE(fileWrite(FileWriteMode::append, codePageUtf8, u"\nДва\n", u"file.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "Раз\nДва\n");
    EXPECT_TRUE(fileWrite(FileWriteMode::truncate, codePageCP1251, u"Ё", u"file.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "\xA8");
    EXPECT_TRUE(fileWrite(FileWriteMode::truncate, codePageCP866, u"ёП", u"file.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "\xB8\x8F");
    EXPECT_TRUE(fileWrite(FileWriteMode::truncate, codePageUtf8, u"", u"file.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "");
    EXPECT_TRUE(host.calls.empty());
}

TEST_F(localFileTest, whatCannotBeWrittenShowsTheBox) {
    EXPECT_FALSE(fileWrite(FileWriteMode::truncate, codePageUtf8, u"x", u""));
    EXPECT_TRUE(host.calls.empty()) << "an empty name only gives false";

    std::filesystem::create_directory("folder");
    for (const FileWriteMode mode :
         {FileWriteMode::truncate, FileWriteMode::append, FileWriteMode::replace}) {
        for (const char16_t* name : {u"folder", u"no/such/file", u"/proc/nothing", u"/dev/full"}) {
            host.calls.clear();
            EXPECT_FALSE(fileWrite(mode, codePageUtf8, u"text", name)) << utf8(name);
            EXPECT_THAT(host.calls,
                        ElementsAre("cursor arrow",
                                    StartsWith("critical [save] [Ошибка записи файла [" +
                                               utf8(name) + "]\n"),
                                    "cursor restored"))
                << utf8(name);
        }
    }
}

TEST_F(localFileTest, replacingPutsANewFileInThePlaceOfTheOld) {
    EXPECT_TRUE(fileWrite(FileWriteMode::replace, codePageUtf8, u"first", u"file.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "first");
    namespace fs = std::filesystem;
    fs::permissions("file.txt", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_hard_link("file.txt", "old.txt");
    EXPECT_TRUE(fileWrite(FileWriteMode::replace, codePageUtf8, u"second", u"file.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "second");
    EXPECT_EQ(bytesOf("old.txt"), "first") << "the old file was not written into";
    EXPECT_EQ(fs::status("file.txt").permissions(), fs::perms::owner_read | fs::perms::owner_write);

    fs::create_symlink("file.txt", "link.txt");
    EXPECT_TRUE(fileWrite(FileWriteMode::replace, codePageUtf8, u"third", u"link.txt"));
    EXPECT_TRUE(fs::is_symlink("link.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "third");
    EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 3) << "nothing is left beside them";
    EXPECT_TRUE(host.calls.empty());
}

TEST_F(localFileTest, whatCannotBeReplacedStays) {
    put("file.txt", "old");
    // The place of the new file is taken by a folder.
    std::filesystem::create_directory("file.txt.new");
    EXPECT_FALSE(fileWrite(FileWriteMode::replace, codePageUtf8, u"new", u"file.txt"));
    EXPECT_EQ(bytesOf("file.txt"), "old");
    EXPECT_THAT(host.calls, ElementsAre("cursor arrow",
                                        StartsWith("critical [save] [Ошибка записи файла "
                                                   "[file.txt]\n"),
                                        "cursor restored"));
}

TEST_F(localFileTest, aFullDeviceIsNoticedForLongTextsToo) {
    EXPECT_FALSE(fileWrite(FileWriteMode::append, codePageUtf8, std::u16string(1000000, u'x'),
                           u"/dev/full"));
    EXPECT_EQ(host.calls.size(), 3U);
}

TEST_F(localFileTest, theLogTakesALineAtATime) {
    localPlatform::removeFile(logFileName());
    EXPECT_EQ(logFileName(), localStd::startDirectory() + u"/current.log");
    logWrite(u"Первая");
    logWrite(u"");
    logWrite(u"третья\nи четвёртая");
    EXPECT_EQ(bytesOf(utf8(logFileName())), "Первая\n\nтретья\nи четвёртая\n");
    EXPECT_EQ(output.text(), "");
}

TEST_F(localFileTest, theLogStaysWhereTheProcessBegan) {
    localPlatform::removeFile(logFileName());
    const std::u16string before = localPlatform::workingDirectory();
    std::filesystem::create_directory("elsewhere");
    std::filesystem::current_path("elsewhere");
    logWrite(u"line");
    std::filesystem::current_path("..");
    EXPECT_FALSE(std::filesystem::exists("elsewhere/current.log"));
    EXPECT_EQ(bytesOf(utf8(logFileName())), "line\n");
}

TEST_F(localFileTest, aLogThatCannotBeOpenedGivesOneLine) {
    localPlatform::removeFile(logFileName());
    std::filesystem::create_directory(utf8(logFileName()));
    logWrite(u"line");
    std::filesystem::remove(utf8(logFileName()));
    const std::vector<std::string> lines = output.rawLines();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0], StartsWith("Logfile [" + utf8(logFileName()) +
                                     "] open ERROR! func: logWrite file: localFile.cpp line: "));
}

}  // namespace
