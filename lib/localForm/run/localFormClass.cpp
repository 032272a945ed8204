// The class FORM.
#include "localForm/run/localForm.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localVCL/window/localVclOnWindowThread.h"

namespace {

// Null, with its status and a line, for an object that is no form's.
localForm* formOf(localCall& call) {
    localForm* const form = localForm::of(call.object);
    if (form == nullptr) {
        traceLine(u"Can not determine the FORM object!", "classImplementationMethodFunction");
        call.fail(localErrorTypeCODE);
    }
    return form;
}

bool toStringMethod(localCall& call) {
    const localForm* const form = formOf(call);
    return form != nullptr && call.give(u"Форма adr [" + addressText(form) + u"] ");
}

bool refresh(localCall& call) {
    localForm* const form = formOf(call);
    if (form == nullptr) {
        return false;
    }
    localVclOnWindowThread([form] { form->refresh(); });
    return call.give(0.0);
}

void* noConstructor(localContextUTF8*) {
    traceLine(u" localForm::classImplementationMethodFunction() CONSTRUNCTOR not AVAILABLE!",
              "classImplementationMethodFunction");
    return nullptr;
}

void destroy(void* object) {
    if (localForm* const form = localForm::of(object)) {
        localVclOnWindowThread([form] { form->closeUnasked(); });
    }
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"СТРОКА", "", toStringMethod},
    {u"REFRESH", u"", "", refresh},
    {u"ОБНОВИТЬ", u"", "", refresh},
};

constexpr localClassTable formTable = {
    .nameEng = u"FORM",
    .nameRus = u"ФОРМА",
    .description = u"класс Форма",
    .nativeName = u"localDataBase",  // Another class's. Meant.
    .native = {.construct = noConstructor, .destroy = destroy, .link = nullptr},
    .methods = methods,
    .attributes = {},
    // A member is a plain name in a form's module: СТРОКА there stays the global function, and is
    // answered where the class is asked for it.
    .memberNames = localMemberNames::englishOnly,
    .classWideMethods = true,
};

}  // namespace

localClassDeclaration* localForm::classDeclaration() {
    return localTableClass<formTable>();
}
