#include "script/localDbScript.h"

#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "text/localDbText.h"

namespace {

localVariableEntry* ownVariable(localContextUTF8& scope, std::u16string_view name) {
    localContextUTF8* holder = nullptr;
    localVariableEntry* const found = scope.varFind(name, &holder);
    return holder == &scope ? found : nullptr;
}

}  // namespace

localValueDescription& localDbVariable(localContextUTF8& scope, std::u16string_view name) {
    localVariableEntry* const found = ownVariable(scope, name);
    return found != nullptr ? *found->value : *scope.varDeclare(name).value;
}

bool localDbAttributeRead(int& status, localContextUTF8& scope, std::u16string_view name,
                          std::u16string_view nativeName, localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(localDbWords(nativeName,
                                  u"::classImplementationMethodFunction() result must be NULL!"));
    }
    result = localMemoryManager::manager->reserveSlot();
    status = localErrorTypeOK;
    const localVariableEntry* const found = ownVariable(scope, name);
    if (found == nullptr) {
        status = localErrorTypeATTRIBUTEWRONG;
        return false;
    }
    result->assign(*found->value);
    return true;
}

bool localDbTestMethod(localCall& call) {
    const double sample = call.number(0);
    return sample >= 1 && sample < 5 ? localBroughtFromAbove(call) : call.giveBoolean(false);
}

void* localDbNoConstructor(localContextUTF8*) {
    traceLine(u"localDataBaseTable::classImplementationMethodFunction() constructor unuseable!",
              "classImplementationMethodFunction");
    return nullptr;
}
