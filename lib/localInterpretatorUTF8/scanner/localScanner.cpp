#include "localInterpretatorUTF8/scanner/localScanner.h"

#include <array>
#include <cassert>
#include <type_traits>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localStackGuard.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "scanner/localCursor.h"

namespace localInterpretatorUTF8 {
namespace {

// What the grammar does at each point: nothing but validate, or compute.
enum class Mode { check, evaluate };

struct Nothing {};

// The values of arguments under way, each a slot. Calls of usual length need no heap.
class ArgumentList {
public:
    ArgumentList() = default;
    ArgumentList(const ArgumentList&) = delete;
    ArgumentList& operator=(const ArgumentList&) = delete;
    ~ArgumentList() {
        for (localValueDescription* value : values()) {
            localValueDescription::release(value);
        }
    }
    localValueDescription& add() {
        localSlot value = localSlot::reserve();
        if (count_ < few_.size()) {
            few_[count_] = value.get();
        } else {
            if (many_.empty()) {
                many_.assign(few_.begin(), few_.end());
            }
            many_.push_back(value.get());
        }
        ++count_;
        return *value.handOver();
    }
    localArguments values() const { return {many_.empty() ? few_.data() : many_.data(), count_}; }

private:
    std::array<localValueDescription*, 6> few_{};
    std::vector<localValueDescription*> many_;
    std::size_t count_ = 0;
};

// The arguments of a call that is only checked: how many there are.
class ArgumentCount {
public:
    Nothing& add() {
        ++count_;
        return nothing_;
    }
    std::size_t count() const { return count_; }

private:
    std::size_t count_ = 0;
    Nothing nothing_;
};

class Scanner {
public:
    Scanner(int& status, const std::u16string& text, localPosition pos, localContextUTF8* context)
        : cursor(text, pos), status_(status), context_(context) {}

    template <Mode mode>
    using Cell = std::conditional_t<mode == Mode::evaluate, localValueDescription, Nothing>;
    template <Mode mode>
    using Arguments = std::conditional_t<mode == Mode::evaluate, ArgumentList, ArgumentCount>;

    template <Mode mode>
    bool expression(Cell<mode>& cell) {
        if (!localStackGuard::enter(status_, "scanStringGetExpressionAndEvaluete")) {
            return false;
        }
        cursor.skipBlanks();
        const int unary = prefix();
        if (!operand<mode>(cell)) {
            return false;
        }
        if constexpr (mode == Mode::evaluate) {
            if (unary != localUnaryOperationNONE &&
                !unaryOperationByEnumEvaluate(status_, cell, unary, cell)) {
                return false;
            }
        }
        int next = localBinaryOperationNONE;
        return conditionals<mode>(cell) && operations<mode>(cell, localBinaryOperationNONE, next);
    }

    template <Mode mode>
    bool operand(Cell<mode>& cell) {
        cursor.skipBlanks();
        if (cursor.atEnd()) {
            return fail(localErrorTypeSYNTAX);
        }
        const char16_t unit = *cursor.at;
        if ((unit >= u'0' && unit <= u'9') || unit == u'.') {
            return number<mode>(cell);
        }
        if (unit == u'"' || unit == u'\'') {
            return string<mode>(cell);
        }
        if (unit < 32 || unit > 63) {
            return namePath<mode>(cell);
        }
        if (unit == u'(') {
            ++cursor.at;
            if (!expression<mode>(cell)) {
                return false;
            }
            cursor.skipBlanks();
            if (cursor.atEnd() || *cursor.at != u')') {
                return fail(localErrorTypeCLOSEPARENTHESISEXPECTED);
            }
            ++cursor.at;
            return true;
        }
        return fail(localErrorTypeSYNTAX);
    }

    template <Mode mode>
    bool number(Cell<mode>& cell) {
        double value = 0.0;
        if (!cursor.numberToken(value)) {
            return fail(localErrorTypePRECISION);
        }
        if constexpr (mode == Mode::evaluate) {
            cell.setVal(value);
        }
        return true;
    }

