#include "localInterpretatorUTF8/text/localTrace.h"

#include <gmock/gmock.h>

#include "support/language.h"

namespace {

std::string hereOnLine(unsigned line) {
    return " file: localTraceTest.cpp line: " + std::to_string(line) + "\n";
}

TEST(localTrace, aTailNamesFunctionFileWithoutFoldersAndLine) {
    const unsigned line = __LINE__ + 1;
    const std::string tail = traceTail("c1reateGlobal");
    EXPECT_EQ(tail + "\n", " func: c1reateGlobal" + hereOnLine(line));
}

TEST(localTrace, aTraceLineIsTheTextAndTheTailOfItsPlace) {
    const capturedOutput output;
    const unsigned line = __LINE__ + 1;
    traceLine(u"ОШИБКА", "делать");
    EXPECT_EQ(output.text(), "ОШИБКА func: делать" + hereOnLine(line));
}

TEST(localTrace, aLineIsWrittenInUtf8WithALineEnd) {
    const capturedOutput output;
    writeLine(u"Привет, ёж");
    writeLine();
    EXPECT_EQ(output.text(), "Привет, ёж\n\n");
}

TEST(localTrace, aLineReachesItsReaderAtOnce) {
    // A buffer that shows only what was flushed.
    class flushedOnly : public std::stringbuf {
    public:
        std::string seen;
        int sync() override {
            seen = str();
            return 0;
        }
    } buffer;
    std::streambuf* before = std::cout.rdbuf(&buffer);
    writeLine(u"line");
    const std::string seen = buffer.seen;
    std::cout.rdbuf(before);
    EXPECT_EQ(seen, "line\n");
}

}  // namespace
