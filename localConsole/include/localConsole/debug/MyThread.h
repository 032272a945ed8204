// The worker of a DEBUG run: it compiles a program and runs it, standing still before each
// statement until the person types STEP.
//
// The statement engine knows nothing of this: the tree's nodes carry MyThread::execute, which
// stops, and then runs the node as ever. The worker has the turn of the language (localTurn) while
// a statement works and gives it up at a stop, so the console may look and assign there; while it
// works, the console waits with the next command (waitForStop).
//
// The object belongs to the windows' thread. It keeps the compiled tree as long as it lives, since
// signals on their way carry pointers into it.
#pragma once

#include <QMutex>
#include <QString>
#include <QThread>

#include <atomic>
#include <string>

#include "localInterpretatorUTF8/thread/localStackGuard.h"
#include "localInterpretatorUTF8/tree/localOperatorCompiled.h"

class localContextUTF8;

class MyThread : public QThread {
    Q_OBJECT

public:
    // A run of a program's text in a context, which must outlive the run. Puts the variable
    // "thisThread" into the context.
    MyThread(std::u16string text, localContextUTF8* context, QObject* parent = nullptr);
    // Ends the program where it stands and waits for the worker.
    ~MyThread() override;

    // Compiles and runs on the calling thread; what fails is told by lines on the standard output
    // stream.
    bool call(int& status, const std::u16string& text, localContextUTF8* context);

    // The stepping execute function. On a thread that is no MyThread it does not stop: a function
    // that a debugged program defined may be called from the console.
    static bool execute(int& status, localContextUTF8* context, const localOperatorCompiled& node,
                        const localArguments& args, localValueDescription*& result);

    // Whether the worker runs and stands at no stop. Once false it stays so until the windows'
    // thread lets the worker go on.
    bool isWorking() const { return state_ == State::working && isRunning(); }
    // Comes back when the worker stands at a stop or has ended. Windows are painted meanwhile and
    // hear of their closing, and the turn is given up. Who wants no other input either holds it
    // back.
    void waitForStop();
    // Makes the program fail at its present stop, or wherever it works, without a line: a thread
    // that is asked for its interruption has nothing more to say (localCoutBuffer). Comes back at
    // once.
    void programInterrupt();
    // Interrupts the program and waits for the worker. Windows are painted meanwhile, and answer
    // what the program asks; the turn is given up.
    void programEnd();

signals:
    // The statement about to run.
    void operChanged(const localOperatorCompiled* node);
    // Connected and silent: nothing emits these.
    void toConsole(std::u16string* text);
    void toConsoleAsQString(QString text);
    // Lets a stopped worker go on.
    void toLoop();
    // The worker stands at a stop.
    void stopped();

public slots:
    // A line for the debugger. STEP is the only one yet: the worker goes on to the next stop.
    void fromConsole(std::u16string line);

protected:
    void run() override;

private:
    enum class State { working, atStop, ended };

    void stop();

    std::u16string command_;
    std::u16string text_;
    localContextUTF8* context_;
    localOperatorCompiled root_;
    std::atomic<State> state_ = State::working;
    QMutex limitMutex_;
    localStackGuard::Limit* limit_ = nullptr;  // the worker's, while it runs
};
