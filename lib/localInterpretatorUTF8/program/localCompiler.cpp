#include <array>
#include <string_view>
#include <utility>

#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localNameTable.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localStackGuard.h"
#include "scanner/localCursor.h"

namespace {

using namespace localInterpretatorUTF8;

enum class Keyword {
    none,
    ifWord,
    thenWord,
    elseIfWord,
    elseWord,
    endIfWord,
    whileWord,
    forWord,
    toWord,
    doWord,
    endDoWord,
    breakWord,
    functionWord,
    endFunctionWord,
    returnWord,
    printWord,
};

struct KeywordRow {
    std::u16string_view name;
    Keyword keyword;
};

constexpr std::array keywords = std::to_array<KeywordRow>({
    {u"IF", Keyword::ifWord},
    {u"ЕСЛИ", Keyword::ifWord},
    {u"THEN", Keyword::thenWord},
    {u"ТОГДА", Keyword::thenWord},
    {u"ELSEIF", Keyword::elseIfWord},
    {u"ИНАЧЕЕСЛИ", Keyword::elseIfWord},
    {u"ELSE", Keyword::elseWord},
    {u"ИНАЧЕ", Keyword::elseWord},
    {u"ENDIF", Keyword::endIfWord},
    {u"КОНЕЦЕСЛИ", Keyword::endIfWord},
    {u"WHILE", Keyword::whileWord},
    {u"ПОКА", Keyword::whileWord},
    {u"FOR", Keyword::forWord},
    {u"ДЛЯ", Keyword::forWord},
    {u"TO", Keyword::toWord},
    {u"ПО", Keyword::toWord},
    {u"DO", Keyword::doWord},
    {u"ЦИКЛ", Keyword::doWord},
    {u"ENDDO", Keyword::endDoWord},
    {u"КОНЕЦЦИКЛА", Keyword::endDoWord},
    {u"BREAK", Keyword::breakWord},
    {u"ПРЕРВАТЬ", Keyword::breakWord},
    {u"FUNCTION", Keyword::functionWord},
    {u"ФУНКЦИЯ", Keyword::functionWord},
    {u"PROCEDURE", Keyword::functionWord},
    {u"ПРОЦЕДУРА", Keyword::functionWord},
    {u"ENDFUNCTION", Keyword::endFunctionWord},
    {u"КОНЕЦФУНКЦИИ", Keyword::endFunctionWord},
    {u"ENDPROCEDURE", Keyword::endFunctionWord},
    {u"КОНЕЦПРОЦЕДУРЫ", Keyword::endFunctionWord},
    {u"RETURN", Keyword::returnWord},
    {u"ВОЗВРАТ", Keyword::returnWord},
    {u"PRINT", Keyword::printWord},  // accepted and does nothing; it has no Russian form
});

Keyword keywordOf(const localUpperName& token) {
    static const localNameTable<Keyword> index = [] {
        localNameTable<Keyword> made;
        for (const KeywordRow& row : keywords) {
            made.put(row.name, row.keyword);
        }
        return made;
    }();
    const Keyword* found = index.find(token, token.hash());
    return found == nullptr ? Keyword::none : *found;
}

// VAR is exact; its Russian form may be cut short to four letters.
bool isVarWord(std::u16string_view token) {
    const localUpperName upper(token);
    return upper.view() == u"VAR" || isPrefix(upper, u"ПЕРЕМЕННАЯ");
}

// Compiles one block. A construct inside makes a compiler of its own for each child block.
class BlockCompiler {
public:
    BlockCompiler(int& status, const std::u16string& text, std::uint32_t& pos,
                  localOperatorCompiled& block)
        : status_(status), text_(text), pos_(pos), block_(block) {}

    bool compile() {
        while (pos_ < text_.size()) {
            scanStringSkipBlanks(text_, pos_);
            if (pos_ >= text_.size()) {
                break;
            }
            start_ = pos_;
            bool ended = false;
            if (!statement(ended)) {
                return false;
            }
            if (ended) {
                return true;
            }
            if (!semicolon()) {
                return false;
            }
        }
        if (status_ != localErrorTypeOK) {
            return false;
        }
        // Reaching the end of the text always means "return 1", in whatever block it happens.
        add(localCompiledOperatorTypeRENURN).setExpression(u"(1)", false);
        return true;
    }

private:
    bool fail(int code) {
        status_ = code;
        return false;
    }

