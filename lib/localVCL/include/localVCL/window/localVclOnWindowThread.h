// Programs may run on a thread of their own, windows live on the application's. What a program asks
// of windows goes over there, and the program waits.
#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

// Runs `work` on the windows' thread and comes back when it is done. There must be an application.
template <typename Work>
void localVclOnWindowThread(const Work& work) {
    if (QThread::currentThread() == qApp->thread()) {
        work();
    } else {
        QMetaObject::invokeMethod(qApp, work, Qt::BlockingQueuedConnection);
    }
}
