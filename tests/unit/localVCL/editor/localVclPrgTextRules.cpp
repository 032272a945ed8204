// The one pass over a line must paint what the list of regular expressions paints. The list stands
// here as it is defined and is applied in the plain way; both are compared unit by unit.

#include "editor/localVclPrgTextRules.h"

#include <gtest/gtest.h>

#include <QRegExp>
#include <QString>

#include <random>

#include "localInterpretatorUTF8/context/localContextUTF8.h"

namespace {

using Kind = localVclPrgTextKind;

struct Rule {
    QRegExp pattern;
    Kind kind;
};

class naiveRules {
public:
    explicit naiveRules(const std::vector<std::u16string>& functionNames) {
        for (const char* keyword : {"while",
                                    "пока",
                                    "for",
                                    "для",
                                    "to",
                                    "по",
                                    "do",
                                    "цикл",
                                    "break",
                                    "прервать",
                                    "enddo",
                                    "конеццикла",
                                    "если",
                                    "тогда",
                                    "иначеесли",
                                    "иначе",
                                    "конецесли",
                                    "if",
                                    "then",
                                    "elseif",
                                    "else",
                                    "endif",
                                    "переменная",
                                    "перем",
                                    "var",
                                    "процедура",
                                    "конецпроцедуры",
                                    "функция",
                                    "конецфункции",
                                    "procedure",
                                    "endprocedure",
                                    "function",
                                    "endfunction",
                                    "истина",
                                    "ложь",
                                    "true",
                                    "false",
                                    "или",
                                    "or",
                                    "и",
                                    "and",
                                    "не",
                                    "not",
                                    "return",
                                    "возврат"}) {
            add("\\b" + QString::fromUtf8(keyword) + "\\b", Kind::keyword);
        }
        add(QString::fromUtf8("\\bQ[A-Za-zА-Яа-яЁё]+\\b"), Kind::className, Qt::CaseSensitive);
        for (const char* pattern :
             {"\\bmessage\\b", "\\сообщить\\b", "\\StringFromReplace\\b", "\\строкаИзФайла\\b",
              "\\StringPartReplace\\b", "\\СтрокаЧастьЗаменить\\b", "\\FileDelete\\b",
              "\\ФайлУдалить\\b", "\\FileExist\\b", "\\ФайлСуществует\\b"}) {
            add(QString::fromUtf8(pattern), Kind::function);
        }
        for (const std::u16string& name : functionNames) {
            add("\\b" + QString::fromStdU16String(name).trimmed() + "\\b", Kind::function);
        }
        for (const char* pattern :
             {"\\(", "\\)", "\\+", "\\-", "\\*", "//", "\\<", "\\>", "\\=", "\\,", "\\;"}) {
            add(pattern, Kind::function);
        }
        add("\".*\"", Kind::string, Qt::CaseSensitive);
        add("'.*'", Kind::string, Qt::CaseSensitive);
    }

    std::vector<Kind> kinds(const QString& line) const {
        std::vector<Kind> result(static_cast<std::size_t>(line.size()), Kind::plain);
        const auto paint = [&](int start, int length, Kind kind) {
            for (int i = start; i < start + length; ++i) {
                result[static_cast<std::size_t>(i)] = kind;
            }
        };
        for (const Rule& rule : rules_) {
            int index = rule.pattern.indexIn(line, 0);
            while (index >= 0) {
                const int length = rule.pattern.matchedLength();
                paint(index, length, rule.kind);
                index = rule.pattern.indexIn(line, index + length);
            }
        }
        const QRegExp start("//");
        const QRegExp end("[^\n]*");
        int index = start.indexIn(line, 0);
        while (index >= 0) {
            const int endIndex = end.indexIn(line, index);
            const int length = endIndex < 0 ? static_cast<int>(line.size()) - index
                                            : endIndex - index + end.matchedLength();
            paint(index, length, Kind::comment);
            index = start.indexIn(line, index + length);
        }
        return result;
    }

private:
    void add(const QString& pattern, Kind kind, Qt::CaseSensitivity sense = Qt::CaseInsensitive) {
        rules_.push_back({QRegExp(pattern, sense), kind});
        EXPECT_TRUE(rules_.back().pattern.isValid()) << pattern.toStdString();
    }

