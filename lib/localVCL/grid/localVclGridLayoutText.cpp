#include "grid/localVclGridLayoutText.h"

#include <algorithm>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/status/localStatus.h"

namespace {

// With the escapes that JSON asks for and no others, so that every text comes back as it was.
std::u16string quoted(std::u16string_view text) {
    static constexpr std::u16string_view digits = u"0123456789abcdef";
    std::u16string result = u"\"";
    for (const char16_t unit : text) {
        if (unit == u'"' || unit == u'\\') {
            result += u'\\';
            result += unit;
        } else if (unit < u' ') {
            result += u"\\u00";
            result += digits[unit >> 4U];
            result += digits[unit & 15U];
        } else {
            result += unit;
        }
    }
    return result + u'"';
}

// Lists in it stand on lines of their own, what holds no list on one line.
void write(std::u16string& text, const localValueDescription& value, std::size_t depth) {
    const localValueList* const list = localValueList::of(value);
    if (list == nullptr) {
        const localText shown = value.toString();
        text += value.type == localValueTypeNUMBER ? shown.string() : quoted(shown);
        return;
    }
    const auto& items = list->items();
    const bool isObject = !items.empty() && !items.front().presentation.empty();
    const bool hasLists = std::ranges::any_of(items, [](const localValueListItem& item) {
        return localValueList::of(item.value) != nullptr;
    });
    const auto lineEnd = [&](std::size_t indent) {
        if (hasLists) {
            text += u'\n' + std::u16string(indent * 2, u' ');
        }
    };
    text += isObject ? u'{' : u'[';
    for (std::size_t i = 0; i < items.size(); ++i) {
        text += i == 0 ? u"" : hasLists ? u"," : u", ";
        lineEnd(depth + 1);
        if (isObject) {
            text += quoted(items[i].presentation) + u": ";
        }
        write(text, items[i].value, depth + 1);
    }
    lineEnd(depth);
    text += isObject ? u'}' : u']';
}

}  // namespace

std::u16string localVclGridLayoutText(const localValueList& layout) {
    localValueDescription value;
    value.objectBind(const_cast<localValueList*>(&layout), localValueList::classDeclaration());
    std::u16string text;
    write(text, value, 0);
    return text;
}

localValueDescription localVclGridLayoutRead(const std::u16string& text) {
    int status = localErrorTypeOK;
    localInterpretatorUTF8::localPosition position = 0;
    localSlot read;
    localValueDescription layout;
    if (!localInterpretatorUTF8::scanStringParseJson(status, text, position, read.asResult())) {
        return layout;
    }
    layout.assign(*read);
    const localValueList& list = *localValueList::of(layout);
    localSlot restored;
    if (list.positionOf(u"grid") == 0 &&
        fromJsonValueList(status, localContextUTF8::globalContext, list, restored.asResult())) {
        layout.assign(*restored);
    }
    return layout;
}
