// Global functions on objects, classes and contexts.
#include "library/localHandlers.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace localHandlers {

bool classLoad(localCall& call) {
    const bool loaded = localLibrary::classLoad(call.status, *call.context, call.text(0));
    call.giveBoolean(loaded);
    return call.status == localErrorTypeOK;
}

bool classLoaded(localCall& call) {
    return call.giveBoolean(call.context->classExists(trimBoth(call.text(0))));
}

bool contextGet(localCall& call) {
    call.result.objectBind(call.context, localContextUTF8::classDeclaration());
    return true;
}

bool createObject(localCall& call) {
    localSlot object;
    const bool created = call.context->createObj(call.status, call.text(0), object.asResult());
    if (created) {
        call.result.assign(*object);
    }
    return created;
}

}  // namespace localHandlers
