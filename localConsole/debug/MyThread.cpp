#include "localConsole/debug/MyThread.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "debug/localDebugCompile.h"
#include "debug/localDebugVariable.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

// A plain block passes without a stop; a branch, whose expression is its condition, does not.
bool stopsAt(const localOperatorCompiled& node) {
    switch (node.type) {
        case localCompiledOperatorTypeNONE:
            return false;
        case localCompiledOperatorTypeBLOCK:
            return !trimLeft(node.expression()).empty();
        default:
            return true;
    }
}

}  // namespace

MyThread::MyThread(std::u16string text, localContextUTF8* context, QObject* parent)
    : QThread(parent), text_(std::move(text)), context_(context), root_(&MyThread::execute) {
    localDebugVariablePut(*context_, u"thisThread", this);
}

MyThread::~MyThread() {
    programEnd();
}

void MyThread::run() {
    {
        const QMutexLocker lock(&limitMutex_);
        limit_ = &localStackGuard::ownLimit();
    }
    int status = localErrorTypeOK;
    if (!isInterruptionRequested()) {
        const localTurn::Hold turn;
        localGuarded(status, "run", [&] { return call(status, text_, context_); });
    }
    const QMutexLocker lock(&limitMutex_);
    limit_ = nullptr;
    state_ = State::ended;
}

bool MyThread::call(int& status, const std::u16string& text, localContextUTF8* context) {
    if (!localDebugCompile(status, text, root_)) {
        traceLine(localStatusWords(status), "call");
        return false;
    }
    localDebugVariablePut(*context, u"thisProcess", this);
    localSlot result;
    if (!root_.executeFunction(status, context, root_, localArguments(), result.asResult())) {
        traceLine(localStatusWords(status), "call");
        return false;
    }
    return true;
}

bool MyThread::execute(int& status, localContextUTF8* context, const localOperatorCompiled& node,
                       const localArguments& args, localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(u"MyThread::execute() result must be NULL!");
    }
    if (auto* worker = qobject_cast<MyThread*>(QThread::currentThread())) {
        emit worker->operChanged(&node);
        if (stopsAt(node)) {
            worker->stop();
        }
        if (worker->isInterruptionRequested()) {
            status = localErrorTypeOK;
            return false;
        }
    }
    return localOperatorCompiled::execute(status, context, node, args, result);
}

void MyThread::stop() {
    const localTurn::Pause pause;
    QEventLoop loop;
    connect(this, &MyThread::toLoop, &loop, &QEventLoop::quit);
    state_ = State::atStop;
    emit stopped();
    while (state_ == State::atStop && !isInterruptionRequested()) {
        loop.exec();
    }
    state_ = State::working;
}

void MyThread::fromConsole(std::u16string line) {
    command_ = std::move(line);
    // From here on the worker counts as working: who waits must not take the old stop for the next.
    State expected = State::atStop;
    if (state_.compare_exchange_strong(expected, State::working)) {
        emit toLoop();
    }
}

void MyThread::waitForStop() {
    const localTurn::Pause pause;
    QEventLoop wait;
    connect(this, &MyThread::stopped, &wait, &QEventLoop::quit);
    connect(this, &QThread::finished, &wait, &QEventLoop::quit);
    while (isWorking()) {
        wait.exec();
    }
}

void MyThread::programInterrupt() {
    requestInterruption();
    {
        const QMutexLocker lock(&limitMutex_);
        if (limit_ != nullptr) {
            localStackGuard::endPrograms(*limit_);
        }
    }
    emit toLoop();
}

void MyThread::programEnd() {
    const localTurn::Pause pause;
    programInterrupt();
    // The worker may be waiting for this thread to show something or to take a line.
    while (!wait(10)) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}
