#include "localInterpretatorUTF8/context/localContextUTF8.h"

#include <algorithm>
#include <cassert>
#include <ctime>

#include "context/localStartClasses.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localRandom.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"

std::int64_t localContextUTF8::counterStaticTotal = 0;
localContextUTF8* localContextUTF8::globalContext = nullptr;

// The others begin here: what fails in them finds a whole context, which its destructor takes down.
localContextUTF8::localContextUTF8(Entered) {
    assert(localTurn::isHeld());
    ++counterStaticTotal;
}

localContextUTF8::localContextUTF8() : localContextUTF8(Entered()) {
    parent_ = globalContext;
    int status = localErrorTypeOK;
    init(status);
}

localContextUTF8::localContextUTF8(localContextUTF8* parentContext) : localContextUTF8(Entered()) {
    if (globalContext == nullptr) {
        static_cast<void>(new localContextUTF8);  // lives to the end of the process
        traceLine(u"глобальным назначен контекст [" + addressText(globalContext) + u"]",
                  "localContextUTF8");
    }
    parent_ = parentContext == nullptr ? globalContext : parentContext;
    int status = localErrorTypeOK;
    init(status);
}

localContextUTF8::~localContextUTF8() {
    assert(localTurn::isHeld());
    for (const localVariableEntry& variable : variables_.entries()) {
        // The value goes whatever holders are left: leaving a scope empties its variables. Meant.
        variable.value->reset();
    }
    if (globalContext == this) {
        globalContext = nullptr;
    }
    --counterStaticTotal;
}

void localContextUTF8::ceatorSet(void* owner) {
    if (creator_ != nullptr) {
        exit_FAILURE(u"localContextUTF8::ceatorSet() creator already set!");
    }
    creator_ = owner;
}

localVariableEntry* localContextUTF8::varFind(std::u16string_view name, localContextUTF8** holder) {
    const localUpperName upper(name);
    return varFindUpper(name, upper, upper.hash(), holder);
}

localVariableEntry* localContextUTF8::varFindUpper(std::u16string_view name,
                                                   std::u16string_view upper, std::uint32_t hash,
                                                   localContextUTF8** holder) {
    for (localContextUTF8* context = this; context != nullptr; context = context->parent_) {
        localVariableEntry* found = context->caseSensitive
                                        ? context->variables_.find(name, nameHash(name))
                                        : context->variables_.find(upper, hash);
        if (found != nullptr) {
            if (holder != nullptr) {
                *holder = context;
            }
            return found;
        }
    }
    return nullptr;
}

localVariableEntry& localContextUTF8::varDeclare(std::u16string_view name) {
    const localText stored = caseSensitive ? localText(name) : localText(toUpper(name));
    return varDeclareUpper(stored, nameHash(stored));
}

localVariableEntry& localContextUTF8::varDeclareUpper(const localText& upper, std::uint32_t hash) {
    return variables_.add({upper, hash, localSlot::reserve()});
}

void localContextUTF8::varRemove(std::size_t place) {
    // The value goes when the name is gone: its object may look into the scope.
    const localVariableEntry removed = variables_.remove(place);
}

void localContextUTF8::varRemoveAll() {
    while (!variables_.entries().empty()) {
        const localVariableEntry removed = variables_.removeLast();
    }
}

std::u16string localContextUTF8::varDisplay(std::u16string_view name) {
    const localVariableEntry* variable = varFind(name);
    if (variable == nullptr) {
        return u"variable [" + std::u16string(name) + u"] not found!!! ";
    }
    return u"[" + addressText(variable->value.get()) + u"] var [" + variable->name.string() +
           u"] : " + variable->value->dump();
}

std::u16string localContextUTF8::varToString(std::u16string_view name) {
    const localVariableEntry* variable = varFind(name);
    return variable == nullptr ? u"variable " + std::u16string(name) + u" not found!"
                               : variable->value->toString().string();
}

const localFunctionEntry* localContextUTF8::funcFind(std::u16string_view name, int& steps,
                                                     localContextUTF8** holder) {
    const std::uint32_t hash = nameHash(name);
    steps = 0;
    for (localContextUTF8* context = this; context != nullptr; context = context->parent_) {
        if (const localFunctionEntry* found = context->functions_.find(name, hash)) {
            if (holder != nullptr) {
                *holder = context;
            }
            return found;
        }
        ++steps;
    }
    steps = -1;
    return nullptr;
}

void localContextUTF8::funcAdd(const localText& upper, std::uint32_t hash,
                               std::shared_ptr<const localOperatorCompiled> compiled) {
    if (localFunctionEntry* entry = functions_.find(upper, hash)) {
        entry->nativeFunction = nullptr;
        entry->compiled = std::move(compiled);
        return;
    }
    functions_.add({upper, hash, nullptr, std::move(compiled)});
}

void localContextUTF8::funcAdd(std::u16string_view name,
                               std::shared_ptr<const localOperatorCompiled> compiled) {
    const localText upper = toUpper(name);
    funcAdd(upper, nameHash(upper), std::move(compiled));
}

void localContextUTF8::moduleImport(const localOperatorCompiled& module) {
    functions_.makeRoom(module.functions.size());
    for (const auto& [name, body] : module.functions) {
        funcAdd(name, nameHash(name), body);
    }
}

