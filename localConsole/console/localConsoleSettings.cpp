#include "localConsole/console/localConsoleSettings.h"

#include <QSaveFile>

#include <cmath>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr const char16_t* settingsFileName = u"localConsole.ini";

// The list that a JSON text holds, in its typed form or as a plain object; null with a status when it holds
// none.
localSlot listOf(int& status, const std::u16string& text) {
    localSlot parsed;
    localInterpretatorUTF8::localPosition pos = 0;
    if (!localInterpretatorUTF8::scanStringParseJson(status, text, pos, parsed.asResult())) {
        return {};
    }
    const localValueList& list = *localValueList::of(*parsed);
    if (list.valueByPresentation(u"t") == nullptr) {
        return parsed;
    }
    localSlot typed;
    if (!fromJsonValueList(status, localContextUTF8::globalContext, list, typed.asResult())) {
        return {};
    }
    if (localValueList::of(*typed) == nullptr) {
        status = localErrorTypeJSONRESTORE;
        return {};
    }
    return typed;
}

}  // namespace

localConsoleSettings::localConsoleSettings()
    : fileName_(localVclQString(localStd::pathJoin(localStd::startDirectory(), settingsFileName))) {
    int status = localErrorTypeOK;
    if (loadFileToText(status, localVclText(fileName_), text_, u"Utf8")) {
        list_ = listOf(status, text_);
    }
    if (!list_) {
        traceLine(statusMessage(status), "localConsoleSettings");
        list_ = localSlot::reserve();
        list_->objectBind(new localValueList, localValueList::classDeclaration());
    }
}

const localValueList& localConsoleSettings::list() const {
    return *localValueList::of(*list_);
}

std::optional<int> localConsoleSettings::number(std::u16string_view key) const {
    const localValueDescription* value = list().valueByPresentation(key);
    if (value == nullptr || !(std::fabs(value->toNumber()) < 1e6)) {
        return std::nullopt;
    }
    return static_cast<int>(std::lround(value->toNumber()));
}

std::optional<QString> localConsoleSettings::command(std::u16string_view key) const {
    const localValueDescription* value = list().valueByPresentation(key);
    if (value == nullptr || value->type != localValueTypeSTRING) {
        return std::nullopt;
    }
    return localVclQString(value->wStr);
}

bool localConsoleSettings::geometrySave(const QRect& geometry) {
    localValueList& list = *localValueList::of(*list_);
    const auto set = [&list](double number, const char16_t* key) {
        localValueDescription value;
        value.setVal(number);
        list.valueSetByPresentation(value, key);
    };
    set(geometry.width(), u"width");
    set(geometry.height(), u"height");
    set(geometry.x(), u"x");
    set(geometry.y(), u"y");
    const std::string bytes = localString::toUtf8(valueToJson(*list_));
    QSaveFile file(fileName_);
    return file.open(QIODevice::WriteOnly) &&
           file.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
               static_cast<qint64>(bytes.size()) &&
           file.commit();
}
