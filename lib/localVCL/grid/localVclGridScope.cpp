#include "grid/localVclGridScope.h"

#include <algorithm>

#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localGuard.h"

namespace {
std::uint64_t numberOf(const localContextUTF8* scope) {
    return localLiveObject::number(scope, localLiveObject::Kind::scope);
}
}  // namespace

localVclGridScope::localVclGridScope(localContextUTF8* above) : context_(above) {
    for (const auto* scope = context_.parent(); scope != nullptr; scope = scope->parent()) {
        above_.emplace_back(scope, numberOf(scope));
    }
}

bool localVclGridScope::stands() const {
    return std::ranges::all_of(
        above_, [](const auto& scope) { return numberOf(scope.first) == scope.second; });
}

localValueDescription& localVclOwnVariable(localContextUTF8& scope, std::u16string_view name) {
    localContextUTF8* holder = nullptr;
    localVariableEntry* found = scope.varFind(name, &holder);
    if (found == nullptr || holder != &scope) {
        found = &scope.varDeclare(name);
    }
    return *found->value;
}

bool localVclGridScope::evaluate(int& status, const std::u16string& expression, localSlot& value) {
    // The formula before may have ended a scope above.
    if (!stands()) {
        status = localErrorTypeATTRIBUTEWRONG;
        return false;
    }
    status = localErrorTypeOK;
    localInterpretatorUTF8::localPosition position = 0;
    return localGuarded(status, "localVclGrid200123", [&] {
        return localInterpretatorUTF8::scanStringGetExpressionAndEvaluete(
            status, expression, position, value.asResult(), &context_, false);
    });
}
