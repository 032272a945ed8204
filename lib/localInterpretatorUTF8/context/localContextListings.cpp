// What a person sees of a context: its variables, functions and classes.
#include <algorithm>
#include <ostream>
#include <string>

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

// The listings, which give their lines one by one.

template <class PutLine>
void listVariables(localContextUTF8* from, std::u16string_view pattern, PutLine put) {
    put(std::u16string_view());
    put(u"СПИСОК ПЕРЕМЕННЫХ *************** " + withPattern(pattern));
    for (localContextUTF8* context = from; context != nullptr; context = outer(context)) {
        std::u16string head = u"в том числе список переменных ";
        if (!pattern.empty()) {
            head += withPattern(pattern) + u" ";
        }
        put(head + contextHead(*context));
        int number = 0;
        for (const std::u16string& name :
             matchingNames(context->variables(), pattern, context->caseSensitive)) {
            put(numberToString(number++) + u" " + context->varDisplay(name));
        }
    }
    put(u"Accessible RAM:" +
        numberFormat(static_cast<double>(localPlatform::accessibleMemory()), u"Ч25.0.,") +
        localString::fromUtf8(traceTail("dispMemo")));
}

template <class PutLine>
void listFunctions(localContextUTF8* from, std::u16string_view pattern, PutLine put) {
    put(std::u16string_view());
    put(u"СПИСОК ФУНКЦИЙ " + withPattern(pattern));
    for (localContextUTF8* context = from; context != nullptr; context = outer(context)) {
        put(contextHead(*context));
        int number = 0;
        for (const std::u16string& name :
             matchingNames(context->functions(), pattern, context->caseSensitive)) {
            put(numberToString(number++) + u" " + name + u"() ");
        }
    }
}

auto lineTo(std::ostream& stream) {
    return
        [&stream](std::u16string_view line) { stream << localString::toUtf8(line) << std::endl; };
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
    listVariables(this, pattern, lineTo(stream));
}

void localContextUTF8::dispMemo(std::u16string_view pattern) {
    listVariables(this, pattern, [](std::u16string_view line) { writeLine(line); });
}

void localContextUTF8::dispMemoToLog(std::u16string_view pattern) {
    std::string listing;
    listVariables(this, pattern, [&listing](std::u16string_view line) {
        listing += localString::toUtf8(line) + '\n';
    });
    appendToLog(logFileName(), listing, "dispMemoToLog");
}

void localContextUTF8::dispFunc(std::u16string_view pattern, std::ostream& stream) {
    listFunctions(this, pattern, lineTo(stream));
}

void localContextUTF8::dispFunc(std::u16string_view pattern) {
    listFunctions(this, pattern, [](std::u16string_view line) { writeLine(line); });
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
