// Where the items of a list stand by presentation: for each text how many items have it, and a
// position before which none of them stands.
//
// That bound is what keeps changes cheap: when the first item of a text loses it, the next one is
// looked for only by the next lookup, from the bound on, and the bound moves up to what was found.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/text/localText.h"

class localPresentationIndex {
public:
    struct Entry {
        localText text;
        std::uint32_t hash = 0;
        bool used = false;
        std::size_t count = 0;  // a text that no item has any longer keeps its entry for a while
        std::size_t bound = 0;  // 0-based
    };

    explicit localPresentationIndex(std::size_t expected);

    // The entry of a text that items have, null when none has it.
    Entry* find(std::u16string_view text);
    // Asks for the memory that the next add() needs.
    void makeRoom();
    // One more item has this text.
    void add(const localText& text, std::size_t position);
    // One item fewer has this text; there must be one.
    void remove(std::u16string_view text);

private:
    // The cell of the text, or where it would go.
    std::size_t place(std::u16string_view text, std::uint32_t hash) const;
    // A wider table, leaving out what no item has.
    void rebuild();

    std::vector<Entry> cells_;
    std::size_t used_ = 0;
};
