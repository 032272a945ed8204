// Global functions on strings. Places are 1-based, lengths count code units.
#include <algorithm>
#include <string>

#include "library/localHandlers.h"
#include "library/localTextSearch.h"
#include "library/localWhole.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localHandlers {
namespace {

// The 1-based place of a part in a text at or behind a 0-based offset, 0 when it is not there.
double placeOfPart(std::u16string_view text, std::u16string_view part, std::size_t from) {
    const std::size_t found = localTextSearch(part).find(text, from);
    return found == localTextSearch::nowhere ? 0.0 : static_cast<double>(found + 1);
}

// A number of units to take from a text: none below 0, all of them where there are not so many.
std::size_t countWithin(double count, std::size_t length) {
    const std::int64_t whole = std::max<std::int64_t>(localWhole(count), 0);
    return static_cast<std::size_t>(
        std::min<std::uint64_t>(static_cast<std::uint64_t>(whole), length));
}

// Whether replacing would give a text longer than a value can hold. Occurrences are counted only
// where so many fit in the text that it could happen.
bool growsTooLong(std::u16string_view text, std::u16string_view part,
                  std::u16string_view replacement, std::int64_t limit,
                  const localTextSearch& search) {
    if (replacement.size() <= part.size()) {
        return false;
    }
    const std::size_t growth = replacement.size() - part.size();
    const std::size_t room = (localText::maxLength - text.size()) / growth;
    const bool isLimited = limit != 0 && static_cast<std::uint64_t>(limit) <= room;
    if (isLimited || text.size() / part.size() <= room) {
        return false;
    }
    std::size_t at = 0;
    for (std::size_t hits = 0; hits <= room; ++hits, at += part.size()) {
        at = search.find(text, at);
        if (at == localTextSearch::nowhere) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool chr(localCall& call) {
    const auto unit = static_cast<char16_t>(localWhole(call.number(0)) & 0xFFFF);
    return call.give(std::u16string_view(&unit, 1));
}

bool findFromOffset(localCall& call) {
    const std::u16string_view text = call.text(0);
    const std::int64_t offset = call.args.size() > 2 ? localWhole(call.number(2)) : 0;
    const auto from = static_cast<std::uint64_t>(std::max<std::int64_t>(offset, 0));
    return call.give(from >= text.size() ? 0.0 : placeOfPart(text, call.text(1), from));
}

bool formatValue(localCall& call) {
    const localValueDescription& value = *call.args[0];
    if (value.type == localValueTypeNUMBER) {
        return call.give(numberFormat(value.num, call.text(1)));
    }
    if (value.type == localValueTypeSTRING && call.text(1) == u"JSON") {
        return call.give(jsonEscape(value.wStr));
    }
    return call.give(value.toString());
}

bool stringOf(localCall& call) {
    return call.give(call.args[0]->toString());
}

bool stringLen(localCall& call) {
    return call.give(static_cast<double>(call.text(0).size()));
}

bool stringPartFind(localCall& call) {
    const std::u16string_view text = call.text(0);
    const std::int64_t start = call.args.size() > 2 ? localWhole(call.number(2)) : 1;
    if (start < 0) {
        return call.fail(localErrorTypePARAMETERVALUE);
    }
    const auto from = static_cast<std::uint64_t>(std::max<std::int64_t>(start, 1) - 1);
    if (from > text.size()) {
        return call.fail(localErrorTypeOUTOFRANGE);
    }
    return call.give(placeOfPart(text, call.text(1), from));
}

bool stringPartLeft(localCall& call) {
    const std::u16string_view text = call.text(0);
    return call.give(text.substr(0, countWithin(call.number(1), text.size())));
}

bool stringPartRight(localCall& call) {
    const std::u16string_view text = call.text(0);
    return call.give(text.substr(text.size() - countWithin(call.number(1), text.size())));
}

bool stringPartReplace(localCall& call) {
    const std::u16string_view text = call.text(0);
    const std::u16string_view part = call.text(1);
    const std::u16string_view replacement = call.text(2);
    const std::int64_t limit = call.args.size() > 3 ? localWhole(call.number(3)) : 0;
    if (part.empty() || limit < 0) {
        return call.fail(localErrorTypePARAMETERVALUE);
    }
    const localTextSearch search(part);
    if (growsTooLong(text, part, replacement, limit, search)) {
        traceLine(u"Слишком длинная строка!", "STRINGPARTREPLACE");
        return call.fail(localErrorTypeCODE);
    }
    localText result;
    std::size_t position = 0;
    std::int64_t replaced = 0;
    do {
        const std::size_t hit = search.find(text, position);
        if (hit == localTextSearch::nowhere) {
            break;
        }
        result.append(text.substr(position, hit - position));
        result.append(replacement);
        position = hit + part.size();
        ++replaced;
    } while (limit == 0 || replaced < limit);
    if (replaced == 0) {
        return call.give(call.args[0]->wStr);
    }
    result.append(text.substr(position));
    return call.give(std::move(result));
}

bool stringToUpper(localCall& call) {
    return call.give(toUpper(call.text(0)));
}

bool stringTrimAll(localCall& call) {
    return call.give(trimBoth(call.text(0)));
}

bool stringTrimL(localCall& call) {
    return call.give(trimLeft(call.text(0)));
}

bool stringTrimR(localCall& call) {
    return call.give(trimRight(call.text(0)));
}

}  // namespace localHandlers
