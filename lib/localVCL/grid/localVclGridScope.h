// The scope in which a grid computes its formulas, below one that may end before it. Under the
// turn.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "localInterpretatorUTF8/context/localContextUTF8.h"

// The scope's own variable of that name, made when there is none. Holds until the next one is made.
localValueDescription& localVclOwnVariable(localContextUTF8& scope, std::u16string_view name);

class localVclGridScope {
public:
    // Null means the global scope.
    explicit localVclGridScope(localContextUTF8* above);

    // Whether all scopes above stand; the scope may be used as long as they do.
    bool stands() const;
    localContextUTF8& context() { return context_; }
    localValueDescription& variable(std::u16string_view name) {
        return localVclOwnVariable(context_, name);
    }
    // False with a status for what is no expression or cannot be computed; 10 when a scope above
    // has ended.
    bool evaluate(int& status, const std::u16string& expression, localSlot& value);

private:
    localContextUTF8 context_;
    // With their numbers: another scope may come to stand at the address of one that has ended.
    std::vector<std::pair<const localContextUTF8*, std::uint64_t>> above_;
};
