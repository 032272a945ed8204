// Programs may run on a thread of their own, windows live on the application's. What a program asks
// of windows goes over there, and the program waits.
//
// Two ways, which differ in who is in the language meanwhile (localTurn):
//   localVclOnWindowThread     the work goes on with the program: opens a window, runs a form's
//                              module, evaluates. It has the program's turn, lent for the call.
//   localVclAskOnWindowThread  the work waits for a person or another program: a box, a choice, a
//                              dialog. The turn is given up until it is done, so the work may touch
//                              nothing of the language without asking for the turn itself.
// On the windows' thread itself the work is done at once, and the turn is kept or given up just so.
#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

#include "localInterpretatorUTF8/thread/localTurn.h"

inline bool localVclIsWindowThread() {
    return QThread::currentThread() == qApp->thread();
}

// Runs `work` on the windows' thread and comes back when it is done. There must be an application.
template <typename Work>
void localVclOnWindowThread(const Work& work) {
    if (localVclIsWindowThread()) {
        work();
        return;
    }
    const localTurn::Loan loan;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            const localTurn::Loan::Use lent(loan);
            work();
        },
        Qt::BlockingQueuedConnection);
}

template <typename Work>
void localVclAskOnWindowThread(const Work& work) {
    const localTurn::Pause pause;
    if (localVclIsWindowThread()) {
        work();
    } else {
        QMetaObject::invokeMethod(qApp, work, Qt::BlockingQueuedConnection);
    }
}