    template <Mode mode>
    bool string(Cell<mode>& cell) {
        const char16_t quote = *cursor.at;
        std::u16string_view content;
        if (!cursor.stringToken(content)) {
            writeLine({u"ОШИБКА при сборке СТРОКОВОЙ костанты . Ожидается символ '",
                       std::u16string_view(&quote, 1), u"'"});
            return fail(localErrorTypeSYNTAX);
        }
        if constexpr (mode == Mode::evaluate) {
            cell.setVal(content);
        }
        return true;
    }

    template <Mode mode>
    bool namePath(Cell<mode>& cell) {
        std::u16string_view name = cursor.nameToken();
        if (cursor.atEnd() || (*cursor.at != u'.' && *cursor.at != u'(')) {
            if constexpr (mode == Mode::evaluate) {
                return context_->nameRead(status_, name, cell);
            } else {
                return true;
            }
        }
        return path<mode>(name, cell);
    }

    template <Mode mode>
    bool arguments(Arguments<mode>& args) {
        bool haveValue = false;
        bool afterComma = false;
        while (!cursor.atEnd()) {
            cursor.skipBlanks();
            if (!cursor.atEnd() && *cursor.at == u')') {
                if (afterComma) {
                    writeLine({u"Error scanStringGetNameTokenAndEvaluete() ожидается  параметр в "
                               u"позиции ",
                               numberToString(cursor.position())});
                    return false;  // the status stays as it was. Meant.
                }
                return true;
            }
            if (!cursor.atEnd() && *cursor.at == u',' && haveValue) {
                ++cursor.at;
                afterComma = true;
                haveValue = false;
                continue;
            }
            const char16_t* before = cursor.at;
            if (!expression<mode>(args.add())) {
                return false;
            }
            if (cursor.at == before) {
                return fail(localErrorTypeSYNTAX);  // an empty name was read; there is no way on
            }
            haveValue = true;
            afterComma = false;
        }
        return true;
    }

    localCursor cursor;

private:
    bool fail(int code) {
        status_ = code;
        return false;
    }

    // No word boundary is asked for: НЕТ reads as НЕ and the name Т. Meant.
    int prefix() {
        if (cursor.atEnd()) {
            return localUnaryOperationNONE;
        }
        switch (*cursor.at) {
            case u'-':
                ++cursor.at;
                return localUnaryOperationNEGATE;
            case u'!':
                ++cursor.at;
                return localUnaryOperationNOT;
            case u'Н':
            case u'н':
                return notWord(u"НЕ");
            case u'N':
            case u'n':
                return notWord(u"NOT");
            default:
                return localUnaryOperationNONE;
        }
    }

    int notWord(std::u16string_view word) {
        if (!cursor.startsIgnoringCase(word)) {
            return localUnaryOperationNONE;
        }
        cursor.at += word.size();
        return localUnaryOperationNOT;
    }

    // "?" expression ":" expression behind an operand, as often as it comes. It tests the operand
    // just read, before any operation that waits for it. Both branches are read, the chosen one is
    // computed.
    template <Mode mode>
    bool conditionals(Cell<mode>& cell) {
        for (;;) {
            const char16_t* before = cursor.at;
            cursor.skipBlanks();
            if (cursor.atEnd() || *cursor.at != u'?') {
                cursor.at = before;
                return true;
            }
            ++cursor.at;
            if constexpr (mode == Mode::evaluate) {
                const bool first = !(cell.num <= 0.0);
                if (!branch(first, cell) || !colon() || !branch(!first, cell)) {
                    return false;
                }
            } else if (!expression<mode>(cell) || !colon() || !expression<mode>(cell)) {
                return false;
            }
        }
    }

    bool branch(bool chosen, localValueDescription& cell) {
        if (chosen) {
            return expression<Mode::evaluate>(cell);
        }
        Nothing nothing;
        return expression<Mode::check>(nothing);
    }