    localOperatorCompiled& add(std::int32_t type) { return addTo(block_, type); }

    localOperatorCompiled& addTo(localOperatorCompiled& parent, std::int32_t type) {
        localOperatorCompiled& node = parent.operators.emplace_back(parent.executeFunction);
        node.pos = start_;
        node.type = type;
        return node;
    }

    static void setName(localOperatorCompiled& node, std::u16string_view name) {
        const localUpperName upper(name);
        node.name = upper.view();
        node.nameHash = upper.hash();
    }

    char16_t unit() const { return pos_ < text_.size() ? text_[pos_] : u'\0'; }

    char16_t nextUnit() {
        scanStringSkipBlanks(text_, pos_);
        return unit();
    }

    Keyword keyword() { return keywordOf(localUpperName(scanStringGetNameToken(text_, pos_))); }

    // Scans an expression in check mode; gives the text it covered.
    bool expression(std::u16string_view& covered) {
        const std::uint32_t from = pos_;
        localSlot value;
        if (!scanStringGetExpressionAndEvaluete(status_, text_, pos_, value.asResult(), nullptr,
                                                true)) {
            return false;
        }
        covered = std::u16string_view(text_).substr(from, pos_ - from);
        return true;
    }

    bool expressionOrLine(std::u16string_view& covered) {
        if (expression(covered)) {
            return true;
        }
        traceLine(u"ERROR!!!", "textCompile");
        return false;
    }

    bool semicolon() {
        const std::uint32_t behind = pos_;
        if (nextUnit() != u';') {
            pos_ = behind == 0 ? 0 : behind - 1;
            return fail(localErrorTypeSEMICOLONEXPECTED);
        }
        ++pos_;
        return true;
    }

    // One statement up to its semicolon. `ended` when it was the word that ends this block.
    bool statement(bool& ended) {
        if (unit() == u'?') {
            return print();
        }
        const std::u16string_view token = scanStringGetNameToken(text_, pos_);
        switch (keywordOf(localUpperName(token))) {
            case Keyword::printWord:
                return true;
            case Keyword::breakWord:
                add(localCompiledOperatorTypeBREAK);
                return true;
            case Keyword::elseWord:
                return terminator(ended, localErrorTypeELSE);
            case Keyword::elseIfWord:
                return terminator(ended, localErrorTypeELSEIF);
            case Keyword::endDoWord:
                return terminator(ended, localErrorTypeENDDO);
            case Keyword::endIfWord:
                return terminator(ended, localErrorTypeENDIF);
            case Keyword::endFunctionWord:
                add(localCompiledOperatorTypeRENURN).setExpression(u"(1.0)", false);
                return terminator(ended, localErrorTypeENDFUNCTION);
            case Keyword::ifWord:
                return ifStatement();
            case Keyword::forWord:
                return forStatement();
            case Keyword::whileWord:
                return whileStatement();
            case Keyword::returnWord:
                return returnStatement();
            case Keyword::functionWord:
                return function();
            default:
                return commandOrAssignment(token);
        }
    }

    bool terminator(bool& ended, int code) {
        status_ = code;
        ended = true;
        return true;
    }

    bool print() {
        ++pos_;
        scanStringSkipBlanks(text_, pos_);
        std::u16string_view covered;
        if (!expressionOrLine(covered)) {
            return false;
        }
        add(localCompiledOperatorTypePRINT).setExpression(covered, true);
        return true;
    }

    // Compiles a child block that must end with one of its construct's words.
    bool child(localOperatorCompiled& block) { return textCompile(status_, text_, pos_, &block); }

    bool loopBody(localOperatorCompiled& body) {
        body.pos = start_;
        if (!child(body)) {
            return false;
        }
        if (status_ != localErrorTypeENDDO) {
            return fail(localErrorTypeENDDOEXPECTED);
        }
        status_ = localErrorTypeOK;
        return true;
    }

