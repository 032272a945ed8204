// A library without the one function of a module.
#include "localInterpretatorUTF8/library/localModule.h"

LOCAL_MODULE_ENTRY int notTheEntry();

int notTheEntry() {
    return 0;
}
