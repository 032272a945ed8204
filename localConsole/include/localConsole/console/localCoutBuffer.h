// The standard output stream as seen by a window: a stream buffer that tells of every finished
// line.
//
// The stream has no area to write into, so each byte comes through overflow() and whole texts
// through xsputn(), which does the same for many bytes at once. A line feed ends a line; what has
// none yet waits for it. After every line the event loop runs for a moment without the user's
// input, so that windows are painted while a program runs and yet no key reaches them.
//
// A thread of its own may write too: each thread has its own unfinished line, and the signal is
// queued to the windows' thread. So that waiting lines do not fill the memory, such a thread stands
// still now and then until the windows' thread has taken them. What it writes after it was asked
// for its interruption is dropped.
#pragma once

#include <QObject>
#include <QString>
#include <QThreadStorage>

#include <atomic>
#include <streambuf>
#include <string>

class localCoutBuffer : public QObject, public std::streambuf {
    Q_OBJECT

public:
    explicit localCoutBuffer(QObject* parent = nullptr);

    // The last byte that was written, by any thread.
    char lastCharacter() const { return lastCharacter_; }

signals:
    // A finished line without its line feed. Bytes that are no UTF-8 stand in it as U+FFFD.
    void COUT(const QString& text);

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;

private:
    // What a thread has written.
    struct Writer {
        std::string line;
        int linesAhead = 0;  // told since the windows' thread was last waited for
    };

    Writer& writer();
    void lineEnd(Writer& writer);

    std::atomic<char> lastCharacter_ = '\0';
    Writer windowsThread_;
    QThreadStorage<Writer> otherThreads_;
};
