#include <gmock/gmock.h>

#include <sstream>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"
#include "support/language.h"

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

TEST(namePatternMatches, examples) {
    struct Row {
        std::u16string_view pattern, name;
        bool caseSensitive, matches;
    };
    const Row rows[] = {
        {u"", u"", false, true},          {u"", u"ANY", true, true},
        {u"*", u"", false, true},         {u"*", u"ANY", false, true},
        {u"NU*", u"NUMBER", false, true}, {u"nu*", u"NUMBER", false, true},
        {u"nu*", u"NUMBER", true, false}, {u"NU*", u"NU", false, true},
        {u"NU*", u"N", false, false},     {u"NU*", u"ANUMBER", false, false},
        {u"*NU", u"ANY", false, true},    {u"A*Z", u"AB", false, true},
        {u"?", u"A", false, true},        {u"?", u"", false, false},
        {u"?", u"AB", false, false},      {u"A?C", u"ABC", false, true},
        {u"A?C", u"AC", false, false},    {u"ABC", u"ABCD", false, false},
        {u"ABCD", u"ABC", false, false},  {u"abc", u"ABC", false, true},
        {u"abc", u"ABC", true, false},    {u"ёж?", u"ЁЖИ", false, true},
        {u"?*", u"A", false, true},       {u"?*", u"", false, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(namePatternMatches(row.pattern, row.name, row.caseSensitive), row.matches)
            << utf8(row.pattern) << " on " << utf8(row.name)
            << (row.caseSensitive ? " case-sensitive" : "");
    }
}

class localContextListingsTest : public languageTest {
protected:
    localContextListingsTest() {
        inner.caseSensitive = true;
        outer.varDeclare(u"beta").value->setVal(2.0);
        outer.varDeclare(u"alpha").value->setVal(1.0);
        outer.varDeclare(u"Ёлка").value->setVal(u"дерево");
        inner.varDeclare(u"Gamma").value->setVal(3.0);
    }
    static std::string address(const void* pointer) { return utf8(addressText(pointer)); }
    static std::string globalHead() {
        return "для  ГЛОБАЛЬНОГО  контекста [" + address(localContextUTF8::globalContext) + "] ";
    }
    std::string outerHead() const {
        return "для  контекста [" + address(&outer) + "]  потомка контекста [" +
               address(localContextUTF8::globalContext) + "] ";
    }
    std::string innerHead() const {
        return "для  регистрозависимого  контекста [" + address(&inner) + "]  потомка контекста [" +
               address(&outer) + "] ";
    }

    localContextUTF8 outer;
    localContextUTF8 inner{&outer};
};

using listingTest = localContextListingsTest;

TEST_F(listingTest, variablesOfTheChainAreSortedInEachContext) {
    inner.dispMemo(u"");
    const std::vector<std::string> lines = output.rawLines();
    ASSERT_EQ(lines.size(), 10U);
    EXPECT_EQ(lines[0], "");
    EXPECT_EQ(lines[1], "СПИСОК ПЕРЕМЕННЫХ *************** ");
    EXPECT_EQ(lines[2], "в том числе список переменных " + innerHead());
    EXPECT_EQ(lines[3], "0 " + utf8(inner.varDisplay(u"Gamma")));
    EXPECT_EQ(lines[4], "в том числе список переменных " + outerHead());
    // By code units: Ё (0401) stands behind the Latin letters.
    EXPECT_EQ(lines[5], "0 " + utf8(outer.varDisplay(u"alpha")));
    EXPECT_EQ(lines[6], "1 " + utf8(outer.varDisplay(u"beta")));
    EXPECT_EQ(lines[7], "2 " + utf8(outer.varDisplay(u"Ёлка")));
    EXPECT_EQ(lines[8], "в том числе список переменных " + globalHead());
    EXPECT_THAT(lines[9], MatchesRegex("Accessible RAM: *[0-9]+(,[0-9][0-9][0-9])* func: dispMemo "
                                       "file: localContextListings.cpp line: [0-9]+"));
    EXPECT_EQ(withoutTail(lines[9]).size(), std::string("Accessible RAM:").size() + 25);
}

TEST_F(listingTest, aPatternIsNamedAndChoosesVariables) {
    std::ostringstream stream;
    inner.dispMemo(u"?A*", stream);
    EXPECT_EQ(output.text(), "") << "a given stream takes the place of standard output";
    std::vector<std::string> lines;
    std::istringstream reader(stream.str());
    for (std::string line; std::getline(reader, line);) {
        lines.push_back(line);
    }
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[1], "СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [?A*]");
    // Gamma stands in a case-sensitive context, where a is no A.
    EXPECT_EQ(lines[2], "в том числе список переменных с шаблоном имени [?A*] " + innerHead());
    EXPECT_EQ(lines[3], "в том числе список переменных с шаблоном имени [?A*] " + outerHead());
    EXPECT_EQ(lines[4], "в том числе список переменных с шаблоном имени [?A*] " + globalHead());

    output.clear();
    outer.dispMemo(u"b*");
    ASSERT_EQ(output.rawLines().size(), 6U);
    EXPECT_EQ(output.rawLines()[3], "0 " + utf8(outer.varDisplay(u"beta")));
}

TEST_F(listingTest, functionsOfTheChain) {
    const auto compiled = std::make_shared<localOperatorCompiled>();
    outer.funcAdd(u"second", compiled);
    outer.funcAdd(u"first", compiled);
    outer.dispFunc(u"*");
    std::vector<std::string> lines = output.rawLines();
    ASSERT_GE(lines.size(), 6U);
    EXPECT_EQ(lines[0], "");
    EXPECT_EQ(lines[1], "СПИСОК ФУНКЦИЙ с шаблоном имени [*]");
    EXPECT_EQ(lines[2], outerHead());
    EXPECT_THAT(lines[3], HasSubstr("FIRST() "));
    EXPECT_THAT(lines[4], HasSubstr("SECOND() "));
    EXPECT_EQ(lines[5], globalHead());
    EXPECT_THAT(output.text(), HasSubstr("CREATEOBJECT() \n"));

    output.clear();
    outer.dispFunc(u"FIRS?");
    EXPECT_EQ(output.rawLines().size(), 5U);
}

TEST_F(listingTest, classesAreSortedSummaries) {
    outer.dispClasses(u"");
    const std::vector<std::string> lines = output.rawLines();
    ASSERT_EQ(lines.size(), 1 + localContextUTF8::globalContext->classes().size());
    EXPECT_EQ(lines[0], "СПИСОК КЛАССОВ ");
    EXPECT_TRUE(std::is_sorted(lines.begin() + 1, lines.end()));
    output.clear();
    outer.dispClasses(u"НЕТТАКОГО*");
    EXPECT_EQ(output.rawLines(),
              std::vector<std::string>{"СПИСОК КЛАССОВ с шаблоном имени [НЕТТАКОГО*]"});
}

TEST_F(listingTest, variablesGoToTheLog) {
    localPlatform::removeFile(logFileName());
    outer.dispMemoToLog(u"beta");
    std::u16string text;
    ASSERT_TRUE(fileRead(logFileName(), text, localString::codePageUtf8));
    EXPECT_THAT(utf8(text),
                HasSubstr("СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [beta]\n"));
    EXPECT_THAT(utf8(text), HasSubstr("\n0 " + utf8(outer.varDisplay(u"beta")) + "\n"));
    EXPECT_EQ(output.text(), "");
}

}  // namespace
