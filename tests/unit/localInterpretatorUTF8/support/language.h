// What the tests of the language library share: readable texts, captured output, a recording host,
// and a fixture that stands on the global context and notices a slot that was not given back.
#pragma once

#include <gmock/gmock.h>

#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "support/recordingHost.h"

// Texts are compared as UTF-8, so that a failure can be read.
inline std::string utf8(std::u16string_view text) {
    return localPlatform::fileNameToBytes(text);
}
inline std::u16string wide(std::string_view text) {
    return localPlatform::fileNameFromBytes(text);
}

// A line without its trace tail " func: F file: X line: N".
inline std::string withoutTail(const std::string& line) {
    return line.substr(0, line.find(" func: "));
}

// Catches what goes to the standard output stream for as long as it lives.
class capturedOutput {
public:
    capturedOutput() : before_(std::cout.rdbuf(buffer_.rdbuf())) {}
    ~capturedOutput() { std::cout.rdbuf(before_); }
    capturedOutput(const capturedOutput&) = delete;
    capturedOutput& operator=(const capturedOutput&) = delete;

    std::string text() const { return buffer_.str(); }

    // The lines written since the start or the last clear(), as they are.
    std::vector<std::string> rawLines() const {
        std::vector<std::string> lines;
        std::istringstream stream(buffer_.str());
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(line);
        }
        return lines;
    }
    // The same without trace tails.
    std::vector<std::string> lines() const {
        std::vector<std::string> lines = rawLines();
        for (std::string& line : lines) {
            line = withoutTail(line);
        }
        return lines;
    }
    void clear() { buffer_.str(std::string()); }

private:
    std::ostringstream buffer_;
    std::streambuf* before_;
};

// The statement must end the process with the box and code of a halt, and exactly this message.
#define EXPECT_HALT(statement, message)                                                            \
    EXPECT_EXIT(                                                                                   \
        {                                                                                          \
            std::cout.rdbuf(std::cerr.rdbuf());                                                    \
            statement;                                                                             \
        },                                                                                         \
        testing::ExitedWithCode(1),                                                                \
        testing::HasSubstr("Error!!!  " message " func: exit_FAILURE file: localHalt.cpp line: "))

// The statement, which may hold expectations, runs in a process where nothing of the language
// stands yet.
#define EXPECT_IN_FRESH_PROCESS(statement)                                                         \
    do {                                                                                           \
        GTEST_FLAG_SET(death_test_style, "threadsafe");                                            \
        EXPECT_EXIT(                                                                               \
            {                                                                                      \
                statement;                                                                         \
                std::cout.flush();                                                                 \
                std::_Exit(testing::Test::HasFailure() ? 2 : 0);                                   \
            },                                                                                     \
            testing::ExitedWithCode(0), "");                                                       \
        GTEST_FLAG_SET(death_test_style, "fast");                                                  \
    } while (false)

// The same for a statement that must halt there.
#define EXPECT_HALT_IN_FRESH_PROCESS(statement, message)                                           \
    do {                                                                                           \
        GTEST_FLAG_SET(death_test_style, "threadsafe");                                            \
        EXPECT_HALT(statement, message);                                                           \
        GTEST_FLAG_SET(death_test_style, "fast");                                                  \
    } while (false)

// Makes the global context, with its words unseen. For processes where there is none yet.
inline localContextUTF8& createdGlobal() {
    const capturedOutput unseen;
    int status = localErrorTypeOK;
    return *localContextUTF8::createGlobal(status).release();  // lives to the end of the process
}

// What evaluating an expression gave.
struct evaluated {
    bool done = false;
    int status = localErrorTypeOK;
    std::uint32_t pos = 0;
    std::string type;  // as typeName(); empty when there is no value
    std::string text;  // as toString()
    std::vector<std::string> lines;
};

// Stands on the global context. Output is captured, the host records, and behind each test as many
// slots are in use as before it.
class languageTest : public testing::Test {
protected:
    languageTest() {
        if (localContextUTF8::globalContext == nullptr) {
            createdGlobal();
        }
        localSlot::reserve();  // the store stands
        usedSlots_ = localMemoryManager::manager->getUsedCount();
        contexts_ = localContextUTF8::counterStaticTotal;
        output.clear();
    }
    // Behind the members of the tests, so that those may hold slots and contexts.
    ~languageTest() override {
        EXPECT_EQ(usedSlots_, localMemoryManager::manager->getUsedCount())
            << "slots not given back";
        EXPECT_EQ(contexts_, localContextUTF8::counterStaticTotal) << "contexts left standing";
    }

    // Evaluates (or checks, without any context) an expression from a position.
    static evaluated evaluate(std::string_view expression, localContextUTF8* context,
                              std::uint32_t from = 0) {
        const capturedOutput lines;
        evaluated outcome;
        outcome.pos = from;
        localSlot value;
        outcome.done = localInterpretatorUTF8::scanStringGetExpressionAndEvaluete(
            outcome.status, wide(expression), outcome.pos, value.asResult(), context,
            context == nullptr);
        if (value) {
            outcome.type = utf8(value->typeName());
            outcome.text = utf8(value->toString());
        }
        outcome.lines = lines.lines();
        return outcome;
    }
    static evaluated check(std::string_view expression) { return evaluate(expression, nullptr); }

    capturedOutput output;
    recordingHost host;

private:
    std::size_t usedSlots_ = 0;
    std::int64_t contexts_ = 0;
};
