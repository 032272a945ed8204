#include "localInterpretatorUTF8/text/localNumberText.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "support/language.h"

namespace {

std::string printed(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.20g", value);
    return text;
}

TEST(numberToString, examples) {
    const std::pair<double, std::string> rows[] = {
        {0, "0"},
        {1, "1"},
        {-1, "-1"},
        {0.5, "0.5"},
        {0.1, "0.10000000000000000555"},
        {-0.0, "-0"},
        {1e19, "10000000000000000000"},
        {1e20, "1e+20"},
        {-1e20, "-1e+20"},
        {1e-4, "0.00010000000000000000479"},
        {1e-5, "1.0000000000000000818e-05"},
        {123456789.25, "123456789.25"},
        {999999999999999, "999999999999999"},
        {1e15, "1000000000000000"},
        {9007199254740993.0, "9007199254740992"},
        {std::numeric_limits<double>::infinity(), "inf"},
        {-std::numeric_limits<double>::infinity(), "-inf"},
        {std::numeric_limits<double>::max(), "1.7976931348623157081e+308"},
    };
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(utf8(numberToString(value)), text);
    }
}

TEST(numberToString, isThePrintfFormOfEveryDouble) {
    std::mt19937_64 random(20);
    std::uniform_real_distribution<double> digits(-1, 1);
    std::uniform_int_distribution<int> exponent(-300, 300);
    std::uniform_int_distribution<std::int64_t> whole(-2'000'000'000'000'000,
                                                      2'000'000'000'000'000);
    for (int i = 0; i < 20000; ++i) {
        for (const double value :
             {digits(random) * std::pow(10.0, exponent(random)), static_cast<double>(whole(random)),
              static_cast<double>(whole(random)) / 1024}) {
            ASSERT_EQ(utf8(numberToString(value)), printed(value));
        }
    }
}

TEST(numberFromText, readsWhatTheTextBeginsWith) {
    const std::pair<std::u16string_view, double> rows[] = {
        {u"", 0},      {u"abc", 0},   {u"12", 12},  {u"12abc", 12}, {u"-1.5x", -1.5}, {u" 7", 7},
        {u"\n\t7", 7}, {u"+3", 3},    {u".5", 0.5}, {u"5.", 5},     {u"1e3", 1000},   {u"1,5", 1},
        {u"Ж1", 0},    {u"0x10", 16}, {u"--1", 0},  {u"1 2", 1},
    };
    for (const auto& [text, number] : rows) {
        EXPECT_EQ(numberFromText(text), number) << utf8(text);
    }
}

TEST(numberFormat, examples) {
    struct Row {
        double value;
        std::u16string_view format;
        std::string text;
    };
    const std::string error = "#FORMAT ERROR";
    const Row rows[] = {
        {1234.5, u"", "1234.5"},
        {0.1, u"", "0.10000000000000000555"},
        {1234.5, u"Ч10.2", "   1234.50"},
        {1234.5, u"N10.2", "   1234.50"},
        {-5, u"Ч(0)5", "-0005"},
        {-5, u"Ч5", "   -5"},
        {5, u"Ч(0)5", "00005"},
        {1234567, u"Ч25.0.,", "                1,234,567"},
        {123, u"Ч10.0.,", "       123"},
        {1234567.5, u"Ч15.2,'", "   1'234'567,50"},
        {-1234567.5, u"Ч15.2,'", "  -1'234'567,50"},
        {-1234567.5, u"Ч(0)15.2,'", "-001'234'567,50"},
        {2.7, u"Ч5", "    2"},
        {-2.7, u"Ч5", "   -2"},
        {-0.5, u"Ч5", "   -0"},
        {-0.5, u"Ч5.1", " -0.5"},
        {0.999, u"Ч5.2", " 1.00"},
        {9.999, u"Ч5.2", "10.00"},
        {-9.999, u"Ч6.2", "-10.00"},
        {0.05, u"Ч6.2", "  0.05"},
        {0.005, u"Ч6.2", "  0.01"},
        // Overflow: nines, a point among them, no sign, no decimal mark of the format.
        {999.999, u"Ч5.2", "999.9"},
        {999.999, u"Ч5.2,", "999.9"},
        {123456, u"Ч5", "99999"},
        {-123456, u"Ч5", "99999"},
        {-123456, u"Ч5.2", "999.9"},
        {123456, u"Ч7.4", "999.999"},
        {1e300, u"Ч12", "999999999999"},
        {-1e300, u"Ч12", "999999999999"},
        {std::numeric_limits<double>::infinity(), u"Ч4", "9999"},
        // A number beyond 64 bits fits no field.
        {9223372036854774784.0, u"Ч19", "9223372036854774784"},
        {-9223372036854774784.0, u"Ч20", "-9223372036854774784"},
        {9223372036854775808.0, u"Ч20", "99999999999999999999"},
        {-1e30, u"Ч40.2", std::string(38, '9') + ".9"},
        {std::numeric_limits<double>::infinity(), u"Ч25.2", std::string(23, '9') + ".9"},
        // More decimals than 64 bits hold.
        {0.5, u"Ч21.19", "0.5000000000000000000"},
        {-0.5, u"Ч30.25", "  -0.5000000000000000000000000"},
        {0.1, u"Ч24.22", "0.1000000000000000000000"},
        {0.1, u"Ч27.25", "0.1000000000000000055511151"},
        {1.25, u"Ч310.308", "1.25" + std::string(306, '0')},
        {7.5, u"Ч402.400", "7.5" + std::string(399, '0')},
        // A mark that is a blank, or a decimal mark without decimals.
        {1.5, u"Ч5.1 ", "  1.5"},
        {1.5, u"Ч5.1 ,", "  1.5"},
        {1234.5, u"Ч8.1 ,", " 1,234.5"},
        {12, u"Ч5,", "   12"},
        {12, u"Ч5.", "   12"},
        {12345, u"Ч7,.", " 12.345"},
        // Faults.
        {5, u"X5", error},
        {5, u"n5", error},
        {5, u"ч5", error},
        {5, u"N", error},
        {5, u"Ч(", error},
        {5, u"Ч(0", error},
        {5, u"Ч(0)", error},
        {5, u"Ч(1)5", error},
        {5, u"Ч(05", error},
        {-5, u"Ч1", error},
        {5, u"Ч5.2..", error},
        {5, u"Ч5.2,,", error},
        {5, u"Ч5.5", error},
        {5, u"Ч5.4", "9.999"},
        {-5, u"Ч5.4", error},
        {5, u"Ч5.2, ", error},
        {5, u"Ч5.2,5", error},
        {5, u"Ч5.2,'x", error},
        {5, u" Ч5", error},
        {1234567, u"Ч7.0.,", error},  // the grouped text is longer than the field
        {5, u"Ч99999999999999999999", error},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(utf8(numberFormat(row.value, row.format)), row.text)
            << row.value << " by " << utf8(row.format);
    }
}

// The parts of a format, put together by the walk below and told again here in figures.
struct formatParts {
    int width;
    int decimals;
    char16_t decimalMark;
    char16_t groupMark;  // a blank stands for no grouping
    bool zeroPad;
};

// The words of the format language, followed step by step on ordinary strings.
std::string modelOfFormat(double x, const formatParts& parts) {
    const bool negative = x < 0;
    const int width = parts.width - (negative ? 1 : 0);
    const int decimals = parts.decimals;
    if (width == 0 || parts.decimalMark == parts.groupMark || decimals > width - 1) {
        return "#FORMAT ERROR";
    }
    static const double scales[] = {1, 10, 100, 1000, 10000};
    const auto whole = static_cast<long long>(x);
    const auto rest =
        static_cast<long long>(std::round((x - static_cast<double>(whole)) * scales[decimals]));
    long long wholeUp = negative ? -whole : whole;
    std::string fraction;
    if (decimals != 0) {
        const std::string restText = std::to_string(negative ? -rest : rest);
        const std::string padded = "0000" + restText;
        fraction = padded.substr(padded.size() - static_cast<std::size_t>(decimals));
        wholeUp += restText.size() > static_cast<std::size_t>(decimals) ? 1 : 0;
    }
    std::string digits = std::to_string(wholeUp);
    const int field = decimals == 0 ? width : width - 1 - decimals;
    if (static_cast<int>(digits.size()) > field) {
        std::string nines(static_cast<std::size_t>(parts.width), '9');
        if (decimals != 0) {
            nines.replace(nines.size() - static_cast<std::size_t>(decimals), 1, ".");
        }
        return nines;
    }
    if (parts.groupMark != u' ') {
        for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3) {
            digits.insert(static_cast<std::size_t>(at), 1, static_cast<char>(parts.groupMark));
        }
    }
    if (static_cast<int>(digits.size()) > field) {
        return "#FORMAT ERROR";
    }
    while (static_cast<int>(digits.size()) < field && parts.zeroPad) {
        digits.insert(0, "0");
    }
    if (negative) {
        digits.insert(0, "-");
    }
    const std::size_t full = static_cast<std::size_t>(field) + (negative ? 1U : 0U);
    digits.insert(0, full - digits.size(), ' ');
    return decimals == 0 ? digits : digits + static_cast<char>(parts.decimalMark) + fraction;
}

