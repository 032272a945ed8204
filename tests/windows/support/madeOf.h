// What the window tests are made of above the language, as the window program is.
#pragma once

#include "localConsole/help/localConsoleExtension.h"
#include "localDb/localDbExtension.h"
#include "localDbVcl/localDbVclExtension.h"
#include "localForm/run/localFormExtension.h"
#include "localPicture/color/localPictureExtension.h"
#include "localPictureConverter/localPictureConverterExtension.h"
#include "localSxl/script/localSxlExtension.h"
#include "localSxlVcl/library/localSxlVclExtension.h"
#include "localVCL/library/localVclExtension.h"

inline void addWhatKorvoIsMadeOf() {
    for (const localExtension* const extension :
         {&localPictureExtension, &localPictureConverterExtension, &localDbExtension,
          &localSxlExtension, &localVclExtension, &localDbVclExtension, &localSxlVclExtension,
          &localFormExtension, &localConsoleExtension}) {
        localExtensionAdd(*extension);
    }
}
