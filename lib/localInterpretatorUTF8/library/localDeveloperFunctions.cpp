// Entries for the system's own developers.
#include "library/localHandlers.h"
#include "localInterpretatorUTF8/program/localByteCode.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localHandlers {

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
