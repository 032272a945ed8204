#include "localInterpretatorUTF8/container/localValueList.h"

#include <algorithm>
#include <utility>

#include "container/localPresentationIndex.h"
#include "localInterpretatorUTF8/text/localNumberText.h"

std::int64_t localValueList::counterStaticTotal = 0;

namespace {

// Short lists are searched one by one for good; long ones until the comparisons made this way,
// counted in lengths of the list, have cost about what making a table costs.
constexpr std::size_t searchedInOrder = 16;
constexpr std::size_t searchesWorthTable = 8;

}  // namespace

localValueList::localValueList() {
    ++counterStaticTotal;
}

localValueList::~localValueList() {
    --counterStaticTotal;
}

localValueList* localValueList::of(const localValueDescription& value) {
    return isClass(value, *classDeclaration()) ? static_cast<localValueList*>(value.pointer)
                                               : nullptr;
}

localValueDescription& localValueList::itemAppend(localText presentation) {
    if (index_ != nullptr) {
        index_->makeRoom();
    }
    localValueListItem& item = items_.emplace_back();
    item.presentation = std::move(presentation);
    if (index_ != nullptr) {
        index_->add(item.presentation, items_.size() - 1);
    }
    return item.value;
}

void localValueList::valueAppend(const localValueDescription& value, localText presentation) {
    localValueDescription copy(value);  // the value may stand in this very list, which may move
    itemAppend(std::move(presentation)).take(copy);
}

void localValueList::valueAppend(localText text, localText presentation) {
    itemAppend(std::move(presentation)).setVal(std::move(text));
}

void localValueList::valueAppend(double number, localText presentation) {
    itemAppend(std::move(presentation)).setVal(number);
}

void localValueList::valueAppend(localValueList* list, localText presentation) {
    localValueDescription value;
    value.objectBind(list, classDeclaration());
    itemAppend(std::move(presentation)).take(value);
}

std::size_t localValueList::valueSetByPresentation(const localValueDescription& value,
                                                   localText presentation) {
    const std::size_t position = positionOf(presentation);
    if (position == 0) {
        valueAppend(value, std::move(presentation));
        return size();
    }
    localValueDescription copy(value);
    valueAt(position).take(copy);
    return position;
}

void localValueList::valueInsert(std::size_t position, const localValueDescription& value,
                                 localText presentation) {
    if (position > size()) {
        valueAppend(value, std::move(presentation));
        return;
    }
    localValueDescription copy(value);
    items_.emplace_back();
    index_.reset();
    const std::size_t first = position == 0 ? 0 : position - 1;
    for (std::size_t i = items_.size() - 1; i > first; --i) {
        items_[i].presentation.swap(items_[i - 1].presentation);
        items_[i].value.take(items_[i - 1].value);
    }
    items_[first].presentation = std::move(presentation);
    items_[first].value.take(copy);
}

bool localValueList::valueRemove(std::size_t position) {
    if (position == 0 || position > size()) {
        return false;
    }
    if (position == size() && index_ != nullptr) {
        index_->remove(items_.back().presentation);
    } else {
        index_.reset();
    }
    // The value goes last, when the list is whole again: an object that dies with it may hold this
    // list.
    const localValueDescription removed(std::move(valueAt(position)));
    for (std::size_t i = position; i < items_.size(); ++i) {
        items_[i - 1].presentation.swap(items_[i].presentation);
        items_[i - 1].value.take(items_[i].value);
    }
    items_.pop_back();
    return true;
}

void localValueList::clear() {
    index_.reset();
    compared_ = 0;
    std::vector<localValueListItem> gone;
    gone.swap(items_);
}

std::size_t localValueList::positionOf(std::u16string_view presentation) const {
    std::size_t from = 0;
    localPresentationIndex::Entry* entry = nullptr;
    if (index_ == nullptr && size() > searchedInOrder && compared_ / searchesWorthTable >= size()) {
        auto index = std::make_unique<localPresentationIndex>(size());
        for (std::size_t i = 0; i < size(); ++i) {
            index->add(items_[i].presentation, i);
        }
        index_ = std::move(index);
        compared_ = 0;
    }
    if (index_ != nullptr) {
        entry = index_->find(presentation);
        if (entry == nullptr) {
            return 0;
        }
        from = entry->bound;
    }
    const auto found = std::find_if(items_.begin() + static_cast<std::ptrdiff_t>(from),
                                    items_.end(), [presentation](const localValueListItem& item) {
                                        return item.presentation.view() == presentation;
                                    });
    const auto place = static_cast<std::size_t>(found - items_.begin());
    if (entry != nullptr) {
        entry->bound = place;
    } else {
        compared_ += place;
    }
    return found == items_.end() ? 0 : place + 1;
}

const localValueDescription*
localValueList::valueByPresentation(std::u16string_view presentation) const {
    const std::size_t position = positionOf(presentation);
    return position == 0 ? nullptr : &items_[position - 1].value;
}

localText localValueList::presentationGet(std::size_t position) const {
    return position == 0 || position > size() ? localText() : items_[position - 1].presentation;
}

bool localValueList::presentationSet(std::size_t position, localText presentation) {
    if (position == 0 || position > size()) {
        return false;
    }
    localText& held = items_[position - 1].presentation;
    if (index_ != nullptr) {
        index_->add(presentation, position - 1);
        index_->remove(held);
    }
    held = std::move(presentation);
    return true;
}

std::u16string localValueList::toStringList() const {
    return u"Список значений [" + numberToString(static_cast<double>(size())) + u"] links [" +
           numberToString(linkCounter) + u"] adr [" + addressText(this) + u"] ";
}
