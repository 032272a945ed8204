#include "localInterpretatorUTF8/file/localStd.h"

#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"

namespace localStd {
namespace {

std::string& programPath() {
    static std::string path;
    return path;
}

}  // namespace

void argv0Set(std::string path) {
    static bool set = false;
    if (set) {
        exit_FAILURE(u"localStd::argv0 redefinition forbidden!!");
    }
    set = true;
    programPath() = std::move(path);
}

const std::string& argv0() {
    return programPath();
}

std::u16string binaryPath() {
    const std::u16string path = localPlatform::fileNameFromBytes(programPath());
    const auto separator = path.rfind(localPlatform::pathSeparator);
    return separator == std::u16string::npos ? std::u16string() : path.substr(0, separator);
}

const std::u16string& startDirectory() {
    static const std::u16string directory = localPlatform::workingDirectory();
    return directory;
}

std::u16string fileSearch(std::u16string_view fileName) {
    for (const std::u16string& folder : {localPlatform::workingDirectory(), binaryPath()}) {
        for (const std::u16string& place : {folder, pathJoin(folder, u"prgTest")}) {
            if (!folder.empty() && localPlatform::fileReadable(pathJoin(place, fileName))) {
                return place;
            }
        }
    }
    return {};
}

std::u16string pathJoin(std::u16string_view folder, std::u16string_view name) {
    return localPlatform::normalizedPath(std::u16string(folder) + localPlatform::pathSeparator +
                                         std::u16string(name));
}

}  // namespace localStd
