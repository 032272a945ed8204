// Calls of global functions without the text of a program around them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "support/language.h"

// The slot of an argument.
inline localSlot argument(double number) {
    localSlot slot = localSlot::reserve();
    slot->setVal(number);
    return slot;
}
inline localSlot argument(std::u16string_view text) {
    localSlot slot = localSlot::reserve();
    slot->setVal(localText(text));
    return slot;
}

// What a call gave. The result's slot lives as long as this does.
struct libraryOutcome {
    bool done = false;
    int status = localErrorTypeOK;
    localSlot result;
};

class libraryTest : public languageTest {
protected:
    // Calls a function by its name in capitals, in a context of its own.
    template <class... Values>
    libraryOutcome call(std::u16string_view name, const Values&... values) {
        localContextUTF8 context;
        std::vector<localSlot> held;
        (held.push_back(argument(values)), ...);
        std::vector<localValueDescription*> pointers;
        for (const localSlot& slot : held) {
            pointers.push_back(slot.get());
        }
        const localArguments args(pointers);
        libraryOutcome outcome;
        outcome.done =
            localLibrary::call(outcome.status, &context, name, &args, outcome.result.asResult());
        return outcome;
    }
};
