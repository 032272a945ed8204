#include "localConsole/console/localCoutBuffer.h"

#include <QCoreApplication>

#include <cstring>

localCoutBuffer::localCoutBuffer(QObject* parent) : QObject(parent) {}

localCoutBuffer::int_type localCoutBuffer::overflow(int_type c) {
    if (traits_type::eq_int_type(c, traits_type::eof())) {
        return traits_type::not_eof(c);
    }
    lastCharacter_ = traits_type::to_char_type(c);
    if (lastCharacter_ == '\n') {
        lineEnd();
    } else {
        line_ += lastCharacter_;
    }
    return c;
}

std::streamsize localCoutBuffer::xsputn(const char* bytes, std::streamsize count) {
    const char* const end = bytes + count;
    while (bytes != end) {
        const auto left = static_cast<std::size_t>(end - bytes);
        const auto* feed = static_cast<const char*>(std::memchr(bytes, '\n', left));
        line_.append(bytes, feed != nullptr ? feed : end);
        bytes = feed != nullptr ? feed + 1 : end;
        lastCharacter_ = bytes[-1];
        if (feed != nullptr) {
            lineEnd();
        }
    }
    return count;
}

void localCoutBuffer::lineEnd() {
    const QString text = QString::fromStdString(line_);
    // Emptied before anyone hears of the line: who hears of it may write.
    line_.clear();
    emit COUT(text);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
