#include <direct.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localString.h"

namespace localPlatform {
namespace {

const auto processStart = std::chrono::steady_clock::now();

// The name as a system call takes it. A unit 0 would cut a name short and so reach another file;
// the empty name reaches none.
std::string systemPath(std::u16string_view name) {
    const std::string path = fileNameToBytes(normalizedPath(name));
    return path.find('\0') == std::string::npos ? path : std::string();
}

bool isDirectory(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

const char16_t pathSeparator = u'\\';

std::u16string normalizedPath(std::u16string_view path) {
    std::u16string normal(path);
    std::replace(normal.begin(), normal.end(), u'/', u'\\');
    return normal;
}

std::string fileNameToBytes(std::u16string_view name) {
    return localString::toBytes(name, localString::codePageCP1251);
}

std::u16string fileNameFromBytes(std::string_view bytes) {
    return localString::fromBytes(bytes, localString::codePageCP1251);
}

std::FILE* openFile(std::u16string_view name, const char* mode) {
    const std::string path = systemPath(name);
    return path.empty() || isDirectory(path) ? nullptr : std::fopen(path.c_str(), mode);
}

bool fileReadable(std::u16string_view name) {
    const std::string path = systemPath(name);
    return !isDirectory(path) && _access(path.c_str(), 4) == 0;
}

bool pathExists(std::u16string_view name) {
    return _access(systemPath(name).c_str(), 0) == 0;
}

bool removeFile(std::u16string_view name) {
    return std::remove(systemPath(name).c_str()) == 0;
}

std::optional<FileIdentity> fileIdentity(std::u16string_view name) {
    const HANDLE file = CreateFileA(systemPath(name).c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION facts{};
    const bool known = GetFileInformationByHandle(file, &facts) != 0;
    CloseHandle(file);
    if (!known) {
        return std::nullopt;
    }
    return FileIdentity{facts.dwVolumeSerialNumber,
                        std::uint64_t{facts.nFileIndexHigh} << 32 | facts.nFileIndexLow};
}

std::u16string plainFile(std::u16string_view name) {
    const DWORD facts = GetFileAttributesA(systemPath(name).c_str());
    const bool isOther = facts != INVALID_FILE_ATTRIBUTES &&
                         (facts & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0;
    return isOther ? std::u16string() : std::u16string(name);
}

bool replaceFile(std::u16string_view name, std::u16string_view by) {
    return MoveFileExA(systemPath(by).c_str(), systemPath(name).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool flushToDisk(int descriptor) {
    return _commit(descriptor) == 0;
}

std::u16string workingDirectory() {
    char path[MAX_PATH];
    return _getcwd(path, sizeof path) == nullptr ? std::u16string() : fileNameFromBytes(path);
}

bool changeWorkingDirectory(std::u16string_view path) {
    return _chdir(systemPath(path).c_str()) == 0;
}

std::vector<DirectoryEntry> directoryEntries(std::u16string_view path) {
    std::vector<DirectoryEntry> entries;
    const std::string folder = systemPath(path);
    if (folder.empty()) {
        return entries;
    }
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return entries;
    }
    do {
        const std::string name = found.cFileName;
        if (name != "." && name != "..") {
            entries.push_back({fileNameFromBytes(name),
                               (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
        }
    } while (FindNextFileA(search, &found));
    FindClose(search);
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
        return a.isDirectory != b.isDirectory ? a.isDirectory : a.name < b.name;
    });
    return entries;
}

std::uint64_t accessibleMemory() {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    GlobalMemoryStatusEx(&status);
    return status.ullAvailPhys;
}

const char* stackLimit() {
    ULONG_PTR lowest = 0;
    ULONG_PTR highest = 0;
    GetCurrentThreadStackLimits(&lowest, &highest);
    return reinterpret_cast<const char*>(lowest);
}

double processMilliseconds() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() -
                                                     processStart)
        .count();
}

void setEnvironment(const char* variable, std::u16string_view fileName) {
    _putenv_s(variable, fileNameToBytes(fileName).c_str());
}

std::string programPath(const char* argv0) {
    char path[MAX_PATH];
    const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
    return length == 0 || length == sizeof path ? argv0 : std::string(path, length);
}

bool startProgram(std::u16string_view commandLine) {
    return std::system(("start \"\" " + fileNameToBytes(commandLine)).c_str()) == 0;
}

bool startEditor(std::u16string_view fileName) {
    const bool better = fileReadable(u"C:\\Program Files (x86)\\Notepad++\\notepad++.exe");
    return std::system(((better ? "start \"\" notepad++.exe " : "start \"\" notepad.exe ") +
                        systemPath(fileName))
                           .c_str()) == 0;
}

LibraryFunction loadLibraryFunction(std::u16string_view name, const char* function,
                                    std::string& fault) {
    const std::string path = systemPath(name) + ".dll";
    const HMODULE library = LoadLibraryA(path.c_str());
    const FARPROC found = library == nullptr ? nullptr : GetProcAddress(library, function);
    const DWORD reason = GetLastError();
    if (found == nullptr && _access(path.c_str(), 0) == 0) {
        fault = "error " + std::to_string(reason);
    }
    return reinterpret_cast<LibraryFunction>(found);
}

}  // namespace localPlatform
