// korvo: the language with a console window.
#include "localConsole/console/qMain.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/library/localVclLibrary.h"

int main(int argc, char* argv[]) {
    localVclHost host;
    localHost::install(&host);
    localVclLibraryInstall();
    const int result = qMain(argc, argv);
    localHost::install(nullptr);
    return result;
}
