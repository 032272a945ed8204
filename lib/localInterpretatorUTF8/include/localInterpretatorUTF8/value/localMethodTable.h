// A class of the language written down as a table: one row a method or attribute, with its names in
// both languages, its argument pattern and the function that does the work.
//
// One shared piece of code checks the number and the types of arguments and sets the statuses, so
// that a handler starts with arguments that are right. Listings, highlighting and the manual read
// the same rows.
//
// An argument pattern has a letter an argument: s string, n number, i number that is a position,
// b boolean, o object, l object of the class VALUELIST, t object of VALUETABLE, v any value.
// "|" begins those that may be left out; "+" at the end lets the last one repeat; "?" alone leaves
// the whole check to the handler.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <type_traits>

#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/value/localClassDeclaration.h"

// Converts a number to an index by truncation toward zero; what no 32-bit index can hold becomes 0.
std::uint32_t localIndex(double value);

// What a handler is given. The result is a reserved slot holding the number 0; false must leave a
// status.
struct localCall {
    int& status;
    localContextUTF8* context;  // of the call; null when a value is only asked for its text
    void* object;               // the native object of the class
    std::u16string_view name;   // upper case, in either language
    localArguments args;
    localValueDescription& result;

    double number(std::size_t i) const { return args[i]->num; }
    // A position counted from 1; 0, which is out of every range, for what can be none.
    std::uint32_t index(std::size_t i) const { return localIndex(args[i]->num); }
    std::u16string_view text(std::size_t i) const { return args[i]->wStr; }
    bool fail(int code) {
        status = code;
        return false;
    }
    bool give(double value) {
        result.setVal(value);
        return true;
    }
    bool give(localText value) {
        result.setVal(std::move(value));
        return true;
    }
    bool giveBoolean(bool value) {
        result.setBoolean(value);
        return true;
    }
    // The usual result of a procedure: the number 1.
    bool done() { return give(1.0); }
};

using localHandler = bool (*)(localCall& call);

struct localMethodRow {
    std::u16string_view english;
    std::u16string_view russian;  // empty where the method has none
    std::string_view arguments;
    localHandler handler;  // null: the name is known, calling it answers status 27
};

// Stands in a row whose work lives in a library above, until that library fills the row: status 26.
bool localBroughtFromAbove(localCall& call);

// The rows of a table by name, each with the handler in force beside it: the table's own, until a
// library above fills the row with another.
class localMethodRows {
public:
    struct Entry {
        const localMethodRow* row = nullptr;
        localHandler handler = nullptr;
    };

    explicit localMethodRows(std::span<const localMethodRow> rows);

    // The row of a name in capitals, in either language; null when there is none. It holds for
    // good.
    const Entry* find(std::u16string_view name) const { return index_.find(name); }
    // False when there is no row of that English name.
    bool fill(std::u16string_view english, localHandler handler);

private:
    void put(const Entry& entry);

    localNameTable<Entry> index_;
};

struct localAttributeRow {
    std::u16string_view english;
    std::u16string_view russian;   // empty where the attribute has none
    localHandler get;              // puts the value in the call's result; null: not readable
    localHandler set;              // gets the value as its one argument; null: not writeable
    std::string_view value = "v";  // the argument pattern of a new value
};

// Checks arguments against a pattern: status 31 for a wrong count, then 33 for a wrong type.
bool localArgumentsCheck(int& status, std::string_view pattern, localArguments args);

// Runs a handler on a call whose arguments fit the pattern. Status 27 where there is no handler, 31
// and 33 for other arguments, and what the handler sets.
bool localHandlerRun(localCall& call, std::string_view pattern, localHandler handler);

// What a table needs to know of the native type behind a class.
struct localNativeType {
    // A new object with count 0, made in a context. Null where a program makes none, or gives null:
    // status 11.
    void* (*construct)(localContextUTF8* context);
    void (*destroy)(void* object);  // of the last cell that held it
    localLinkFunction link;         // null: objects are not counted and never destroyed
};

// Of a type whose objects count the cells that hold them in their member linkCounter. Programs make
// objects of those that can be made of the context of the call, or of nothing.
template <class Native>
constexpr localNativeType localNativeOf() {
    localNativeType type{};
    if constexpr (std::is_constructible_v<Native, localContextUTF8*>) {
        type.construct = [](localContextUTF8* context) -> void* { return new Native(context); };
    } else if constexpr (std::is_default_constructible_v<Native>) {
        type.construct = [](localContextUTF8*) -> void* { return new Native; };
    }
    type.destroy = [](void* object) { delete static_cast<Native*>(object); };
    type.link = [](void** object, std::int64_t delta) -> std::int64_t {
        auto& counter = static_cast<Native*>(*object)->linkCounter;
        return counter += static_cast<std::remove_reference_t<decltype(counter)>>(delta);
    };
    return type;
}

enum class localMemberNames { both, englishOnly };

struct localClassTable {
    std::u16string_view nameEng;
    std::u16string_view nameRus;
    std::u16string_view description;
    std::u16string_view nativeName;  // names the class in halts: "localValueList"
    localNativeType native;
    std::span<const localMethodRow> methods;
    std::span<const localAttributeRow> attributes;
    localMemberNames memberNames = localMemberNames::both;
    // Whether names without a member reach the method function as well, and where such reads go.
    bool classWideMethods = false;
    localAttribGetFunction classWideAttributes = nullptr;
};

// The method function of every class that is a table: the constructor, "~", then the rows.
bool localTableMethod(const localClassTable& table, localClassDeclaration* declaration, int& status,
                      localContextUTF8* context, void*& object, std::u16string_view name,
                      const localArguments* args, localValueDescription*& result);

// The attribute functions of such a class. A name that is no attribute gives status 10, one that
// cannot be read 8, one that cannot be written 9, a new value of a wrong type 33.
bool localTableAttributeGet(const localClassTable& table, int& status, localContextUTF8* context,
                            void* object, std::u16string_view name, localValueDescription*& result);
bool localTableAttributeSet(const localClassTable& table, int& status, localContextUTF8* context,
                            void* object, std::u16string_view name,
                            const localValueDescription* newValue);

// Fills a declaration from its table.
void localDeclareFromTable(localClassDeclaration& declaration, const localClassTable& table,
                           localMethodFunction method, localAttribGetFunction attributeGet,
                           localAttribSetFunction attributeSet);

// The declaration of a class that is a table. Made on first use, never destroyed.
template <const localClassTable& table>
localClassDeclaration* localTableClass() {
    static localClassDeclaration* const declaration = [] {
        static localMethodRows rows(table.methods);
        auto made = std::make_unique<localClassDeclaration>();
        made->methodRows = &rows;
        localDeclareFromTable(
            *made, table,
            [](int& status, localContextUTF8* context, void*& object, std::u16string_view name,
               const localArguments* args, localValueDescription*& result) {
                return localTableMethod(table, localTableClass<table>(), status, context, object,
                                        name, args, result);
            },
            [](int& status, localContextUTF8* context, void*& object, std::u16string_view name,
               localValueDescription*& result) {
                return localTableAttributeGet(table, status, context, object, name, result);
            },
            [](int& status, localContextUTF8* context, void*& object, std::u16string_view name,
               const localValueDescription* newValue) {
                return localTableAttributeSet(table, status, context, object, name, newValue);
            });
        return made.release();
    }();
    return declaration;
}
