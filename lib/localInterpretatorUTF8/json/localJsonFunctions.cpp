// The global functions on JSON.
#include "library/localHandlers.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace localHandlers {
namespace {

bool parsed(localCall& call, localSlot& list) {
    localInterpretatorUTF8::localPosition pos = 0;
    return localInterpretatorUTF8::scanStringParseJson(call.status, std::u16string(call.text(0)),
                                                       pos, list.asResult());
}

}  // namespace

bool parseJson(localCall& call) {
    localSlot list;
    const bool done = parsed(call, list);
    call.result.take(*list);
    return done;
}

bool valueFromJson(localCall& call) {
    localSlot list;
    if (!parsed(call, list)) {
        return false;
    }
    localSlot value;
    const bool done =
        fromJsonValueList(call.status, call.context, *localValueList::of(*list), value.asResult());
    call.result.take(*value);
    return done;
}

bool valueToJson(localCall& call) {
    localText text;
    return ::valueToJson(call.status, *call.args[0], text) && call.give(std::move(text));
}

}  // namespace localHandlers
