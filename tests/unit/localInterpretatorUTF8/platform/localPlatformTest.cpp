#include "localInterpretatorUTF8/platform/localPlatform.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>

#include "support/ownFolder.h"

namespace {

using namespace localPlatform;

class localPlatformTest : public testing::Test {
protected:
    const ownFolder folder;
};

bool written(const std::string& name, std::string_view text = "x") {
    return static_cast<bool>(std::ofstream(name, std::ios::binary) << text);
}

TEST_F(localPlatformTest, bothSlashesBecomeTheSeparator) {
    EXPECT_EQ(pathSeparator, u'/');
    EXPECT_EQ(normalizedPath(u"a\\b/c\\\\d"), u"a/b/c//d");
    EXPECT_EQ(normalizedPath(u""), u"");
    EXPECT_EQ(normalizedPath(u"имя.prg"), u"имя.prg");
}

TEST_F(localPlatformTest, fileNamesTravelAsUtf8) {
    const std::pair<std::u16string, std::string> rows[] = {
        {u"", ""},
        {u"a.prg", "a.prg"},
        {u"Ёж", "\xD0\x81\xD0\xB6"},
        {u"\u20AC", "\xE2\x82\xAC"},
        {u"\U0001F600", "\xF0\x9F\x98\x80"},
        {u"\u00DF", "\xC3\x9F"},
        {u"\uFFFD", "\xEF\xBF\xBD"},
    };
    for (const auto& [name, bytes] : rows) {
        EXPECT_EQ(fileNameToBytes(name), bytes);
        EXPECT_EQ(fileNameFromBytes(bytes), name);
    }
}

TEST_F(localPlatformTest, bytesThatAreNoUtf8ComeBackAsTheyWere) {
    const std::string rows[] = {
        "\xFF",         "a\x80z",           "\xD0",     "\xE2\x82",     "\xC0\x80",
        "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF8\x88", "\xE0\x80\x80", "\xCF\xF0\xE8",
    };
    for (const std::string& bytes : rows) {
        EXPECT_EQ(fileNameToBytes(fileNameFromBytes(bytes)), bytes);
    }
}

TEST_F(localPlatformTest, everyNameOfTwoBytesSurvivesTheWayThereAndBack) {
    for (unsigned first = 1; first < 256; ++first) {
        for (unsigned second = 1; second < 256; ++second) {
            const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
            ASSERT_EQ(fileNameToBytes(fileNameFromBytes(bytes)), bytes);
        }
    }
}

TEST_F(localPlatformTest, filesAreOpenedAndFoldersAreNot) {
    ASSERT_TRUE(written("файл.txt", "abc"));
    std::filesystem::create_directory("folder");
    const auto open = [](std::u16string_view name, const char* mode) {
        std::FILE* file = openFile(name, mode);
        if (file != nullptr) {
            std::fclose(file);
        }
        return file != nullptr;
    };
    EXPECT_TRUE(open(u"файл.txt", "rb"));
    EXPECT_TRUE(open(u".\\файл.txt", "rb"));
    EXPECT_TRUE(open(u"folder\\new.txt", "wb"));
    EXPECT_FALSE(open(u"folder", "rb"));
    EXPECT_FALSE(open(u"folder", "wb"));
    EXPECT_FALSE(open(u"missing.txt", "rb"));
    EXPECT_FALSE(open(u"missing/new.txt", "wb"));
    EXPECT_FALSE(open(u"", "rb"));
    EXPECT_FALSE(open(std::u16string(u"файл.txt\0x", 10), "rb")) << "a unit 0 cuts no name short";
    EXPECT_FALSE(open(std::u16string(5000, u'a'), "wb"));
}

TEST_F(localPlatformTest, readableMeansAFile) {
    ASSERT_TRUE(written("file.txt"));
    std::filesystem::create_directory("folder");
    std::filesystem::create_symlink("nowhere", "dangling");
    EXPECT_TRUE(fileReadable(u"file.txt"));
    EXPECT_FALSE(fileReadable(u"folder"));
    EXPECT_FALSE(fileReadable(u"missing"));
    EXPECT_FALSE(fileReadable(u"dangling"));
    EXPECT_FALSE(fileReadable(u""));
    EXPECT_TRUE(pathExists(u"file.txt"));
    EXPECT_TRUE(pathExists(u"folder"));
    EXPECT_TRUE(pathExists(u"folder\\"));
    EXPECT_FALSE(pathExists(u"missing"));
    EXPECT_FALSE(pathExists(u"file.txt/x"));
    EXPECT_FALSE(pathExists(u""));
}

TEST_F(localPlatformTest, filesAreRemovedAndFoldersAreNot) {
    ASSERT_TRUE(written("file.txt"));
    std::filesystem::create_directory("folder");
    EXPECT_TRUE(removeFile(u"file.txt"));
    EXPECT_FALSE(pathExists(u"file.txt"));
    EXPECT_FALSE(removeFile(u"file.txt"));
    EXPECT_FALSE(removeFile(u"folder"));
    EXPECT_TRUE(pathExists(u"folder"));
}

TEST_F(localPlatformTest, aFileIsToldFromOneMadeAnewUnderItsName) {
    std::ofstream("file.txt") << "first";
    const auto first = fileIdentity(u"file.txt");
    ASSERT_TRUE(first);
    EXPECT_EQ(fileIdentity(u"./file.txt"), first);
    std::ofstream("file.txt") << "other bytes, the same file";
    EXPECT_EQ(fileIdentity(u"file.txt"), first);
    // Its number is not given to another as long as somebody has it open.
    const std::ifstream open("file.txt");
    std::filesystem::remove("file.txt");
    EXPECT_FALSE(fileIdentity(u"file.txt"));
    std::ofstream("file.txt") << "second";
    ASSERT_TRUE(fileIdentity(u"file.txt"));
    EXPECT_NE(fileIdentity(u"file.txt"), first);
    EXPECT_FALSE(fileIdentity(std::u16string_view(u"file.txt\0", 9)));
}

TEST_F(localPlatformTest, theWorkingDirectoryIsChanged) {
    const std::u16string before = workingDirectory();
    std::filesystem::create_directory("каталог");
    EXPECT_TRUE(changeWorkingDirectory(u"каталог"));
    EXPECT_EQ(workingDirectory(), before + u"/каталог");
    EXPECT_FALSE(changeWorkingDirectory(u"missing"));
    EXPECT_FALSE(changeWorkingDirectory(u""));
    EXPECT_EQ(workingDirectory(), before + u"/каталог");
    EXPECT_TRUE(changeWorkingDirectory(u".."));
    EXPECT_EQ(workingDirectory(), before);
}

TEST_F(localPlatformTest, aWorkingDirectoryThatIsGoneIsEmpty) {
    const std::u16string before = workingDirectory();
    std::filesystem::create_directory("short");
    ASSERT_TRUE(changeWorkingDirectory(u"short"));
    std::filesystem::remove("../short");
    EXPECT_EQ(workingDirectory(), u"");
    EXPECT_TRUE(changeWorkingDirectory(before));
}

TEST_F(localPlatformTest, entriesOfAFolderAreSortedFoldersFirst) {
    std::filesystem::create_directories("d/b");
    std::filesystem::create_directories("d/Z");
    std::filesystem::create_directory_symlink("b", "d/link");
    for (const char* name : {"d/a", "d/B", "d/ё", "d/я", "d/.hidden"}) {
        ASSERT_TRUE(written(name));
    }
    std::vector<std::u16string> names;
    for (const DirectoryEntry& entry : directoryEntries(u"d")) {
        names.push_back(entry.name + (entry.isDirectory ? u"/" : u""));
    }
    EXPECT_EQ(names, (std::vector<std::u16string>{u"Z/", u"b/", u"link/", u".hidden", u"B", u"a",
                                                  u"я", u"ё"}));
    EXPECT_TRUE(directoryEntries(u"missing").empty());
    EXPECT_TRUE(directoryEntries(u"d/a").empty());
    EXPECT_TRUE(directoryEntries(u"").empty());
}

TEST_F(localPlatformTest, factsOfTheSystem) {
    EXPECT_GT(accessibleMemory(), 1024U * 1024U);
    const double before = processMilliseconds();
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_GE(processMilliseconds() - before, 5.0);
    char here = 0;
    EXPECT_LT(stackLimit(), &here);
    EXPECT_GT(&here - stackLimit(), 64 * 1024);
    EXPECT_EQ(programPath("ignored"), std::filesystem::read_symlink("/proc/self/exe").string());
}

bool appears(const std::string& name) {
    for (int i = 0; i < 500; ++i) {
        if (std::filesystem::exists(name)) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

TEST_F(localPlatformTest, aProgramIsStartedAndNotWaitedFor) {
    const auto began = std::chrono::steady_clock::now();
    EXPECT_TRUE(startProgram(u"touch 'начало'; for i in 1 2 3; do :; done; touch 'конец'"));
    EXPECT_TRUE(startProgram(u"touch began; sleep 3"));
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(2));
    EXPECT_TRUE(appears("конец"));
    EXPECT_TRUE(appears("began"));
}

TEST_F(localPlatformTest, theEditorOfThePersonIsStarted) {
    ASSERT_TRUE(written("edit", "#!/bin/sh\ntouch \"$2.opened\"\n"));
    ASSERT_EQ(chmod("edit", 0755), 0);
    setenv("VISUAL", "./edit --option", 1);
    EXPECT_TRUE(startEditor(u"имя с пробелом.prg"));
    EXPECT_TRUE(appears("имя с пробелом.prg.opened"));
    unsetenv("VISUAL");
    EXPECT_FALSE(startEditor(u""));
}

}  // namespace
