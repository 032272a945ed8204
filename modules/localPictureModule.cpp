// Pictures without a screen, for the terminal program.
#include "localInterpretatorUTF8/library/localModule.h"
#include "localPictureConverter/localPictureConverterExtension.h"

const localExtension* localModule() {
    return &localPictureConverterExtension;
}
