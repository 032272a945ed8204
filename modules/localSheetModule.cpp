// Table documents without a window, for the terminal program.
#include "localInterpretatorUTF8/library/localModule.h"
#include "localSxl/script/localSxlExtension.h"

const localExtension* localModule() {
    return &localSxlExtension;
}
