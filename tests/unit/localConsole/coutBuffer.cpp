// The stream buffer behind the console: bytes in, lines out.
#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QEvent>
#include <QThread>
#include <QTimer>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "localConsole/console/localCoutBuffer.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class coutBuffer : public testing::Test {
protected:
    coutBuffer() {
        QObject::connect(&buffer, &localCoutBuffer::COUT, &receiver,
                         [this](const QString& text) { lines.push_back(text.toStdString()); });
    }

    QObject receiver;
    localCoutBuffer buffer;
    std::ostream stream{&buffer};
    std::vector<std::string> lines;
};

TEST_F(coutBuffer, lineWaitsForItsLineFeed) {
    stream << "half";
    EXPECT_THAT(lines, IsEmpty());
    stream.flush();
    EXPECT_THAT(lines, IsEmpty());
    stream << " and half";
    EXPECT_THAT(lines, IsEmpty());
    stream << '\n';
    EXPECT_THAT(lines, ElementsAre("half and half"));
}

TEST_F(coutBuffer, oneTextMayHoldManyLinesAndEmptyOnes) {
    stream << "a\n\nb\n\nrest";
    EXPECT_THAT(lines, ElementsAre("a", "", "b", ""));
    stream << "\n";
    EXPECT_THAT(lines, ElementsAre("a", "", "b", "", "rest"));
}

TEST_F(coutBuffer, singleBytesDoTheSameAsWholeTexts) {
    const std::string bytes = "Корво Ёё\n\nlast\n";
    for (const char byte : bytes) {
        EXPECT_EQ(buffer.sputc(byte), std::char_traits<char>::to_int_type(byte));
        EXPECT_EQ(buffer.lastCharacter(), byte);
    }
    const std::vector<std::string> bySingleBytes = std::exchange(lines, {});
    EXPECT_EQ(buffer.sputn(bytes.data(), static_cast<std::streamsize>(bytes.size())),
              static_cast<std::streamsize>(bytes.size()));
    EXPECT_EQ(lines, bySingleBytes);
    EXPECT_THAT(lines, ElementsAre("Корво Ёё", "", "last"));
}

TEST_F(coutBuffer, keepsTheLastCharacter) {
    stream << "ab";
    EXPECT_EQ(buffer.lastCharacter(), 'b');
    stream << "c\n";
    EXPECT_EQ(buffer.lastCharacter(), '\n');
    stream << "";
    EXPECT_EQ(buffer.lastCharacter(), '\n');
}

TEST_F(coutBuffer, bytesThatAreNoTextDoNotBreakTheLine) {
    stream << "a\xFF"
              "b\xD0\nafter\n";
    EXPECT_THAT(lines, ElementsAre("a\uFFFDb\uFFFD", "after"));
}

TEST_F(coutBuffer, zeroByteIsPartOfTheLine) {
    stream << std::string("a\0b\n", 4);
    EXPECT_THAT(lines, ElementsAre(std::string("a\0b", 3)));
}

TEST_F(coutBuffer, aLetterSplitBetweenTwoTextsIsWhole) {
    stream << "\xD0"
           << "\x9A"
           << "\n";
    EXPECT_THAT(lines, ElementsAre("К"));
}

TEST_F(coutBuffer, eachLineRunsTheEventLoopForAMoment) {
    int events = 0;
    QTimer::singleShot(0, &receiver, [&] { ++events; });
    stream << "no line yet";
    EXPECT_EQ(events, 0);
    stream << "\n";
    EXPECT_EQ(events, 1);
}

TEST_F(coutBuffer, whoHearsOfALineMayWriteOne) {
    QObject::connect(&buffer, &localCoutBuffer::COUT, &receiver, [this](const QString& text) {
        if (text == "question") {
            stream << "answer\n";
        }
    });
    stream << "question\nend\n";
    EXPECT_THAT(lines, ElementsAre("question", "answer", "end"));
}

TEST_F(coutBuffer, linesOfAnotherThreadAreQueued) {
    const std::unique_ptr<QThread> thread(QThread::create([this] { stream << "from afar\n"; }));
    thread->start();
    ASSERT_TRUE(thread->wait(10000));
    EXPECT_THAT(lines, IsEmpty());
    QCoreApplication::processEvents();
    EXPECT_THAT(lines, ElementsAre("from afar"));
}

}  // namespace
