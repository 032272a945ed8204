#include "debug/localDebugCompile.h"

#include <new>

#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/status/localStatus.h"

bool localDebugCompile(int& status, const std::u16string& text, localOperatorCompiled& root) {
    std::uint32_t pos = 0;
    try {
        return textCompile(status, text, pos, &root) && status == localErrorTypeOK;
    } catch (const std::bad_alloc&) {
        status = localErrorTypeCODE;
        return false;
    }
}
