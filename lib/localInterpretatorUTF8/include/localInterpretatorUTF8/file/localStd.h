// Facts of the process: the path of the program, its directory, the folder it was started in; and
// the search for a file that came with the program.
#pragma once

#include <string>
#include <string_view>

namespace localStd {

// Keeps the program path as given in argv[0]. A second call halts with "localStd::argv0
// redefinition forbidden!!".
void argv0Set(std::string path);

// The path as given; empty until argv0Set.
const std::string& argv0();

// argv0 up to the last path separator, which is left out; empty when it has none.
std::u16string binaryPath();

// The working directory when this was first asked for. The entries ask at their start.
const std::u16string& startDirectory();

// The first folder that holds the file: the working directory, the program's directory, and the
// prgTest folder of each. Empty when none does.
std::u16string fileSearch(std::u16string_view fileName);

// A folder and a name as one path of the system.
std::u16string pathJoin(std::u16string_view folder, std::u16string_view name);

}  // namespace localStd
