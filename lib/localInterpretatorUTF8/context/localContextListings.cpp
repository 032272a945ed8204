// What a person sees of a context: its variables, functions and classes.
#include <algorithm>
#include <iostream>
#include <sstream>

#include "context/localStartClasses.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

std::u16string withPattern(std::u16string_view pattern) {
    return pattern.empty() ? std::u16string()
                           : u"с шаблоном имени [" + std::u16string(pattern) + u"]";
}

std::u16string contextHead(const localContextUTF8& context) {
    std::u16string head = u"для ";
    if (context.caseSensitive) {
        head += u" регистрозависимого ";
    }
    if (&context == localContextUTF8::globalContext) {
        head += u" ГЛОБАЛЬНОГО ";
    }
    head += u" контекста [" + addressText(&context) + u"] ";
    if (context.parent() != nullptr) {
        head += u" потомка контекста [" + addressText(context.parent()) + u"] ";
    }
    return head;
}

void put(std::ostream& stream, std::u16string_view line) {
    stream << localString::toUtf8(line) << std::endl;
}

// The names of entries that match a pattern, sorted by code units.
template <class Entry>
std::vector<std::u16string> matchingNames(const std::vector<Entry>& entries,
                                          std::u16string_view pattern, bool caseSensitive) {
    std::vector<std::u16string> names;
    for (const Entry& entry : entries) {
        if (namePatternMatches(pattern, entry.name, caseSensitive)) {
            names.push_back(entry.name.string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

// The next context of a chain from the inside out, ending also at one that is its own parent.
localContextUTF8* outer(localContextUTF8* context) {
    return context->parent() == context ? nullptr : context->parent();
}

}  // namespace

bool namePatternMatches(std::u16string_view pattern, std::u16string_view name, bool caseSensitive) {
    if (pattern.empty()) {
        return true;
    }
    for (std::size_t i = 0; i < pattern.size() || i < name.size(); ++i) {
        if (i < pattern.size() && pattern[i] == u'*') {
            return true;
        }
        if (i >= pattern.size() || i >= name.size()) {
            return false;
        }
        const bool equal =
            caseSensitive ? pattern[i] == name[i] : toUpper(pattern[i]) == toUpper(name[i]);
        if (pattern[i] != u'?' && !equal) {
            return false;
        }
    }
    return true;
}

void localContextUTF8::dispMemo(std::u16string_view pattern, std::ostream& stream) {
    stream << std::endl;
    put(stream, u"СПИСОК ПЕРЕМЕННЫХ *************** " + withPattern(pattern));
    for (localContextUTF8* context = this; context != nullptr; context = outer(context)) {
        std::u16string head = u"в том числе список переменных ";
        if (!pattern.empty()) {
            head += withPattern(pattern) + u" ";
        }
        put(stream, head + contextHead(*context));
        int number = 0;
        for (const std::u16string& name :
             matchingNames(context->variables(), pattern, context->caseSensitive)) {
            put(stream, numberToString(number++) + u" " + context->varDisplay(name));
        }
    }
    stream << localString::toUtf8(
                  u"Accessible RAM:" +
                  numberFormat(static_cast<double>(localPlatform::accessibleMemory()), u"Ч25.0.,"))
           << traceTail("dispMemo") << std::endl;
}

void localContextUTF8::dispMemo(std::u16string_view pattern) {
    dispMemo(pattern, std::cout);
}

void localContextUTF8::dispMemoToLog(std::u16string_view pattern) {
    std::ostringstream listing;
    dispMemo(pattern, listing);
    appendToLog(logFileName(), listing.str(), "dispMemoToLog");
}

void localContextUTF8::dispFunc(std::u16string_view pattern, std::ostream& stream) {
    stream << std::endl;
    put(stream, u"СПИСОК ФУНКЦИЙ " + withPattern(pattern));
    for (localContextUTF8* context = this; context != nullptr; context = outer(context)) {
        put(stream, contextHead(*context));
        int number = 0;
        for (const std::u16string& name :
             matchingNames(context->functions(), pattern, context->caseSensitive)) {
            put(stream, numberToString(number++) + u" " + name + u"() ");
        }
    }
}

void localContextUTF8::dispFunc(std::u16string_view pattern) {
    dispFunc(pattern, std::cout);
}

void localContextUTF8::dispClasses(std::u16string_view pattern) {
    localStartClasses::bringAll();
    writeLine(u"СПИСОК КЛАССОВ " + withPattern(pattern));
    std::vector<std::u16string> lines;
    for (const localClassDeclaration* declaration : globalContext->classes()) {
        if (namePatternMatches(pattern, declaration->nameRus, false) ||
            namePatternMatches(pattern, declaration->nameEng, false)) {
            lines.push_back(declaration->summary());
        }
    }
    std::sort(lines.begin(), lines.end());
    for (const std::u16string& line : lines) {
        writeLine(line);
    }
}
