#include "localInterpretatorUTF8/text/localCharacters.h"

#include <gmock/gmock.h>

#include <string>

#include "support/language.h"

namespace {

constexpr std::u16string_view smallLetters =
    u"abcdefghijklmnopqrstuvwxyzабвгдеёжзийклмнопрстуфхцчшщъыьэюя";
constexpr std::u16string_view capitals =
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZАБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ";

template <class Check>
void forEveryUnit(Check check) {
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        check(static_cast<char16_t>(unit));
    }
}

TEST(localCharacters, toUpperKnowsLatinAndRussianLettersOnly) {
    ASSERT_EQ(smallLetters.size(), capitals.size());
    forEveryUnit([](char16_t unit) {
        const std::size_t place = smallLetters.find(unit);
        const char16_t wanted = place == std::u16string_view::npos ? unit : capitals[place];
        ASSERT_EQ(toUpper(unit), wanted) << "unit " << static_cast<unsigned>(unit);
    });
}

TEST(localCharacters, toUpperOfATextLeavesOtherLettersAlone) {
    EXPECT_EQ(utf8(toUpper(u"ёж Straße")), "ЁЖ STRAßE");
    EXPECT_EQ(toUpper(u""), u"");
}

TEST(localCharacters, namesAreMadeOfDigitsLettersAndUnderscores) {
    const std::u16string nameUnits =
        u"0123456789_" + std::u16string(smallLetters) + std::u16string(capitals);
    forEveryUnit([&](char16_t unit) {
        ASSERT_EQ(isNameUnit(unit), nameUnits.find(unit) != std::u16string::npos)
            << "unit " << static_cast<unsigned>(unit);
    });
}

TEST(localCharacters, scanningPassesOverFiveBlanksAndTrimmingRemovesThree) {
    forEveryUnit([](char16_t unit) {
        const std::u16string_view blanks = u" \t\n\f\r";
        const std::u16string_view trimmed = u" \t\n";
        ASSERT_EQ(isBlankUnit(unit), blanks.find(unit) != blanks.npos);
        ASSERT_EQ(isTrimmedUnit(unit), trimmed.find(unit) != trimmed.npos);
    });
}

TEST(localCharacters, trimmingKeepsCarriageReturnsAndInnerBlanks) {
    struct Row {
        std::u16string_view text, left, right, both;
    };
    const Row rows[] = {
        {u"", u"", u"", u""},
        {u" \t\n", u"", u"", u""},
        {u"a", u"a", u"a", u"a"},
        {u" \n\ta b\t \n", u"a b\t \n", u" \n\ta b", u"a b"},
        {u"\r a \r", u"\r a \r", u"\r a \r", u"\r a \r"},
        {u" \fa\f ", u"\fa\f ", u" \fa\f", u"\fa\f"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(trimLeft(row.text), row.left) << utf8(row.text);
        EXPECT_EQ(trimRight(row.text), row.right) << utf8(row.text);
        EXPECT_EQ(trimBoth(row.text), row.both) << utf8(row.text);
    }
}

TEST(localCharacters, anAbbreviationHasAtLeastFourUnits) {
    struct Row {
        std::u16string_view shortText, longText;
        bool matches;
    };
    const Row rows[] = {
        {u"", u"CLEAR", false},         {u"CLE", u"CLEAR", false},
        {u"CLEA", u"CLEAR", true},      {u"CLEAR", u"CLEAR", true},
        {u"CLEARS", u"CLEAR", false},   {u"CLEX", u"CLEAR", false},
        {u"clea", u"CLEAR", false},     {u"QUI", u"QUIT", false},
        {u"QUIT", u"QUIT", true},       {u"CP86", u"CP866", true},
        {u"DIR", u"DIR", false},        {u"ПЕРЕ", u"ПЕРЕМЕННАЯ", true},
        {u"ПЕР", u"ПЕРЕМЕННАЯ", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(isPrefix(row.shortText, row.longText), row.matches) << utf8(row.shortText);
    }
}

TEST(localCharacters, anUpperNameHoldsNamesOfAnyLengthWithTheirHash) {
    for (const std::size_t length : {0U, 1U, 47U, 48U, 49U, 1000U}) {
        const localUpperName name(std::u16string(length, u'ё'));
        EXPECT_EQ(name.view(), std::u16string(length, u'Ё'));
        EXPECT_EQ(name.hash(), nameHash(std::u16string(length, u'Ё')));
    }
}

}  // namespace
