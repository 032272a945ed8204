// The class VALUELIST.
#include <cmath>
#include <vector>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"

namespace {

localValueList& listOf(const localCall& call) {
    return *static_cast<localValueList*>(call.object);
}

// A position to read, 0 unless there is such an item.
std::size_t positionAt(const localCall& call) {
    const std::size_t position = call.index(0);
    return position > listOf(call).size() ? 0 : position;
}

bool giveSize(localCall& call) {
    return call.give(static_cast<double>(listOf(call).size()));
}

bool toStringMethod(localCall& call) {
    return call.give(listOf(call).toStringList());
}

bool clear(localCall& call) {
    listOf(call).clear();
    return call.done();
}

std::u16string lineOf(const localValueDescription& value) {
    std::u16string text = value.toString().string();
    if (value.type == localValueTypeOBJECT) {
        return text;
    }
    return u"(" + value.typeName() + u") \"" + text + u"\"";
}

bool show(localCall& call) {
    std::vector<std::u16string> lines;
    for (const localValueListItem& item : listOf(call).items()) {
        lines.push_back(lineOf(item.value));
    }
    const std::u16string_view title = call.args.empty() ? std::u16string_view() : call.text(0);
    localHost& host = localHost::current();
    host.setCursor(localHost::Cursor::arrow);
    const bool shown = host.showList(title, lines);
    host.setCursor(localHost::Cursor::restored);
    return shown ? call.done() : call.fail(localErrorTypeGRAPHICONLY);
}

bool rowChoose(localCall& call) {
    std::vector<std::u16string> lines;
    for (const localValueListItem& item : listOf(call).items()) {
        lines.push_back(item.presentation.string());
    }
    const std::u16string_view title = call.args.empty() ? std::u16string_view() : call.text(0);
    const double start = call.args.size() < 2 ? 0.0 : std::trunc(call.number(1));
    if (!(start >= 0.0 && start <= static_cast<double>(lines.size()))) {
        return call.fail(localErrorTypeOUTOFRANGE);
    }
    localHost& host = localHost::current();
    host.setCursor(localHost::Cursor::arrow);
    const auto row = host.chooseRow(title, lines, static_cast<std::size_t>(start));
    host.setCursor(localHost::Cursor::restored);
    return row ? call.give(static_cast<double>(*row)) : call.fail(localErrorTypeGRAPHICONLY);
}

bool toJson(localCall& call) {
    localText text;
    return valueListToJson(call.status, listOf(call), text) && call.give(std::move(text));
}

// Behind the value only a presentation is looked at; what else is given goes unread. Meant.
bool valueAdd(localCall& call) {
    if (call.args.empty()) {
        return call.fail(localErrorTypePARAMETERCOUNT);
    }
    const bool presented = call.args.size() > 1;
    if (presented && call.args[1]->type != localValueTypeSTRING) {
        return call.fail(localErrorTypePARAMETERTYPE);
    }
    listOf(call).valueAppend(*call.args[0], presented ? call.args[1]->wStr : localText());
    return giveSize(call);
}

bool valueGet(localCall& call) {
    const std::size_t position = positionAt(call);
    if (position == 0) {
        return call.fail(localErrorTypeOUTOFRANGE);
    }
    call.result.assign(listOf(call).valueAt(position));
    return true;
}

bool valueGetByPresentation(localCall& call) {
    const localValueDescription* value = listOf(call).valueByPresentation(call.text(0));
    if (value == nullptr) {
        return call.give(localText());
    }
    call.result.assign(*value);
    return true;
}

// The place behind the last item is refused here, though the list itself would append. Meant.
bool valueInsert(localCall& call) {
    const std::size_t position = positionAt(call);
    if (position == 0) {
        return call.fail(localErrorTypeOUTOFRANGE);
    }
    listOf(call).valueInsert(position, *call.args[1],
                             call.args.size() > 2 ? call.args[2]->wStr : localText());
    return giveSize(call);
}

bool valuePresentationGet(localCall& call) {
    const std::size_t position = positionAt(call);
    if (position == 0) {
        return call.fail(localErrorTypeOUTOFRANGE);
    }
    return call.give(listOf(call).presentationGet(position));
}

bool valueRemove(localCall& call) {
    return listOf(call).valueRemove(call.index(0)) ? call.done()
                                                   : call.fail(localErrorTypeOUTOFRANGE);
}

bool valueSet(localCall& call) {
    const std::size_t position = positionAt(call);
    if (position != 0) {
        listOf(call).valueAt(position).assign(*call.args[1]);
    }
    return call.giveBoolean(position != 0);
}

bool valueSetByPresentation(localCall& call) {
    return call.give(static_cast<double>(
        listOf(call).valueSetByPresentation(*call.args[0], call.args[1]->wStr)));
}

bool valueSetPresentation(localCall& call) {
    return call.giveBoolean(listOf(call).presentationSet(call.index(0), call.args[1]->wStr));
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"", "", toStringMethod},
    {u"CLEAR", u"ОЧИСТИТЬ", "", clear},
    {u"SHOW", u"ПОКАЗАТЬ", "|s", show},
    {u"ROWCHOOSE", u"РЯДВЫБРАТЬ", "|sn", rowChoose},
    {u"SIZE", u"КОЛИЧЕСТВО", "", giveSize},
    {u"TOJSON", u"", "", toJson},
    {u"VALUEADD", u"ЗНАЧЕНИЕДОБАВИТЬ", "?", valueAdd},
    {u"VALUEGET", u"ЗНАЧЕНИЕПОЛУЧИТЬ", "i", valueGet},
    {u"VALUEGETBYPRESENTATION", u"ЗНАЧЕНИЕПОЛУЧИТЬПОПРЕДСТАВЛЕНИЮ", "s", valueGetByPresentation},
    {u"VALUEINSERT", u"ЗНАЧЕНИЕВСТАВИТЬ", "iv|s", valueInsert},
    {u"VALUEPRESENTATIONGET", u"ЗНАЧЕНИЕПРЕДСТАВЛЕНИЕПОЛУЧИТЬ", "i", valuePresentationGet},
    {u"VALUEREMOVE", u"ЗНАЧЕНИЕУДАЛИТЬ", "i", valueRemove},
    {u"VALUESET", u"ЗНАЧЕНИЕУСТАНОВИТЬ", "iv", valueSet},
    {u"VALUESETBYPRESENTATION", u"ЗНАЧЕНИЕУСТАНОВИТЬПОПРЕДСТАВЛЕНИЮ", "vs", valueSetByPresentation},
    {u"VALUESETPRESENTATION", u"ЗНАЧЕНИЕУСТАНОВИТЬПРЕДСТАВЛЕНИЕ", "is", valueSetPresentation},
};

constexpr localClassTable table = {
    .nameEng = u"VALUELIST",
    .nameRus = u"СПИСОКЗНАЧЕНИЙ",
    .description = u"класс СписокЗначений",
    .nativeName = u"localValueList",
    .native = localNativeOf<localValueList>(),
    .methods = methods,
    .attributes = {},
};

}  // namespace

localClassDeclaration* localValueList::classDeclaration() {
    return localTableClass<table>();
}
