#include "localInterpretatorUTF8/status/localGuard.h"

#include <gmock/gmock.h>

#include <new>
#include <stdexcept>

#include "support/language.h"

namespace {

TEST(localGuard, whatIsDoneStaysAsItIs) {
    const capturedOutput output;
    int status = localErrorTypeBREAK;
    EXPECT_TRUE(localGuarded(status, "run", [] { return true; }));
    EXPECT_FALSE(localGuarded(status, "run", [] { return false; }));
    EXPECT_EQ(status, localErrorTypeBREAK);
    EXPECT_EQ(output.text(), "");
}

TEST(localGuard, memoryThatRunsOutIsStatus16AndALine) {
    const capturedOutput output;
    int status = localErrorTypeOK;
    const unsigned line = __LINE__ + 1;
    EXPECT_FALSE(localGuarded(status, "run", []() -> bool { throw std::bad_alloc(); }));
    EXPECT_EQ(status, localErrorTypeCODE);
    status = localErrorTypeOK;
    EXPECT_FALSE(localGuarded(status, u"ДЕЛАТЬ", []() -> bool { throw std::length_error("a"); }));
    EXPECT_EQ(status, localErrorTypeCODE);
    const std::string place = " file: localGuardTest.cpp line: ";
    EXPECT_EQ(output.text(), "Недостаточно памяти! func: run" + place + std::to_string(line) +
                                 "\nНедостаточно памяти! func: ДЕЛАТЬ" + place +
                                 std::to_string(line + 3) + "\n");
}

TEST(localGuard, anotherExceptionTellsItsOwnWords) {
    const capturedOutput output;
    int status = localErrorTypeOK;
    EXPECT_FALSE(
        localGuarded(status, "run", []() -> bool { throw std::runtime_error("no such page"); }));
    EXPECT_EQ(status, localErrorTypeCODE);
    EXPECT_THAT(output.lines(), testing::ElementsAre("no such page"));
}

TEST(localGuard, aLineThatCannotBeWrittenIsLeftOut) {
    class throwing : public std::streambuf {
        std::streamsize xsputn(const char*, std::streamsize) override { throw std::bad_alloc(); }
    } buffer;
    std::streambuf* before = std::cout.rdbuf(&buffer);
    int status = localErrorTypeOK;
    EXPECT_FALSE(localGuarded(status, "run", []() -> bool { throw std::bad_alloc(); }));
    std::cout.rdbuf(before);
    EXPECT_EQ(status, localErrorTypeCODE);
}

}  // namespace
