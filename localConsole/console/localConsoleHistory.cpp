#include "localConsole/console/localConsoleHistory.h"

#include <QFile>

#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr const char16_t* historyFileName = u"console_history.log";

// The system takes a killed process out of a write only where it goes from one page of the file to
// the next. A line that does is kept in a file of its own, the mark, while it is being written.
constexpr qint64 page = 4096;  // bytes; larger pages are multiples of it

QString markOf(const QString& fileName) {
    return fileName + QStringLiteral(".part");
}

QByteArray contentOf(const QString& fileName) {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Whether a last line is what a torn write has left of the line in the mark. Any other line without
// an end is whole: some programs end no last line.
bool isPiece(const QByteArray& lastLine, const QString& fileName) {
    if (lastLine.isEmpty() || lastLine.endsWith('\n')) {
        return false;
    }
    const QByteArray marked = contentOf(markOf(fileName));
    return marked.size() > lastLine.size() && marked.startsWith(lastLine);
}

// Takes a piece at the file's end away. Gives whether the last line then has its end, as it has in
// an empty file.
bool endOfLastLineFind(QFile& file, const QString& fileName) {
    const qint64 size = file.size();
    if (size == 0 || (file.seek(size - 1) && file.read(1) == "\n")) {
        return true;
    }
    file.seek(0);
    const QByteArray bytes = file.readAll();
    const qsizetype lastLine = bytes.lastIndexOf('\n') + 1;
    return bytes.size() == size && isPiece(bytes.mid(lastLine), fileName) && file.resize(lastLine);
}

// Nothing of the line stays in the file when there is no room for all of it.
void append(const QString& fileName, const QByteArray& line) {
    QFile file(fileName);
    // Without a buffer, so that the line is one write; behind what another console has written
    // meanwhile.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) {
        return;
    }
    const QByteArray bytes = endOfLastLineFind(file, fileName) ? line : '\n' + line;
    const qint64 size = file.size();
    QFile mark(markOf(fileName));
    mark.remove();
    const bool staysInItsPage = size / page == (size + bytes.size() - 1) / page;
    if (!staysInItsPage && mark.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        mark.write(line);
        mark.close();
    }
    if (file.write(bytes) != bytes.size()) {
        file.resize(size);
    }
    if (!staysInItsPage) {
        mark.remove();
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
            if (!line.isEmpty() && !isPiece(bytes, fileName_)) {
                lines_.append(line);
            }
        }
    }
    goToEnd();
}

void localConsoleHistory::enter(const QString& command) {
    if (lines_.isEmpty() || lines_.last() != command) {
        lines_.append(command);
        append(fileName_, command.toUtf8() + '\n');
    }
    goToEnd();
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
