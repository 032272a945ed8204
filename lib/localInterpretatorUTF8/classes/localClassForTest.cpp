#include "localInterpretatorUTF8/classes/localClassForTest.h"

#include <limits>

#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"

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

bool self(localCall& call) {
    call.result.objectBind(call.object, localClassForTest::classDeclaration());
    return true;
}

std::int32_t truncated(double number) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(number > Limits::min())) {
        return Limits::min();
    }
    return number < Limits::max() ? static_cast<std::int32_t>(number) : Limits::max();
}

// Takes the number field of any value. Meant.
bool setInt(localCall& call) {
    objectOf(call).attribInt = truncated(call.number(0));
    return true;
}

constexpr localAttributeRow attributes[] = {
    {u"SELF", u"", self, nullptr},
    {u"ATTRIBINT", u"", getInt, setInt},
};

constexpr localClassTable table = {
    .nameEng = u"TEST",
    .nameRus = u"ТЕСТ",
    .description = u"тестовый класс для отладки объектно-ориентированного программирования",
    .nativeName = u"localClassForTest",
    .native = localNativeOf<localClassForTest>(),
    .methods = methods,
    .attributes = attributes,
    // The Russian names stand in the table but no call of a program reaches them. Meant.
    .memberNames = localMemberNames::englishOnly,
};

}  // namespace

localClassDeclaration* localClassForTest::classDeclaration() {
    return localTableClass<table>();
}
