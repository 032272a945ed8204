// Program files in the terminal. Each gives the exit code of the process; messages are the
// language's own.
#pragma once

#include <string>

namespace localRunnerPrograms {

// In a fresh context. 0: the program's value was the number 1; 3: another; 1: an error; 2: not
// readable.
int run(const std::u16string& fileName);
// The same with sheets that are shown exported into the file of the variable KORVO_EXPORT; a file
// of a sheet, *.sxl, is loaded and shown. 2 also where the library of sheets is not there.
int runAndExport(const std::u16string& fileName);
// Compiles only. 0, 1 an error, 2 not readable.
int check(const std::u16string& fileName);
// Compiles and writes the tree.
int dump(const std::u16string& fileName);

}  // namespace localRunnerPrograms
