#include "localTypedLines.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>

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
#include "localInterpretatorUTF8/status/localStatus.h"
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
    // False when the line asked for the end.
    bool act(const std::u16string& typed) {
        const std::u16string line = trimmed(typed);
        if (line.empty()) {
            return true;
        }
        if (line.size() == 1) {
            writeLine(u"Syntax ERROR: " + line);
            anyFailed_ = true;
            return true;
        }
        int status = localErrorTypeOK;
        std::uint32_t pos = 0;
        if (!localInterpretatorUTF8::scanStringGetOperatorAndExec(status, line, pos, &context_,
                                                                  false)) {
            anyFailed_ = true;
        }
        return status != localErrorTypeQUIT;
    }
    bool anyFailed() const { return anyFailed_; }

private:
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

#if defined(_WIN32)
bool readTyped(std::string& line) {
    std::cout << prompt << std::flush;
    return static_cast<bool>(std::getline(std::cin, line));
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

int converse() {
    writeLine(u"This is the high-level language Korvo interpreter.");
    writeLine(u"Интерпретатор языка Корво.");
    writeLine();
    writeLine(u" Input HELP command for brief manual");
    writeLine(u" Input QUIT command for exit.");
    writeLine();
    Session session;
    std::string line;
    while (readTyped(line)) {
        if (!session.act(decoded(line))) {
            writeLine(u"Good bye!");
            return 0;
        }
    }
    writeLine();
    return 0;
}

}  // namespace

int actOn(const std::vector<std::u16string>& lines) {
    Session session;
    for (const std::u16string& line : lines) {
        if (!session.act(line)) {
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
    std::string line;
    while (std::getline(std::cin, line)) {
        if (!session.act(decoded(line))) {
            break;
        }
    }
    return session.anyFailed() ? 1 : 0;
}

}  // namespace localTypedLines
