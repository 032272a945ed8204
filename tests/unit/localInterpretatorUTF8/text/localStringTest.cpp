#include "localInterpretatorUTF8/text/localString.h"

#include <gmock/gmock.h>

#include <string>

#include "support/language.h"

namespace {

using namespace localString;

constexpr char16_t unreadable = 255;
constexpr unsigned char unwritable = 255;

std::string oneByte(unsigned byte) {
    return std::string(1, static_cast<char>(byte));
}

// What one unit must become, by the table of the code pages.
std::string wantedBytes(char16_t unit, possibleCodePage codePage) {
    const unsigned u = unit;
    const unsigned low = u & 0xFF;
    const bool isWide = codePage == codePageUtf8 || codePage == codePageNative;
    if (u < 128 || (u < 256 && codePage != codePageCP866)) {
        return oneByte(u);
    }
    if (u == 0x0401) {
        return isWide ? "\xD0\x81" : oneByte(168);
    }
    if (u == 0x0451) {
        return isWide ? "\xD1\x91" : oneByte(184);
    }
    if (u >= 0x0410 && u <= 0x043F) {
        return isWide                       ? "\xD0" + oneByte((low - 128) & 0xFF)
               : codePage == codePageCP1251 ? oneByte(u - 848)
                                            : oneByte(u - 912);
    }
    if (u >= 0x0440 && u <= 0x044F) {
        return isWide                       ? "\xD1" + oneByte((low + 64) & 0xFF)
               : codePage == codePageCP1251 ? oneByte(u - 848)
                                            : oneByte(u - 864);
    }
    return oneByte(unwritable);
}

// What one byte must become in an 8-bit code page.
char16_t wantedUnit(unsigned byte, possibleCodePage codePage) {
    if (byte < 128) {
        return static_cast<char16_t>(byte);
    }
    if (codePage == codePageCP1251) {
        return byte == 168   ? u'\u0401'
               : byte == 184 ? u'\u0451'
                             : static_cast<char16_t>(byte + 848);
    }
    if (byte == 240 || byte == 241) {
        return byte == 240 ? u'\u0401' : u'\u0451';
    }
    if (byte <= 175) {
        return static_cast<char16_t>(byte + 912);
    }
    return static_cast<char16_t>(byte >= 224 && byte <= 239 ? byte + 864 : byte);
}

class everyCodePage : public testing::TestWithParam<possibleCodePage> {};

TEST_P(everyCodePage, writesEveryUnitByItsTable) {
    for (unsigned u = 0; u <= 0xFFFF; ++u) {
        const auto unit = static_cast<char16_t>(u);
        ASSERT_EQ(toBytes({&unit, 1}, GetParam()), wantedBytes(unit, GetParam())) << "unit " << u;
    }
}

TEST_P(everyCodePage, writesATextUnitByUnit) {
    std::u16string text;
    std::string wanted;
    for (unsigned u = 1; u <= 0x0500; u += 7) {
        text += static_cast<char16_t>(u);
        wanted += wantedBytes(static_cast<char16_t>(u), GetParam());
    }
    EXPECT_EQ(toBytes(text, GetParam()), wanted);
    EXPECT_EQ(toBytes(u"", GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(localString, everyCodePage,
                         testing::Values(codePageNative, codePageCP1251, codePageCP866,
                                         codePageUtf8));

TEST(localString, eightBitPagesReadEveryByteByTheirTable) {
    for (const possibleCodePage codePage : {codePageCP1251, codePageCP866}) {
        for (unsigned byte = 0; byte < 256; ++byte) {
            ASSERT_EQ(fromBytes(oneByte(byte), codePage),
                      std::u16string(1, wantedUnit(byte, codePage)))
                << "code page " << codePage << " byte " << byte;
        }
    }
}

TEST(localString, utf8ReadsOneByteUnits) {
    for (unsigned byte = 0; byte < 256; ++byte) {
        const char16_t wanted = byte < 128 ? static_cast<char16_t>(byte) : unreadable;
        ASSERT_EQ(fromUtf8(oneByte(byte)), std::u16string(1, wanted)) << "byte " << byte;
    }
}

TEST(localString, utf8ReadsPairsThatBeginWithD0AndD1WhateverFollows) {
    for (int byte = 0; byte < 256; ++byte) {
        const int asSigned = byte < 128 ? byte : byte - 256;
        const std::string second = oneByte(static_cast<unsigned>(byte));
        ASSERT_EQ(fromUtf8("\xD0" + second),
                  std::u16string(1, static_cast<char16_t>(asSigned + 1152)))
            << "byte " << byte;
        ASSERT_EQ(fromUtf8("\xD1" + second),
                  std::u16string(1, static_cast<char16_t>(asSigned + 1216)))
            << "byte " << byte;
    }
}

TEST(localString, utf8ReadsOtherLeadBytesAsOneUnitEach) {
    EXPECT_EQ(fromUtf8("\xE2\x82\xAC"), std::u16string(3, unreadable));      // the euro
    EXPECT_EQ(fromUtf8("\xC3\x9F!"), std::u16string(2, unreadable) + u"!");  // the sharp s
}

TEST(localString, realTextsReadAndWrite) {
    struct Row {
        possibleCodePage codePage;
        std::string bytes;
    };
    const std::u16string text = u"Привет, Мир!";
    const Row rows[] = {
        {codePageCP1251, "\xCF\xF0\xE8\xE2\xE5\xF2, \xCC\xE8\xF0!"},
        {codePageCP866, "\x8F\xE0\xA8\xA2\xA5\xE2, \x8C\xA8\xE0!"},
        {codePageUtf8,
         "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82, \xD0\x9C\xD0\xB8\xD1\x80!"},
        {codePageNative,
         "\xD0\x9F\xD1\x80\xD0\xB8\xD0\xB2\xD0\xB5\xD1\x82, \xD0\x9C\xD0\xB8\xD1\x80!"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(toBytes(text, row.codePage), row.bytes) << "code page " << row.codePage;
        EXPECT_EQ(fromBytes(row.bytes, row.codePage), text) << "code page " << row.codePage;
    }
}

TEST(localString, russianTextsSurviveARoundTripButForTwoLettersInCP866) {
    const std::u16string letters =
        u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмнопрстуфхцчшщъыьэюя";
    for (const possibleCodePage codePage :
         {codePageNative, codePageCP1251, codePageCP866, codePageUtf8}) {
        EXPECT_EQ(fromBytes(toBytes(letters, codePage), codePage), letters);
    }
    EXPECT_EQ(fromBytes(toBytes(u"Ёё", codePageCP1251), codePageCP1251), u"Ёё");
    EXPECT_EQ(fromBytes(toBytes(u"Ёё", codePageUtf8), codePageUtf8), u"Ёё");
    EXPECT_EQ(fromBytes(toBytes(u"Ёё", codePageCP866), codePageCP866), u"\u0438\u00B8");
}

TEST(localString, aCodePageIsNamedByItsBeginning) {
    struct Row {
        std::u16string_view name;
        possibleCodePage codePage;
    };
    const Row rows[] = {
        {u"CP866", codePageCP866},      {u"cp866", codePageCP866},   {u"CP86", codePageCP866},
        {u" \t\ncp86 ", codePageCP866}, {u"CP1251", codePageCP1251}, {u"cp125", codePageCP1251},
        {u"CP12", codePageCP1251},      {u"CP1", codePageUtf8},      {u"CP8", codePageUtf8},
        {u"CP8666", codePageUtf8},      {u"CP12515", codePageUtf8},  {u"", codePageUtf8},
        {u"Utf8", codePageUtf8},        {u"utf-8", codePageUtf8},    {u"KOI8", codePageUtf8},
        {u"BASE64", codePageUtf8},      {u"CP 866", codePageUtf8},   {u"\rCP866", codePageUtf8},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(codePageFromName(row.name), row.codePage) << utf8(row.name);
    }
}

TEST(localString, base64FollowsTheStandardExamples) {
    const std::pair<std::string, std::u16string> rows[] = {
        {"", u""},
        {"f", u"Zg=="},
        {"fo", u"Zm8="},
        {"foo", u"Zm9v"},
        {"foob", u"Zm9vYg=="},
        {"fooba", u"Zm9vYmE="},
        {"foobar", u"Zm9vYmFy"},
        {"\xFB\xFF\xBF", u"+/+/"},
    };
    for (const auto& [bytes, text] : rows) {
        EXPECT_EQ(toBase64(bytes), text);
        EXPECT_EQ(fromBase64(text), bytes);
        EXPECT_EQ(fromBytes(bytes, codePageBase64), text);
        EXPECT_EQ(toBytes(text, codePageBase64), bytes);
    }
}

TEST(localString, base64CarriesEveryByte) {
    std::string bytes;
    for (unsigned byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
        EXPECT_EQ(fromBase64(toBase64(bytes)), bytes);
    }
}

TEST(localString, base64PassesOverOtherUnits) {
    EXPECT_EQ(fromBase64(u" Z m9\nvЖ\r\nYg = ="), "foob");
    EXPECT_EQ(fromBase64(u"Zm9vY"), "foo");  // a rest of fewer than 8 bits is no byte
}

}  // namespace