    bool colon() {
        cursor.skipBlanks();
        if (cursor.atEnd() || *cursor.at != u':') {
            return fail(localErrorTypeCOLONEXPECTED);
        }
        ++cursor.at;
        return true;
    }

    // Operations behind an operand that bind tighter than `weaker`. `next` takes the operation that
    // was read and belongs further out; the cursor is behind it then.
    template <Mode mode>
    bool operations(Cell<mode>& first, int weaker, int& next) {
        const char16_t* before = cursor.at;
        int operation = cursor.binaryOperation();
        while (operation > weaker) {
            Cell<mode> second;
            if (!operand<mode>(second) || !conditionals<mode>(second)) {
                return false;
            }
            int following = localBinaryOperationNONE;
            if (!operations<mode>(second, operation, following)) {
                return false;
            }
            if constexpr (mode == Mode::evaluate) {
                if (!binaryOperationByEnumEvaluate(status_, first, operation, first, second)) {
                    return false;
                }
            }
            before = cursor.at;
            operation = following;
        }
        if (operation == localBinaryOperationNONE) {
            cursor.at = before;  // blanks and comments behind an expression stay unread
        }
        next = operation;
        return true;
    }

    template <Mode mode>
    bool path(std::u16string_view name, Cell<mode>& cell) {
        Cell<mode> working;
        bool started = false;
        while (!cursor.atEnd() && *cursor.at == u'.') {
            ++cursor.at;
            if constexpr (mode == Mode::evaluate) {
                if (!attributeRead(started, name, working)) {
                    return false;
                }
                started = true;
            }
            name = cursor.nameToken();
        }
        const bool isCall = !cursor.atEnd() && *cursor.at == u'(';
        if (isCall) {
            ++cursor.at;
            return call<mode>(started, name, working, cell);
        }
        if constexpr (mode == Mode::evaluate) {
            if (!attributeRead(started, name, working)) {
                return false;
            }
            cell.take(working);
        }
        return true;
    }

    // Replaces the working value by its attribute; before the first step that value is the context.
    bool attributeRead(bool started, std::u16string_view name, localValueDescription& working) {
        if (!started) {
            return context_->nameRead(status_, name, working);
        }
        if (working.type != localValueTypeOBJECT || working.objClass == nullptr) {
            return fail(working.type != localValueTypeOBJECT ? localErrorTypeNOTOBJECT
                                                             : localErrorTypeCLASSUNKNOWN);
        }
        localSlot value;
        if (!working.objClass->attrGet(status_, context_, working.pointer, name,
                                       value.asResult())) {
            return false;
        }
        working.take(*value);
        return true;
    }

    template <Mode mode>
    bool call(bool started, std::u16string_view name, Cell<mode>& working, Cell<mode>& cell) {
        Arguments<mode> args;
        if (!arguments<mode>(args)) {
            return false;
        }
        if (cursor.atEnd() || *cursor.at != u')') {
            traceLine({u"ожидается  ')' в позиции ", numberToString(cursor.position())},
                      "scanStringGetNameTokenAndEvaluete");
            return fail(localErrorTypeCLOSEPARENTHESISEXPECTED);
        }
        if constexpr (mode == Mode::evaluate) {
            localClassDeclaration* declaration = localContextUTF8::classDeclaration();
            void* object = context_;
            if (started) {
                if (working.type != localValueTypeOBJECT) {
                    return notObject(name);
                }
                declaration = working.objClass;
                object = working.pointer;
            }
            if (!methodCall(declaration, object, name, args.values(), cell)) {
                return false;
            }
        }
        ++cursor.at;
        return true;
    }

    bool methodCall(localClassDeclaration* declaration, void* object, std::u16string_view name,
                    localArguments args, localValueDescription& cell) {
        localSlot value;
        const bool done =
            declaration == nullptr
                ? fail(localErrorTypeCLASSUNKNOWN)
                : declaration->methodExec(status_, context_, object, name, &args, value.asResult());
        if (!done) {
            callFailed(name);
            return false;
        }
        cell.take(*value);
        return true;
    }

