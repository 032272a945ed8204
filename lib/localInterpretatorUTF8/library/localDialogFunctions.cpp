// Global functions that show something to a person or ask one, through the host.
#include "library/localHandlers.h"
#include "localInterpretatorUTF8/host/localHost.h"

namespace localHandlers {
namespace {

// 0 information, 1 warning, 2 critical, 3 question; any other number means 0.
localReport::Kind kindOf(double number) {
    if (number == 1) {
        return localReport::Kind::warning;
    }
    if (number == 2) {
        return localReport::Kind::critical;
    }
    return number == 3 ? localReport::Kind::question : localReport::Kind::information;
}

bool doneIf(localCall& call, bool shown) {
    return shown ? call.done() : call.fail(localErrorTypeGRAPHICONLY);
}

}  // namespace

// An object's text is the work of its class; it is not asked for in vain.
bool stringShow(localCall& call) {
    localHost& host = localHost::current();
    return doneIf(call, host.hasScreen() && host.showText(u"TE", call.args[0]->toString()));
}

bool messageBox(localCall& call) {
    localReport message;
    message.kind = kindOf(call.args.size() > 1 ? call.number(1) : 0);
    message.title = u"Сообщение";
    message.text = call.text(0);
    return doneIf(call, localHost::current().showMessage(message));
}

// A dialog that was rejected gives an empty text.
bool dateChooseAsString(localCall& call) {
    const auto date =
        localHost::current().chooseDate(call.args.empty() ? std::u16string_view() : call.text(0));
    return date ? call.give(localText(*date)) : call.fail(localErrorTypeGRAPHICONLY);
}

}  // namespace localHandlers
