// A class of the language: a table of names and functions that native code fills in.
//
// Members are matched by upper-cased name. A member exists once in each language, both leading to
// the same function, which looks at the name itself. Native code describes a class as a
// localMethodTable and lets that fill the declaration.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localNameTable.h"
#include "localInterpretatorUTF8/value/localValueDescription.h"

// Adds delta to the object's count and gives the new count; delta 0 reads it. Takes the address of
// the cell's object pointer.
using localLinkFunction = std::int64_t (*)(void** object, std::int64_t delta);

// Runs a method. `object` is null for a static call, which only the constructor (the empty name)
// allows. `result` is null on entry; the function reserves the slot and the caller owns it, also on
// failure.
using localMethodFunction = bool (*)(int& status, localContextUTF8* context, void*& object,
                                     std::u16string_view name, const localArguments* args,
                                     localValueDescription*& result);
using localAttribGetFunction = bool (*)(int& status, localContextUTF8* context, void*& object,
                                        std::u16string_view name, localValueDescription*& result);
using localAttribSetFunction = bool (*)(int& status, localContextUTF8* context, void*& object,
                                        std::u16string_view name,
                                        const localValueDescription* newValue);

class localMethodRows;

struct localClassMember {
    std::u16string name;  // upper case; empty names the constructor, "~" the destructor
    localMethodFunction methodFunction = nullptr;        // set: the member is a method
    localAttribSetFunction attribSetFunction = nullptr;  // set: the attribute can be written
    localAttribGetFunction attribGetFunction = nullptr;  // set: the attribute can be read
};

class localClassDeclaration {
public:
    // Live declarations.
    static std::int64_t counterStaticTotal;

    localClassDeclaration() { ++counterStaticTotal; }
    virtual ~localClassDeclaration() { --counterStaticTotal; }
    localClassDeclaration(const localClassDeclaration&) = delete;
    localClassDeclaration& operator=(const localClassDeclaration&) = delete;

    // The two defaults lie in the other language from what the fields hold. Meant.
    std::u16string nameEng = u"новый класс";  // how programs and JSON name the class
    std::u16string nameRus = u"new class";    // what typeName() prints
    std::u16string nameShort;
    std::u16string description;
    localLinkFunction classImplementationLinkFunction = nullptr;  // null: objects are not counted
    localMethodFunction classImplementationMethodFunction = nullptr;  // for names without a member
    localAttribGetFunction classImplementationAttribGetFunction = nullptr;
    // The rows of a class that is a table, null for any other. They live to the end of the process.
    localMethodRows* methodRows = nullptr;

    // Members in order of registration, owned here.
    void memberAdd(localClassMember member);
    const std::vector<std::unique_ptr<localClassMember>>& members() const { return members_; }
    // Exact compare; when a name was registered twice the last one wins. Null when there is none.
    const localClassMember* memberFind(std::u16string_view name) const {
        const auto* found = index_.find(name);
        return found == nullptr ? nullptr : *found;
    }
    const localClassMember* memberFind(std::u16string_view name, std::uint32_t hash) const {
        const auto* found = index_.find(name, hash);
        return found == nullptr ? nullptr : *found;
    }

    // Runs a method by name. Halts on a non-null `result`. Statuses 11, 12 for a static call
    // without such a member, 27 where an object has neither member nor class-wide function, 16 for
    // an exception of the method, and what it sets.
    bool methodExec(int& status, localContextUTF8* context, void*& object, std::u16string_view name,
                    const localArguments* args, localValueDescription*& result);
    // As methodExec for who has no status to tell: exceptions go on to the caller.
    bool methodRun(int& status, localContextUTF8* context, void*& object, std::u16string_view name,
                   const localArguments* args, localValueDescription*& result);
    // Reads an attribute; the name is looked up as given. Statuses 8, 10, 13. Halts on a non-null
    // `result`.
    bool attrGet(int& status, localContextUTF8* context, void*& object, std::u16string_view name,
                 localValueDescription*& result);
    // Writes an attribute. Statuses 9, 10. There is no class-wide function for writing.
    bool attrSet(int& status, localContextUTF8* context, void*& object, std::u16string_view name,
                 const localValueDescription* newValue);
    // Runs "~" on an object.
    bool destroyObject(int& status, void*& object) noexcept;

    // "nameRus (nameEng)  - description ".
    std::u16string summary() const;
    // The lines of CLASSDISPLAY: the summary, a line break, and the members sorted by their line.
    std::u16string listing() const;

private:
    std::vector<std::unique_ptr<localClassMember>> members_;
    localNameTable<const localClassMember*> index_;
};

// Classes that come together.
using localClassDeclarations = std::span<localClassDeclaration* const>;
