#include "localConsole/console/localConsoleHistory.h"

#include <QFile>

#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localVCL/text/localVclText.h"

namespace {
constexpr const char16_t* historyFileName = u"console_history.log";
}

localConsoleHistory::localConsoleHistory() {
    const std::u16string folder = localStd::fileSearch(historyFileName);
    if (folder.empty()) {
        localHost::current().messageBox(
            localHost::MessageKind::warning, u"",
            u"Файл " + std::u16string(historyFileName) + u" не найден!");
    }
    fileName_ = localVclQString(localStd::pathJoin(
        folder.empty() ? localPlatform::workingDirectory() : folder, historyFileName));
    QFile file(fileName_);
    if (file.open(QIODevice::ReadOnly)) {
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            if (!line.isEmpty()) {
                lines_.append(line);
            }
        }
    }
    index_ = lines_.size();
}

void localConsoleHistory::enter(const QString& command) {
    if (lines_.isEmpty() || lines_.last() != command) {
        lines_.append(command);
        QFile file(fileName_);
        if (file.open(QIODevice::ReadWrite)) {
            QByteArray line = command.toUtf8() + '\n';
            // A last line without an end, left by another program, must not run into this one.
            if (file.size() > 0 && file.seek(file.size() - 1) && file.read(1) != "\n") {
                line.prepend('\n');
            }
            file.seek(file.size());
            file.write(line);
        }
    }
    index_ = lines_.size();
}

std::optional<QString> localConsoleHistory::back() {
    if (index_ == 0) {
        return std::nullopt;
    }
    --index_;
    return lines_[index_];
}

// The line shown is the one after the place gone to, not the place's own: one step back from the bottom
// shows the last line, and forward from there nothing. Meant.
std::optional<QString> localConsoleHistory::forward() {
    if (index_ == lines_.size()) {
        return std::nullopt;
    }
    ++index_;
    return index_ < lines_.size() ? lines_[index_] : QString();
}