    void callFailed(std::u16string_view name) {
        writeLine();
        traceLine({u">> ", name, u"() in ", {cursor.at, cursor.left()}},
                  "scanStringGetNameTokenAndEvaluete");
        traceLine({u"ERROR!!! ", localStatusWords(status_)}, "scanStringGetNameTokenAndEvaluete");
    }

    bool notObject(std::u16string_view name) {
        traceLine({u"ERROR в scanStringGetNameTokenAndEvaluete() (variable [", name,
                   u"] is not OBJECT ) position: ", numberToString(cursor.position())},
                  "scanStringGetNameTokenAndEvaluete");
        return fail(localErrorTypeNOTOBJECT);
    }

    int& status_;
    localContextUTF8* context_;
};

void requireNull(const localValueDescription* result, std::u16string_view function) {
    if (result != nullptr) {
        exit_FAILURE(u"localInterpretatorUTF8::" + std::u16string(function) +
                     u"() result must be NULL!");
    }
}

void requireContext(const localContextUTF8* context, bool onlyCheck, std::u16string_view function) {
    if (context == nullptr && !onlyCheck) {
        exit_FAILURE(u"localInterpretatorUTF8::" + std::u16string(function) +
                     u"() context may be NULL only in onlyCheck!");
    }
}

// Runs one rule of the grammar in the mode asked for and hands its value out in a slot.
template <class Check, class Evaluate>
bool scanned(int& status, Scanner& scanner, localPosition& pos, localValueDescription*& result,
             bool onlyCheck, Check check, Evaluate evaluate) {
    const bool done = localGuarded(status, "scanStringGetExpressionAndEvaluete", [&] {
        localSlot slot = localSlot::reserve();
        if (onlyCheck) {
            Nothing nothing;
            slot->setVal(1.0);
            if (!check(nothing)) {
                return false;
            }
        } else if (!evaluate(*slot)) {
            return false;
        }
        result = slot.handOver();
        return true;
    });
    pos = scanner.cursor.position();
    return done;
}

}  // namespace

bool scanStringGetExpressionAndEvaluete(int& status, const std::u16string& text, localPosition& pos,
                                        localValueDescription*& result, localContextUTF8* context,
                                        bool onlyCheck) {
    assert(localTurn::isHeld());
    requireNull(result, u"scanStringGetExpressionAndEvaluete");
    requireContext(context, onlyCheck, u"scanStringGetExpressionAndEvaluete");
    Scanner scanner(status, text, pos, context);
    return scanned(
        status, scanner, pos, result, onlyCheck,
        [&](Nothing& cell) { return scanner.expression<Mode::check>(cell); },
        [&](localValueDescription& cell) { return scanner.expression<Mode::evaluate>(cell); });
}

bool scanStringGetOperandAndEvaluete(int& status, const std::u16string& text, localPosition& pos,
                                     localValueDescription*& result, localContextUTF8* context,
                                     bool onlyCheck) {
    requireNull(result, u"scanStringGetOperandAndEvaluete");
    requireContext(context, onlyCheck, u"scanStringGetOperandAndEvaluete");
    Scanner scanner(status, text, pos, context);
    return scanned(
        status, scanner, pos, result, onlyCheck,
        [&](Nothing& cell) { return scanner.operand<Mode::check>(cell); },
        [&](localValueDescription& cell) { return scanner.operand<Mode::evaluate>(cell); });
}

bool scanStringGetNameTokenAndEvaluete(int& status, const std::u16string& text, localPosition& pos,
                                       localValueDescription*& result, localContextUTF8* context,
                                       bool onlyCheck) {
    requireNull(result, u"scanStringGetNameTokenAndEvaluete");
    requireContext(context, onlyCheck, u"scanStringGetNameTokenAndEvaluete");
    Scanner scanner(status, text, pos, context);
    return scanned(
        status, scanner, pos, result, onlyCheck,
        [&](Nothing& cell) { return scanner.namePath<Mode::check>(cell); },
        [&](localValueDescription& cell) { return scanner.namePath<Mode::evaluate>(cell); });
}

bool scanStringGetNumberTokenAndEvaluete(int& status, const std::u16string& text,
                                         localPosition& pos, localValueDescription*& result) {
    requireNull(result, u"scanStringGetNumberTokenAndEvaluete");
    localCursor cursor(text, pos);
    const bool negative = !cursor.atEnd() && *cursor.at == u'-';
    if (negative) {
        ++cursor.at;
        cursor.skipBlanks();
    }
    double number = 0.0;
    const bool read = cursor.numberToken(number);
    pos = cursor.position();
    if (!read) {
        status = localErrorTypePRECISION;
        return false;
    }
    localSlot slot = localSlot::reserve();
    slot->setVal(negative ? -number : number);
    result = slot.handOver();
    return true;
}

bool scanStringGetStringTokenAndEvaluete(const std::u16string& text, localPosition& pos,
                                         localValueDescription*& result) {
    requireNull(result, u"scanStringGetStringTokenAndEvaluete");
    localCursor cursor(text, pos);
    std::u16string_view content;
    const bool read = !cursor.atEnd() && cursor.stringToken(content);
    pos = cursor.position();
    if (read) {
        localSlot slot = localSlot::reserve();
        slot->setVal(content);
        result = slot.handOver();
    }
    return read;
}

bool scanStringGetArguments(int& status, const std::u16string& text, localPosition& pos,
                            std::vector<localSlot>& args, localContextUTF8* context,
                            bool onlyCheck) {
    requireContext(context, onlyCheck, u"scanStringGetArguments");
    args.clear();
    Scanner scanner(status, text, pos, context);
    bool done = false;
    if (onlyCheck) {
        ArgumentCount checked;
        done = scanner.arguments<Mode::check>(checked);
        args.reserve(checked.count());
        for (std::size_t i = 0; i < checked.count(); ++i) {
            args.push_back(localSlot::reserve());
            args.back()->setVal(1.0);
        }
    } else {
        ArgumentList list;
        done = scanner.arguments<Mode::evaluate>(list);
        args.reserve(list.values().size());
        for (localValueDescription* value : list.values()) {
            args.push_back(localSlot::share(*value));
        }
    }
    pos = scanner.cursor.position();
    return done;
}

void scanStringSkipBlanks(const std::u16string& text, localPosition& pos) {
    localCursor cursor(text, pos);
    cursor.skipBlanks();
    pos = cursor.position();
}

std::u16string_view scanStringGetNameToken(const std::u16string& text, localPosition& pos) {
    localCursor cursor(text, pos);
    const std::u16string_view token = cursor.nameToken();
    pos = cursor.position();
    return token;
}

int scanStringGetBinaryOperation(const std::u16string& text, localPosition& pos) {
    localCursor cursor(text, pos);
    const int operation = cursor.binaryOperation();
    pos = cursor.position();
    return operation;
}

std::u16string scanStringGetFileName(int& status, const std::u16string& text, localPosition& pos) {
    localCursor cursor(text, pos);
    cursor.skipBlanks();
    std::u16string_view name;
    if (cursor.atEnd()) {
        status = localErrorTypeOK;
    } else if (*cursor.at == u'"') {
        if (!cursor.stringToken(name)) {
            status = localErrorTypeSYNTAX;
        }
    } else {
        const char16_t* start = cursor.at;
        while (!cursor.atEnd() && !isTrimmedUnit(*cursor.at)) {
            ++cursor.at;
        }
        name = {start, static_cast<std::size_t>(cursor.at - start)};
        if (!cursor.atEnd()) {
            ++cursor.at;
        }
    }
    pos = cursor.position();
    return std::u16string(name);
}

}  // namespace localInterpretatorUTF8
