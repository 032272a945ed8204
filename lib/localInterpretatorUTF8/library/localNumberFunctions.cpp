// Global functions on numbers. All numbers are doubles.
#include <cmath>
#include <cstdint>
#include <limits>

#include "library/localHandlers.h"
#include "library/localWhole.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localRandom.h"

namespace localHandlers {
namespace {

// Whether `a` comes before `b`, two values of one type.
bool isLess(const localValueDescription& a, const localValueDescription& b) {
    switch (a.type) {
        case localValueTypeSTRING:
            return a.wStr.view() < b.wStr.view();
        case localValueTypeBOOLEAN:
            return !(a.num > 0.0) && b.num > 0.0;
        default:
            return a.num < b.num;
    }
}

using Order = bool (*)(const localValueDescription& candidate, const localValueDescription& best);

// The first argument that no other beats. All must have the type of the first; objects have no
// order.
bool extreme(localCall& call, Order beats) {
    const localValueDescription* best = call.args[0];
    for (const localValueDescription* candidate : call.args) {
        if (candidate->type != best->type || candidate->type == localValueTypeOBJECT) {
            return call.fail(localErrorTypePARAMETERTYPE);
        }
        if (beats(*candidate, *best)) {
            best = candidate;
        }
    }
    call.result.assign(*best);
    return true;
}

}  // namespace

bool absoluteValue(localCall& call) {
    return call.give(std::fabs(call.number(0)));
}

// The number goes through a 32-bit integer. What that cannot hold, not-a-number included, becomes
// its lowest value, as the processor's own conversion has it. Meant.
bool integerPart(localCall& call) {
    const double truncated = std::trunc(call.number(0));
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    if (!(truncated >= lowest && truncated <= highest)) {
        return call.give(lowest);
    }
    return call.give(static_cast<double>(static_cast<std::int32_t>(truncated)));
}

bool largest(localCall& call) {
    return extreme(call, [](const localValueDescription& candidate,
                            const localValueDescription& best) { return isLess(best, candidate); });
}

bool smallest(localCall& call) {
    return extreme(call, isLess);
}

bool numberOf(localCall& call) {
    const localValueDescription& value = *call.args[0];
    switch (value.type) {
        case localValueTypeNUMBER:
            return call.give(value.num);
        case localValueTypeSTRING:
            return call.give(numberFromText(trimBoth(value.wStr)));
        case localValueTypeBOOLEAN:
            return call.give(value.toNumber());
        default:
            return call.fail(localErrorTypePARAMETERTYPE);
    }
}

bool piConstant(localCall& call) {
    return call.give(3.141592653589793);
}

bool randomNumber(localCall& call) {
    return call.give(localRandom() / static_cast<double>(localRandomMax));
}

// Digits behind the point, or in front of it where they are negative. The formula holds for every
// number: half a digit scales by the root of ten, and a scale that no double can hold leaves no
// number. A third argument is not looked at. Meant.
bool rounded(localCall& call) {
    const double value = call.number(0);
    const bool hasDigits = call.args.size() > 1 && call.args[1]->type == localValueTypeNUMBER;
    const double scale = std::pow(10.0, hasDigits ? call.number(1) : 0.0);
    return call.give(std::round(value * scale) / scale);
}

bool squareRoot(localCall& call) {
    if (call.number(0) < 0.0) {
        return call.fail(localErrorTypePARAMETERVALUE);
    }
    return call.give(std::sqrt(call.number(0)));
}

}  // namespace localHandlers
