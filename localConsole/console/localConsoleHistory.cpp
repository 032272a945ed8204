#include "localConsole/console/localConsoleHistory.h"

#include <QFile>

#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr const char16_t* historyFileName = u"console_history.log";

// The system takes a killed process out of a write only where it goes from one page of the file to
// the next. So a last line that has no end and stops just there is a piece; any other was left by a
// program that ends no last line, and is whole.
bool isPiece(const QByteArray& lastLine, qint64 fileSize) {
    constexpr qint64 page = 4096;  // bytes; larger pages are multiples of it
    return fileSize % page == 0 && !lastLine.endsWith('\n');
}

// How much of a file that ends with a piece the whole lines take; all of it where it cannot be
// read.
qint64 sizeWithoutPiece(QFile& file) {
    file.seek(0);
    const QByteArray bytes = file.readAll();
    return bytes.size() == file.size() ? bytes.lastIndexOf('\n') + 1 : file.size();
}

// Nothing of the line stays in the file when there is no room for all of it.
void append(const QString& fileName, QByteArray line) {
    QFile file(fileName);
    // Without a buffer, so that the line is one write; behind what another console has written
    // meanwhile.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) {
        return;
    }
    qint64 size = file.size();
    if (size > 0 && file.seek(size - 1)) {
        const QByteArray last = file.read(1);
        if (isPiece(last, size)) {
            size = sizeWithoutPiece(file);
            file.resize(size);
        } else if (last != "\n") {
            line.prepend('\n');
        }
    }
    if (file.write(line) != line.size()) {
        file.resize(size);
    }
}

}  // namespace

localConsoleHistory::localConsoleHistory() {
    const std::u16string folder = localStd::fileSearch(historyFileName);
    if (folder.empty()) {
        localHost::current().report(
            {.kind = localReport::Kind::warning,
             .text = u"Файл " + std::u16string(historyFileName) + u" не найден!"});
    }
    fileName_ = localVclQString(localStd::pathJoin(
        folder.empty() ? localPlatform::workingDirectory() : folder, historyFileName));
    QFile file(fileName_);
    if (file.open(QIODevice::ReadOnly)) {
        while (!file.atEnd()) {
            const QByteArray bytes = file.readLine();
            const QString line = QString::fromUtf8(bytes).trimmed();
            if (!line.isEmpty() && !isPiece(bytes, file.pos())) {
                lines_.append(line);
            }
        }
    }
    index_ = lines_.size();
}

void localConsoleHistory::enter(const QString& command) {
    if (lines_.isEmpty() || lines_.last() != command) {
        lines_.append(command);
        append(fileName_, command.toUtf8() + '\n');
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

// The line shown is the one after the place gone to, not the place's own: one step back from the
// bottom shows the last line, and forward from there nothing. Meant.
std::optional<QString> localConsoleHistory::forward() {
    if (index_ == lines_.size()) {
        return std::nullopt;
    }
    ++index_;
    return index_ < lines_.size() ? lines_[index_] : QString();
}
