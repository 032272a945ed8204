// The book of help pages: what is made of a JSON text, to the letter.
#include "localConsole/help/localHelpPages.h"

#include <gmock/gmock.h>

#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localInterpretatorUTF8/value/localSlot.h"

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr const char* style =
    "<style type=\"text/css\">\n"
    "body {font-family: \"Arial Cyr\" ; font: 12pt ; font-weight:NONE; text-align:justyfy; "
    "margin-left: 0px; margin-top: 0px; margin-right: 0px; margin-bottom: 0px; color:None; "
    "background-color:None; }\n"
    "functionName {font-family: \"Courier\"; font: 12pt bold; display:none; font-weight:bold; "
    "color:NONE; }\n"
    "i{font-family: \"Times New Roman\" ; font-weight:NONE; font-style: italic; "
    "text-align:justyfy; margin-left: 0px; margin-top: 0px; margin-right: 0px; margin-bottom: 0px; "
    "color:blue; background-color:None; }\n"
    "a{color:green; display:inline;}\n"
    "</style>\n";

class helpPages : public testing::Test {
protected:
    helpPages() { localMemoryManager::start(); }

    // Reads a book; what the reader writes is kept apart.
    bool read(const std::string& json) {
        std::ostringstream lines;
        std::streambuf* const before = std::cout.rdbuf(lines.rdbuf());
        const bool done = pages.parseHelpFromJson(localString::fromUtf8(json));
        std::cout.rdbuf(before);
        output = lines.str();
        return done;
    }

    std::string page(const std::string& key) const {
        return localString::toUtf8(pages.page(localString::fromUtf8(key)));
    }
    std::vector<std::string> column(localHelpPages::Column number) const {
        std::vector<std::string> texts;
        for (std::size_t row = 0; row < pages.table().rowsCount(); ++row) {
            texts.push_back(localString::toUtf8(pages.table().cell(row, number).wStr.string()));
        }
        return texts;
    }
    std::vector<std::string> keys() const { return column(localHelpPages::key); }

    localHelpPages pages;
    std::string output;
};

TEST_F(helpPages, tableHasFourColumns) {
    ASSERT_EQ(pages.table().columnsCount(), 4U);
    const char16_t* const names[] = {u"Key", u"HTML", u"nameEn", u"nameRu"};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(pages.table().columnNumber(names[i]), i + 1);
    }
    EXPECT_EQ(pages.table().rowsCount(), 0U);
}

TEST_F(helpPages, topicsAreSimplePages) {
    ASSERT_TRUE(read(R"({"main": "Книга <B>цен</B>", "console": "c", "remarks": "r"})"));
    EXPECT_EQ(page("#main"), style + std::string("<body>\nКнига <B>цен</B></body>\n"));
    EXPECT_EQ(page("#console"), style + std::string("<body>\nc</body>\n"));
    EXPECT_EQ(page("#remarks"), style + std::string("<body>\nr</body>\n"));
    EXPECT_THAT(keys(), ElementsAre("#main", "#console", "#remarks"));
    EXPECT_THAT(column(localHelpPages::nameEn),
                ElementsAre("main page", "console lkjhlkj", "remarks lkjhlkj"));
    EXPECT_THAT(column(localHelpPages::nameRu),
                ElementsAre("главная страница", "console страница", "remarks страница"));
    EXPECT_THAT(output, IsEmpty());
}

TEST_F(helpPages, otherTopicsAreIgnored) {
    ASSERT_TRUE(read(R"({"Main": "a", "index": "b", "": "c"})"));
    EXPECT_THAT(keys(), IsEmpty());
    EXPECT_THAT(output, IsEmpty());
}

TEST_F(helpPages, methodOnTopIsPrintedOnly) {
    ASSERT_TRUE(read(R"({"method": "Строка"})"));
    EXPECT_THAT(keys(), IsEmpty());
    EXPECT_EQ(output, "Строка\n");
}

