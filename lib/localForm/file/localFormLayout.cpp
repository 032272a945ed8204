#include "localForm/file/localFormLayout.h"

#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localSlot.h"

bool layoutAsJsonTest(const std::u16string& json) {
    int status = localErrorTypeOK;
    localInterpretatorUTF8::localPosition position = 0;
    localSlot list;
    if (localInterpretatorUTF8::scanStringParseJson(status, json, position, list.asResult())) {
        return true;
    }
    traceLine({u"Error!!! ", statusMessage(status)}, "layoutAsJsonTest");
    return false;
}
