#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>

#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localSxl/json/localSxlText.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

bool fileHolds(char16_t unit) {
    if (unit < 128) {
        return true;
    }
    char bytes[2];
    const std::size_t count = localString::toUtf8(unit, bytes);
    const std::u16string read = localString::fromUtf8({bytes, count});
    return read.size() == 1 && read.front() == unit;
}

// A text under construction that refuses to grow past the longest a value can hold.
class Writer {
public:
    bool sheet(const localSxlSheet& sheet) {
        put(u"{\n\"type\" : \"SXL\",\n\"cloumns\" : [],\n\"rows\" : [],\n\"cells\" : [");
        bool isFirst = true;
        for (const localSxlCell& cell : sheet.cells().all()) {
            put(isFirst ? u"" : u",");
            isFirst = false;
            this->cell(cell);
            if (isFull_) {
                return false;
            }
        }
        put(u"]\n}");
        return !isFull_;
    }

    localText takeText() { return std::move(text_); }

private:
    void cell(const localSxlCell& cell) {
        put(u"{\n\"rowNumber\" : ");
        number(cell.place.row);
        member(u"\"colNumber\" : ", cell.place.column);
        put(u",\n\"text\" : \"");
        heldByFile(jsonEscape(cell.text));
        put(u"\",\n\"details\" : \"");
        heldByFile(jsonEscape(cell.details));
        put(u"\"");
        if (cell.format != nullptr) {
            format(*cell.format);
        }
        if (cell.font != nullptr) {
            font(*cell.font);
        }
        put(u"}\n");
    }

    void format(const localSxlCellFormat& format) {
        member(u"\"colorBorder\":", format.colorBorder);
        member(u"\"colorFon\":", format.colorFon);
        member(u"\"colorPattern\":", format.colorPattern);
        member(u"\"colorText\":", format.colorText);
        member(u"\"alignmentH\":", format.alignmentH);
        member(u"\"alignmentV\":", format.alignmentV);
    }

    void font(const localSxlCellFont& font) {
        put(u",\n\"fontFamily\": \"");
        family(font.familyInText());
        put(u"\"");
        member(u"\"fontSize\":", font.sizeInText());
        const std::int32_t flags = font.flagsInText();
        flag(flags & localSxlCellFont::bold, u",\n\"fontBold\":1");
        flag(flags & localSxlCellFont::italic, u",\n\"fontItalic\":1");
        flag(flags & localSxlCellFont::strikeout, u",\n\"fontStrikeout\":1");
        flag(flags & localSxlCellFont::underline, u",\n\"fontUnderline\":1");
    }

    void flag(std::int32_t isSet, std::u16string_view text) {
        if (isSet != 0) {
            put(text);
        }
    }

    // A name stands as it is, brackets too, which would not come back from an escape; but for the
    // two letters that the text would end at.
    void family(std::u16string_view name) {
        for (std::size_t at = 0; (at = name.find_first_of(u"\"\\")) != name.npos;) {
            heldByFile(name.substr(0, at));
            put(u"\\");
            put(name.substr(at, 1));
            name.remove_prefix(at + 1);
        }
        heldByFile(name);
    }

    void member(std::u16string_view key, std::int64_t value) {
        put(u",\n");
        put(key);
        number(value);
    }

    void number(std::int64_t value) {
        char digits[24];
        const char* const end = std::to_chars(digits, std::end(digits), value).ptr;
        char16_t units[std::size(digits)];
        put({units, std::copy(static_cast<const char*>(digits), end, units)});
    }

    void heldByFile(std::u16string_view text) {
        std::size_t plain = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (!fileHolds(text[i])) {
                put(text.substr(plain, i - plain));
                fourDigits(text[i]);
                plain = i + 1;
            }
        }
        put(text.substr(plain));
    }

    void fourDigits(char16_t unit) {
        constexpr std::u16string_view digits = u"0123456789abcdef";
        const char16_t escape[] = {u'\\',
                                   u'u',
                                   digits[unit >> 12],
                                   digits[unit >> 8 & 15],
                                   digits[unit >> 4 & 15],
                                   digits[unit & 15]};
        put({escape, std::size(escape)});
    }

    void put(std::u16string_view piece) {
        if (piece.size() > localText::maxLength - text_.size()) {
            isFull_ = true;
        } else {
            text_.append(piece);
        }
    }

    localText text_;
    bool isFull_ = false;
};

void appendNumber(localValueList& list, std::u16string_view key, double value) {
    list.itemAppend(key).setVal(value);
}

// The item is there before its list, so that memory that runs out between leaves no list behind.
localValueList& appendList(localValueList& list, std::u16string_view key) {
    localValueDescription& value = list.itemAppend(key);
    auto* const made = new localValueList;
    value.objectBind(made, localValueList::classDeclaration());
    return *made;
}

}  // namespace

bool localSxlToJson(int& status, const localSxlSheet& sheet, localText& text) {
    Writer writer;
    if (!writer.sheet(sheet)) {
        traceLine(u"Слишком длинная строка!", "localSxlToJson");
        status = localErrorTypeCODE;
        return false;
    }
    text = writer.takeText();
    return true;
}

void localSxlToValueList(const localSxlSheet& sheet, localValueList& list) {
    constexpr localSxlCellFormat none = {0, 0, 0, 0, 0, 0, 0, 0};
    list.valueAppend(localText(u"SXL"), u"type");
    appendList(list, u"columns");
    appendList(list, u"rows");
    localValueList& cells = appendList(list, u"cells");
    std::size_t index = 0;
    for (const localSxlCell& cell : sheet.cells().all()) {
        localValueList& item =
            appendList(cells, u"cell [" + localString::fromUtf8(std::to_string(index++)) + u"]");
        const localSxlCellFormat& format = cell.format == nullptr ? none : *cell.format;
        appendNumber(item, u"rowNumber", cell.place.row);
        appendNumber(item, u"colNumber", cell.place.column);
        item.valueAppend(cell.text, u"text");
        item.valueAppend(cell.details, u"details");
        appendNumber(item, u"colorBorder", format.colorBorder);
        appendNumber(item, u"colorFon", format.colorFon);
        appendNumber(item, u"colorPattern", format.colorPattern);
        appendNumber(item, u"colorText", format.colorText);
        appendNumber(item, u"alignmentH", format.alignmentH);
        appendNumber(item, u"alignmentV", format.alignmentV);
        appendNumber(item, u"height", format.height);
        appendNumber(item, u"width", format.width);
    }
}
