#include <span>
#include <utility>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localClassDeclaration.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "localSxl/json/localSxlText.h"
#include "localSxl/sheet/localSxlNumber.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

using localInterpretatorUTF8::localPosition;

struct FormatMember {
    std::u16string_view key;
    std::int32_t localSxlCellFormat::*field;
};
constexpr FormatMember formatMembers[] = {
    {u"alignmentH", &localSxlCellFormat::alignmentH},
    {u"alignmentV", &localSxlCellFormat::alignmentV},
    {u"colorBorder", &localSxlCellFormat::colorBorder},
    {u"colorFon", &localSxlCellFormat::colorFon},
    {u"colorPattern", &localSxlCellFormat::colorPattern},
    {u"colorText", &localSxlCellFormat::colorText},
};

struct FlagMember {
    std::u16string_view key;
    std::int32_t flag;
};
constexpr FlagMember flagMembers[] = {
    {u"fontBold", localSxlCellFont::bold},
    {u"fontItalic", localSxlCellFont::italic},
    {u"fontStrikeout", localSxlCellFont::strikeout},
    {u"fontUnderline", localSxlCellFont::underline},
};

template <class Member>
const Member* memberOf(std::span<const Member> members, std::u16string_view key) {
    for (const Member& member : members) {
        if (member.key == key) {
            return &member;
        }
    }
    return nullptr;
}

class CellReader {
public:
    localSxlCell read(const localValueList& list) {
        for (const localValueListItem& item : list.items()) {
            member(item.presentation, item.value);
        }
        if (hasFont_) {
            cell_.font = std::make_unique<localSxlCellFont>();
            cell_.font->set(std::move(family_), size_, flags_);
        }
        return std::move(cell_);
    }

private:
    // Details and sizes are not read. Meant.
    void member(std::u16string_view key, const localValueDescription& value) {
        if (key == u"text") {
            cell_.text = value.toString();
        } else if (key == u"rowNumber") {
            cell_.place.row = localSxlPosition(value.toNumber());
        } else if (key == u"colNumber") {
            cell_.place.column = localSxlPosition(value.toNumber());
        } else if (key == u"fontFamily") {
            hasFont_ = true;
            family_ = value.toString();
        } else if (key == u"fontSize") {
            hasFont_ = true;
            size_ = localSxlInteger(value.toNumber());
        } else if (const FlagMember* const flag = memberOf<FlagMember>(flagMembers, key)) {
            hasFont_ = true;
            flags_ |= value.toNumber() > 0.0 ? flag->flag : 0;
        } else if (const FormatMember* const format = memberOf<FormatMember>(formatMembers, key)) {
            if (cell_.format == nullptr) {
                cell_.format = std::make_unique<localSxlCellFormat>();
            }
            *cell_.format.*format->field = localSxlInteger(value.toNumber());
        }
    }

    localSxlCell cell_;
    bool hasFont_ = false;
    localText family_;
    std::int32_t size_ = 0;
    std::int32_t flags_ = 0;
};

// A JSON text that is one value and no object or array: a string, a number, a word.
bool isSingleValue(const std::u16string& text) {
    localPosition pos = 0;
    localInterpretatorUTF8::scanStringSkipBlanks(text, pos);
    if (pos >= text.size()) {
        return false;
    }
    const char16_t first = text[pos];
    if (first == u'"') {
        ++pos;
        static_cast<void>(localInterpretatorUTF8::scanStringGetJsonStringToken(text, pos));
        if (pos >= text.size()) {
            return false;
        }
        ++pos;
    } else if (first == u'-' || (first >= u'0' && first <= u'9')) {
        int status = localErrorTypeOK;
        localSlot number;
        if (!localInterpretatorUTF8::scanStringGetNumberTokenAndEvaluete(status, text, pos,
                                                                         number.asResult())) {
            return false;
        }
    } else {
        const auto word = localInterpretatorUTF8::scanStringGetNameToken(text, pos);
        if (word != u"true" && word != u"false" && word != u"null") {
            return false;
        }
    }
    localInterpretatorUTF8::scanStringSkipBlanks(text, pos);
    return pos >= text.size();
}

bool refuse(localLinePieces why) {
    writeLine(why);
    return false;
}

bool refuseNoObject() {
    return refuse({u"Парсинг ERROR! Результат - не объект "});
}

}  // namespace

bool localSxlFromValue(localSxlSheet& sheet, const localValueDescription& value) {
    if (value.type != localValueTypeOBJECT) {
        return refuseNoObject();
    }
    if (value.pointer == nullptr) {
        return refuse({u"Парсинг ERROR! Cсылка на объект битая "});
    }
    const localValueList* const list = localValueList::of(value);
    if (list == nullptr) {
        const bool hasName = value.objClass != nullptr && !value.objClass->nameRus.empty();
        return refuse({u"Парсинг ERROR! Результат не ValueList. Это [",
                       hasName ? std::u16string_view(value.objClass->nameRus) : u"<unknown class>",
                       u"] "});
    }
    localSxlCells read;
    const localValueDescription* const found = list->valueByPresentation(u"cells");
    const localValueList* const cells = found == nullptr ? nullptr : localValueList::of(*found);
    if (cells != nullptr) {
        for (const localValueListItem& item : cells->items()) {
            if (const localValueList* const members = localValueList::of(item.value)) {
                read.append(CellReader().read(*members));
            }
        }
    }
    sheet.cellsReplace(read);
    return true;
}

bool localSxlFromJson(localSxlSheet& sheet, const std::u16string& text) {
    if (isSingleValue(text)) {
        return refuseNoObject();
    }
    int status = localErrorTypeOK;
    localPosition pos = 0;
    localSlot value;
    if (!localInterpretatorUTF8::scanStringParseJson(status, text, pos, value.asResult())) {
        return refuse({u"Парсинг ERROR!"});
    }
    return localSxlFromValue(sheet, *value);
}

bool localSxlLoad(localSxlSheet& sheet, std::u16string_view fileName) {
    int status = localErrorTypeOK;
    std::u16string text;
    if (!loadFileToText(status, fileName, text, u"Utf8")) {
        return refuse({statusMessage(status)});
    }
    return localSxlFromJson(sheet, text) || refuse({u"Error load TABLEDOCUMENT!"});
}
