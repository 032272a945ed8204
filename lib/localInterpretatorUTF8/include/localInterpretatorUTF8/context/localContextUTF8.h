// A scope of the language: it owns variables and functions, and the global one the registry of
// classes.
//
// Scopes form a chain through `parent` up to the single global context; every function call, module
// and form has one of its own. A name is looked for from the inside out, the first match wins. The
// context is also the object of class CONTEXT through which all global functions are reached.
//
// Scopes are made for every call, so making one costs no heap work until something is declared in
// it.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/text/localScopeTable.h"
#include "localInterpretatorUTF8/text/localText.h"
#include "localInterpretatorUTF8/value/localClassDeclaration.h"
#include "localInterpretatorUTF8/value/localLiveObject.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "localInterpretatorUTF8/value/localValueDescription.h"

struct localOperatorCompiled;

struct localFunctionEntry {
    localText name;  // upper case
    std::uint32_t hash = 0;
    localMethodFunction nativeFunction = nullptr;
    // The body, shared with the program that defined it and with calls under way.
    std::shared_ptr<const localOperatorCompiled> compiled;
};

struct localVariableEntry {
    localText name;
    std::uint32_t hash = 0;
    localSlot value;
};

class localContextUTF8 {
public:
    using MessageFunction = void (*)(localContextUTF8* context, std::u16string_view text);

    // Live contexts.
    static std::int64_t counterStaticTotal;
    // The root of all chains; null until the first context stands.
    static localContextUTF8* globalContext;

    // Becomes the global context when there is none, else a child of it.
    localContextUTF8();
    // A child of `parentContext`; null means the global context, which is made first when there is
    // none.
    explicit localContextUTF8(localContextUTF8* parentContext);
    // Every variable is reset, also one that somebody else still holds. Meant: that is leaving a
    // scope.
    virtual ~localContextUTF8();
    localContextUTF8(const localContextUTF8&) = delete;
    localContextUTF8& operator=(const localContextUTF8&) = delete;

    // Makes the global context, which the caller owns, and tells the length of the slot store.
    // Halts when it stands already.
    static std::unique_ptr<localContextUTF8> createGlobal(int& status);
    // Sets a context to its first state, seeding the random generator again; the global one gets
    // the library's functions and the classes that are there from the start.
    bool init(int& status);

    // Whether the address is that of a context that stands. A value may hold one that has gone.
    static bool isAlive(const void* address) {
        return localLiveObject::stands(address, localLiveObject::Kind::scope);
    }

    // Names the owner of the context, once; a second time halts.
    void ceatorSet(void* owner);
    void* creator() const { return creator_; }
    localContextUTF8* parent() const { return parent_; }

    MessageFunction messageFunction = nullptr;
    bool caseSensitive = false;

    // Variables
    // -------------------------------------------------------------------------------------

    // The innermost variable of that name, and the context that holds it. Null when there is none.
    localVariableEntry* varFind(std::u16string_view name, localContextUTF8** holder = nullptr);
    // As varFind for a name in capitals with its hash, for chains without case-sensitive scopes
    // too.
    localVariableEntry* varFindUpper(std::u16string_view name, std::u16string_view upper,
                                     std::uint32_t hash, localContextUTF8** holder);
    // A new variable of this very context, holding the number 0. The name is stored in capitals
    // unless the context is case-sensitive. The entry holds until the next declaration.
    localVariableEntry& varDeclare(std::u16string_view name);
    localVariableEntry& varDeclareUpper(const localText& upper, std::uint32_t hash);
    // Removes one variable by its place in variables(), or all from the last to the first.
    void varRemove(std::size_t place);
    void varRemoveAll();
    const std::vector<localVariableEntry>& variables() const { return variables_.entries(); }
    // "[address] var [name] : " and the value's dump, or "variable [name] not found!!! ".
    std::u16string varDisplay(std::u16string_view name);
    // The value's text, or "variable name not found!".
    std::u16string varToString(std::u16string_view name);