TEST_F(helpPages, classPageListsItsMethods) {
    ASSERT_TRUE(read(R"({"class": {"Склад": {"text": "Остатки товаров.", "method": {
        "ADD": {"nameEn": "ADD", "nameRu": "ДОБАВИТЬ"}, "CLEAR": {}}}}})"));
    EXPECT_EQ(page("#class:Склад"),
              style + std::string("<body>\n"
                                  "<a href=\"#main\">Главная</a><BR/>\n"
                                  "<BR/>\n"
                                  "Склад<BR/>\n"
                                  "<BR/>\n"
                                  "Это класс Склад<BR/>\n"
                                  "<BR/>\n"
                                  "Остатки товаров.<BR/>\n"
                                  "<BR/>\n"
                                  "Доступные методы:<BR/>\n"
                                  "<BR/>\n"
                                  "&nbsp;&nbsp;&nbsp;&nbsp;<a href=\"#class:Склад:method:ADD\">"
                                  "ADD()</a><BR/>\n"
                                  "&nbsp;&nbsp;&nbsp;&nbsp;<a href=\"#class:Склад:method:CLEAR\">"
                                  "CLEAR()</a><BR/>\n"
                                  "</body>\n"));
    EXPECT_THAT(keys(), ElementsAre("#class:Склад", "#class:Склад:method:ADD",
                                    "#class:Склад:method:CLEAR"));
    EXPECT_THAT(column(localHelpPages::nameRu), ElementsAre("Склад", "ДОБАВИТЬ", ""));
    EXPECT_THAT(column(localHelpPages::nameEn), ElementsAre("Склад", "ADD", ""));
}

TEST_F(helpPages, methodPageHasAllItsParts) {
    ASSERT_TRUE(read(R"json({"class": {"Склад": {"method": {"ADD": {
        "nameEn": "ADD", "nameRu": "ДОБАВИТЬ", "syntax": "ADD(товар)\nДОБАВИТЬ(товар)",
        "parameter": {"товар": "имя товара", "цена": "число"}, "returnValue": "Число 1.",
        "description": "Добавляет товар.", "example": "? 1 &lt; 2;",
        "seeAlso": {"class:Склад:method:CLEAR": "CLEAR", "main": "Начало"}}}}}})json"));
    EXPECT_EQ(page("#class:Склад:method:ADD"),
              style + std::string("<body>\n"
                                  "<a href=\"#main\">Главная</a><BR/>\n"
                                  "<BR/>\n"
                                  "<pre><a href=\"#class:Склад\" >класс Склад</a>\n"
                                  "</pre>"
                                  "<i>метод</i> <functionName>ADD</functionName> <i>или</i> "
                                  "<functionName>ДОБАВИТЬ</functionName> <BR/><BR/>\n"
                                  "<i><B>Синтаксис:</B></i> <BR/><BR/>\n"
                                  "<pre>ADD(товар)\nДОБАВИТЬ(товар)</pre>"
                                  "<BR/>\n"
                                  "<i><B>Параметры:</B></i> <BR/>\n"
                                  "&lt;товар&gt; - имя товара<BR/>\n"
                                  "&lt;цена&gt; - число<BR/>\n"
                                  "<BR/>\n"
                                  "<i><B>Возвращаемое значение:</B></i><BR/>\n"
                                  "Число 1.<BR>\n"
                                  "<BR/>\n"
                                  "<i><B>Описание:</B></i><BR/>\n"
                                  "Добавляет товар.<BR>\n"
                                  "<BR/>\n"
                                  "<i><B>Пример:</B></i><BR>\n"
                                  "<BR/>\n"
                                  "<pre>? 1 &lt; 2;<BR>\n"
                                  "</pre>"
                                  "<i><B>Ссылки:</B></i><BR>\n"
                                  "<BR/>\n"
                                  "<a href=\"#class:Склад\" >класс Склад</a>\n"
                                  "<BR/>\n"
                                  "<a href=\"#class:Склад:method:CLEAR\" > CLEAR</a>\n"
                                  "<BR/>\n"
                                  "<a href=\"#main\" > Начало</a>\n"
                                  "<BR/>\n"
                                  "</body>\n"));
}

TEST_F(helpPages, methodWithNothingHasAllItsPartsAndALinkToItsClass) {
    ASSERT_TRUE(read(R"({"class": {"X": {"method": {"A": {}}}}})"));
    EXPECT_EQ(page("#class:X:method:A"),
              style + std::string("<body>\n"
                                  "<a href=\"#main\">Главная</a><BR/>\n"
                                  "<BR/>\n"
                                  "<pre><a href=\"#class:X\" >класс X</a>\n"
                                  "</pre>"
                                  "<i>метод</i> <functionName></functionName> <i>или</i> "
                                  "<functionName></functionName> <BR/><BR/>\n"
                                  "<i><B>Синтаксис:</B></i> <BR/><BR/>\n"
                                  "<pre></pre>"
                                  "<BR/>\n"
                                  "<i><B>Параметры:</B></i> <BR/>\n"
                                  "<BR/>\n"
                                  "<i><B>Возвращаемое значение:</B></i><BR/>\n"
                                  "<BR>\n"
                                  "<BR/>\n"
                                  "<i><B>Описание:</B></i><BR/>\n"
                                  "<BR>\n"
                                  "<BR/>\n"
                                  "<i><B>Пример:</B></i><BR>\n"
                                  "<BR/>\n"
                                  "<pre><BR>\n"
                                  "</pre>"
                                  "<i><B>Ссылки:</B></i><BR>\n"
                                  "<BR/>\n"
                                  "<a href=\"#class:X\" >класс X</a>\n"
                                  "<BR/>\n"
                                  "</body>\n"));
}

