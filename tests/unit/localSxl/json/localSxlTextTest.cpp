#include "localSxl/json/localSxlText.h"

#include <gmock/gmock.h>

#include <random>

#include "localInterpretatorUTF8/classes/localDateTime.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localSxl/sheet/localSxlSheet.h"
#include "support/language.h"
#include "support/ownFolder.h"

namespace {

using testing::ElementsAre;

class localSxlTextTest : public languageTest {
protected:
    localSxlSheet sheet{localContextUTF8::globalContext};

    static std::u16string textOf(const localSxlSheet& of) {
        int status = localErrorTypeOK;
        localText text;
        EXPECT_TRUE(localSxlToJson(status, of, text));
        return text.string();
    }
    static std::string valueOf(const std::u16string& text, std::u16string_view key) {
        const std::size_t from = text.rfind(key) + key.size();
        return utf8(text.substr(from, text.find(u'"', from) - from));
    }
};

TEST_F(localSxlTextTest, detailsAreWrittenAndNotRead) {
    localSxlCell cell;
    cell.place = {1, 1};
    cell.details = u"de\"tails";
    localSxlCells cells;
    cells.append(std::move(cell));
    sheet.cellsReplace(cells);
    const std::u16string text = textOf(sheet);
    EXPECT_NE(text.find(u"\"details\" : \"de\\\"tails\""), text.npos);
    ASSERT_TRUE(localSxlFromJson(sheet, text));
    EXPECT_TRUE(sheet.cells().find({1, 1})->details.empty());
}

// Every letter comes back from a file, whatever the file's writer can hold, but for the backslash
// before brackets.
TEST_F(localSxlTextTest, everyLetterFindsTheWayThroughAFile) {
    const ownFolder folder;
    std::u16string letters;
    for (char32_t unit = 1; unit < 0x10000; ++unit) {
        if (std::u16string_view(u"[]{}").find(static_cast<char16_t>(unit)) == letters.npos) {
            letters += static_cast<char16_t>(unit);
        }
    }
    sheet.cellTextSet({1, 1}, letters);
    sheet.cellFontSet({1, 1}, u"№ \"1\" \\ [x] {y} 'z' /", 5, 0);
    int status = localErrorTypeOK;
    ASSERT_TRUE(sheet.save(status, u"all.sxl"));
    EXPECT_EQ(sheet.fileName(), u"all.sxl");
    localSxlSheet read(nullptr);
    ASSERT_TRUE(localSxlLoad(read, u"all.sxl"));
    EXPECT_TRUE(read.cellText({1, 1}) == sheet.cellText({1, 1}));
    EXPECT_EQ(utf8(read.cells().find({1, 1})->font->familyInText()), "№ \"1\" \\ [x] {y} 'z' /");
}

TEST_F(localSxlTextTest, lettersThatAFileCannotHoldAreWrittenAsDigits) {
    sheet.cellTextSet({1, 1}, u"ЁёЖ№«—\U0001F600");
    EXPECT_EQ(valueOf(textOf(sheet), u"\"text\" : \""), "ЁёЖ\\u2116\\u00ab\\u2014\\ud83d\\ude00");
}

TEST_F(localSxlTextTest, aFailedSaveKeepsTheNameOfTheLastOne) {
    const ownFolder folder;
    int status = localErrorTypeOK;
    EXPECT_TRUE(sheet.save(status, u"a.sxl"));
    EXPECT_FALSE(sheet.save(status, u"no/such/folder"));
    EXPECT_FALSE(sheet.save(status, u""));
    EXPECT_EQ(sheet.fileName(), u"a.sxl");
    EXPECT_EQ(status, localErrorTypeOK);
    EXPECT_EQ(host.calls.size(), 3U) << "one box, between two cursors";
}

TEST_F(localSxlTextTest, valuesThatAreNoListAreRefused) {
    sheet.cellTextSet({1, 1}, u"stays");
    localValueDescription value;
    EXPECT_FALSE(localSxlFromValue(sheet, value));
    localValueDescription table;
    table.objectBind(new localValueTable, localValueTable::classDeclaration());
    EXPECT_FALSE(localSxlFromValue(sheet, table));
    localValueDescription broken;
    broken.type = localValueTypeOBJECT;
    EXPECT_FALSE(localSxlFromValue(sheet, broken));
    int something = 0;
    broken.pointer = &something;
    EXPECT_FALSE(localSxlFromValue(sheet, broken));
    broken.type = localValueTypeNUMBER;
    EXPECT_THAT(output.rawLines(),
                ElementsAre("Парсинг ERROR! Результат - не объект ",
                            "Парсинг ERROR! Результат не ValueList. Это [ТАБЛИЦАЗНАЧЕНИЙ] ",
                            "Парсинг ERROR! Cсылка на объект битая ",
                            "Парсинг ERROR! Результат не ValueList. Это [<unknown class>] "));
    EXPECT_EQ(utf8(sheet.cellText({1, 1})), "stays");
}

// What is broken at one place is read as something else or refused, and never half.
TEST_F(localSxlTextTest, brokenTextsAreReadOrRefusedWhole) {
    sheet.cellTextSet({1, 1}, u"a [b] \u2116");
    sheet.cellFontSet({2, 2}, u"Arial", 12, 15);
    sheet.cellColorSet({3, 3}, {.border = 1});
    const std::u16string whole = textOf(sheet);
    std::mt19937 random(11);
    constexpr std::u16string_view units = u"\"\\{}[],:0-9.tu/ \n\u2116ae+";
    int refused = 0;
    for (int round = 0; round < 4000; ++round) {
        std::u16string text = whole;
        for (std::size_t changes = 1 + random() % 3; changes != 0; --changes) {
            const std::size_t at = random() % text.size();
            const char16_t unit = units[random() % units.size()];
            switch (random() % 4) {
                case 0:
                    text[at] = unit;
                    break;
                case 1:
                    text.insert(at, 1, unit);
                    break;
                case 2:
                    text.erase(at, 1 + random() % 5);
                    break;
                default:
                    text.resize(at + 1);
                    break;
            }
        }
        localSxlSheet read(nullptr);
        read.cellTextSet({9, 9}, u"before");
        output.clear();
        if (localSxlFromJson(read, text)) {
            EXPECT_EQ(read.cells().find({9, 9}), nullptr);
            EXPECT_EQ(read.clearedCount(), 1);
        } else {
            ++refused;
            EXPECT_EQ(utf8(read.cellText({9, 9})), "before");
            EXPECT_EQ(read.clearedCount(), 0);
            EXPECT_THAT(output.text(), testing::HasSubstr("Парсинг ERROR!"));
        }
    }
    EXPECT_GT(refused, 1000);
    EXPECT_LT(refused, 4000);
}

TEST_F(localSxlTextTest, hugeAndDeepTextsEnd) {
    const std::u16string deep(1000000, u'[');
    EXPECT_FALSE(localSxlFromJson(sheet, deep));
    std::u16string nested = u"{\"cells\":[";
    for (int i = 0; i < 50000; ++i) {
        nested += u"{\"text\":";
    }
    EXPECT_FALSE(localSxlFromJson(sheet, nested));
    EXPECT_FALSE(localSxlFromJson(sheet, u"\"" + std::u16string(1000000, u'x')));
    std::u16string many = u"{\"cells\":[";
    for (int i = 0; i < 100000; ++i) {
        many += u"{},";
    }
    EXPECT_TRUE(localSxlFromJson(sheet, many + u"{\"rowNumber\":1,\"colNumber\":1,"
                                               u"\"text\":\"x\"}]}"));
    EXPECT_EQ(sheet.cells().all().size(), 100002U);
    EXPECT_EQ(utf8(sheet.cellText({1, 1})), "x");
}

}  // namespace
