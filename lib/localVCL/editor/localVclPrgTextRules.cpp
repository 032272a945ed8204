#include "editor/localVclPrgTextRules.h"

#include <algorithm>

#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localVCL/text/localVclText.h"

namespace {

using Kind = localVclPrgTextKind;

constexpr std::u16string_view keywords[] = {u"while",
                                            u"пока",
                                            u"for",
                                            u"для",
                                            u"to",
                                            u"по",
                                            u"do",
                                            u"цикл",
                                            u"break",
                                            u"прервать",
                                            u"enddo",
                                            u"конеццикла",
                                            u"если",
                                            u"тогда",
                                            u"иначеесли",
                                            u"иначе",
                                            u"конецесли",
                                            u"if",
                                            u"then",
                                            u"elseif",
                                            u"else",
                                            u"endif",
                                            u"переменная",
                                            u"перем",
                                            u"var",
                                            u"процедура",
                                            u"конецпроцедуры",
                                            u"функция",
                                            u"конецфункции",
                                            u"procedure",
                                            u"endprocedure",
                                            u"function",
                                            u"endfunction",
                                            u"истина",
                                            u"ложь",
                                            u"true",
                                            u"false",
                                            u"или",
                                            u"or",
                                            u"и",
                                            u"and",
                                            u"не",
                                            u"not",
                                            u"return",
                                            u"возврат"};

// Only the first has "\b" in front. In the others the single backslash makes of the letter behind
// it that letter itself, so these words are painted at the end of a longer word too; and "\S" is
// any unit but a blank, so that "xtringFromReplace" is painted as well. Meant.
constexpr std::u16string_view functionPatterns[] = {
    u"\\bmessage\\b",      u"\\сообщить\\b",          u"\\StringFromReplace\\b",
    u"\\строкаИзФайла\\b", u"\\StringPartReplace\\b", u"\\СтрокаЧастьЗаменить\\b",
    u"\\FileDelete\\b",    u"\\ФайлУдалить\\b",       u"\\FileExist\\b",
    u"\\ФайлСуществует\\b"};

constexpr std::u16string_view operators = u"()+-*<>=,;";

bool isWordUnit(QChar unit) {
    return unit.isLetterOrNumber() || unit.isMark() || unit == u'_';
}

char16_t folded(char16_t unit) {
    return QChar(unit).toLower().unicode();
}

std::u16string folded(std::u16string_view text) {
    std::u16string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char16_t unit) { return folded(unit); });
    return result;
}

// Q and letters: how the toolkit calls its classes. Russian names count too.
bool isClassName(QStringView word) {
    const auto isLetter = [](QChar unit) {
        const char16_t code = unit.unicode();
        return (code >= u'A' && code <= u'Z') || (code >= u'a' && code <= u'z') ||
               (code >= u'А' && code <= u'я') || code == u'Ё' || code == u'ё';
    };
    return word.size() > 1 && word.front() == u'Q' &&
           std::all_of(word.begin() + 1, word.end(), isLetter);
}

// From the first of two such quotes to the last one, whatever stands between.
void paintString(QStringView line, QChar quote, QVarLengthArray<Kind, 256>& kinds) {
    const qsizetype first = line.indexOf(quote);
    const qsizetype last = line.lastIndexOf(quote);
    if (first != last) {
        std::fill(kinds.begin() + first, kinds.begin() + last + 1, Kind::string);
    }
}

}  // namespace

std::vector<std::u16string> localVclPrgTextFunctionNames() {
    std::vector<std::u16string> names;
    for (const localMethodRow& row : localLibrary::rows()) {
        for (const std::u16string_view name : {row.english, row.russian}) {
            if (!name.empty()) {
                names.emplace_back(name);
            }
        }
    }
    return names;
}

localVclPrgTextRules::localVclPrgTextRules(std::span<const std::u16string> functionNames) {
    for (const std::u16string_view keyword : keywords) {
        wordAdd(keyword, Kind::keyword);
    }
    // Functions come later in the list: of a word that is both, the function's colour stays.
    for (const std::u16string_view pattern : functionPatterns) {
        patternAdd(pattern);
    }
    for (const std::u16string& name : functionNames) {
        wordAdd(trimBoth(name), Kind::function);
    }
}

void localVclPrgTextRules::patternAdd(std::u16string_view pattern) {
    constexpr std::u16string_view boundary = u"\\b";
    pattern.remove_suffix(boundary.size());
    if (pattern.starts_with(boundary)) {
        wordAdd(pattern.substr(boundary.size()), Kind::function);
        return;
    }
    const bool anyUnitBefore = pattern.starts_with(u"\\S");
    pattern.remove_prefix(anyUnitBefore ? 2 : 1);
    endings_.push_back({folded(pattern), anyUnitBefore});
}

void localVclPrgTextRules::wordAdd(std::u16string_view word, localVclPrgTextKind kind) {
    words_.insert_or_assign(folded(word), kind);
}

std::vector<localVclPrgTextSpan> localVclPrgTextRules::spans(QStringView line) const {
    Kinds kinds(line.size(), Kind::plain);
    // What lies behind the comment's start is painted over in any case. A "//" within a string
    // starts a comment too. Meant.
    const qsizetype commentStart = line.indexOf(u"//");

    for (qsizetype i = 0; i < line.size(); ++i) {
        if (!isWordUnit(line[i])) {
            if (operators.find(line[i].unicode()) != std::u16string_view::npos) {
                kinds[i] = Kind::function;
            }
            continue;
        }
        const qsizetype start = i;
        while (i + 1 < line.size() && isWordUnit(line[i + 1])) {
            ++i;
        }
        paintWord(line, start, i + 1, kinds);
    }
    paintString(line, u'"', kinds);
    paintString(line, u'\'', kinds);
    if (commentStart >= 0) {
        std::fill(kinds.begin() + commentStart, kinds.end(), Kind::comment);
    }

    std::vector<localVclPrgTextSpan> result;
    for (qsizetype start = 0; start < kinds.size();) {
        qsizetype end = start + 1;
        while (end < kinds.size() && kinds[end] == kinds[start]) {
            ++end;
        }
        if (kinds[start] != Kind::plain) {
            result.push_back(
                {static_cast<int>(start), static_cast<int>(end - start), kinds[start]});
        }
        start = end;
    }
    return result;
}

void localVclPrgTextRules::paintWord(QStringView line, qsizetype start, qsizetype end,
                                     Kinds& kinds) const {
    const QStringView word = line.sliced(start, end - start);
    const std::u16string letters = folded(localVclText(word));
    const auto paint = [&](qsizetype from, Kind kind) {
        std::fill(kinds.begin() + from, kinds.begin() + end, kind);
    };
    const auto named = words_.find(letters);
    const Kind byName = named == words_.end() ? Kind::plain : named->second;
    if (byName == Kind::function) {
        paint(start, Kind::function);
    } else if (isClassName(word)) {
        paint(start, Kind::className);
    } else {
        paint(start, byName);
    }
    for (const Ending& ending : endings_) {
        if (!letters.ends_with(ending.letters)) {
            continue;
        }
        qsizetype from = end - static_cast<qsizetype>(ending.letters.size());
        if (ending.anyUnitBefore) {
            --from;
            if (from < 0 || line[from].isSpace()) {
                continue;
            }
        }
        paint(from, Kind::function);
    }
}