TEST_F(helpPages, classWithNothingHasAPage) {
    ASSERT_TRUE(read(R"({"class": {"X": {}, "": {}}})"));
    EXPECT_THAT(keys(), ElementsAre("#class:X", "#class:"));
    EXPECT_EQ(page("#class:X"), style + std::string("<body>\n"
                                                    "<a href=\"#main\">Главная</a><BR/>\n"
                                                    "<BR/>\n"
                                                    "X<BR/>\n"
                                                    "<BR/>\n"
                                                    "Это класс X<BR/>\n"
                                                    "<BR/>\n"
                                                    "<BR/>\n"
                                                    "<BR/>\n"
                                                    "Доступные методы:<BR/>\n"
                                                    "<BR/>\n"
                                                    "</body>\n"));
}

TEST_F(helpPages, whatShouldBeATableAndIsNoneIsSkipped) {
    ASSERT_TRUE(read(R"({"class": "text", "main": "m"})"));
    EXPECT_THAT(keys(), ElementsAre("#main"));
    ASSERT_TRUE(read(R"({"class": {"A": "text", "B": {"method": "text"},
        "C": {"method": {"M": "text", "N": {"parameter": "p", "seeAlso": "s"}}}}})"));
    EXPECT_THAT(keys(), ElementsAre("#class:B", "#class:C", "#class:C:method:N"));
    EXPECT_THAT(page("#class:C"), Not(HasSubstr("M()")));
    EXPECT_THAT(page("#class:C:method:N"),
                HasSubstr("<i><B>Параметры:</B></i> <BR/>\n<BR/>\n<i><B>Возвр"));
}

TEST_F(helpPages, scalarThatIsATableShowsTheWordForItsType) {
    ASSERT_TRUE(read(R"({"main": {}, "class": {"A": {"text": {"x": "y"}}}})"));
    EXPECT_EQ(page("#main"), style + std::string("<body>\nТАБЛИЦАЗНАЧЕНИЙ</body>\n"));
    EXPECT_THAT(page("#class:A"), HasSubstr("<BR/>\nТАБЛИЦАЗНАЧЕНИЙ<BR/>\n"));
    ASSERT_TRUE(read(R"({"class": {"A": {"method": {"M": {"nameEn": {}, "nameRu": {},
        "syntax": {}, "parameter": {"p": {}}, "returnValue": {}, "description": {},
        "example": {}, "seeAlso": {"s": {}}}}}}})"));
    const std::string method = page("#class:A:method:M");
    for (const char* const part :
         {"<functionName>ТАБЛИЦАЗНАЧЕНИЙ</functionName> <i>или</i> "
          "<functionName>ТАБЛИЦАЗНАЧЕНИЙ</functionName>",
          "<pre>ТАБЛИЦАЗНАЧЕНИЙ</pre><BR/>\n", "&lt;p&gt; - ТАБЛИЦАЗНАЧЕНИЙ<BR/>\n",
          "значение:</B></i><BR/>\nТАБЛИЦАЗНАЧЕНИЙ<BR>\n",
          "Описание:</B></i><BR/>\nТАБЛИЦАЗНАЧЕНИЙ<BR>\n", "<pre>ТАБЛИЦАЗНАЧЕНИЙ<BR>\n</pre>",
          "<a href=\"#s\" > ТАБЛИЦАЗНАЧЕНИЙ</a>\n"}) {
        EXPECT_THAT(method, HasSubstr(part));
    }
}

TEST_F(helpPages, emptyObjectGivesAnEmptyBook) {
    ASSERT_TRUE(read(R"({"main": "m"})"));
    ASSERT_TRUE(read("{}"));
    EXPECT_THAT(keys(), IsEmpty());
    EXPECT_EQ(page("#main"), "");
}

TEST_F(helpPages, brokenTextLeavesTheBook) {
    ASSERT_TRUE(read(R"({"main": "m"})"));
    for (const char* const broken :
         {"", "main", "[]", R"({"main": "n")", R"({"main": "n", "console": 1})", R"({"main")"}) {
        EXPECT_FALSE(read(broken)) << broken;
        EXPECT_THAT(output, Not(IsEmpty())) << broken;
        EXPECT_THAT(keys(), ElementsAre("#main")) << broken;
        EXPECT_THAT(page("#main"), HasSubstr("\nm</body>")) << broken;
    }
}

