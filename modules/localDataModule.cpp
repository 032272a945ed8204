// The data file, for the terminal program.
#include "localDb/localDbExtension.h"
#include "localInterpretatorUTF8/library/localModule.h"
#include "localToolkit/localToolkitApplication.h"

const localExtension* localModule() {
    // The toolkit looks for its drivers where the application tells it to.
    localToolkitApplication();
    localDbDataFileOfEnvironment();
    return &localDbExtension;
}