    std::vector<Rule> rules_;
};

class PrgTextRules : public testing::Test {
protected:
    std::vector<Kind> painted(const QString& line) const {
        std::vector<Kind> result(static_cast<std::size_t>(line.size()), Kind::plain);
        for (const localVclPrgTextSpan& span : rules.spans(line)) {
            for (int i = span.start; i < span.start + span.length; ++i) {
                result.at(static_cast<std::size_t>(i)) = span.kind;
            }
        }
        return result;
    }

    // One letter a unit: what is painted there.
    static std::string letters(const std::vector<Kind>& kinds) {
        std::string result;
        for (const Kind kind : kinds) {
            result += ".KQFSC"[static_cast<std::size_t>(kind)];
        }
        return result;
    }

    void same(const QString& line) const {
        ASSERT_EQ(letters(painted(line)), letters(naive.kinds(line))) << line.toStdString();
    }

    static QString text(const char* utf8) { return QString::fromUtf8(utf8); }

    std::vector<std::u16string> names = localVclPrgTextFunctionNames();
    localVclPrgTextRules rules{names};
    naiveRules naive{names};
};

TEST_F(PrgTextRules, TakesTheFunctionsOfAFreshContext) {
    EXPECT_GT(names.size(), 100U);
    for (const char16_t* name : {u"STRINGLEN", u"СТРОКАДЛИНА", u"RAND", u"MESSAGE", u"СООБЩИТЬ"}) {
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end());
    }
}

TEST_F(PrgTextRules, TakesTheSameFunctionsWhenAGlobalContextStands) {
    const localContextUTF8 global;
    EXPECT_EQ(localVclPrgTextFunctionNames(), names);
}

TEST_F(PrgTextRules, PaintsAProgram) {
    EXPECT_EQ(letters(painted(text("если 1=пол.выбран() тогда"))), "KKKK..F..........FF.KKKKK");
    EXPECT_EQ(letters(painted(text("x = \"a\" + 'b'; // end"))), "..F.SSS.F.SSSF.CCCCCC");
    EXPECT_EQ(letters(painted(text("QWidget q; QОкно Q1 Q"))), "QQQQQQQ..F.QQQQQ.....");
}

TEST_F(PrgTextRules, KeywordsInAnyCase) {
    for (const char* line :
         {"WHILE While wHiLe while_ while1 _while", "Пока ПОКА пОкА покаа апока",
          "ИНАЧЕЕСЛИ иначеЕсли иначе если", "и И или ИЛИ иили не НЕ", "ёесли еслиё"}) {
        same(text(line));
    }
    EXPECT_EQ(letters(painted(text("WHILE пОкА"))), "KKKKK.KKKK");
}

TEST_F(PrgTextRules, SingleBackslashPatterns) {
    EXPECT_EQ(letters(painted(text("xсообщить"))), ".FFFFFFFF");
    EXPECT_EQ(letters(painted(text("сообщитьx"))), ".........");
    EXPECT_EQ(letters(painted(text("xtringFromReplace"))), "FFFFFFFFFFFFFFFFF");
    EXPECT_EQ(letters(painted(text(" tringFromReplace"))), ".................");
    EXPECT_EQ(letters(painted(text("tringFromReplace"))), "................");
    EXPECT_EQ(letters(painted(text(".tringFromReplace"))), "FFFFFFFFFFFFFFFFF");
    for (const char* line :
         {"xсообщить(1)", "ссообщить сообщить", "xtringFromReplace", " tringFromReplace",
          "tringFromReplace", ".tringFromReplace", "\ttringpartreplace", "QStringFromReplace",
          "QtringFromReplace", "stringstringPartReplace", "tringPartReplacetringPartReplace",
          "tringPartReplace.tringPartReplace", "myFileDelete FileDelete2 iledelete xiledelete",
          "мойФайлУдалить файлудалить айлУдалить", "QFileExist QФайлСуществует",
          "xmessage message messagex", "строкаИзФайла _строкаизфайла", "ифСтрокаЧастьЗаменить"}) {
        same(text(line));
    }
}

