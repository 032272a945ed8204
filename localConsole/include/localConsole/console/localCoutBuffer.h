// The standard output stream as seen by a window: a stream buffer that tells of every finished line.
//
// The stream has no area to write into, so each byte comes through overflow() and whole texts through
// xsputn(), which does the same for many bytes at once. A line feed ends a line; what has none yet waits
// for it. After every line the event loop runs for a moment without the user's input, so that windows are
// painted while a program runs and yet no key reaches them.
//
// A thread of its own may write too: the signal is then queued to the window's thread.
#pragma once

#include <QObject>
#include <QString>

#include <streambuf>
#include <string>

class localCoutBuffer : public QObject, public std::streambuf {
    Q_OBJECT

public:
    explicit localCoutBuffer(QObject* parent = nullptr);

    // The last byte that was written.
    char lastCharacter() const { return lastCharacter_; }

signals:
    // A finished line without its line feed. Bytes that are no UTF-8 stand in it as U+FFFD.
    void COUT(const QString& text);

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;

private:
    void lineEnd();

    char lastCharacter_ = '\0';
    std::string line_;
};
