// The colours of a line of a program.
//
// The colours are defined by a list of some two hundred regular expressions, each applied over the
// whole line, a later one painting over an earlier one. All but a few of them look for a whole
// word, so one pass over the words of the line with a look into a table of names paints exactly
// what the list would paint, at the cost of the line's length. The order of painting below is the
// order of the list.
#pragma once

#include <QStringView>
#include <QVarLengthArray>

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// How a stretch of a line looks. Functions and operators look alike.
enum class localVclPrgTextKind : unsigned char {
    plain,
    keyword,
    className,
    function,
    string,
    comment,
};

struct localVclPrgTextSpan {
    int start = 0;  // code units
    int length = 0;
    localVclPrgTextKind kind = localVclPrgTextKind::plain;
};

// The global functions that can be called, in capitals, as a fresh context knows them.
std::vector<std::u16string> localVclPrgTextFunctionNames();

class localVclPrgTextRules {
public:
    // `functionNames` are the global functions that can be called, in any case of letters.
    explicit localVclPrgTextRules(std::span<const std::u16string> functionNames);

    // The coloured stretches of one line from left to right; what lies between them is plain.
    std::vector<localVclPrgTextSpan> spans(QStringView line) const;

private:
    // The end of a word that is enough for it to be painted from there on.
    struct Ending {
        std::u16string letters;  // folded
        bool anyUnitBefore;      // one more unit in front belongs to it, whatever it is but a blank
    };
    using Kinds = QVarLengthArray<localVclPrgTextKind, 256>;

    void patternAdd(std::u16string_view pattern);
    void wordAdd(std::u16string_view word, localVclPrgTextKind kind);
    void paintWord(QStringView line, qsizetype start, qsizetype end, Kinds& kinds) const;

    std::unordered_map<std::u16string, localVclPrgTextKind> words_;  // by the folded word
    std::vector<Ending> endings_;
};
