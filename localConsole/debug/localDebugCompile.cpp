#include "debug/localDebugCompile.h"

#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/status/localGuard.h"

bool localDebugCompile(int& status, const std::u16string& text, localOperatorCompiled& root) {
    std::uint32_t pos = 0;
    return localGuarded(status, "textCompile", [&] {
        return textCompile(status, text, pos, &root) && status == localErrorTypeOK;
    });
}
