#include <unordered_set>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localStackGuard.h"
#include "localInterpretatorUTF8/value/localClassDeclaration.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "json/localJsonText.h"

namespace {

constexpr std::u16string_view mnemonicOf(const localValueDescription& value) {
    switch (value.type) {
        case localValueTypeNUMBER:
            return u"NUM";
        case localValueTypeSTRING:
            return u"STR";
        case localValueTypeBOOLEAN:
            return u"BOO";
        case localValueTypeOBJECT:
            return u"OBJ";
        default:
            return u"UNK";
    }
}

// Writes into one text, whatever lies in what: no part of it is made on its own and copied outward.
class Writer {
public:
    explicit Writer(int& status) : status_(status) {}

    bool value(const localValueDescription& value) {
        if (const localValueList* list = localValueList::of(value)) {
            head(value);
            return this->list(*list) && end(u"}");
        }
        return plain(value) && end({});
    }

    bool list(const localValueList& outermost) {
        if (!open(outermost)) {
            return false;
        }
        while (!levels_.empty()) {
            Level& level = levels_.back();
            if (level.next == level.list->size()) {
                output_.put(u"\n]");
                close();
            } else if (!item(level.list->items()[level.next++])) {
                return false;
            }
            if (output_.isFull) {
                return end({});
            }
        }
        return end({});
    }

    localText takeText() { return std::move(output_.text); }

private:
    struct Level {
        const localValueList* list;
        std::size_t next;
    };

    bool item(const localValueListItem& item) {
        output_.put(levels_.back().next == 1 ? u"\n{\"p\": \"" : u"\n,{\"p\": \"");
        output_.putEscaped(item.presentation);
        output_.put(u"\",\"v\": ");
        if (const localValueList* inner = localValueList::of(item.value)) {
            head(item.value);
            return open(*inner);
        }
        if (!plain(item.value)) {
            return false;
        }
        output_.put(u"}");
        return true;
    }

    bool open(const localValueList& list) {
        if (!onTheWay_.insert(&list).second) {
            return refuse(u"Список значений содержит сам себя!");
        }
        levels_.push_back({&list, 0});
        output_.put(u"[");
        return true;
    }

    void close() {
        onTheWay_.erase(levels_.back().list);
        levels_.pop_back();
        if (!levels_.empty()) {
            output_.put(u"}}");  // ends the typed form of the list, and the item that holds it
        }
    }

    // All of the typed form in front of the content.
    void head(const localValueDescription& value) {
        output_.put(u"{\"t\": \"");
        output_.put(mnemonicOf(value));
        output_.put(u"\",");
        if (value.type == localValueTypeOBJECT) {
            output_.put(u"\"tN\": \"");
            if (value.objClass != nullptr) {
                output_.putEscaped(value.objClass->nameEng);
            }
            output_.put(u"\",");
        }
        output_.put(u"\"vP\": \"");
        output_.putEscaped(value.toString());
        output_.put(u"\",\"v\": ");
    }

    // The typed form of what is no value list.
    bool plain(const localValueDescription& value) {
        head(value);
        switch (value.type) {
            case localValueTypeNUMBER:
            case localValueTypeSTRING:
                quoted(value.toString());
                break;
            case localValueTypeBOOLEAN:
                // A negative number is false here, though its text is "ИСТИНА". Meant.
                quoted(value.num <= 0.0 ? u"false" : u"true");
                break;
            case localValueTypeOBJECT:
                if (!object(value)) {
                    return false;
                }
                break;
            default:
                break;
        }
        output_.put(u"}");
        return true;
    }

    bool object(const localValueDescription& value) {
        const localClassMember* member =
            value.objClass == nullptr ? nullptr : value.objClass->memberFind(u"TOJSON");
        localText text;
        if (member != nullptr && member->methodFunction != nullptr) {
            if (!localStackGuard::enter(status_, "valueToJson")) {
                return false;
            }
            int status = localErrorTypeOK;
            const localArguments none;
            localSlot result;
            void* object = value.pointer;
            if (value.objClass->methodRun(status, nullptr, object, u"TOJSON", &none,
                                          result.asResult())) {
                text = result->wStr;
            }
        }
        if (text.empty()) {
            quoted(value.toString());
        } else {
            output_.put(text);
        }
        return true;
    }

    void quoted(const localText& text) {
        output_.put(u"\"");
        output_.putEscaped(text);
        output_.put(u"\"");
    }

    bool end(std::u16string_view closing) {
        output_.put(closing);
        return !output_.isFull || refuse(u"Слишком длинная строка!");
    }

    bool refuse(std::u16string_view why) {
        traceLine(why, "valueToJson");
        status_ = localErrorTypeCODE;
        return false;
    }

    int& status_;
    localJsonOutput output_;
    std::vector<Level> levels_;
    // The lists in `levels_`.
    std::unordered_set<const localValueList*> onTheWay_;
};

}  // namespace

bool valueToJson(int& status, const localValueDescription& value, localText& text) {
    Writer writer(status);
    const bool done = writer.value(value);
    text = done ? writer.takeText() : localText();
    return done;
}

bool valueListToJson(int& status, const localValueList& list, localText& text) {
    Writer writer(status);
    const bool done = writer.list(list);
    text = done ? writer.takeText() : localText();
    return done;
}

localText valueToJson(const localValueDescription& value) {
    int status = localErrorTypeOK;
    localText text;
    static_cast<void>(valueToJson(status, value, text));
    return text;
}

localText valueListToJson(const localValueList& list) {
    int status = localErrorTypeOK;
    localText text;
    static_cast<void>(valueListToJson(status, list, text));
    return text;
}
