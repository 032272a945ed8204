#include "localConsole/console/localConsoleSettings.h"

#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>

#include "console/localConsoleSettingsText.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr const char16_t* settingsFileName = u"localConsole.ini";

// The list that a JSON text holds, in its typed form or as a plain object; null with a status when
// it holds none.
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

// Replaces a file in one step, or leaves it and gives false. QSaveFile does not serve: where the
// disk is full it puts an empty file in the place of the old one, and a killed process may leave
// its temporary file, each time under another name.
bool replaceFile(const QString& name, const std::string& bytes) {
    const QFileInfo before(name);
    if (before.exists() && !(before.isFile() && before.isWritable())) {
        return false;
    }
    const QString place = before.exists() ? before.canonicalFilePath() : name;
    QFile file(place + QStringLiteral(".new"));
    file.remove();
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const auto size = static_cast<qint64>(bytes.size());
    bool done = (!before.exists() || file.setPermissions(before.permissions())) &&
                file.write(bytes.data(), size) == size && localPlatform::flushToDisk(file.handle());
    file.close();
    if (done) {
        std::error_code error;
        std::filesystem::rename(file.filesystemFileName(), QFileInfo(place).filesystemFilePath(),
                                error);
        done = !error;
    }
    if (!done) {
        file.remove();
    }
    return done;
}

}  // namespace

localConsoleSettings::localConsoleSettings()
    : fileName_(localVclQString(localStd::pathJoin(localStd::startDirectory(), settingsFileName))) {
    int status = localErrorTypeOK;
    if (loadFileToText(status, localVclText(fileName_), text_, u"Utf8")) {
        list_ = listOf(status, text_);
    }
    if (!list_) {
        failure_ = statusMessage(status);
        list_ = localSlot::reserve();
        list_->objectBind(new localValueList, localValueList::classDeclaration());
    }
}

localConsoleSettings::~localConsoleSettings() {
    const localTurn::Hold turn;
    list_.clear();
}

const localValueList& localConsoleSettings::list() const {
    return *localValueList::of(*list_);
}

std::optional<int> localConsoleSettings::number(std::u16string_view key) const {
    const localValueDescription* value = list().valueByPresentation(key);
    if (value == nullptr || value->type != localValueTypeNUMBER || !(std::fabs(value->num) < 1e6)) {
        return std::nullopt;
    }
    return static_cast<int>(std::lround(value->num));
}

std::optional<QString> localConsoleSettings::command(std::u16string_view key) const {
    const localValueDescription* value = list().valueByPresentation(key);
    if (value == nullptr || value->type != localValueTypeSTRING) {
        return std::nullopt;
    }
    return localVclQString(value->wStr);
}

bool localConsoleSettings::geometrySave(const QRect& geometry) {
    const std::pair<const char*, int> numbers[] = {{"width", geometry.width()},
                                                   {"height", geometry.height()},
                                                   {"x", geometry.x()},
                                                   {"y", geometry.y()}};
    // A person may have written there since the start.
    QFile file(fileName_);
    const bool stands = file.exists();
    if (stands && !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const std::string before = stands ? file.readAll().toStdString() : std::string();
    std::string text = before;
    if (QByteArray::fromStdString(text).trimmed().isEmpty()) {
        localSlot list = localSlot::reserve();
        list->objectBind(new localValueList, localValueList::classDeclaration());
        text = localString::toUtf8(valueToJson(*list));
    }
    for (const auto& [key, number] : numbers) {
        if (!localSettingsNumberSet(text, key, number)) {
            return false;
        }
    }
    return (stands && text == before) || replaceFile(fileName_, text);
}
