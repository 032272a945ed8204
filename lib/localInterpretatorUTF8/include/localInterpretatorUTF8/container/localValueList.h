// The general container of the language: values in order, each with a text called its presentation.
// It is the class VALUELIST. What a JSON object is read into is a list too, its keys being the
// presentations.
//
// Positions are 1-based. Presentations need not be unique: a lookup finds the first. On a long list
// it goes through a table of presentations, made when lookups have become worth it; therefore
// presentations change through the operations below only, while a value may be written where it
// stands.
//
// A list made by `new` has the count 0 and is owned by the values it is bound to: the last one that
// lets go deletes it. A list that holds itself is never deleted.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/text/localText.h"
#include "localInterpretatorUTF8/value/localValueDescription.h"

class localPresentationIndex;

struct localValueListItem {
    localText presentation;
    localValueDescription value;
};

class localValueList final {
public:
    // Live lists.
    static std::int64_t counterStaticTotal;
    static localClassDeclaration* classDeclaration();
    // The list that a value holds, null when it holds none. The value keeps its link.
    static localValueList* of(const localValueDescription& value);

    localValueList();
    ~localValueList();
    localValueList(const localValueList&) = delete;
    localValueList& operator=(const localValueList&) = delete;

    // How many values hold this list.
    std::uint32_t linkCounter = 0;

    std::size_t size() const { return items_.size(); }
    const std::vector<localValueListItem>& items() const { return items_; }
    // The value at a position from 1 to size(), to be read or written in place. It holds until the
    // list changes.
    localValueDescription& valueAt(std::size_t position) { return items_[position - 1].value; }

    // A new item at the end, with a copy of the value, a text, a number, or one more link on a
    // list.
    void valueAppend(const localValueDescription& value, localText presentation = {});
    void valueAppend(localText text, localText presentation = {});
    void valueAppend(double number, localText presentation = {});
    void valueAppend(localValueList* list, localText presentation = {});
    // A new item at the end that holds the number 0, to be filled in place.
    localValueDescription& itemAppend(localText presentation = {});

    // Writes the first item with this presentation, or appends one. Gives its position.
    std::size_t valueSetByPresentation(const localValueDescription& value, localText presentation);
    // A new item before a position; 0 counts as 1, what lies above size() + 1 as that.
    void valueInsert(std::size_t position, const localValueDescription& value,
                     localText presentation = {});
    // False when there is no such position.
    bool valueRemove(std::size_t position);
    void clear();

    // The first position with this presentation, 0 when there is none.
    std::size_t positionOf(std::u16string_view presentation) const;
    // The value of the first item with this presentation, null when there is none.
    const localValueDescription* valueByPresentation(std::u16string_view presentation) const;
    // Empty where there is no such position.
    localText presentationGet(std::size_t position) const;
    // False when there is no such position.
    bool presentationSet(std::size_t position, localText presentation);

    // "Список значений [size] links [count] adr [address] ".
    std::u16string toStringList() const;

private:
    std::vector<localValueListItem> items_;
    // Null until lookups are worth a table; dropped when items change their positions.
    mutable std::unique_ptr<localPresentationIndex> index_;
    // How many items lookups have compared one by one since there was a table.
    mutable std::size_t compared_ = 0;
};
