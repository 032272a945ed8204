// A module of another program: it needs what nobody here has.
#include "localInterpretatorUTF8/library/localModule.h"

const localExtension* whatNobodyHas();

const localExtension* localModule() {
    return whatNobodyHas();
}
