#include "localForm/run/localFormExtension.h"

#include <QPointer>

#include "localForm/run/localForm.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "localVCL/window/localVclWindow.h"

namespace {

constexpr int deepestOpening = 16;

// How many forms are being opened, each by the module or event of the one before. On the windows'
// thread.
int opening = 0;

bool formShow(int& status, std::u16string_view fileName, const localValueList* parameters) {
    if (opening >= deepestOpening) {
        traceLine(u"Forms open each other without end.", "formOpen");
        status = localErrorTypeCODE;
        return false;
    }
    ++opening;
    const bool shown = localGuarded(status, "formOpen", [&] {
        localContextUTF8::globalContext->classRegister(localForm::classDeclaration());
        localVclWindowParameters window;
        // Whatever the form. Meant.
        window.title = QStringLiteral("classImplementationMethodFunction");
        localVclWindowShow(new localForm(fileName, parameters), window);
        return true;
    });
    --opening;
    return shown;
}

bool formOpen(localCall& call) {
    const std::u16string_view fileName = trimBoth(call.text(0));
    if (!localPlatform::fileReadable(fileName)) {
        return call.fail(localErrorTypeFILENOTFOUND);
    }
    const localValueList* const parameters =
        call.args.size() > 1 ? localValueList::of(*call.args[1]) : nullptr;
    bool shown = false;
    localVclOnWindowThread([&] { shown = formShow(call.status, fileName, parameters); });
    return shown && call.done();
}

constexpr localExtensionFunction functions[] = {{u"FORMOPEN", formOpen}};

bool mayExit() {
    return localHost::current().report(
               {.kind = localReport::Kind::question,
                .title = u"Выход",
                .text = u"Вы уверены, что хотите выйти?",
                .buttons = {localReport::Button::yes, localReport::Button::no},
                .defaultButton = localReport::Button::yes}) == localReport::Button::yes;
}

}  // namespace

constexpr localExtension localFormExtension = {.name = u"localForm", .functions = functions};

bool localFormCloseAll() {
    static bool asking = false;
    if (localForm::opened().empty()) {
        return true;
    }
    if (asking) {
        return false;
    }
    asking = true;
    bool yes = mayExit();
    const std::vector<QPointer<localForm>> forms(localForm::opened().begin(),
                                                 localForm::opened().end());
    for (const QPointer<localForm>& form : forms) {
        yes = yes && (form == nullptr || (!form->isInUse() && form->closeEventBefor()));
    }
    asking = false;
    for (const QPointer<localForm>& form : forms) {
        if (yes && form != nullptr) {
            form->closeUnasked();
        }
    }
    return yes;
}
