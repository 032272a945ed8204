#include "localTypedLines.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <memory>
#include <new>

#if defined(_WIN32)
#include <io.h>
#else
#include <readline/history.h>
#include <readline/readline.h>
#include <unistd.h>
#endif

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localTypedLines {
namespace {

constexpr const char* prompt = "localInterpretatorUTF8> ";

constexpr bool isWhite(char16_t unit) {
    return unit == u' ' || (unit >= 9 && unit <= 13);
}

std::u16string trimmed(std::u16string line) {
    while (!line.empty() && isWhite(line.back())) {
        line.pop_back();
    }
    std::size_t first = 0;
    while (first < line.size() && isWhite(line[first])) {
        ++first;
    }
    return line.substr(first);
}

// The lines of one session.
class Session {
public:
    // Acts on the line that `read` gives; one that the memory cannot hold fails like any other.
    // False when the line asked for the end.
    template <class Read>
    bool act(Read read) {
        int status = localErrorTypeOK;
        if (!localGuarded(status, "act", [&] { return done(status, trimmed(read())); })) {
            anyFailed_ = true;
        }
        return status != localErrorTypeQUIT;
    }
    bool anyFailed() const { return anyFailed_; }

private:
    bool done(int& status, const std::u16string& line) {
        if (line.empty()) {
            return true;
        }
        if (line.size() == 1) {
            writeLine({u"Syntax ERROR: ", line});
            return false;
        }
        std::uint32_t pos = 0;
        return localInterpretatorUTF8::scanStringGetOperatorAndExec(status, line, pos, &context_,
                                                                    false);
    }

    localContextUTF8 context_;
    bool anyFailed_ = false;
};

bool inputIsTerminal() {
#if defined(_WIN32)
    return _isatty(_fileno(stdin)) != 0;
#else
    return isatty(STDIN_FILENO) != 0;
#endif
}

// Typed lines are decoded in full, wider than files: names of files may have any letters.
std::u16string decoded(std::string_view bytes) {
    return localPlatform::fileNameFromBytes(bytes);
}

// False at the end of the input. A line that the memory cannot hold is passed over, and throws.
bool readLine(std::string& line) {
    if (std::getline(std::cin, line)) {
        return true;
    }
    if (!std::cin.bad()) {
        return false;
    }
    // The stream tells of memory as of a fault in reading, but then it can read on.
    std::cin.clear();
    std::cin.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    if (std::cin.bad()) {
        return false;
    }
    throw std::bad_alloc();
}

#if defined(_WIN32)
bool readTyped(std::string& line) {
    std::cout << prompt << std::flush;
    return readLine(line);
}
#else
bool readTyped(std::string& line) {
    const std::unique_ptr<char, decltype(&std::free)> typed(readline(prompt), &std::free);
    if (typed == nullptr) {
        return false;
    }
    line = typed.get();
    if (!line.empty()) {
        add_history(typed.get());
    }
    return true;
}
#endif

// False when the lines ended before one asked for the end.
bool actOnLines(Session& session, bool (*next)(std::string& line)) {
    std::string line;
    bool more = true;
    const auto read = [&] {
        more = next(line);
        return more ? decoded(line) : std::u16string();
    };
    while (session.act(read)) {
        if (!more) {
            return false;
        }
    }
    return true;
}

int converse() {
    writeLine(u"This is the high-level language Korvo interpreter.");
    writeLine(u"Интерпретатор языка Корво.");
    writeLine();
    writeLine(u" Input HELP command for brief manual");
    writeLine(u" Input QUIT command for exit.");
    writeLine();
    Session session;
    const bool ended = actOnLines(session, readTyped);
    writeLine(ended ? u"Good bye!" : u"");
    return 0;
}

}  // namespace

int actOn(const std::vector<std::u16string>& lines) {
    Session session;
    for (const std::u16string& line : lines) {
        if (!session.act([&line] { return line; })) {
            break;
        }
    }
    return session.anyFailed() ? 1 : 0;
}

int actOnStandardInput() {
    if (inputIsTerminal()) {
        return converse();
    }
    Session session;
    actOnLines(session, readLine);
    return session.anyFailed() ? 1 : 0;
}

}  // namespace localTypedLines
