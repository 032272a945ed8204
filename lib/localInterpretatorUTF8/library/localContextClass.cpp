// The class CONTEXT: its methods are the global functions, its attributes the boolean words and the
// variables.
#include <memory>

#include "localInterpretatorUTF8/classes/localClassForTest.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

// True and sets `value` for the four boolean words; they come before any variable, so that a
// variable of such a name can never be read.
bool booleanWord(std::u16string_view upper, bool& value) {
    if (upper == u"TRUE" || upper == u"ИСТИНА") {
        value = true;
        return true;
    }
    value = false;
    return upper == u"FALSE" || upper == u"ЛОЖЬ";
}

bool attributeGet(int& status, localContextUTF8*, void*& object, std::u16string_view name,
                  localValueDescription*& result) {
    if (result != nullptr) {
        // The other function's name stands in the message on purpose.
        exit_FAILURE(u"localContextUTF8::classImplementationMethodFunction() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    // A value may hold a context that has gone: a function that returns its own leaves one behind.
    if (!localContextUTF8::isAlive(object)) {
        status = localErrorTypeNOCONTEXT;
        return false;
    }
    return static_cast<localContextUTF8*>(object)->valueOfName(status, name, *result);
}

bool method(int& status, localContextUTF8* context, void*& object, std::u16string_view name,
            const localArguments* args, localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(u"localContextUTF8::classImplementationMethodFunction() result must be NULL!");
    }
    status = localErrorTypeOK;
    if (object == nullptr) {
        result = localMemoryManager::manager->reserveSlot();
        if (!name.empty()) {
            status = localErrorTypeSTATICCALL;
            return false;
        }
        result->objectBind(new localClassForTest, localClassForTest::classDeclaration());
        return true;
    }
    if (object != context && !localContextUTF8::isAlive(object)) {
        result = localMemoryManager::manager->reserveSlot();
        status = localErrorTypeNOCONTEXT;
        return false;
    }
    auto* scope = static_cast<localContextUTF8*>(object);
    const localUpperName upper(name);
    int steps = 0;
    localContextUTF8* holder = nullptr;
    const localFunctionEntry* entry = scope->funcFind(upper, steps, &holder);
    if (entry != nullptr && args != nullptr) {
        if (entry->compiled != nullptr) {
            return scope->bodyExec(status, entry->compiled, *args, result);
        }
        if (entry->nativeFunction != nullptr && entry->nativeFunction != method) {
            void* holderObject = holder;
            return entry->nativeFunction(status, holder, holderObject, upper, args, result);
        }
    }
    return localLibrary::call(status, scope, upper, args, result);
}

}  // namespace

localClassDeclaration* localContextUTF8::classDeclaration() {
    static localClassDeclaration* const declaration = [] {
        auto made = std::make_unique<localClassDeclaration>();
        made->nameEng = u"CONTEXT";
        made->nameRus = u"КОНТЕКСТ";
        made->description = u"это контекст";
        made->classImplementationMethodFunction = method;
        made->classImplementationAttribGetFunction = attributeGet;
        for (const localMethodRow& row : localLibrary::rows()) {
            for (const std::u16string_view name : {row.english, row.russian}) {
                if (!name.empty()) {
                    made->memberAdd({std::u16string(name), method, nullptr, nullptr});
                }
            }
        }
        for (const char16_t* name : {u"FALSE", u"ЛОЖЬ", u"TRUE", u"ИСТИНА"}) {
            made->memberAdd({name, nullptr, nullptr, attributeGet});
        }
        return made.release();
    }();
    return declaration;
}

bool localContextUTF8::valueOfUpperName(int& status, std::u16string_view name,
                                        const localUpperName& upper, localValueDescription& value) {
    bool word = false;
    if (upper.view().size() >= 4 && upper.view().size() <= 6 && booleanWord(upper, word)) {
        value.setBoolean(word);
        return true;
    }
    const localVariableEntry* variable = varFindUpper(name, upper, upper.hash(), nullptr);
    if (variable == nullptr) {
        status = localErrorTypeATTRIBUTEWRONG;
        return false;
    }
    value.assign(*variable->value);
    return true;
}

bool localContextUTF8::valueOfName(int& status, std::u16string_view name,
                                   localValueDescription& value) {
    return valueOfUpperName(status, name, localUpperName(name), value);
}

bool localContextUTF8::nameRead(int& status, std::u16string_view name,
                                localValueDescription& value) {
    const localUpperName upper(name);
    // Members are looked up as written: ABS names the function and cannot be read, abs names a
    // variable.
    if (upper.wasUpper()) {
        const localClassMember* member = classDeclaration()->memberFind(upper, upper.hash());
        if (member != nullptr && member->attribGetFunction == nullptr) {
            status = localErrorTypeATTRIBUTENOTREADABLE;
            return false;
        }
    }
    return valueOfUpperName(status, name, upper, value);
}
