// Everything that differs by operating system, one function each. One source file a system
// implements it.
//
// Names and paths are wide text in the language's form; the implementation turns them into what its
// system takes (UTF-8 bytes, or CP1251 on Windows) and both "\\" and "/" into its own separator.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace localPlatform {

// The separator of folders.
extern const char16_t pathSeparator;

// "\\" and "/" become the system's separator.
std::u16string normalizedPath(std::u16string_view path);

// A file name as bytes for system calls and back.
std::string fileNameToBytes(std::u16string_view name);
std::u16string fileNameFromBytes(std::string_view bytes);

// As fopen; null when the file cannot be opened, and for a folder.
std::FILE* openFile(std::u16string_view name, const char* mode);

bool fileReadable(std::u16string_view name);
bool pathExists(std::u16string_view path);
bool removeFile(std::u16string_view name);

// What tells a file from all others: the same under each of its names, another one for a file that
// was made under the name of one that is still open.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    bool operator==(const FileIdentity&) const = default;
};
// Empty when there is no such file.
std::optional<FileIdentity> fileIdentity(std::u16string_view name);

// The file that a name leads to, over links. The name itself where there is none; empty for what is
// no file with content of its own, such as a folder or a device.
std::u16string plainFile(std::u16string_view name);
// Puts a file in the place of another, if there is one, and gives it that one's permissions: at
// every moment one of the two stands there whole. False when it could not; both stay.
bool replaceFile(std::u16string_view name, std::u16string_view by);

// Waits until what was written to an open file has reached the disk. False when it could not.
bool flushToDisk(int descriptor);

// The working directory, empty when it cannot be told.
std::u16string workingDirectory();
bool changeWorkingDirectory(std::u16string_view path);

struct DirectoryEntry {
    std::u16string name;
    bool isDirectory;
};
// What lies in a folder, without "." and "..": folders first, then files, each sorted by name. A
// folder that cannot be read gives an empty list.
std::vector<DirectoryEntry> directoryEntries(std::u16string_view path);

// Physical memory in bytes that new programs can have.
std::uint64_t accessibleMemory();

// Lowest address that the calling thread's stack may grow down to.
const char* stackLimit();

// Milliseconds since the process started.
double processMilliseconds();

// Sets a variable of the environment, for this process and those it starts, to a file's name.
void setEnvironment(const char* variable, std::u16string_view fileName);

// The full path of the program, where the system tells it; else as given.
std::string programPath(const char* argv0);

// A shell runs the command line; nobody waits for it.
bool startProgram(std::u16string_view commandLine);
// The person's text editor opens the file; nobody waits for it.
bool startEditor(std::u16string_view fileName);

// A function of a library in a file, whose path is given without the system's ending for such
// files. The library stays loaded until the process ends. Null when there is no such file, no such
// function or the file is no library of this system; `fault` then tells why, in UTF-8, unless there
// is no file.
using LibraryFunction = void (*)();
LibraryFunction loadLibraryFunction(std::u16string_view path, const char* name, std::string& fault);

}  // namespace localPlatform
