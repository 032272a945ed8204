// A module that uses the language as libraries above it do, and fails when it is told to.
#include <new>
#include <stdexcept>
#include <string>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/library/localModule.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

// PIXMAPASBASE64FROMFILEGET(text): the value of the text as an expression, in the calling scope.
bool evaluate(localCall& call) {
    const std::u16string text(call.text(0));
    localSlot value;
    std::uint32_t position = 0;
    if (!localInterpretatorUTF8::scanStringGetExpressionAndEvaluete(
            call.status, text, position, value.asResult(), call.context, false)) {
        return false;
    }
    call.result.assign(*value);
    return true;
}

// A list that a method of it has filled with two values.
bool listGive(localCall& call) {
    localSlot list;
    if (!call.context->createObj(call.status, u"VALUELIST", list.asResult())) {
        return false;
    }
    for (const double number : {1.0, 2.0}) {
        const localSlot value = localSlot::reserve();
        value->setVal(number);
        localValueDescription* const values[] = {value.get()};
        const localArguments arguments(values);
        localSlot added;
        if (!list->valueMethodExec(call.status, call.context, u"VALUEADD", &arguments,
                                   added.asResult())) {
            return false;
        }
    }
    call.result.assign(*list);
    return true;
}

// PIXMAPASBASE64PARTGET(what, x, y): does one thing or fails in one way.
bool act(localCall& call) {
    const localSlot held = localSlot::reserve();
    held->setVal(call.text(0));
    if (call.text(0) == u"variable") {
        call.context->varDeclare(u"fromTheModule").value->setVal(call.number(1));
        return call.done();
    }
    if (call.text(0) == u"list") {
        return listGive(call);
    }
    if (call.text(0) == u"memory") {
        throw std::bad_alloc();
    }
    if (call.text(0) == u"length") {
        throw std::length_error("on purpose");
    }
    return call.fail(localErrorTypeOUTOFRANGE);
}

// An object of the module: a value, and how many hold the object.
struct Kept {
    inline static std::int64_t alive = 0;
    Kept() { ++alive; }
    ~Kept() { --alive; }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

    std::int64_t linkCounter = 0;
    localValueDescription value;
};

constexpr localMethodRow methods[] = {
    {u"KEEP", u"ХРАНИТЬ", "v",
     [](localCall& call) {
         static_cast<Kept*>(call.object)->value.assign(*call.args[0]);
         return call.done();
     }},
    {u"KEPT", u"ХРАНИМОЕ", "",
     [](localCall& call) {
         call.result.assign(static_cast<Kept*>(call.object)->value);
         return true;
     }},
    {u"FAIL", u"ОТКАЗ", "n",
     [](localCall& call) { return call.fail(static_cast<int>(call.number(0))); }},
    {u"THROW", u"БРОСИТЬ", "s",
     [](localCall& call) -> bool {
         const localSlot held = localSlot::reserve();
         held->setVal(call.text(0));
         if (call.text(0) == u"memory") {
             throw std::bad_alloc();
         }
         throw std::length_error("on purpose");
     }},
    {u"ABOVE", u"СВЕРХУ", "", localBroughtFromAbove},
};

constexpr localClassTable keptTable = {
    .nameEng = u"V77",
    .nameRus = u"V77",
    .description = u"класс модуля",
    .nativeName = u"Kept",
    .native = localNativeOf<Kept>(),
    .methods = methods,
    .attributes = {},
};

constexpr localClassTable documentTable = {
    .nameEng = u"TABLEDOCUMENT",
    .nameRus = u"ТАБЛИЧНЫЙДОКУМЕНТ",
    .description = u"класс модуля с начала",
    .nativeName = u"Kept",
    .native = keptTable.native,
    .methods = methods,
    .attributes = {},
};

localClassDeclarations keptClass() {
    static localClassDeclaration* const declarations[] = {localTableClass<keptTable>()};
    return declarations;
}

localClassDeclarations documentClass() {
    static localClassDeclaration* const declarations[] = {localTableClass<documentTable>()};
    return declarations;
}

constexpr localExtensionFunction functions[] = {
    {u"PIXMAPASBASE64FROMFILEGET", evaluate},
    {u"PIXMAPASBASE64PARTGET", act},
};
constexpr localExtensionClass classes[] = {{u"V77", keptClass}};
constexpr localExtensionClass startClasses[] = {{u"TABLEDOCUMENT", documentClass}};
constexpr localExtensionMethod filled[] = {
    {u"V77", u"ABOVE", [](localCall& call) { return call.give(77.0); }},
    {u"VALUETABLE", u"SHOW", [](localCall& call) { return call.give(78.0); }},
};
constexpr localCounter counters[] = {{"localDataBase::counterStaticTotal", &Kept::alive}};

constexpr localExtension extension = {
    .name = u"languageModule",
    .functions = functions,
    .classes = classes,
    .startClasses = startClasses,
    .methods = filled,
    .counters = counters,
};

}  // namespace

const localExtension* localModule() {
    return &extension;
}
