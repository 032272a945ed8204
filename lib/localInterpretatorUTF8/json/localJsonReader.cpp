#include "localInterpretatorUTF8/json/localJsonReader.h"

#include <array>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "scanner/localCursor.h"
#include "json/localJsonText.h"

namespace localInterpretatorUTF8 {
namespace {

constexpr std::string_view functionName = "scanStringParseJson";

// The keys read last. Objects of one kind repeat theirs, and equal keys then share one text.
class KeyStore {
public:
    localText keyOf(std::u16string_view name) {
        localText& key = keys_[nameHash(name) % keys_.size()];
        if (key.view() != name) {
            key = name;
        }
        return key;
    }

private:
    std::array<localText, 64> keys_;
};

class Reader {
public:
    Reader(int& status, const std::u16string& text, localPosition pos)
        : cursor(text, pos), text_(text), status_(status) {}

    // Gives the outermost list, on failure as far as it was read.
    bool read(localValueDescription& result) {
        cursor.skipBlanks();
        levels_.push_back(emptyLevel());
        Step step = atBracket() ? open() : placeFault();
        while (step == Step::element || step == Step::behindElement) {
            step = step == Step::element ? element() : behindElement();
        }
        result.take(levels_.front().list);
        return step == Step::done;
    }

    localCursor cursor;

private:
    // A list under construction, and the key that it will have in the one around it.
    struct Level {
        localValueDescription list;
        localValueList* items;
        localText key;
        char16_t closing;
    };

    // What comes next in the innermost list.
    enum class Step { element, behindElement, done, failed };

    static Level emptyLevel() {
        Level level{{}, new localValueList, {}, u']'};
        level.list.objectBind(level.items, localValueList::classDeclaration());
        return level;
    }

    bool atBracket() const { return !cursor.atEnd() && (*cursor.at == u'{' || *cursor.at == u'['); }

    // Passes the opening bracket of the innermost list. "{}", "[]" and a "[" at the end of the text
    // are whole lists.
    Step open() {
        Level& level = levels_.back();
        level.closing = *cursor.at == u'{' ? u'}' : u']';
        ++cursor.at;
        cursor.skipBlanks();
        if (cursor.atEnd()) {
            return level.closing == u']' ? close() : Step::element;
        }
        if (*cursor.at != level.closing) {
            return Step::element;
        }
        ++cursor.at;
        return close();
    }

    // The innermost list is whole and becomes an element of the one around it.
    Step close() {
        if (levels_.size() == 1) {
            return Step::done;
        }
        Level inner = std::move(levels_.back());
        levels_.pop_back();
        levels_.back().items->itemAppend(std::move(inner.key)).take(inner.list);
        return Step::behindElement;
    }

    Step behindElement() {
        cursor.skipBlanks();
        if (!cursor.atEnd() && *cursor.at == u',') {
            ++cursor.at;
            return Step::element;
        }
        if (cursor.atEnd() || *cursor.at != levels_.back().closing) {
            return placeFault();
        }
        ++cursor.at;
        return close();
    }

    Step element() {
        if (cursor.atEnd()) {
            return placeFault();  // the closing bracket is missing
        }
        cursor.skipBlanks();
        localText key;
        if (levels_.back().closing == u'}' && !readKey(key)) {
            return fault(localErrorTypeJSONPARSE);  // a fault in a key has no line of its own
        }
        cursor.skipBlanks();
        if (atBracket()) {
            return openInner(std::move(key));
        }
        const char16_t first = cursor.atEnd() ? u'\0' : *cursor.at;
        if (first == u'"') {
            return string(std::move(key));
        }
        return first == u'-' || (first >= u'0' && first <= u'9') ? number(std::move(key))
                                                                 : word(std::move(key));
    }

    Step openInner(localText key) {
        if (levels_.size() == jsonDeepest) {
            // One line for all of the levels, which are too many to be told of one by one.
            traceLine(placeText(), functionName);
            status_ = localErrorTypeJSONPARSE;
            return Step::failed;
        }
        levels_.push_back(emptyLevel());
        levels_.back().key = std::move(key);
        return open();
    }

    bool readKey(localText& key) {
        if (cursor.atEnd() || *cursor.at != u'"') {
            return false;
        }
        ++cursor.at;
        key = keys_.keyOf(localJsonString(cursor, scratch_));
        if (cursor.atEnd()) {
            return false;
        }
        ++cursor.at;
        cursor.skipBlanks();
        if (cursor.atEnd() || *cursor.at != u':') {
            return false;
        }
        ++cursor.at;
        return true;
    }

    Step string(localText key) {
        ++cursor.at;
        const std::u16string_view content = localJsonString(cursor, scratch_);
        if (cursor.atEnd()) {
            return placeFault();
        }
        ++cursor.at;
        levels_.back().items->itemAppend(std::move(key)).setVal(localText(content));
        return Step::behindElement;
    }

    // What stands in a file must not take the program down, so a number with more digits than the
    // language takes is a fault with the status of its reader.
    Step number(localText key) {
        localPosition pos = cursor.position();
        localSlot value;
        const bool read =
            scanStringGetNumberTokenAndEvaluete(status_, text_, pos, value.asResult());
        cursor.at = cursor.begin + pos;
        if (!read) {
            return placeFault(status_);
        }
        levels_.back().items->itemAppend(std::move(key)).take(*value);
        return Step::behindElement;
    }

    Step word(localText key) {
        const std::u16string_view first(cursor.at, cursor.atEnd() ? 0 : 1);
        const std::u16string_view name = cursor.nameToken();
        if (name != u"true" && name != u"false" && name != u"null") {
            return wordFault(first, name, key);
        }
        localValueDescription& value = levels_.back().items->itemAppend(std::move(key));
        if (name != u"null") {
            value.setBoolean(name == u"true");
        }
        return Step::behindElement;
    }

    Step wordFault(std::u16string_view first, std::u16string_view name, const localText& key) {
        traceLine(numberToString(first.empty() ? 0 : first[0]) + u" char :[" +
                      std::u16string(first) + u"]",
                  functionName);
        traceLine(u"i=" + numberToString(cursor.position()) + u" Error!!!  Read string =[" +
                      std::u16string(name) + u"] key : [" + key.string() + u"]",
                  functionName);
        return fault(localErrorTypeJSONPARSE);
    }

    std::u16string placeText() const { return u"Json " + positionText(text_, cursor.position()); }

    Step placeFault(int code = localErrorTypeJSONPARSE) {
        traceLine(placeText(), functionName);
        return fault(code);
    }

    // Each list around the faulty one tells of it too, at the same place, and makes the status its
    // own.
    Step fault(int code) {
        status_ = code;
        if (levels_.size() > 1) {
            status_ = localErrorTypeJSONPARSE;
            const std::u16string place = placeText();
            for (std::size_t i = 1; i < levels_.size(); ++i) {
                traceLine(place, functionName);
            }
        }
        return Step::failed;
    }

    const std::u16string& text_;
    int& status_;
    std::vector<Level> levels_;
    KeyStore keys_;
    std::u16string scratch_;
};

}  // namespace

bool scanStringParseJson(int& status, const std::u16string& text, localPosition& pos,
                         localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(u"localInterpretatorUTF8::scanStringParseJson() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    Reader reader(status, text, pos);
    const bool done = reader.read(*result);
    pos = reader.cursor.position();
    return done;
}

}  // namespace localInterpretatorUTF8