std::u16string formatOf(const formatParts& parts, bool latinLetter, bool namesDecimalMark) {
    std::u16string format = latinLetter ? u"N" : u"Ч";
    if (parts.zeroPad) {
        format += u"(0)";
    }
    format += wide(std::to_string(parts.width));
    if (parts.decimals != 0 || namesDecimalMark) {
        format += u"." + wide(std::to_string(parts.decimals));
    }
    if (namesDecimalMark) {
        format += parts.decimalMark;
        if (parts.groupMark != u' ') {
            format += parts.groupMark;
        }
    }
    return format;
}

TEST(numberFormat, followsTheModelForEveryCombinationOfParts) {
    const double values[] = {0,      1,         9,          10,       99,        123,
                             1234,   12345,     1234567,    99999999, 123456789, 999999999999.0,
                             0.5,    0.05,      0.04999,    0.999,    0.9995,    1.005,
                             2.7,    9.5,       9.95,       9.99949,  99.5,      999.999,
                             1234.5, 1234.5678, 12345.6789, 0.00004,  0.00005,   3.14159265358979,
                             1e15,   1e17};
    struct Marks {
        char16_t decimal, group;
        bool named;
    };
    const Marks marks[] = {{u'.', u' ', false}, {u'.', u' ', true},  {u',', u' ', true},
                           {u'.', u',', true},  {u',', u'\'', true}, {u'-', u'_', true},
                           {u'.', u'.', true},  {u',', u',', true}};
    int walked = 0;
    for (int width = 1; width <= 12; ++width) {
        for (int decimals = 0; decimals <= 4; ++decimals) {
            for (const Marks& mark : marks) {
                for (const bool zeroPad : {false, true}) {
                    const formatParts parts{width, decimals, mark.decimal, mark.group, zeroPad};
                    const std::u16string format = formatOf(parts, walked % 2 == 0, mark.named);
                    for (const double size : values) {
                        for (const double value : {size, -size}) {
                            const std::string text = utf8(numberFormat(value, format));
                            ASSERT_EQ(text, modelOfFormat(value, parts))
                                << value << " by " << utf8(format);
                            // Whatever it holds, the field has the width that was asked for.
                            ASSERT_TRUE(text == "#FORMAT ERROR" ||
                                        text.size() == static_cast<std::size_t>(width))
                                << value << " by " << utf8(format) << " gives [" << text << "]";
                            ++walked;
                        }
                    }
                }
            }
        }
    }
    EXPECT_EQ(walked, 12 * 5 * 8 * 2 * 32 * 2);
}

TEST(numberFormat, aNumberThatIsNoneDoesNotHarm) {
    EXPECT_EQ(utf8(numberFormat(std::nan(""), u"Ч5")), "    0");
}

}  // namespace
