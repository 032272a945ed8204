// A compiled statement: the structure of a program as a tree, with every expression kept as text.
//
// A node is run through its execute function, which children take from their parent: the choice at
// the root sets the run mode of the whole tree. That is how stepping and tracing attach; the
// statement engine knows nothing of them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "localInterpretatorUTF8/text/localText.h"
#include "localInterpretatorUTF8/value/localValueDescription.h"

class localContextUTF8;
struct localOperatorCompiled;

enum localCompiledOperatorType : std::int32_t {
    localCompiledOperatorTypeNONE = 0,   // never produced
    localCompiledOperatorTypeBLOCK = 1,  // children in order; with a name, a function's body
    localCompiledOperatorTypeBREAK = 2,
    localCompiledOperatorTypeCONTINUE = 3,  // run, though no keyword produces it
    localCompiledOperatorTypeCOMMAND = 4,
    localCompiledOperatorTypeASSIGN = 5,  // with an empty name, an expression run for its effect
    localCompiledOperatorTypeIF = 6,      // children are the branches
    localCompiledOperatorTypePRINT = 7,
    localCompiledOperatorTypeRENURN = 8,
    localCompiledOperatorTypeWHILE = 9,
};

// Runs a node in a context. `args` are those of a function's body. `result` must be null on entry;
// what it holds afterwards belongs to the caller, also on failure.
using localExecuteFunction = bool (*)(int& status, localContextUTF8* context,
                                      const localOperatorCompiled& node, const localArguments& args,
                                      localValueDescription*& result);

struct localOperatorCompiled {
    // A null function means localOperatorCompiled::execute.
    explicit localOperatorCompiled(localExecuteFunction function = nullptr)
        : executeFunction(function == nullptr ? &execute : function) {}

    // The statement engine. Statuses 16, 31, 53, 55 to 57 and those of expressions and commands.
    // Halts on a non-null `result`.
    static bool execute(int& status, localContextUTF8* context, const localOperatorCompiled& node,
                        const localArguments& args, localValueDescription*& result);

    // The text of the expression or command as the program has it.
    std::u16string_view expression() const {
        return std::u16string_view(statement).substr(0, statement.size() - (terminated ? 1 : 0));
    }
    // An expression is run with a ";" behind it, except that of a RETURN; it is put there once.
    void setExpression(std::u16string_view text, bool terminate) {
        statement = text;
        terminated = terminate && !text.empty();
        if (terminated) {
            statement += u';';
        }
    }

    // Writes the tree to the standard output stream, a level of indentation as "..... ".
    void dump(int indent = 0) const;

    std::uint32_t pos = 0;  // where the statement starts in the program's text
    std::int32_t type = localCompiledOperatorTypeNONE;
    bool isVar = false;       // an assignment that declares
    bool terminated = false;  // `statement` ends in a ";" that is no part of the expression
    localText name;           // target of an assignment or function's name, in capitals
    std::uint32_t nameHash = 0;
    std::u16string statement;
    std::vector<localOperatorCompiled> operators;
    std::vector<localText> arguments;  // names of the parameters, in capitals
    localExecuteFunction executeFunction;
    // Functions defined directly in this block, in order. The bodies are shared with the contexts
    // that know them, so they outlive the tree.
    std::vector<std::pair<localText, std::shared_ptr<localOperatorCompiled>>> functions;
};
