// A class of the language for tests: its objects count the cells that hold them, hold one more
// value, and count themselves, so that a test sees who is alive.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localInterpretatorUTF8/value/localSlot.h"

class countedObject {
public:
    inline static std::int64_t alive = 0;

    countedObject() { ++alive; }
    ~countedObject() { --alive; }
    countedObject(const countedObject&) = delete;
    countedObject& operator=(const countedObject&) = delete;

    std::int64_t linkCounter = 0;
    localValueDescription held;
};

inline constexpr localMethodRow countedMethods[] = {
    {u"TOSTRING", u"СТРОКА", "", [](localCall& call) { return call.give(u"counted"); }},
    {u"FAIL", u"ОТКАЗ", "", [](localCall& call) { return call.fail(localErrorTypeOUTOFRANGE); }},
    {u"ADD", u"СЛОЖИТЬ", "nn",
     [](localCall& call) { return call.give(call.number(0) + call.number(1)); }},
    {u"LATER", u"ПОТОМ", "", nullptr},
};

inline countedObject& countedOf(const localCall& call) {
    return *static_cast<countedObject*>(call.object);
}

inline constexpr localAttributeRow countedAttributes[] = {
    {u"HELD", u"ЗНАЧЕНИЕ",
     [](localCall& call) {
         call.result.assign(countedOf(call).held);
         return true;
     },
     [](localCall& call) {
         countedOf(call).held.assign(*call.args[0]);
         return true;
     }},
    {u"LINKS", u"",
     [](localCall& call) { return call.give(static_cast<double>(countedOf(call).linkCounter)); },
     nullptr},
    {u"SECRET", u"", nullptr, [](localCall&) { return true; }, "s"},
};

inline constexpr localClassTable countedTable = {
    .nameEng = u"COUNTED",
    .nameRus = u"СЧИТАЕМЫЙ",
    .description = u"класс для проверок",
    .nativeName = u"countedObject",
    .native = localNativeOf<countedObject>(),
    .methods = countedMethods,
    .attributes = countedAttributes,
};

inline localClassDeclaration* countedClass() {
    return localTableClass<countedTable>();
}
