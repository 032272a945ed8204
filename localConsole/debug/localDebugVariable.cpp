#include "debug/localDebugVariable.h"

#include "localInterpretatorUTF8/context/localContextUTF8.h"

void localDebugVariablePut(localContextUTF8& context, std::u16string_view name, void* object) {
    localContextUTF8* holder = nullptr;
    localVariableEntry* variable = context.varFind(name, &holder);
    if (variable == nullptr || holder != &context) {
        variable = &context.varDeclare(name);
    }
    variable->value->objectBind(object, nullptr);
}