    bool ifStatement() {
        localOperatorCompiled node(block_.executeFunction);
        node.pos = start_;
        node.type = localCompiledOperatorTypeIF;
        bool noCondition = false;
        while (pos_ < text_.size()) {
            std::u16string_view condition;
            if (!noCondition) {
                if (!expressionOrLine(condition)) {
                    return false;
                }
                if (keyword() != Keyword::thenWord) {
                    return fail(localErrorTypeTHENEXPECTED);
                }
            }
            localOperatorCompiled branch(block_.executeFunction);
            branch.pos = start_;
            if (!child(branch)) {
                return false;
            }
            branch.setExpression(condition, true);
            node.operators.push_back(std::move(branch));
            const int terminatorStatus = std::exchange(status_, localErrorTypeOK);
            if (terminatorStatus == localErrorTypeENDIF) {
                block_.operators.push_back(std::move(node));
                return true;
            }
            if (terminatorStatus == localErrorTypeELSE) {
                noCondition = true;
            }
            // A word that ends another construct is read on as if it were ELSEIF; what follows
            // fails.
        }
        return fail(localErrorTypeENDIFEXPECTED);
    }

    // Becomes an assignment and a plain loop. The parentheses keep the bound together against the
    // order of the operations; it is computed anew on each pass.
    bool forStatement() {
        const localUpperName variable(scanStringGetNameToken(text_, pos_));
        if (nextUnit() != u'=') {
            return fail(localErrorTypeEQUALEXPECTED);
        }
        ++pos_;
        std::u16string_view first;
        std::u16string_view bound;
        if (!expressionOrLine(first)) {
            return false;
        }
        if (keyword() != Keyword::toWord) {
            return fail(localErrorTypeTOEXPECTED);
        }
        if (!expressionOrLine(bound)) {
            return false;
        }
        if (keyword() != Keyword::doWord) {
            return fail(localErrorTypeDOEXPECTED);
        }
        localOperatorCompiled body(block_.executeFunction);
        if (!loopBody(body)) {
            return false;
        }
        const std::u16string name(variable.view());
        localOperatorCompiled& assignment = add(localCompiledOperatorTypeASSIGN);
        setName(assignment, name);
        assignment.setExpression(first, true);
        localOperatorCompiled& loop = add(localCompiledOperatorTypeWHILE);
        loop.setExpression(name + u"<=(" + std::u16string(bound) + u")", true);
        loop.operators.push_back(std::move(body));
        localOperatorCompiled& step = addTo(loop, localCompiledOperatorTypeASSIGN);
        setName(step, name);
        step.setExpression(name + u"+1", true);
        return true;
    }

    bool whileStatement() {
        scanStringSkipBlanks(text_, pos_);
        std::u16string_view condition;
        if (!expressionOrLine(condition)) {
            return false;
        }
        if (keyword() != Keyword::doWord) {
            return fail(localErrorTypeDOEXPECTED);
        }
        localOperatorCompiled body(block_.executeFunction);
        if (!loopBody(body)) {
            return false;
        }
        localOperatorCompiled& loop = add(localCompiledOperatorTypeWHILE);
        loop.setExpression(u"(" + std::u16string(condition) + u")", true);
        loop.operators.push_back(std::move(body));
        return true;
    }

    bool returnStatement() {
        if (nextUnit() == u';') {
            traceLine(u"Внимание!!! Команда RETURN (ВОЗВРАТ) должна ВСЕГДА иметь возвращаемое "
                      u"значение!",
                      "textCompile");
            return fail(localErrorTypeRETURNWITHOUTVALUE);
        }
        std::u16string_view covered;
        if (!expressionOrLine(covered)) {
            return false;
        }
        add(localCompiledOperatorTypeRENURN)
            .setExpression(u"(" + std::u16string(covered) + u")", false);
        return true;
    }

