#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "localInterpretatorUTF8/platform/localPlatform.h"

namespace localPlatform {
namespace {

const auto processStart = std::chrono::steady_clock::now();

void appendUtf8(std::string& bytes, char32_t point) {
    if (point < 0x80) {
        bytes += static_cast<char>(point);
    } else if (point < 0x800) {
        bytes += static_cast<char>(0xC0 | point >> 6);
        bytes += static_cast<char>(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        bytes += static_cast<char>(0xE0 | point >> 12);
        bytes += static_cast<char>(0x80 | (point >> 6 & 0x3F));
        bytes += static_cast<char>(0x80 | (point & 0x3F));
    } else {
        bytes += static_cast<char>(0xF0 | point >> 18);
        bytes += static_cast<char>(0x80 | (point >> 12 & 0x3F));
        bytes += static_cast<char>(0x80 | (point >> 6 & 0x3F));
        bytes += static_cast<char>(0x80 | (point & 0x3F));
    }
}

// Bytes of a name that are no UTF-8 travel as lone low surrogates U+DC80 to U+DCFF, so that such a
// file, once listed, can be opened again.
constexpr char16_t strayByteBase = 0xDC00;

bool isStrayByte(char16_t unit) {
    return unit >= strayByteBase + 0x80 && unit <= strayByteBase + 0xFF;
}

// Reads one code point at `at` and moves behind it; false for bytes that are no valid UTF-8.
bool readUtf8(std::string_view bytes, std::size_t& at, char32_t& point) {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const std::size_t length = first < 0x80   ? 1
                               : first < 0xC2 ? 0
                               : first < 0xE0 ? 2
                               : first < 0xF0 ? 3
                               : first < 0xF5 ? 4
                                              : 0;
    if (length == 0 || bytes.size() - at < length) {
        return false;
    }
    point = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[at + i]);
        if ((next & 0xC0) != 0x80) {
            return false;
        }
        point = point << 6 | (next & 0x3F);
    }
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    if (overlong || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000)) {
        return false;
    }
    at += length;
    return true;
}

// Starts `arguments[0]` in a session of its own, owned by no one: the middle process ends at once,
// so that nothing is left to wait for.
bool startDetached(const char* const* arguments) {
    std::fflush(nullptr);
    const pid_t middle = fork();
    if (middle < 0) {
        return false;
    }
    if (middle == 0) {
        setsid();
        if (fork() == 0) {
            const int nothing = open("/dev/null", O_RDWR);
            dup2(nothing, STDIN_FILENO);
            execvp(arguments[0], const_cast<char* const*>(arguments));
            _exit(127);
        }
        _exit(0);
    }
    int status = 0;
    return waitpid(middle, &status, 0) == middle;
}

}  // namespace

const char16_t pathSeparator = u'/';

std::u16string normalizedPath(std::u16string_view path) {
    std::u16string normal(path);
    std::replace(normal.begin(), normal.end(), u'\\', u'/');
    return normal;
}

std::string fileNameToBytes(std::u16string_view name) {
    std::string bytes;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char16_t unit = name[i];
        if (unit >= 0xD800 && unit < 0xDC00 && i + 1 < name.size() && name[i + 1] >= 0xDC00 &&
            name[i + 1] < 0xE000) {
            appendUtf8(bytes, 0x10000 + (static_cast<char32_t>(unit - 0xD800) << 10) +
                                  static_cast<char32_t>(name[++i] - 0xDC00));
        } else if (isStrayByte(unit)) {
            bytes += static_cast<char>(unit - strayByteBase);
        } else {
            appendUtf8(bytes, unit);
        }
    }
    return bytes;
}

std::u16string fileNameFromBytes(std::string_view bytes) {
    std::u16string name;
    for (std::size_t at = 0; at < bytes.size();) {
        char32_t point = 0;
        if (!readUtf8(bytes, at, point)) {
            name += static_cast<char16_t>(strayByteBase + static_cast<unsigned char>(bytes[at++]));
        } else if (point >= 0x10000) {
            name += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
            name += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
        } else {
            name += static_cast<char16_t>(point);
        }
    }
    return name;
}

namespace {
// The name as a system call takes it. A unit 0 would cut a name short and so reach another file.
bool systemPath(std::u16string_view name, std::string& path) {
    path = fileNameToBytes(normalizedPath(name));
    return !path.empty() && path.find('\0') == std::string::npos;
}
}  // namespace

std::FILE* openFile(std::u16string_view name, const char* mode) {
    std::string path;
    if (!systemPath(name, path)) {
        return nullptr;
    }
    std::FILE* file = std::fopen(path.c_str(), mode);
    struct stat facts {};
    if (file != nullptr && fstat(fileno(file), &facts) == 0 && S_ISDIR(facts.st_mode)) {
        std::fclose(file);
        return nullptr;
    }
    return file;
}

bool fileReadable(std::u16string_view name) {
    std::string path;
    struct stat facts {};
    return systemPath(name, path) && stat(path.c_str(), &facts) == 0 && !S_ISDIR(facts.st_mode) &&
           access(path.c_str(), R_OK) == 0;
}

bool pathExists(std::u16string_view name) {
    std::string path;
    return systemPath(name, path) && access(path.c_str(), F_OK) == 0;
}

