// The global functions on JSON.
#include "library/localHandlers.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace localHandlers {
namespace {

// Whether the argument could be read; `isArray` tells [] from {}, which are both read as lists.
bool parsed(localCall& call, localSlot& list, bool& isArray) {
    const std::u16string text(call.text(0));
    localInterpretatorUTF8::localPosition pos = 0;
    const bool done =
        localInterpretatorUTF8::scanStringParseJson(call.status, text, pos, list.asResult());
    isArray = done && text[pos - 1] != u'}';
    return done;
}

}  // namespace

bool parseJson(localCall& call) {
    localSlot list;
    bool isArray = false;
    const bool done = parsed(call, list, isArray);
    call.result.take(*list);
    return done;
}

bool valueFromJson(localCall& call) {
    localSlot list;
    bool isArray = false;
    if (!parsed(call, list, isArray)) {
        return false;
    }
    // The form of an empty list; {} is a typed form with nothing in it.
    if (isArray && localValueList::of(*list)->items().empty()) {
        call.result.take(*list);
        return true;
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
