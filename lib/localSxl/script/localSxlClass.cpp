// The class TABLEDOCUMENT.
#include <QByteArray>
#include <QStringView>

#include <optional>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localPicture/color/localColorTable.h"
#include "localSxl/json/localSxlText.h"
#include "localSxl/script/localSxlExtension.h"
#include "localSxl/sheet/localSxlNumber.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

localSxlSheet& sheetOf(const localCall& call) {
    return *static_cast<localSxlSheet*>(call.object);
}

// The row or column of an argument; status 7 for one below 1 or beyond 32 bits.
bool positionRead(localCall& call, std::size_t argument, std::uint32_t& position) {
    position = localSxlPosition(call.number(argument));
    return position != 0 || call.fail(localErrorTypeOUTOFRANGE);
}

// The place that the first two arguments give.
bool placeRead(localCall& call, localSxlPlace& place) {
    return positionRead(call, 0, place.row) && positionRead(call, 1, place.column);
}

std::int32_t integerOr(const localCall& call, std::size_t argument, std::int32_t missing) {
    return argument < call.args.size() ? localSxlInteger(call.number(argument)) : missing;
}

bool toStringMethod(localCall& call) {
    return call.give(sheetOf(call).toStringSheet());
}

bool cellAlignmentSet(localCall& call) {
    localSxlPlace place;
    if (!placeRead(call, place)) {
        return false;
    }
    sheetOf(call).cellAlignmentSet(place, integerOr(call, 2, localSxlUnchanged),
                                   integerOr(call, 3, localSxlUnchanged));
    return call.done();
}

bool isColor(const localValueDescription& value) {
    return value.type == localValueTypeNUMBER || value.type == localValueTypeSTRING;
}

std::int32_t colorOr(const localCall& call, std::size_t argument, std::int32_t missing) {
    if (argument < call.args.size() && call.args[argument]->type == localValueTypeSTRING) {
        return static_cast<std::int32_t>(localColorTable::rgbFind(call.text(argument)));
    }
    return integerOr(call, argument, missing);
}

bool cellColorSet(localCall& call) {
    for (std::size_t i = 2; i < call.args.size(); ++i) {
        if (!isColor(*call.args[i])) {
            return call.fail(localErrorTypePARAMETERTYPE);
        }
    }
    localSxlPlace place;
    if (!placeRead(call, place)) {
        return false;
    }
    sheetOf(call).cellColorSet(place, {.border = colorOr(call, 2, localSxlUnchanged),
                                       .background = colorOr(call, 3, localSxlUnchanged),
                                       .pattern = colorOr(call, 4, localSxlUnchanged),
                                       .text = colorOr(call, 5, localSxlUnchanged)});
    return call.done();
}

bool cellFontSet(localCall& call) {
    localSxlPlace place;
    if (!placeRead(call, place)) {
        return false;
    }
    const std::int32_t size = integerOr(call, 3, localSxlUnchanged);
    const std::int32_t flags = integerOr(call, 4, localSxlUnchanged);
    if (size < localSxlUnchanged || flags < localSxlUnchanged) {
        return call.fail(localErrorTypePARAMETERVALUE);
    }
    sheetOf(call).cellFontSet(place, call.args[2]->wStr, size, flags);
    return call.done();
}

QImage imageOf(std::u16string_view base64) {
    if (base64.empty()) {
        return {};
    }
    return QImage::fromData(QByteArray::fromBase64(QStringView(base64).toLatin1()));
}

// A text that is no picture leaves the cell without one.
bool cellPixmapAsBase64Set(localCall& call) {
    localSxlPlace place;
    if (!placeRead(call, place)) {
        return false;
    }
    sheetOf(call).cellImageSet(place, imageOf(call.text(2)));
    return call.done();
}

bool cellTextGet(localCall& call) {
    localSxlPlace place;
    return placeRead(call, place) && call.give(sheetOf(call).cellText(place));
}

bool cellTextSet(localCall& call) {
    localSxlPlace place;
    if (!placeRead(call, place)) {
        return false;
    }
    sheetOf(call).cellTextSet(place, call.args[2]->wStr);
    return call.done();
}

bool clear(localCall& call) {
    sheetOf(call).clear();
    return call.done();
}

bool columnWidthGet(localCall& call) {
    std::uint32_t column = 0;
    return positionRead(call, 0, column) && call.give(sheetOf(call).columnWidth(column));
}

