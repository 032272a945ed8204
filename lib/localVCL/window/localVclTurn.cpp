#include "localVCL/window/localVclTurn.h"

#include <utility>

#include "localInterpretatorUTF8/thread/localTurn.h"
#include "window/localVclWindowThread.h"

void localVclTurnInstall() {
    localTurn::windowsInstall(&localVclWindowThread::instance());
}

localVclTurnWork::localVclTurnWork(QObject* parent) : QObject(parent) {
    connect(&localVclWindowThread::instance(), &localVclWindowThread::becameFree, this,
            &localVclTurnWork::attempt);
}

void localVclTurnWork::ask(std::function<void()> work) {
    waiting_ = std::move(work);
    attempt();
}

void localVclTurnWork::askOnce(std::function<void()> work) {
    auto* const own = new localVclTurnWork(&localVclWindowThread::instance());
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
