// The thread of the windows as other threads see it: it does work that they send, and it waits for
// the turn of the language in an event loop.
//
// Work is handed over by a queue with a lock; the toolkit only wakes the thread. So the order of
// what both threads do to the work's data shows to the thread sanitizer, which cannot look into the
// toolkit's own way of waiting for a call.
#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>
#include <semaphore>

#include "localInterpretatorUTF8/thread/localTurn.h"

class localVclWindowThread : public QObject, public localTurn::Windows {
    Q_OBJECT

public:
    // Lives on the application's thread.
    static localVclWindowThread& instance();

    // Called on any other thread: comes back when the work is done over there, in the order of the
    // calls and of what was posted before.
    void act(const std::function<void()>& work);

    void wait() override;
    void freed() override;

signals:
    // Told on the windows' thread after it had asked for the turn; somebody may have taken it
    // again.
    void becameFree();
    // From any thread to this one.
    void workSent();
    void turnFreed();

private:
    struct Sent {
        const std::function<void()>& work;
        std::binary_semaphore done{0};
    };

    localVclWindowThread();
    void actOnOne();

    std::mutex mutex_;
    std::deque<Sent*> sent_;
};
