#include "localConsole/console/localCoutBuffer.h"

#include <QCoreApplication>
#include <QThread>

#include <cstring>

#include "localVCL/window/localVclOnWindowThread.h"

namespace {
constexpr int mostLinesAhead = 500;
}

localCoutBuffer::localCoutBuffer(QObject* parent) : QObject(parent) {}

localCoutBuffer::int_type localCoutBuffer::overflow(int_type c) {
    if (traits_type::eq_int_type(c, traits_type::eof())) {
        return traits_type::not_eof(c);
    }
    const char byte = traits_type::to_char_type(c);
    xsputn(&byte, 1);
    return c;
}

std::streamsize localCoutBuffer::xsputn(const char* bytes, std::streamsize count) {
    Writer& own = writer();
    const char* const end = bytes + count;
    while (bytes != end) {
        const auto left = static_cast<std::size_t>(end - bytes);
        const auto* feed = static_cast<const char*>(std::memchr(bytes, '\n', left));
        own.line.append(bytes, feed != nullptr ? feed : end);
        bytes = feed != nullptr ? feed + 1 : end;
        lastCharacter_ = bytes[-1];
        if (feed != nullptr) {
            lineEnd(own);
        }
    }
    return count;
}

localCoutBuffer::Writer& localCoutBuffer::writer() {
    return QThread::currentThread() == thread() ? windowsThread_ : otherThreads_.localData();
}

void localCoutBuffer::lineEnd(Writer& writer) {
    const QString text = QString::fromStdString(writer.line);
    // Emptied before anyone hears of the line: who hears of it may write.
    writer.line.clear();
    if (QThread::currentThread()->isInterruptionRequested()) {
        return;
    }
    emit COUT(text);
    if (QThread::currentThread() == thread()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    } else if (++writer.linesAhead == mostLinesAhead) {
        writer.linesAhead = 0;
        localVclSendToWindowThread([] {});
    }
}
