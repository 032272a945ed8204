// Entries for the system's own developers.
#include "library/localHandlers.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/program/localByteCode.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localHandlers {

// With an argument it opens a window, which a higher library brings.
bool test(localCall& call) {
    traceLine(u" метод ___test()", "___TEST");
    return call.args.empty() ? call.done() : call.fail(localErrorTypeGRAPHICONLY);
}

bool testTextBrowser(localCall& call) {
    if (localValueList::of(*call.args[0])->size() == 0) {
        writeLine(u" Ошибка! Пустой список значений");
        return call.done();
    }
    return call.fail(localErrorTypeGRAPHICONLY);
}

bool test00001(localCall& call) {
    traceLine(u" метод ___TEST00001()", "___TEST00001");
    localByteCode code;
    const bool compiled = code.compile(call.status, std::u16string(call.text(0)));
    if (!compiled) {
        writeLine(u"Error!!!");
    }
    code.list();
    return compiled && call.done();
}

}  // namespace localHandlers