bool localContextUTF8::bodyExec(int& status,
                                const std::shared_ptr<const localOperatorCompiled>& compiled,
                                const localArguments& args, localValueDescription*& result) {
    // The body may define a function of its own name anew, so the call holds it.
    const std::shared_ptr<const localOperatorCompiled> body = compiled;
    const int statusOfCaller = status;
    const bool run = body->executeFunction(status, this, *body, args, result);
    if (!run && (status == localErrorTypeOK || status == localErrorTypeRETURN)) {
        return false;
    }
    if (!statusAfterBody(status, statusOfCaller)) {
        return false;
    }
    if (result == nullptr) {
        result = localMemoryManager::manager->reserveSlot();
    }
    return true;
}

bool localContextUTF8::funcExec(int& status, std::u16string_view name, const localArguments& args,
                                localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(u"localContextUTF8::funcExec() result must be NULL!");
    }
    return localGuarded(status, name, [&] { return funcRun(status, name, args, result); });
}

bool localContextUTF8::funcRun(int& status, std::u16string_view name, const localArguments& args,
                               localValueDescription*& result) {
    int steps = 0;
    localContextUTF8* holder = nullptr;
    const localFunctionEntry* entry = funcFind(localUpperName(name), steps, &holder);
    if (entry == nullptr || (entry->nativeFunction == nullptr && entry->compiled == nullptr)) {
        status = localErrorTypeFUNCTIONUNKNOWN;
        return false;
    }
    if (entry->compiled != nullptr) {
        return bodyExec(status, entry->compiled, args, result);
    }
    const int statusOfCaller = status;
    const localText nameCopy = entry->name;
    void* object = holder;
    const bool run = entry->nativeFunction(status, holder, object, nameCopy, &args, result);
    return run && statusAfterBody(status, statusOfCaller);
}

localClassDeclaration* localContextUTF8::registeredFind(std::u16string_view upper) const {
    for (localClassDeclaration* declaration : classes_) {
        if (declaration->nameEng == upper || declaration->nameRus == upper) {
            return declaration;
        }
    }
    return nullptr;
}

localClassDeclaration* localContextUTF8::classFind(std::u16string_view name) {
    const localUpperName upper(name);
    localClassDeclaration* const found = globalContext->registeredFind(upper);
    return found == nullptr && localStartClasses::bring(upper)
               ? globalContext->registeredFind(upper)
               : found;
}

bool localContextUTF8::classExists(std::u16string_view name) {
    const std::u16string_view trimmed = trimLeft(name);
    return !trimmed.empty() && classFind(trimmed) != nullptr;
}

bool localContextUTF8::classRegister(localClassDeclaration* declaration) {
    std::vector<localClassDeclaration*>& registry = globalContext->classes_;
    for (const localClassDeclaration* registered : registry) {
        if (registered == declaration) {
            return true;
        }
        if (registered->nameEng == declaration->nameEng ||
            registered->nameRus == declaration->nameRus) {
            return false;
        }
    }
    registry.push_back(declaration);
    return true;
}

bool localContextUTF8::createObj(int& status, std::u16string_view className,
                                 localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(u"localContextUTF8::createObj() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    localClassDeclaration* declaration = classFind(className);
    if (declaration == nullptr) {
        status = localStartClasses::isLate(localUpperName(className)) ? localErrorTypeGRAPHICONLY
                                                                      : localErrorTypeCLASSUNKNOWN;
        return false;
    }
    void* object = nullptr;
    localSlot made;
    if (declaration->methodRun(status, this, object, u"", nullptr, made.asResult())) {
        result->assign(*made);
    }
    return status == localErrorTypeOK;
}

std::unique_ptr<localContextUTF8> localContextUTF8::createGlobal(int& status) {
    if (globalContext != nullptr) {
        exit_FAILURE(u"Error!!!  localContextUTF8::globalContext cannot be reinit");
    }
    auto made = std::make_unique<localContextUTF8>();
    status = localErrorTypeOK;
    writeLine(u"localMemoryManager::manager->getReservedCount()= " +
              numberToString(static_cast<double>(localMemoryManager::manager->getReservedCount())));
    return made;
}

bool localContextUTF8::init(int& status) {
    localMemoryManager::start();
    if (globalContext == nullptr) {
        globalContext = this;
    }
    // Every new context begins the random sequence again, so two made within a second share one.
    // Meant.
    localRandomSeed(static_cast<std::uint32_t>(std::time(nullptr)));
    status = localErrorTypeOK;
    creator_ = nullptr;
    messageFunction = [](localContextUTF8*, std::u16string_view text) { writeLine(text); };
    varRemoveAll();
    classes_.clear();
    if (globalContext == this) {
        methodsImport(*classDeclaration());
        localStartClasses::registerIn(*this);
    }
    return true;
}

void localContextUTF8::methodsImport(const localClassDeclaration& declaration) {
    localScopeTable<localFunctionEntry> functions;
    for (const auto& member : declaration.members()) {
        if (member->methodFunction != nullptr) {
            functions.add({member->name, nameHash(member->name), member->methodFunction, nullptr});
        }
    }
    functions_ = std::move(functions);
}
