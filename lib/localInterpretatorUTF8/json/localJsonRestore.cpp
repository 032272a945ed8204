// Values from their typed form.
#include <algorithm>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

constexpr std::string_view functionName = "fromJsonValueList";

// Whether a list that was read is the form of a list: a presentation and a typed value an item.
bool isListForm(const localValueList& list) {
    const auto& items = list.items();
    return !items.empty() && std::all_of(items.begin(), items.end(), [](const auto& item) {
        const localValueList* form = localValueList::of(item.value);
        return item.presentation.view().empty() && form != nullptr &&
               form->valueByPresentation(u"p") != nullptr &&
               form->valueByPresentation(u"v") != nullptr;
    });
}

class Restorer {
public:
    Restorer(int& status, localContextUTF8* context) : status_(status), context_(context) {}

    bool restore(const localValueList& form, localValueDescription& result) {
        const localValueList* forms = nullptr;
        localValueDescription first;
        if (isListForm(form)) {
            first.objectBind(new localValueList, localValueList::classDeclaration());
            forms = &form;
        } else if (!value(form, first, forms)) {
            result.take(first);
            return false;
        }
        if (forms == nullptr) {
            result.take(first);
            return true;
        }
        push(first, {}, *forms);
        bool done = true;
        while (done && (levels_.size() > 1 || !levels_.back().isWhole())) {
            done = levels_.back().isWhole() ? close() : item();
        }
        result.take(levels_.front().list);
        return done;
    }

private:
    // A list under construction, the forms of its items, and its place in the list around it.
    struct Level {
        localValueDescription list;
        localText presentation;
        const localValueList* forms;
        std::size_t next;

        bool isWhole() const { return next == forms->size(); }
        localValueList& items() const { return *localValueList::of(list); }
    };

    void push(localValueDescription& list, localText presentation, const localValueList& forms) {
        levels_.push_back({std::move(list), std::move(presentation), &forms, 0});
    }

    bool close() {
        Level inner = std::move(levels_.back());
        levels_.pop_back();
        levels_.back().items().itemAppend(std::move(inner.presentation)).take(inner.list);
        return true;
    }

    // Whatever is wrong with an item, the list around it cannot be restored.
    bool item() {
        Level& level = levels_.back();
        const localValueList* item = localValueList::of(level.forms->items()[level.next++].value);
        const localValueDescription* presentation =
            item == nullptr ? nullptr : item->valueByPresentation(u"p");
        const localValueDescription* content =
            item == nullptr ? nullptr : item->valueByPresentation(u"v");
        const localValueList* form =
            presentation == nullptr || content == nullptr ? nullptr : localValueList::of(*content);
        localValueDescription restored;
        const localValueList* forms = nullptr;
        if (form == nullptr || !value(*form, restored, forms)) {
            return fail(localErrorTypeJSONRESTORE);
        }
        if (forms != nullptr) {
            push(restored, presentation->toString(), *forms);
        } else {
            level.items().itemAppend(presentation->toString()).take(restored);
        }
        return true;
    }

    // Restores one value. A value list comes empty, with `forms` set to the forms of its items.
    bool value(const localValueList& form, localValueDescription& restored,
               const localValueList*& forms) {
        const localValueDescription* type = form.valueByPresentation(u"t");
        const localValueDescription* content = form.valueByPresentation(u"v");
        const std::u16string_view mnemonic =
            type == nullptr ? std::u16string_view() : type->wStr.view();
        if (mnemonic == u"NUM" || mnemonic.empty()) {
            restored.setVal(content == nullptr ? 0.0 : content->toNumber());
            return true;
        }
        if (mnemonic == u"STR") {
            restored.setVal(content == nullptr ? localText() : content->toString());
            return true;
        }
        if (mnemonic == u"BOO") {
            // The writer puts booleans as texts, whose number is 0: every boolean that it wrote
            // comes back as the number 0. Meant.
            traceLine(u"Это булево!!!", functionName);
            restored.setVal(content != nullptr && content->num > 0.0 ? 1.0 : 0.0);
            return true;
        }
        if (mnemonic == u"OBJ") {
            return object(form, content, restored, forms);
        }
        traceLine(u"typeMnemo=" + std::u16string(mnemonic), functionName);
        return fail(localErrorTypeJSONRESTORE);
    }

    bool object(const localValueList& form, const localValueDescription* content,
                localValueDescription& restored, const localValueList*& forms) {
        if (content == nullptr || content->type != localValueTypeOBJECT) {
            return fail(localErrorTypeJSONRESTORE);
        }
        const localValueDescription* type = form.valueByPresentation(u"tN");
        const std::u16string_view name =
            type == nullptr ? std::u16string_view() : trimLeft(type->wStr);
        if (!context_->classExists(name)) {
            return fail(localErrorTypeCLASSUNKNOWN);
        }
        localSlot made;
        const bool created = context_->createObj(status_, name, made.asResult());
        restored.take(*made);
        if (!created) {
            return false;
        }
        if (localValueList::of(restored) == nullptr) {
            traceLine(u"Разбор jsonList для " + std::u16string(name) + u" не реализован!",
                      functionName);
            return fail(localErrorTypeJSONRESTORE);
        }
        forms = localValueList::of(*content);
        return forms != nullptr || fail(localErrorTypeJSONRESTORE);
    }

    bool fail(int code) {
        status_ = code;
        return false;
    }

    int& status_;
    localContextUTF8* context_;
    std::vector<Level> levels_;
};

}  // namespace

bool fromJsonValueList(int& status, localContextUTF8* context, const localValueList& list,
                       localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(u"localValueDescription::fromJsonValueList() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    return Restorer(status, context).restore(list, *result);
}
