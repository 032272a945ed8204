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

TEST(localTrace, aFunctionOfTheLanguageHasItsOwnName) {
    const capturedOutput output;
    const unsigned line = __LINE__ + 1;
    traceLine(u"ОШИБКА", u"СДЕЛАТЬ");
    EXPECT_EQ(output.text(), "ОШИБКА func: СДЕЛАТЬ" + hereOnLine(line));
}

TEST(localTrace, aLineIsPutTogetherOfPieces) {
    const capturedOutput output;
    const std::u16string name = u"имя";
    writeLine({u">> ", name, u"=", u"", u"1; "});
    traceLine({u"a", u"b"}, "run", std::source_location());
    EXPECT_EQ(output.text(), ">> имя=1; \nab func: run file:  line: 0\n");
}

TEST(localTrace, aLineOfAnyLengthIsWholeWhereverItIsCut) {
    const capturedOutput output;
    std::u16string text;
    std::string wanted;
    for (int i = 0; i < 5000; ++i) {
        text += u"aж"[i % 2 == 0 || i % 7 == 0 ? 1 : 0];
        wanted += i % 2 == 0 || i % 7 == 0 ? "ж" : "a";
    }
    writeLine(text);
    EXPECT_EQ(output.text(), wanted + "\n");
}

TEST(localTrace, whatTheStreamThrowsGoesOnAndLeavesTheStreamAsItWas) {
    class throwing : public std::streambuf {
        std::streamsize xsputn(const char*, std::streamsize) override { throw std::bad_alloc(); }
    } buffer;
    std::streambuf* before = std::cout.rdbuf(&buffer);
    EXPECT_THROW(writeLine(u"line"), std::bad_alloc);
    std::cout.rdbuf(before);
    EXPECT_TRUE(std::cout.good());
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
