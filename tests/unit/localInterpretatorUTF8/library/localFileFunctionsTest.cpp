#include <gmock/gmock.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "library/libraryCall.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/file/localStd.h"

namespace {

namespace fs = std::filesystem;
using fileFunctionsTest = libraryTest;

void write(const fs::path& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string read(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

TEST_F(fileFunctionsTest, aFileThatCannotBeReadLeavesNoStatus) {
    const libraryOutcome text = call(u"STRINGFROMFILE", u"missing.txt");
    EXPECT_FALSE(text.done);
    EXPECT_EQ(text.status, localErrorTypeOK);
    EXPECT_EQ(text.result->type, localValueTypeSTRING);
    EXPECT_TRUE(text.result->wStr.empty());
    const libraryOutcome base64 = call(u"BASE64FROMFILE", u"missing.txt");
    EXPECT_FALSE(base64.done);
    EXPECT_EQ(base64.status, localErrorTypeOK);
}

TEST_F(fileFunctionsTest, aFailedWriteIsToldInACriticalBox) {
    const libraryOutcome outcome = call(u"STRINGAPPENDTOFILE", u"x", u"missing/file.txt");
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(outcome.result->num, 0.0);
    EXPECT_THAT(host.calls,
                testing::Contains("critical [save] [Ошибка записи файла [missing/file.txt]\n]"));
}

TEST_F(fileFunctionsTest, bytesGoThroughBase64Unchanged) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    write("bytes.bin", bytes);
    const libraryOutcome text = call(u"BASE64FROMFILE", u"bytes.bin");
    ASSERT_TRUE(text.done);
    ASSERT_TRUE(call(u"BASE64APPENDTOFILE", text.result->wStr.view(), u"again.bin").done);
    EXPECT_EQ(read("again.bin"), bytes);
}

TEST_F(fileFunctionsTest, listsFilesWhoseNamesAreNoUtf8) {
    fs::create_directory("odd");
    write("odd/\xFF.txt", "found");
    const libraryOutcome outcome = call(u"FILES", u"*.txt", u"odd");
    const localValueList* list = localValueList::of(*outcome.result);
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->size(), 1U);
    EXPECT_EQ(list->linkCounter, 1U);
    const std::u16string name = u"odd/" + list->items()[0].value.wStr.string();
    EXPECT_EQ(call(u"STRINGFROMFILE", name).result->wStr.view(), u"found");
}

TEST_F(fileFunctionsTest, aMaskOfManyStarsEnds) {
    fs::create_directory("long");
    write(fs::path("long") / std::string(200, 'a'), "");
    const std::u16string mask = u"*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b";
    EXPECT_EQ(localValueList::of(*call(u"FILES", mask, u"long").result)->size(), 0U);
}

TEST_F(fileFunctionsTest, aModuleThatLoadsItselfForEverEnds) {
    write("endless.txt", "MODULELOAD(\"endless.txt\");\n");
    const libraryOutcome outcome = call(u"MODULELOAD", u"endless.txt");
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(outcome.status, localErrorTypeOK);
}

TEST_F(fileFunctionsTest, theProgramsFolderIsThatOfItsPath) {
    EXPECT_EQ(call(u"BINARYPATH").result->wStr.view(), localStd::binaryPath());
}

TEST_F(fileFunctionsTest, secondsBeginAtLocalMidnight) {
    const double seconds = call(u"SECONDS20000101").result->num;
    const std::time_t then = std::time(nullptr) - static_cast<std::time_t>(seconds);
    std::tm midnight{};
    ASSERT_NE(localtime_r(&then, &midnight), nullptr);
    EXPECT_EQ(midnight.tm_year, 100);
    EXPECT_EQ(midnight.tm_yday, 0);
    EXPECT_EQ(midnight.tm_hour, 0);
    EXPECT_EQ(midnight.tm_min, 0);
    EXPECT_LE(midnight.tm_sec, 1);
}

}  // namespace
