// The compiled tree as a person reads it.
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localStackGuard.h"
#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"

namespace {

std::u16string lineStart(const localOperatorCompiled& node, int indent) {
    std::u16string start;
    for (int i = 0; i < indent; ++i) {
        start += u"..... ";
    }
    return start + u"[" + numberToString(node.pos) + u"]  ";
}

void dumpChildren(const localOperatorCompiled& node, int indent) {
    for (const auto& [name, body] : node.functions) {
        body->dump(indent);
    }
    for (const localOperatorCompiled& child : node.operators) {
        child.dump(indent);
    }
}

void dumpBlock(const localOperatorCompiled& node, int indent) {
    const std::u16string start = lineStart(node, indent);
    const std::u16string level = numberToString(indent);
    std::u16string head = u"// start localCompiledOperatorTypeBLOCK with indent=" + level;
    if (!node.name.empty()) {
        head += u" function " + node.name.string();
    }
    writeLine(start + head);
    dumpChildren(node, indent + 1);
    writeLine(start + u"// finish localCompiledOperatorTypeBLOCK with indent=" + level);
}

void dumpIf(const localOperatorCompiled& node, int indent) {
    const std::u16string start = lineStart(node, indent);
    writeLine(start + u"localCompiledOperatorTypeIF ");
    for (std::size_t i = 0; i < node.operators.size(); ++i) {
        const localOperatorCompiled& branch = node.operators[i];
        const std::u16string condition(branch.expression());
        if (i != 0 && condition.empty()) {
            writeLine(start + u"else ");
        } else {
            writeLine(start + (i == 0 ? u"if " : u"elseif ") + u" (" + condition + u") then ");
        }
        branch.dump(indent + 1);
    }
    writeLine(start + u"endif; ");
}

}  // namespace

void localOperatorCompiled::dump(int indent) const {
    int status = localErrorTypeOK;
    if (!localStackGuard::enter(status, "COUT")) {
        return;
    }
    const std::u16string start = lineStart(*this, indent);
    const std::u16string text(expression());
    switch (type) {
        case localCompiledOperatorTypeBLOCK:
            dumpBlock(*this, indent);
            break;
        case localCompiledOperatorTypeBREAK:
            writeLine(start + u"BREAK ; ");
            break;
        case localCompiledOperatorTypeCONTINUE:
            // The name of another type stands here. Meant.
            writeLine(start + u"localCompiledOperatorTypeBLOCK ");
            break;
        case localCompiledOperatorTypeCOMMAND:
            writeLine(start + text + u"; ");
            break;
        case localCompiledOperatorTypeASSIGN:
            writeLine(start + (name.empty() ? std::u16string() : name.string() + u"=") + text +
                      u"; ");
            break;
        case localCompiledOperatorTypeIF:
            dumpIf(*this, indent);
            break;
        case localCompiledOperatorTypePRINT:
            writeLine(start + u"? (" + text + u") ; ");
            break;
        case localCompiledOperatorTypeRENURN:
            writeLine(start + u"localCompiledOperatorTypeRENURN ");
            break;
        case localCompiledOperatorTypeWHILE:
            traceLine(start + u"while " + text + u" do", "COUT");
            for (const localOperatorCompiled& child : operators) {
                child.dump(indent + 1);
            }
            writeLine(start + u"enddo; ");
            break;
        default:
            writeLine(start + u"localCompiledOperatorTypeNONE ");
            break;
    }
}