    // A definition adds no child: it is in force from the start of the block.
    bool function() {
        const std::u16string_view name = scanStringGetNameToken(text_, pos_);
        const std::uint32_t behindName = pos_;
        if (nextUnit() != u'(') {
            pos_ = behindName;
            return fail(localErrorTypeOPENPARENTHESISEXPECTED);
        }
        ++pos_;
        auto body = std::make_shared<localOperatorCompiled>(block_.executeFunction);
        body->pos = start_;
        setName(*body, name);
        if (!parameters(*body) || !child(*body)) {
            return false;
        }
        if (status_ != localErrorTypeENDFUNCTION) {
            return fail(localErrorTypeENDFUNCTIONEXPECTED);
        }
        status_ = localErrorTypeOK;
        localText functionName = body->name;
        block_.functions.emplace_back(std::move(functionName), std::move(body));
        return true;
    }

    bool parameters(localOperatorCompiled& body) {
        while (nextUnit() != u')') {
            if (!body.arguments.empty()) {
                if (unit() != u',') {
                    return fail(localErrorTypeOPENPARENTHESISEXPECTED);
                }
                ++pos_;
            }
            const std::u16string_view name = scanStringGetNameToken(text_, pos_);
            if (name.empty()) {
                writeLine(u" Ошибка считывания аргумента !!! ");
                return fail(localErrorTypeCODE);
            }
            body.arguments.push_back(localUpperName(name).view());
        }
        ++pos_;
        return true;
    }

    bool commandOrAssignment(std::u16string_view token) {
        const std::uint32_t afterToken = pos_;
        pos_ = start_;
        if (!scanStringGetOperatorAndExec(status_, text_, pos_, nullptr, true)) {
            traceLine(u" Ошибка компиляции запрограммированной команды (оператора) !!! ",
                      "textCompile");
            return false;
        }
        if (pos_ != start_ && pos_ != afterToken) {
            add(localCompiledOperatorTypeCOMMAND)
                .setExpression(std::u16string_view(text_).substr(start_, pos_ - start_), true);
            return true;
        }
        pos_ = afterToken;
        if (pos_ >= text_.size()) {
            return fail(localErrorTypeSYNTAX);
        }
        if (unit() == u'.' || nextUnit() == u'(') {
            pos_ = start_;
            std::u16string_view covered;
            if (!expression(covered)) {
                return restFailed();
            }
            add(localCompiledOperatorTypeASSIGN).setExpression(covered, true);
            return true;
        }
        return assignment(token);
    }

    bool assignment(std::u16string_view token) {
        const bool isVar = isVarWord(token);
        if (isVar) {
            token = scanStringGetNameToken(text_, pos_);
            if (token.empty()) {
                return fail(localErrorTypeSYNTAX);
            }
        }
        if (nextUnit() != u'=') {
            return fail(localErrorTypeSYNTAX);
        }
        ++pos_;
        scanStringSkipBlanks(text_, pos_);
        std::u16string_view covered;
        if (!expression(covered)) {
            return restFailed();
        }
        localOperatorCompiled& node = add(localCompiledOperatorTypeASSIGN);
        setName(node, token);
        node.isVar = isVar;
        node.setExpression(covered, true);
        return true;
    }

    bool restFailed() {
        traceLine(std::u16string_view(text_).substr(pos_ < text_.size() ? pos_ : text_.size()),
                  "textCompile");
        traceLine(localStatusWords(status_), "textCompile");
        return false;
    }

    int& status_;
    const std::u16string& text_;
    std::uint32_t& pos_;
    localOperatorCompiled& block_;
    std::uint32_t start_ = 0;
};

}  // namespace

bool textCompile(int& status, const std::u16string& text, std::uint32_t& pos,
                 localOperatorCompiled* node) {
    if (node == nullptr) {
        traceLine(
            u"Для компиляции необходимо передавать уже инициализированный объект будущего влока, "
            u"который определяет функцию обработки ",
            "textCompile");
        status = localErrorTypeCODE;
        return false;
    }
    if (!localStackGuard::enter(status, "textCompile")) {
        return false;
    }
    node->type = localCompiledOperatorTypeBLOCK;
    node->operators.clear();
    return BlockCompiler(status, text, pos, *node).compile();
}
