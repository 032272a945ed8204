#include <cassert>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localStackGuard.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

using namespace localInterpretatorUTF8;

// One node on its way: what all kinds of statement share.
struct Run {
    int& status;
    localContextUTF8* context;
    const localOperatorCompiled& node;
    const localArguments& args;
    localValueDescription*& result;

    bool fail(int code) const {
        status = code;
        return false;
    }
    bool evaluate(const std::u16string& text) const {
        releaseResult();
        localPosition pos = 0;
        return scanStringGetExpressionAndEvaluete(status, text, pos, result, context, false);
    }
    void releaseResult() const {
        if (result != nullptr) {
            localValueDescription::release(std::exchange(result, nullptr));
        }
    }
    bool runChild(const localOperatorCompiled& child, localContextUTF8* scope) const {
        releaseResult();
        return child.executeFunction(status, scope, child, localArguments(), result);
    }
};

// The lines of a failed assignment or condition.
void evaluationFailed(int status, const localText& name, std::u16string_view expression) {
    writeLine();
    traceLine({u">> ", name, u"=", expression, u"; "}, "execute");
    traceLine({u"ERROR!!! ", localStatusWords(status)}, "execute");
}

// Children in order. A BREAK or RETURN on its way up stops the block; a continue does not. Meant.
bool children(const Run& run, localContextUTF8* scope) {
    for (const localOperatorCompiled& child : run.node.operators) {
        if (!run.runChild(child, scope)) {
            return false;
        }
        if (run.status == localErrorTypeBREAK || run.status == localErrorTypeRETURN) {
            break;
        }
    }
    return true;
}

bool block(const Run& run) {
    if (!run.node.functions.empty()) {
        run.context->moduleImport(run.node);
    }
    // A block without statements fails, with the status as it is. Meant.
    return !run.node.operators.empty() && children(run, run.context);
}

// The new scope's parent is the caller's and not the definer's: a function sees its caller's
// variables.
bool functionBody(const Run& run) {
    if (run.args.size() < run.node.arguments.size()) {
        return run.fail(localErrorTypePARAMETERCOUNT);
    }
    localContextUTF8 scope(run.context);
    for (std::size_t i = 0; i < run.node.arguments.size(); ++i) {
        scope.varDeclare(run.node.arguments[i]).value->assign(*run.args[i]);
    }
    if (!run.node.functions.empty()) {
        scope.moduleImport(run.node);
    }
    return !run.node.operators.empty() && children(run, &scope);
}

bool command(const Run& run) {
    localPosition pos = 0;
    if (scanStringGetOperatorAndExec(run.status, run.node.statement, pos, run.context, false)) {
        return true;
    }
    traceLine({run.node.name, u"=", run.node.expression(), u"; "}, "execute");
    writeLine(localStatusWords(run.status));
    traceLine(u"ERROR!!!", "execute");
    return false;
}

bool assign(const Run& run) {
    const localOperatorCompiled& node = run.node;
    if (!run.evaluate(node.statement)) {
        evaluationFailed(run.status, node.name, node.expression());
        return false;
    }
    if (node.name.empty()) {
        return true;
    }
    localContextUTF8* holder = nullptr;
    localVariableEntry* variable =
        run.context->varFindUpper(node.name, node.name, node.nameHash, &holder);
    if (variable == nullptr || node.isVar) {
        if (variable != nullptr && holder == run.context) {
            return run.fail(localErrorTypeVARIABLEDECLAREDTWICE);
        }
        variable = &run.context->varDeclareUpper(node.name, node.nameHash);
    }
    variable->value->assign(*run.result);
    return true;
}

bool ifBranches(const Run& run) {
    for (const localOperatorCompiled& branch : run.node.operators) {
        if (!branch.statement.empty()) {
            if (!run.evaluate(branch.statement)) {
                evaluationFailed(run.status, run.node.name, branch.expression());
                return false;
            }
            // Any value decides by its number, whatever its type. Meant.
            if (!(run.result->num > 0.0)) {
                continue;
            }
        }
        return run.runChild(branch, run.context);
    }
    return true;
}

bool print(const Run& run) {
    if (!run.evaluate(run.node.statement)) {
        const std::u16string_view text = run.node.expression();
        traceLine(text, "execute");
        traceLine({u"ERROR!!! ", localStatusWords(run.status), u" in  expression."}, "execute");
        traceLine({u"Expression below: ", text, u" in  expression"}, "execute");
        return false;
    }
    writeLine(run.result->toString());
    return true;
}

bool returnValue(const Run& run) {
    if (!run.evaluate(run.node.statement)) {
        placeLine(
            {u"localCompiledOperatorTypeRENURN with expression [", run.node.expression(), u"]"});
        traceLine(u"ERROR!!!", "execute");
        return false;
    }
    run.status = localErrorTypeRETURN;
    return true;
}

bool whileLoop(const Run& run) {
    for (;;) {
        if (!run.evaluate(run.node.statement)) {
            traceLine(u"ERROR!!!", "execute");
            return false;
        }
        if (run.result->num <= 0.0) {
            return true;
        }
        for (const localOperatorCompiled& child : run.node.operators) {
            if (!run.runChild(child, run.context)) {
                return false;
            }
            if (run.status == localErrorTypeRETURN) {
                return true;
            }
            if (run.status == localErrorTypeBREAK) {
                run.status = localErrorTypeOK;
                return true;
            }
        }
    }
}

bool runNode(const Run& run) {
    switch (run.node.type) {
        case localCompiledOperatorTypeBLOCK:
            if (!localStackGuard::enter(run.status, "execute")) {
                return false;
            }
            return run.node.name.empty() ? block(run) : functionBody(run);
        case localCompiledOperatorTypeBREAK:
            run.status = localErrorTypeBREAK;
            return true;
        case localCompiledOperatorTypeCONTINUE:
            run.status = localErrorTypeCONTINUE;
            return true;
        case localCompiledOperatorTypeCOMMAND:
            return command(run);
        case localCompiledOperatorTypeASSIGN:
            return assign(run);
        case localCompiledOperatorTypeIF:
            return ifBranches(run);
        case localCompiledOperatorTypePRINT:
            return print(run);
        case localCompiledOperatorTypeRENURN:
            return returnValue(run);
        case localCompiledOperatorTypeWHILE:
            return whileLoop(run);
        default:
            traceLine(u"localCompiledOperatorTypeNONE ", "execute");
            return false;
    }
}

}  // namespace

bool localOperatorCompiled::execute(int& status, localContextUTF8* context,
                                    const localOperatorCompiled& node, const localArguments& args,
                                    localValueDescription*& result) {
    assert(localTurn::isHeld());
    if (result != nullptr) {
        exit_FAILURE(u"localOperatorCompiled::execute() result must be NULL!");
    }
    status = localErrorTypeOK;
    const Run run{status, context, node, args, result};
    return localGuarded(status, "execute", [&run] { return runNode(run); });
}
