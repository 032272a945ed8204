// Table documents without a window, for the terminal program.
#include <cstdlib>

#include "localInterpretatorUTF8/library/localModule.h"
#include "localSxl/export/localSxlExportExtension.h"
#include "localSxl/script/localSxlExtension.h"
#include "localToolkit/localToolkitApplication.h"

const localExtension* localModule() {
    if (std::getenv("KORVO_EXPORT") != nullptr) {
        localToolkitApplication();  // for fonts
        localExtensionAdd(localSxlExtension);
        localExtensionAdd(localSxlExportExtension);
    }
    return &localSxlExtension;
}
