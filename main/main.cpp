// korvo: the language with a console window.
#include "localConsole/console/qMain.h"
#include "localConsole/help/localConsoleExtension.h"
#include "localDb/localDbExtension.h"
#include "localDbVcl/localDbVclExtension.h"
#include "localForm/run/localFormExtension.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localPicture/color/localPictureExtension.h"
#include "localPictureConverter/localPictureConverterExtension.h"
#include "localSxl/script/localSxlExtension.h"
#include "localSxlVcl/library/localSxlVclExtension.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/library/localVclExtension.h"

namespace {

// What the program is made of above the language, lowest first.
constexpr const localExtension* madeOf[] = {
    &localPictureExtension, &localPictureConverterExtension,
    &localDbExtension,      &localSxlExtension,
    &localVclExtension,     &localDbVclExtension,
    &localSxlVclExtension,  &localFormExtension,
    &localConsoleExtension,
};

}  // namespace

int main(int argc, char* argv[]) {
    for (const localExtension* const extension : madeOf) {
        localExtensionAdd(*extension);
    }
    localVclHost host;
    localHost::install(&host);
    const int result = qMain(argc, argv);
    localHost::install(nullptr);
    return result;
}