bool removeFile(std::u16string_view name) {
    std::string path;
    return systemPath(name, path) && unlink(path.c_str()) == 0;
}

std::optional<FileIdentity> fileIdentity(std::u16string_view name) {
    std::string path;
    struct stat facts {};
    if (!systemPath(name, path) || stat(path.c_str(), &facts) != 0) {
        return std::nullopt;
    }
    return FileIdentity{facts.st_dev, facts.st_ino};
}

std::u16string plainFile(std::u16string_view name) {
    std::string path;
    struct stat facts {};
    if (!systemPath(name, path) || stat(path.c_str(), &facts) != 0) {
        return std::u16string(name);
    }
    if (!S_ISREG(facts.st_mode)) {
        return {};
    }
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                           &std::free);
    return real == nullptr ? std::u16string(name) : fileNameFromBytes(real.get());
}

bool replaceFile(std::u16string_view name, std::u16string_view by) {
    std::string path;
    std::string byPath;
    if (!systemPath(name, path) || !systemPath(by, byPath)) {
        return false;
    }
    struct stat facts {};
    if (stat(path.c_str(), &facts) == 0 && chmod(byPath.c_str(), facts.st_mode & 07777) != 0) {
        return false;
    }
    return rename(byPath.c_str(), path.c_str()) == 0;
}

bool flushToDisk(int descriptor) {
    int result = 0;
    do {
        result = fsync(descriptor);
    } while (result != 0 && errno == EINTR);
    // Some systems of files have nothing to wait for.
    return result == 0 || errno == EINVAL;
}

std::u16string workingDirectory() {
    const std::unique_ptr<char, decltype(&std::free)> path(getcwd(nullptr, 0), &std::free);
    return path == nullptr ? std::u16string() : fileNameFromBytes(path.get());
}

bool changeWorkingDirectory(std::u16string_view name) {
    std::string path;
    return systemPath(name, path) && chdir(path.c_str()) == 0;
}

std::vector<DirectoryEntry> directoryEntries(std::u16string_view name) {
    std::vector<DirectoryEntry> entries;
    std::string path;
    if (!systemPath(name, path)) {
        return entries;
    }
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(path.c_str()), &closedir);
    if (directory == nullptr) {
        return entries;
    }
    while (const dirent* entry = readdir(directory.get())) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0) {
            continue;
        }
        struct stat facts {};
        const bool isDirectory = fstatat(dirfd(directory.get()), entry->d_name, &facts, 0) == 0 &&
                                 S_ISDIR(facts.st_mode);
        entries.push_back({fileNameFromBytes(entry->d_name), isDirectory});
    }
    std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
        return a.isDirectory != b.isDirectory ? a.isDirectory : a.name < b.name;
    });
    return entries;
}

std::uint64_t accessibleMemory() {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> facts(std::fopen("/proc/meminfo", "r"),
                                                                &std::fclose);
    char line[128];
    unsigned long long kilobytes = 0;
    while (facts != nullptr && std::fgets(line, sizeof line, facts.get()) != nullptr) {
        if (std::sscanf(line, "MemAvailable: %llu kB", &kilobytes) == 1) {
            return kilobytes * 1024;
        }
    }
    return 0;
}

const char* stackLimit() {
    pthread_attr_t attributes;
    void* lowest = nullptr;
    std::size_t size = 0;
    if (pthread_getattr_np(pthread_self(), &attributes) == 0) {
        pthread_attr_getstack(&attributes, &lowest, &size);
        pthread_attr_destroy(&attributes);
    }
    return static_cast<const char*>(lowest);
}

double processMilliseconds() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() -
                                                     processStart)
        .count();
}

void setEnvironment(const char* variable, std::u16string_view fileName) {
    setenv(variable, fileNameToBytes(fileName).c_str(), 1);
}

std::string programPath(const char* argv0) {
    const std::unique_ptr<char, decltype(&std::free)> path(realpath("/proc/self/exe", nullptr),
                                                           &std::free);
    return path == nullptr ? argv0 : path.get();
}

bool startProgram(std::u16string_view commandLine) {
    const std::string command = fileNameToBytes(commandLine);
    const char* const arguments[] = {"/bin/sh", "-c", command.c_str(), nullptr};
    return startDetached(arguments);
}

bool startEditor(std::u16string_view fileName) {
    std::string path;
    if (!systemPath(fileName, path)) {
        return false;
    }
    // The variable may hold a command with words of its own, so a shell splits it.
    const char* const arguments[] = {
        "/bin/sh", "-c", "exec ${VISUAL:-${EDITOR:-xdg-open}} \"$1\"", "sh", path.c_str(), nullptr};
    return startDetached(arguments);
}

LibraryFunction loadLibraryFunction(std::u16string_view name, const char* function,
                                    std::string& fault) {
    std::string path;
    if (!systemPath(std::u16string(name) + u".so", path) || access(path.c_str(), F_OK) != 0) {
        return nullptr;
    }
    // A path without a separator would be looked up among the system's libraries.
    if (path.find('/') == std::string::npos) {
        path.insert(0, "./");
    }
    void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const found = library == nullptr ? nullptr : dlsym(library, function);
    if (found == nullptr) {
        fault = dlerror();
    }
    return reinterpret_cast<LibraryFunction>(found);
}

}  // namespace localPlatform
