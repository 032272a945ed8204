#include "localConsole/debug/MyThread.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "debug/localDebugVariable.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localHalt.h"
#include "localInterpretatorUTF8/text/localTrace.h"
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
    endProgram();
}

void MyThread::run() {
    int status = localErrorTypeOK;
    call(status, text_, context_);
}

bool MyThread::call(int& status, const std::u16string& text, localContextUTF8* context) {
    std::uint32_t pos = 0;
    if (!textCompile(status, text, pos, &root_) || status != localErrorTypeOK) {
        traceLine(statusMessage(status), "call");
        return false;
    }
    localDebugVariablePut(*context, u"thisProcess", this);
    localSlot result;
    if (!root_.executeFunction(status, context, root_, localArguments(), result.asResult())) {
        if (!ending_) {
            traceLine(statusMessage(status), "call");
        }
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
        if (worker->ending_) {
            status = localErrorTypeOK;
            return false;
        }
    }
    return localOperatorCompiled::execute(status, context, node, args, result);
}

void MyThread::stop() {
    QEventLoop loop;
    connect(this, &MyThread::toLoop, &loop, &QEventLoop::quit);
    atStop_ = true;
    emit stopped();
    if (!ending_) {
        loop.exec();
    }
    atStop_ = false;
}

void MyThread::fromConsole(std::u16string line) {
    command_ = std::move(line);
    if (atStop_) {
        // From here on the worker counts as running: who waits must not take the old stop for the next.
        atStop_ = false;
        emit toLoop();
    }
}

void MyThread::waitForStop() {
    QEventLoop wait;
    connect(this, &MyThread::stopped, &wait, &QEventLoop::quit);
    connect(this, &QThread::finished, &wait, &QEventLoop::quit);
    while (isWorking()) {
        wait.exec(QEventLoop::ExcludeUserInputEvents);
    }
}

void MyThread::endProgram() {
    ending_ = true;
    emit toLoop();
    // The worker may be waiting for this thread to show something or to take a line.
    while (isRunning() && !wait(10)) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
}