    // The value of a name: the four boolean words before any variable, then variables. Status 10
    // for an unknown name.
    bool valueOfName(int& status, std::u16string_view name, localValueDescription& value);
    // The value that a bare name in an expression gives: as valueOfName, but the name of a global
    // function written in capitals cannot be read, status 8.
    bool nameRead(int& status, std::u16string_view name, localValueDescription& value);

    // Functions
    // -------------------------------------------------------------------------------------

    // The innermost function of a name in capitals, and the number of steps up to it; null and -1.
    const localFunctionEntry* funcFind(std::u16string_view name, int& steps,
                                       localContextUTF8** holder = nullptr);
    // Defines a function here. One of this very context is replaced, one of a parent is hidden.
    void funcAdd(std::u16string_view name, std::shared_ptr<const localOperatorCompiled> compiled);
    // Defines all functions of a compiled block, in order, or for want of memory none.
    void moduleImport(const localOperatorCompiled& module);
    // Every method of a class becomes a function of this very context, in place of what it had, and
    // is called with the context as its object. For want of memory nothing changes.
    void methodsImport(const localClassDeclaration& declaration);
    // Calls a function by name. Halts on a non-null `result`. Statuses 16 for an exception, 24, 31,
    // 19, 20 and what it sets.
    bool funcExec(int& status, std::u16string_view name, const localArguments& args,
                  localValueDescription*& result);
    // Runs a compiled body called from this context, with the statuses of a function's end.
    bool bodyExec(int& status, const std::shared_ptr<const localOperatorCompiled>& compiled,
                  const localArguments& args, localValueDescription*& result);
    const std::vector<localFunctionEntry>& functions() const { return functions_.entries(); }

    // Classes, kept by the global context
    // -------------------------------------------------------------

    // The first class with that English or Russian name. Null when there is none. One that belongs
    // there from the start but comes with a library at first use is brought now.
    localClassDeclaration* classFind(std::u16string_view name);
    // As classFind for a name that may have blanks in front; an empty name gives false.
    bool classExists(std::u16string_view name);
    // True when the class is registered now or was before; false when another holds one of its
    // names.
    bool classRegister(localClassDeclaration* declaration);
    // A new object of a class. Halts on a non-null `result`. Statuses 14, 26 for one whose library
    // cannot come, 11 and what the class sets; exceptions go on to the caller.
    bool createObj(int& status, std::u16string_view className, localValueDescription*& result);
    const std::vector<localClassDeclaration*>& classes() const { return classes_; }

    // Listings, to the standard output stream or another
    // -----------------------------------------------

    void dispMemo(std::u16string_view pattern, std::ostream& stream);
    void dispMemo(std::u16string_view pattern);
    // Appends the listing of variables to the log.
    void dispMemoToLog(std::u16string_view pattern);
    void dispFunc(std::u16string_view pattern, std::ostream& stream);
    void dispFunc(std::u16string_view pattern);
    void dispClasses(std::u16string_view pattern);

    // The class CONTEXT.
    static localClassDeclaration* classDeclaration();

private:
    bool valueOfUpperName(int& status, std::u16string_view name, const localUpperName& upper,
                          localValueDescription& value);
    struct Entered {};
    explicit localContextUTF8(Entered);
    localClassDeclaration* registeredFind(std::u16string_view upper) const;
    bool funcRun(int& status, std::u16string_view name, const localArguments& args,
                 localValueDescription*& result);
    void funcAdd(const localText& upper, std::uint32_t hash,
                 std::shared_ptr<const localOperatorCompiled> compiled);

    localContextUTF8* parent_ = nullptr;
    void* creator_ = nullptr;
    std::vector<localClassDeclaration*> classes_;
    localScopeTable<localFunctionEntry> functions_;
    localScopeTable<localVariableEntry> variables_;

    localLiveObject alive_{this, localLiveObject::Kind::scope};
};

// The pattern rule of listings: "?" is any unit, "*" means the rest matches, an empty pattern
// matches all. Both sides are compared in capitals unless `caseSensitive`.
bool namePatternMatches(std::u16string_view pattern, std::u16string_view name, bool caseSensitive);
