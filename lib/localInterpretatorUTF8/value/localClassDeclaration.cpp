#include "localInterpretatorUTF8/value/localClassDeclaration.h"

#include <algorithm>
#include <cassert>

#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localSlot.h"

std::int64_t localClassDeclaration::counterStaticTotal = 0;

namespace {

std::u16string memberLine(const localClassMember& member) {
    if (member.methodFunction != nullptr) {
        const bool isConstructor = trimLeft(member.name).empty();
        return member.name + (isConstructor ? u"<конструктор>" : u"() : метод ");
    }
    std::u16string line = member.name + u" : аттрибут ";
    if (member.attribGetFunction != nullptr) {
        line += u" [readable] ";
    }
    if (member.attribSetFunction != nullptr) {
        line += u" [writeable] ";
    }
    return line;
}

}  // namespace

void localClassDeclaration::memberAdd(localClassMember member) {
    index_.makeRoom();
    members_.push_back(std::make_unique<localClassMember>(std::move(member)));
    index_.put(members_.back()->name, members_.back().get());
}

bool localClassDeclaration::methodExec(int& status, localContextUTF8* context, void*& object,
                                       std::u16string_view name, const localArguments* args,
                                       localValueDescription*& result) {
    return localGuarded(status, name,
                        [&] { return methodRun(status, context, object, name, args, result); });
}

bool localClassDeclaration::methodRun(int& status, localContextUTF8* context, void*& object,
                                      std::u16string_view name, const localArguments* args,
                                      localValueDescription*& result) {
    assert(localTurn::isHeld());
    const localUpperName upper(name);
    if (result != nullptr) {
        exit_FAILURE(u"localClassDeclaration::methodExec() result must be NULL!");
    }
    const localClassMember* member = memberFind(upper, upper.hash());
    localMethodFunction function = member == nullptr ? nullptr : member->methodFunction;
    if (function == nullptr && object == nullptr) {
        status = name.empty() ? localErrorTypeNOCONSTRUCTOR : localErrorTypeNOSTATICMETHOD;
        return false;
    }
    if (function == nullptr) {
        function = classImplementationMethodFunction;
    }
    if (function == nullptr) {
        status = localErrorTypeMETHODUNKNOWN;
        return false;
    }
    return function(status, context, object, upper, args, result);
}

bool localClassDeclaration::attrGet(int& status, localContextUTF8*, void*& object,
                                    std::u16string_view name, localValueDescription*& result) {
    assert(localTurn::isHeld());
    if (result != nullptr) {
        exit_FAILURE(u"localClassDeclaration::attrGet() result must be NULL!");
    }
    const localClassMember* member = memberFind(name);
    localAttribGetFunction function = nullptr;
    if (member != nullptr) {
        function = member->attribGetFunction;
        if (function == nullptr) {
            status = localErrorTypeATTRIBUTENOTREADABLE;
            return false;
        }
    } else if (object == nullptr) {
        status = localErrorTypeNOSTATICATTRIBUTE;
        return false;
    } else {
        function = classImplementationAttribGetFunction;
        if (function == nullptr) {
            status = localErrorTypeATTRIBUTEWRONG;
            return false;
        }
    }
    return function(status, nullptr, object, name, result);
}

bool localClassDeclaration::attrSet(int& status, localContextUTF8* context, void*& object,
                                    std::u16string_view name,
                                    const localValueDescription* newValue) {
    assert(localTurn::isHeld());
    const localClassMember* member = memberFind(name);
    if (member == nullptr) {
        status = localErrorTypeATTRIBUTEWRONG;
        return false;
    }
    if (member->attribSetFunction == nullptr) {
        status = localErrorTypeATTRIBUTENOTWRITEABLE;
        return false;
    }
    return member->attribSetFunction(status, context, object, name, newValue);
}

bool localClassDeclaration::destroyObject(int& status, void*& object) noexcept {
    const localArguments none;
    localSlot result;
    return methodExec(status, nullptr, object, u"~", &none, result.asResult());
}

std::u16string localClassDeclaration::summary() const {
    return nameRus + u" (" + nameEng + u")  - " + description + u" ";
}

std::u16string localClassDeclaration::listing() const {
    std::vector<std::u16string> lines;
    lines.reserve(members_.size());
    for (const auto& member : members_) {
        lines.push_back(memberLine(*member));
    }
    std::sort(lines.begin(), lines.end());
    std::u16string text = summary() + u"\n";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i == 0) {
            text += u". члены класса " + summary() + u"\n";
        }
        text += u"... " + numberToString(static_cast<double>(i)) + u" " + lines[i] + u"\n";
    }
    return text;
}
