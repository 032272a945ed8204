// korvo-run: the language in a terminal, for scripts, scheduled jobs and tests.
#include <clocale>
#include <iostream>

#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localPicture/color/localPictureExtension.h"
#include "localRunnerModules.h"
#include "localRunnerOptions.h"
#include "localRunnerPrograms.h"
#include "localTypedLines.h"

namespace {

// What the program is made of above the language, lowest first; what needs the toolkit comes as
// modules.
constexpr const localExtension* madeOf[] = {
    &localPictureExtension,
};

int act(const localRunnerOptions& options) {
    switch (options.action) {
        case localRunnerOptions::Action::help:
            std::cout << localRunnerOptions::usage();
            return 0;
        case localRunnerOptions::Action::version:
            std::cout << localRunnerOptions::version() << std::endl;
            return 0;
        case localRunnerOptions::Action::program:
            return options.exportFileName.empty()
                       ? localRunnerPrograms::run(options.fileName)
                       : localRunnerPrograms::runAndExport(options.fileName);
        case localRunnerOptions::Action::check:
            return localRunnerPrograms::check(options.fileName);
        case localRunnerOptions::Action::dump:
            return localRunnerPrograms::dump(options.fileName);
        case localRunnerOptions::Action::lines:
            return localTypedLines::actOn(options.lines);
        case localRunnerOptions::Action::standardInput:
            return localTypedLines::actOnStandardInput();
    }
    return 0;
}

int start(int argc, char* argv[]) {
    localStd::argv0Set(localPlatform::programPath(argv[0]));
    localStd::startDirectory();
    for (const localExtension* const extension : madeOf) {
        localExtensionAdd(*extension);
    }
    for (const localModuleOffer& module : localRunnerModules()) {
        localModuleAdd(module);
    }
    localRunnerOptions options;
    if (!options.read(argc, argv)) {
        std::cerr << options.fault << std::endl;
        return 2;
    }
    if (!options.dataFileName.empty()) {
        // The library of the data file comes later, if ever; it looks there.
        localPlatform::setEnvironment("KORVO_DATA", options.dataFileName);
    }
    if (!options.exportFileName.empty()) {
        localPlatform::setEnvironment("KORVO_EXPORT", options.exportFileName);
    }
    return act(options);
}

}  // namespace

int main(int argc, char* argv[]) {
    std::ios::sync_with_stdio(false);
    std::setlocale(LC_CTYPE, "");
    int status = localErrorTypeOK;
    int exitCode = 1;
    localGuarded(status, "main", [&] {
        exitCode = start(argc, argv);
        return true;
    });
    return exitCode;
}
