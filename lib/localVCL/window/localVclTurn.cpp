#include "localVCL/window/localVclTurn.h"

#include <QEventLoop>

#include <utility>

#include "localInterpretatorUTF8/thread/localTurn.h"
#include "window/localVclTurnWindows.h"

localVclTurnWindows& localVclTurnWindows::instance() {
    static localVclTurnWindows only;
    return only;
}

void localVclTurnWindows::wait() {
    QEventLoop loop;
    connect(this, &localVclTurnWindows::becameFree, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void localVclTurnWindows::freed() {
    QMetaObject::invokeMethod(this, &localVclTurnWindows::becameFree, Qt::QueuedConnection);
}

void localVclTurnInstall() {
    localTurn::windowsInstall(&localVclTurnWindows::instance());
}

localVclTurnWork::localVclTurnWork(QObject* parent) : QObject(parent) {
    connect(&localVclTurnWindows::instance(), &localVclTurnWindows::becameFree, this,
            &localVclTurnWork::attempt);
}

void localVclTurnWork::ask(std::function<void()> work) {
    waiting_ = std::move(work);
    attempt();
}

void localVclTurnWork::askOnce(std::function<void()> work) {
    auto* const own = new localVclTurnWork(&localVclTurnWindows::instance());
    own->ask([own, work = std::move(work)] {
        own->deleteLater();
        work();
    });
}

void localVclTurnWork::attempt() {
    if (!waiting_) {
        return;
    }
    if (const localTurn::Attempt turn; turn) {
        // Taken out first: the work may ask again, or delete this.
        std::exchange(waiting_, nullptr)();
    }
}
