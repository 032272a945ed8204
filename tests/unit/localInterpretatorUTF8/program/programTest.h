// What the tests of compiling and running share.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/program/localProgram.h"
#include "support/language.h"
#include "support/ownFolder.h"

class programTest : public languageTest {
protected:
    struct compiled {
        bool done = false;
        int status = localErrorTypeOK;
        std::uint32_t pos = 0;
        std::unique_ptr<localOperatorCompiled> root = std::make_unique<localOperatorCompiled>();
        std::vector<std::string> lines;
    };
    static compiled compile(std::string_view text) {
        const capturedOutput lines;
        compiled outcome;
        outcome.done = textCompile(outcome.status, wide(text), outcome.pos, outcome.root.get());
        outcome.lines = lines.lines();
        return outcome;
    }

    struct ran {
        bool done = false;
        int status = localErrorTypeOK;
        std::vector<std::string> lines;
    };
    ran run(std::string_view text) {
        const capturedOutput lines;
        ran outcome;
        outcome.done = textExec(outcome.status, wide(text), &context);
        outcome.lines = lines.lines();
        return outcome;
    }

    // The tree as one line: "BLOCK{ASSIGN X=1 RETURN (1)}". A position stands behind "@" when asked
    // for.
    static std::string shape(const localOperatorCompiled& node, bool positions = false) {
        static const char* const names[] = {"NONE",   "BLOCK", "BREAK", "CONTINUE", "COMMAND",
                                            "ASSIGN", "IF",    "PRINT", "RETURN",   "WHILE"};
        std::string text = names[node.type];
        if (positions) {
            text += "@" + std::to_string(node.pos);
        }
        if (node.isVar) {
            text += " VAR";
        }
        if (!node.name.empty()) {
            text += " " + utf8(node.name);
        }
        if (!node.arguments.empty()) {
            text += "(";
            for (const localText& argument : node.arguments) {
                text += (text.back() == '(' ? "" : ",") + utf8(argument);
            }
            text += ")";
        }
        if (!node.expression().empty()) {
            text += " [" + utf8(node.expression()) + "]";
        }
        if (!node.functions.empty() || !node.operators.empty() ||
            node.type == localCompiledOperatorTypeBLOCK) {
            text += "{";
            for (const auto& [name, function] : node.functions) {
                text += "FUNCTION " + utf8(name) + "=" + shape(*function, positions) + " ";
            }
            for (const localOperatorCompiled& child : node.operators) {
                text += shape(child, positions) + " ";
            }
            if (text.back() == ' ') {
                text.pop_back();
            }
            text += "}";
        }
        return text;
    }

    const ownFolder folder;
    localContextUTF8 context;
};
