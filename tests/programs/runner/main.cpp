// programs DIR [PART...]: acts on every program (*.prg) and every file of typed lines (*.lines)
// below a folder, or on those whose path below it holds one of the parts, and compares with what
// they say is wanted. Files in folders called `data` belong to other programs, and `runner` holds
// this one. Reports name a file as a path that begins with the folder's own name. The form of this
// program that has the libraries above takes data.sqlite for the data file.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "localTestRun.h"
#include "support/freshFolder.h"

namespace {

namespace fs = std::filesystem;

bool isTest(const fs::path& below) {
    const auto isAside = [](const fs::path& part) { return part == "data" || part == "runner"; };
    const std::string extension = below.extension();
    return (extension == ".prg" || extension == ".lines") &&
           std::none_of(below.begin(), below.end(), isAside);
}

std::vector<std::string> testsBelow(const fs::path& folder, const std::vector<std::string>& parts) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const fs::path below = entry.path().lexically_relative(folder);
        const std::string name = below.string();
        const auto holds = [&name](const std::string& part) {
            return name.find(part) != std::string::npos;
        };
        if (isTest(below) && (parts.empty() || std::any_of(parts.begin(), parts.end(), holds))) {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

int main(int argc, char* argv[]) {
    std::error_code unknown;
    const fs::path folder = argc < 2 ? fs::path() : fs::canonical(argv[1], unknown);
    if (argc < 2 || unknown) {
        std::cerr << "programs DIR [PART...]" << std::endl;
        return 2;
    }
    const freshFolder scratch;
    int passed = 0;
    int failed = 0;
    for (const std::string& name : testsBelow(folder, {argv + 2, argv + argc})) {
        const std::string report = localTestRun(folder / name, folder.filename() / name);
        ++(report.empty() ? passed : failed);
        std::cout << report << std::flush;
    }
    std::cout << passed << " passed, " << failed << " failed" << std::endl;
    return failed == 0 && passed > 0 ? 0 : 1;
}
