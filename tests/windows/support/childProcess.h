// A second run of the test program itself, which the first one ends at a moment of its choice.
//
// It is started with arguments that the program's main() understands, tells by single letters how
// far it got, and never ends by itself.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <sys/types.h>

class childProcess {
public:
    enum class Run { freely, stopAtSystemCalls };

    // In the working directory. Its standard output goes nowhere.
    explicit childProcess(const QStringList& arguments, Run run = Run::freely);
    ~childProcess();
    childProcess(const childProcess&) = delete;
    childProcess& operator=(const childProcess&) = delete;

    // Called in the child: one more letter for the parent.
    static void tell(char letter);

    // All letters so far.
    const QByteArray& told();
    // Waits until the child has told so many letters; false when it is gone before.
    bool waitFor(qsizetype letters);

    // Lets a child that stops run until its main thread has done one more system call. False when
    // it is gone.
    bool nextSystemCall();

    // Ends it at once, unless it is gone, and takes the letters that were on their way. Gives the
    // number of the signal by which it ended, or 0 if it went by itself.
    int kill();

private:
    bool wait();
    bool takeLetters(bool patiently);

    pid_t id_ = -1;
    int letters_ = -1;
    int status_ = 0;
    QByteArray told_;
};