TEST_F(helpPages, bookTooDeepIsRefused) {
    ASSERT_TRUE(read(R"({"main": "m"})"));
    std::string deep;
    for (int i = 0; i < 100000; ++i) {
        deep += R"({"class":)";
    }
    EXPECT_FALSE(read(deep + "{}" + std::string(100000, '}')));
    EXPECT_THAT(output, HasSubstr("синтаксическая ошибка"));
    EXPECT_THAT(keys(), ElementsAre("#main"));
}

TEST_F(helpPages, bookOfManyPagesIsWhole) {
    constexpr int count = 10000;
    std::string book = R"({"class": {"X": {"method": {)";
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        book += (i == 0 ? "\"M" : ",\"M") + number + R"(": {"nameRu": "Р)" + number + "\"}";
    }
    ASSERT_TRUE(read(book + "}}}}"));
    EXPECT_EQ(pages.table().rowsCount(), std::size_t(count + 1));
    EXPECT_THAT(page("#class:X"), HasSubstr("method:M9999\">M9999()</a><BR/>\n</body>"));
    EXPECT_THAT(page("#class:X:method:M9999"), HasSubstr("<functionName>Р9999</functionName>"));
    EXPECT_THAT(localString::toUtf8(pages.allPages()),
                EndsWith("<a href=\"#class:X:method:M9999\">Р9999</a><BR/>\n</body>\n"));
}

TEST_F(helpPages, firstOfEqualKeysIsThePage) {
    ASSERT_TRUE(read(R"({"main": "first", "main": "second"})"));
    EXPECT_THAT(keys(), ElementsAre("#main", "#main"));
    EXPECT_THAT(page("#main"), HasSubstr("first"));
    EXPECT_EQ(page("main"), "");
}

TEST_F(helpPages, pageListLinksToEveryPage) {
    ASSERT_TRUE(read(R"({"main": "m", "class": {"X": {"method": {"A": {"nameRu": "АА"}}}}})"));
    EXPECT_EQ(localString::toUtf8(pages.allPages()),
              style + std::string("<body>\n"
                                  "<a href=\"#main\">Главная</a><BR/>\n"
                                  "<BR/>\n"
                                  "Это полный список страниц. <BR/>\n"
                                  "<BR/>\n"
                                  "Доступные страницы:<BR/>\n"
                                  "<BR/>\n"
                                  "<a href=\"#main\">главная страница</a><BR/>\n"
                                  "<a href=\"#class:X\">X</a><BR/>\n"
                                  "<a href=\"#class:X:method:A\">АА</a><BR/>\n"
                                  "</body>\n"));
}

TEST_F(helpPages, pagesFromAListAreKnownByName) {
    ASSERT_TRUE(read(R"({"console": "c"})"));
    EXPECT_EQ(pages.keyOfLink(u"main.htm"), u"main.htm");
    localValueList list;
    list.valueAppend(localText(u"<B>Прайс</B>"), u"main.htm");
    list.valueAppend(7.0, u"#seven");
    pages.pagesFromList(list);
    EXPECT_THAT(keys(), ElementsAre("#main.htm", "#seven"));
    EXPECT_EQ(page("#main.htm"), "<B>Прайс</B>");
    EXPECT_EQ(page("#seven"), "7");
    EXPECT_EQ(pages.keyOfLink(u"main.htm"), u"#main.htm");
    EXPECT_EQ(pages.keyOfLink(u"#main.htm"), u"#main.htm");
    EXPECT_THAT(localString::toUtf8(pages.allPages()),
                HasSubstr("<a href=\"#main.htm\">main.htm</a><BR/>\n"));
}

TEST_F(helpPages, readingGivesBackEverySlot) {
    static_cast<void>(
        localSlot::reserve());  // the first one makes the store, which counts as cells
    const auto cells = localValueDescription::counterStaticTotal;
    const auto tables = localValueTable::counterStaticTotal;
    {
        const std::u16string book =
            uR"({"class": {"X": {"method": {"A": {"parameter": {"a": "b"}}}}}})";
        auto other = std::make_unique<localHelpPages>();
        ASSERT_TRUE(other->parseHelpFromJson(book));
    }
    ASSERT_FALSE(read(R"({"class": {"X": {"method")"));
    EXPECT_EQ(localValueTable::counterStaticTotal, tables);
    EXPECT_EQ(localValueDescription::counterStaticTotal, cells);
}

}  // namespace
