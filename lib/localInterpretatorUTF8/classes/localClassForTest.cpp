#include "localInterpretatorUTF8/classes/localClassForTest.h"

#include <limits>

#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

localClassForTest& objectOf(const localCall& call) {
    return *static_cast<localClassForTest*>(call.object);
}

bool toStringMethod(localCall& call) {
    return call.give(u"объект тестового класса [ТЕСТ] c числом " +
                     numberToString(objectOf(call).attribInt));
}

bool getInt(localCall& call) {
    return call.give(objectOf(call).attribInt);
}

bool getIntPlusOne(localCall& call) {
    const double number = objectOf(call).attribInt;
    traceLine(u" метод GETINTPLUSONE() thisObj->attribInt=" + numberToString(number),
              "classImplementationMethodFunction");
    return call.give(number + 1);
}

bool getIntPlus(localCall& call) {
    const double number = objectOf(call).attribInt;
    traceLine(u" метод GETINTPLUS() thisObj->attribInt=" + numberToString(number),
              "classImplementationMethodFunction");
    traceLine(u" метод GETINTPLUS() количество параметров=" +
                  numberToString(static_cast<double>(call.args.size())),
              "classImplementationMethodFunction");
    return call.give(number + call.number(0));
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"СТРОКА", "", toStringMethod},
    {u"GETINT", u"ПОЛУЧИТЬЦЕЛОЕ", "", getInt},
    {u"GETINTPLUSONE", u"ПОЛУЧИТЬЦЕЛОЕПЛЮС1", "", getIntPlusOne},
    {u"GETINTPLUS", u"ПОЛУЧИТЬЦЕЛОЕПЛЮС", "n", getIntPlus},
};

bool attributeGet(int& status, localContextUTF8*, void*& object, std::u16string_view name,
                  localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(
            u"localClassForTest::classImplementationAttribGetFunction() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    if (name == u"SELF") {
        result->objectBind(object, localClassForTest::classDeclaration());
        return true;
    }
    if (name == u"ATTRIBINT") {
        result->setVal(static_cast<localClassForTest*>(object)->attribInt);
        return true;
    }
    result->setVal(localErrorTypeATTRIBUTEunknown);
    status = localErrorTypeATTRIBUTEWRONG;
    return false;
}

std::int32_t truncated(double number) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(number > Limits::min())) {
        return Limits::min();
    }
    return number < Limits::max() ? static_cast<std::int32_t>(number) : Limits::max();
}

bool attributeSet(int& status, localContextUTF8*, void*& object, std::u16string_view name,
                  const localValueDescription* newValue) {
    if (name != u"ATTRIBINT") {
        status = localErrorTypeATTRIBUTEWRONG;
        return false;
    }
    static_cast<localClassForTest*>(object)->attribInt = truncated(newValue->num);
    return true;
}

constexpr localAttributeRow attributes[] = {
    {u"SELF", attributeGet, nullptr},
    {u"ATTRIBINT", attributeGet, attributeSet},
};

constexpr localClassTable table = {
    .nameEng = u"TEST",
    .nameRus = u"ТЕСТ",
    .description = u"тестовый класс для отладки объектно-ориентированного программирования",
    .nativeName = u"localClassForTest",
    .construct = []() -> void* { return new localClassForTest; },
    .destroy = [](void* object) { delete static_cast<localClassForTest*>(object); },
    .link = [](void** object, std::int64_t delta) -> std::int64_t {
        return static_cast<localClassForTest*>(*object)->linkCounter +=
               static_cast<std::uint32_t>(delta);
    },
    .methods = methods,
    .attributes = attributes,
    // The Russian names stand in the table but no call of a program reaches them. Meant.
    .memberNames = localMemberNames::englishOnly,
};

}  // namespace

localClassDeclaration* localClassForTest::classDeclaration() {
    return localTableClass<table>();
}
