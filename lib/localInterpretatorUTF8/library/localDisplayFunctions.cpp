// Global functions that list classes, functions and memory for a person.
#include <string>

#include "library/localHandlers.h"
#include "library/localWhole.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"

namespace localHandlers {
namespace {

// Where a memory listing goes, told by an argument that may be left out.
struct Target {
    bool output = true;
    bool log = false;
};

Target targetOf(const localCall& call, std::size_t argument) {
    const std::int64_t mode = argument < call.args.size() ? localWhole(call.number(argument)) : 0;
    return {mode != 1, mode == 1 || mode == 2};
}

// The slot of a result is free while this object lives, so that the listing does not count it.
// Reserving gives the same slot back: it was the lowest free one when the call began, and the
// listing leaves the others as they are.
class SlotFree {
public:
    explicit SlotFree(localValueDescription& slot) { localValueDescription::release(&slot); }
    ~SlotFree() { localMemoryManager::manager->reserveSlot(); }
    SlotFree(const SlotFree&) = delete;
    SlotFree& operator=(const SlotFree&) = delete;
};

std::u16string_view patternOf(const localCall& call) {
    return call.args.empty() ? std::u16string_view() : call.text(0);
}

}  // namespace

bool classDisplay(localCall& call) {
    const localClassDeclaration* declaration = call.context->classFind(trimBoth(call.text(0)));
    if (declaration == nullptr) {
        return call.fail(localErrorTypeCLASSUNKNOWN);
    }
    std::u16string listing = declaration->listing();
    listing.pop_back();  // its last line end is written with the line
    writeLine(listing);
    return call.done();
}

bool classesDisplay(localCall& call) {
    call.context->dispClasses(patternOf(call));
    return call.done();
}

bool functionsDisplay(localCall& call) {
    call.context->dispFunc(patternOf(call));
    return call.done();
}

bool memoryDisplay(localCall& call) {
    return call.done();
}

bool memoryDisplayData(localCall& call) {
    const Target target = targetOf(call, 0);
    {
        const SlotFree free(call.result);
        if (target.output) {
            localMemoryManager::memoryDisplayData();
        }
        if (target.log) {
            localMemoryManager::dispToLog(logFileName());
        }
    }
    return call.done();
}

bool memoryDisplayVars(localCall& call) {
    const Target target = targetOf(call, 1);
    if (target.output) {
        call.context->dispMemo(patternOf(call));
    }
    if (target.log) {
        call.context->dispMemoToLog(patternOf(call));
    }
    return call.done();
}

}  // namespace localHandlers