bool columnWidthSet(localCall& call) {
    std::uint32_t column = 0;
    if (!positionRead(call, 0, column)) {
        return false;
    }
    sheetOf(call).columnWidthSet(column, localSxlInteger(call.number(1)));
    return call.done();
}

bool rowHeightGet(localCall& call) {
    std::uint32_t row = 0;
    return positionRead(call, 0, row) && call.give(sheetOf(call).rowHeight(row));
}

// The row is not looked at: all rows without a height of their own change. Meant.
bool rowHeightSet(localCall& call) {
    sheetOf(call).defaultRowHeightSet(localSxlInteger(call.number(1)));
    return call.done();
}

bool fromJson(localCall& call) {
    return call.giveBoolean(localSxlFromJson(sheetOf(call), call.args[0]->wStr.string()));
}

bool load(localCall& call) {
    return call.giveBoolean(localSxlLoad(sheetOf(call), call.text(0)));
}

bool save(localCall& call) {
    const bool saved = sheetOf(call).save(call.status, call.text(0));
    call.giveBoolean(saved);
    return call.status == localErrorTypeOK;
}

bool toJson(localCall& call) {
    localText text;
    return localSxlToJson(call.status, sheetOf(call), text) && call.give(std::move(text));
}

bool toValueList(localCall& call) {
    auto* const list = new localValueList;
    call.result.objectBind(list, localValueList::classDeclaration());
    localSxlToValueList(sheetOf(call), *list);
    return true;
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"СТРОКА", "", toStringMethod},
    {u"CELLALIGMENTSET", u"ЯЧЕЙКАВЫРАВНИВАНИЕУСТАНОВИТЬ", "nnn|n", cellAlignmentSet},
    {u"CELLCOLORSET", u"ЯЧЕЙКАЦВЕТУСТАНОВИТЬ", "nnv|vvv", cellColorSet},
    {u"CELLFONTSET", u"ЯЧЕЙКАШРИФТУСТАНОВИТЬ", "nns|nn", cellFontSet},
    {u"CELLPIXMAPASBASE64SET", u"", "nns", cellPixmapAsBase64Set},
    {u"CELLTEXTGET", u"ЯЧЕЙКАТЕКСТПОЛУЧИТЬ", "nn", cellTextGet},
    {u"CELLTEXTSET", u"ЯЧЕЙКАТЕКСТУСТАНОВИТЬ", "nns", cellTextSet},
    {u"CLEAR", u"ОЧИСТИТЬ", "", clear},
    {u"COLUMNWIDTHGET", u"КОЛОНКАШИРИНАПОЛУЧИТЬ", "n", columnWidthGet},
    {u"COLUMNWIDTHSET", u"КОЛОНКАШИРИНАУСТАНОВИТЬ", "nn", columnWidthSet},
    {u"FROMJSON", u"", "s", fromJson},
    {u"LOAD", u"ЗАГРУЗИТЬ", "s", load},
    {u"ROWHEIGHTGET", u"РЯДВЫСОТАПОЛУЧИТЬ", "n", rowHeightGet},
    {u"ROWHEIGHTSET", u"РЯДВЫСОТАУСТАНОВИТЬ", "nn", rowHeightSet},
    {u"SAVE", u"ЗАПИСАТЬ", "s", save},
    {u"SHOW", u"ПОКАЗАТЬ", "|ssb", localBroughtFromAbove},
    {u"TOJSON", u"", "", toJson},
    {u"TOVALUELIST", u"", "", toValueList},
};

constexpr localClassTable table = {
    .nameEng = u"TABLEDOCUMENT",
    .nameRus = u"ТАБЛИЧНЫЙДОКУМЕНТ",
    .description = u"класс Табличный документ",
    .nativeName = u"localSxl",
    .native = localNativeOf<localSxlSheet>(),
    .methods = methods,
    .attributes = {},
    .classWideMethods = true,
};

localClassDeclarations declarations() {
    static localClassDeclaration* const all[] = {localSxlSheet::classDeclaration()};
    return all;
}

constexpr localExtensionClass startClasses[] = {{u"TABLEDOCUMENT", declarations}};

}  // namespace

localClassDeclaration* localSxlSheet::classDeclaration() {
    static localClassDeclaration* const declaration = [] {
        localClassDeclaration* const made = localTableClass<table>();
        made->nameShort = u"Табличный документ";
        return made;
    }();
    return declaration;
}

constexpr localExtension localSxlExtension = {.name = u"localSxl", .startClasses = startClasses};
