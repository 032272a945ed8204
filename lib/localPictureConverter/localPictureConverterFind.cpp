// The one function that a program looks up when it loads the converter as a library.
#include <qglobal.h>

#include "localPictureConverter/localPictureConverterOnQt.h"

extern "C" Q_DECL_EXPORT const localPictureConverter* localPictureConverterFind() {
    return &localPictureConverterOnQt();
}
