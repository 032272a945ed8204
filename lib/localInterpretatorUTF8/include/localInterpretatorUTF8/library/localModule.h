// Libraries that come as files beside the program, at the first use of something of theirs.
//
// The file, a module, holds the library's own code and what it stands on; the language itself is
// that of the program, which exports it, so there is one slot store, one global context and one
// turn. A module is an extension provider: its one function gives the record that the window
// program, where the same library is linked in, adds at its start.
#pragma once

#include <span>
#include <string_view>

#include "localInterpretatorUTF8/library/localExtension.h"

// What a module is there for. The names are those of its record; they live to the end of the
// process.
struct localModuleOffer {
    std::u16string_view file;  // beside the program, without the system's ending
    std::span<const std::u16string_view> functions = {};     // English names
    std::span<const std::u16string_view> classes = {};       // English names; CLASSLOAD loads it
    std::span<const std::u16string_view> startClasses = {};  // the search for the class loads it
};

// From now on a call of such a function, CLASSLOAD of such a class or a search for such a start
// class loads the module. Status 26 when that cannot be: silently where there is no file, with a
// line that tells why where the file is no such module. The next use tries again. Halts as
// localExtensionAdd does on a name that nobody declared.
void localModuleAdd(const localModuleOffer& offer);

#if defined(_WIN32)
#define LOCAL_MODULE_ENTRY extern "C" __declspec(dllexport)
#else
#define LOCAL_MODULE_ENTRY extern "C" __attribute__((visibility("default")))
#endif

// The one function of every module. Null when the library cannot work here; status 26 then.
LOCAL_MODULE_ENTRY const localExtension* localModule();
