// What a library above the language brings, written down as one record.
//
// The language declares every name: functions as rows of its table, classes in the list of
// CLASSLOAD, methods as rows of their class, counters as lines of the memory listing. A record
// fills what stands under those names. Each program adds the records of the libraries it is made
// of, in one ordered list at its start; what comes later in the list may fill methods of classes
// that came before, and replaces what a record before it filled under the same name.
#pragma once

#include <span>
#include <string_view>

#include "localInterpretatorUTF8/value/localCounters.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"

struct localExtensionFunction {
    std::u16string_view english;
    localHandler handler;
};

struct localExtensionMethod {
    std::u16string_view className;  // the English one
    std::u16string_view english;
    localHandler handler;
};

struct localExtensionClass {
    std::u16string_view nameEng;
    // Gives the declarations to register, several where classes come together. Called when the
    // class is first needed, and again.
    localClassDeclarations (*declare)();
};

// Names and handlers live to the end of the process, best as constants.
struct localExtension {
    std::u16string_view name;  // of the library, for the halt
    std::span<const localExtensionFunction> functions = {};
    std::span<const localExtensionClass> classes = {};       // CLASSLOAD registers them
    std::span<const localExtensionClass> startClasses = {};  // the global context has them at once
    std::span<const localExtensionMethod> methods = {};
    std::span<const localCounter> counters = {};
};

// Fills what the record names. Halts on a name that nobody declared: a function that is no row, a
// class that CLASSLOAD does not know, a method of a class that is not there or that has no such
// row, a counter without a line. Adding a record again changes nothing.
void localExtensionAdd(const localExtension& extension);
