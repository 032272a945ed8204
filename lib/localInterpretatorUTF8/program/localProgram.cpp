#include "localInterpretatorUTF8/program/localProgram.h"

#include <algorithm>

#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

// The pointer shows that the program works for as long as this object lives.
class WaitCursor {
public:
    WaitCursor() { localHost::current().setCursor(localHost::Cursor::wait); }
    ~WaitCursor() { localHost::current().setCursor(localHost::Cursor::restored); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

// The line of the program that holds the fault, the words of the status, the place, the unit there.
void writeFault(int status, const std::u16string& text, std::uint32_t pos, const char* function) {
    const std::size_t at = std::min<std::size_t>(pos, text.size());
    const std::size_t lineStart = at == 0 ? 0 : text.rfind(u'\n', at - 1) + 1;
    const std::size_t lineEnd = std::min(text.find(u'\n', at), text.size());
    const auto line =
        1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), u'\n');
    const double unit = at < text.size() ? text[at] : 0;
    writeLine(std::u16string_view(text).substr(lineStart, lineEnd - lineStart));
    writeLine(localStatusWords(status));
    traceLine({u"line: ", numberToString(static_cast<double>(line)), u" pos: ",
               numberToString(static_cast<double>(at - lineStart))},
              function);
    traceLine({u"char: ", numberToString(unit)}, function);
}

enum class ProgramValue { none, one, other };

bool runUnguarded(int& status, const std::u16string& text, localContextUTF8* context,
                  const char* function, ProgramValue& value) {
    localOperatorCompiled root;
    {
        const WaitCursor cursor;
        if (!programCompile(status, text, root, function)) {
            return false;
        }
    }
    const WaitCursor cursor;
    localSlot result;
    if (!root.executeFunction(status, context, root, localArguments(), result.asResult())) {
        traceLine(localStatusWords(status), function);
        return false;
    }
    // A BREAK outside any loop ends the program without a value.
    if (!result) {
        return false;
    }
    value = result->type == localValueTypeNUMBER && result->num == 1.0 ? ProgramValue::one
                                                                       : ProgramValue::other;
    return true;
}

// Compiles and runs. False when either failed; `value` tells what the program gave.
bool compileAndRun(int& status, const std::u16string& text, localContextUTF8* context,
                   const char* function, ProgramValue& value) {
    value = ProgramValue::none;
    return localGuarded(status, function,
                        [&] { return runUnguarded(status, text, context, function, value); });
}

}  // namespace

bool programCompile(int& status, const std::u16string& text, localOperatorCompiled& root,
                    const char* function) {
    std::uint32_t pos = 0;
    const bool compiled = localGuarded(status, function, [&] {
        localMemoryManager::start();  // compiling needs values but no context
        return textCompile(status, text, pos, &root);
    });
    if (status != localErrorTypeOK) {
        writeFault(status, text, pos, function);
        return false;
    }
    return compiled;
}

bool textExec(int& status, const std::u16string& text, localContextUTF8* context) {
    ProgramValue value{};
    if (!compileAndRun(status, text, context, "textExec", value)) {
        return false;
    }
    if (value != ProgramValue::one) {
        status = localErrorTypeRESULTNOTONE;
    }
    return true;
}

bool textLoad(int& status, const std::u16string& text, localContextUTF8* context) {
    ProgramValue value{};
    if (!compileAndRun(status, text, context, "textLoad", value)) {
        return false;
    }
    if (value != ProgramValue::one) {
        return false;
    }
    status = localErrorTypeOK;
    return true;
}
