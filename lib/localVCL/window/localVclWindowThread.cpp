#include "window/localVclWindowThread.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include "localVCL/window/localVclOnWindowThread.h"

localVclWindowThread& localVclWindowThread::instance() {
    static localVclWindowThread only;
    return only;
}

localVclWindowThread::localVclWindowThread() {
    // The first who needs it may be a thread of a program.
    if (qApp != nullptr) {
        moveToThread(qApp->thread());
    }
    connect(this, &localVclWindowThread::workSent, this, &localVclWindowThread::actOnOne,
            Qt::QueuedConnection);
    connect(this, &localVclWindowThread::turnFreed, this, &localVclWindowThread::becameFree,
            Qt::QueuedConnection);
}

void localVclWindowThread::act(const std::function<void()>& work) {
    Sent sent{work};
    {
        const std::lock_guard lock(mutex_);
        sent_.push_back(&sent);
    }
    emit workSent();
    sent.done.acquire();
}

void localVclWindowThread::actOnOne() {
    Sent* sent = nullptr;
    {
        const std::lock_guard lock(mutex_);
        sent = sent_.front();
        sent_.pop_front();
    }
    sent->work();
    sent->done.release();
}

void localVclWindowThread::wait() {
    QEventLoop loop;
    connect(this, &localVclWindowThread::becameFree, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void localVclWindowThread::freed() {
    emit turnFreed();
}

bool localVclIsWindowThread() {
    return QThread::currentThread() == qApp->thread();
}

void localVclSendToWindowThread(const std::function<void()>& work) {
    localVclWindowThread::instance().act(work);
}

void localVclOnWindowThread(const std::function<void()>& work) {
    if (localVclIsWindowThread()) {
        work();
        return;
    }
    const localTurn::Loan loan;
    localVclSendToWindowThread([&] {
        const localTurn::Loan::Use lent(loan);
        work();
    });
}

void localVclAskOnWindowThread(const std::function<void()>& work) {
    const localTurn::Pause pause;
    if (localVclIsWindowThread()) {
        work();
    } else {
        localVclSendToWindowThread(work);
    }
}