TEST_F(PrgTextRules, StringsAndComments) {
    for (const char* line : {"\"", "\"\"", "\"a", "a\"b\"c\"d", "'a\"b'c\"", "\"if // then\" x",
                             "// \"if\" if", "///", "/ /", "/", "a//", "//", "a / b // c // d",
                             "'//'", "\"'\"'", "x='if';y=\"then\";z='\"';"}) {
        same(text(line));
    }
}

TEST_F(PrgTextRules, ClassNames) {
    for (const char* line : {"Q", "Qa", "qa", "Q1", "Qa1", "Qa_", "_Qa", "QёЁ", "QQ", "Qto", "(Qa)",
                             "Qa\u0301", "Qif Qé QA.QB"}) {
        same(text(line));
    }
}

TEST_F(PrgTextRules, EveryFunction) {
    for (const std::u16string& name : names) {
        const QString word = QString::fromStdU16String(name);
        same(word + "(" + word.toLower() + "x, x" + word + ")." + word + "=1");
    }
}

TEST_F(PrgTextRules, OddLetters) {
    // Letters whose other case lies far away, combining marks, digits of other scripts, half pairs.
    for (const char16_t* odd : {u"brea\u212A",
                                u"fal\u017Fe",
                                u"F\u0130ND",
                                u"f\u0131nd",
                                u"\u0130f",
                                u"\u0131f",
                                u"fileexi\u017Ft",
                                u"if\u0301",
                                u"\u0301if",
                                u"\u0661if",
                                u"if\u00A0then",
                                u"\u00A0tringFromReplace",
                                u"\u2028tringFromReplace",
                                u"if\u2028then",
                                u"\xD83Dif",
                                u"if\xDE00",
                                u"\xD83D\xDE00tringFromReplace",
                                u"\u0404сли",
                                u"STRINGLEN\u200D",
                                u"\u0130\u0130",
                                u"ﬁleexist",
                                u"\u1E9E",
                                u"// a\u2028b"}) {
        same(QString::fromUtf16(odd));
    }
}

TEST_F(PrgTextRules, LinesMadeByChance) {
    std::vector<QString> pieces = {" ",
                                   " ",
                                   "\t",
                                   "\"",
                                   "'",
                                   "//",
                                   "/",
                                   "(",
                                   ")",
                                   "+",
                                   "-",
                                   "*",
                                   "<",
                                   ">",
                                   "=",
                                   ",",
                                   ";",
                                   ".",
                                   "_",
                                   "1",
                                   "x",
                                   "Q",
                                   "QString",
                                   text("QОкно"),
                                   text("ё"),
                                   text("Ё"),
                                   "if",
                                   "IF",
                                   "then",
                                   text("если"),
                                   text("ЕСЛИ"),
                                   text("и"),
                                   text("не"),
                                   "message",
                                   text("сообщить"),
                                   "StringFromReplace",
                                   "tringFromReplace",
                                   "stringpartreplace",
                                   text("строкаИзФайла"),
                                   text("СтрокаЧастьЗаменить"),
                                   "FileDelete",
                                   text("ФайлУдалить"),
                                   "FileExist",
                                   text("ФайлСуществует"),
                                   "STRINGLEN",
                                   "stringlen",
                                   text("строкаДлина"),
                                   "\\",
                                   "[",
                                   "?",
                                   text("é"),
                                   QString(QChar(0x301)),
                                   QString(QChar(0x212A)),
                                   QString(QChar(0x17F)),
                                   QString(QChar(0x130)),
                                   QString(QChar(0xA0)),
                                   QString(QChar(0xD83D))};
    std::mt19937 random(20240229);
    const auto upTo = [&](std::size_t count) { return random() % count; };
    for (int round = 0; round < 3000; ++round) {
        QString line;
        for (std::size_t count = upTo(14); count > 0; --count) {
            const bool name = upTo(6) == 0;
            line += name ? QString::fromStdU16String(names[upTo(names.size())])
                         : pieces[upTo(pieces.size())];
        }
        same(line);
        if (HasFatalFailure()) {
            return;
        }
    }
}

}  // namespace
