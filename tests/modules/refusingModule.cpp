// A module that cannot work here and says so.
#include "localInterpretatorUTF8/library/localModule.h"

const localExtension* localModule() {
    return nullptr;
}
