#include "localInterpretatorUTF8/thread/localTurn.h"

#include <atomic>
#include <cassert>
#include <condition_variable>
#include <mutex>

namespace {

using Thread = std::thread::id;  // the default one is nobody's

// What all threads share. Everything is under the mutex; the owner may be read without it by those
// who only want to know whether it is themselves.
struct Turn {
    std::mutex mutex;
    std::condition_variable becameFree;
    std::atomic<Thread> owner = std::this_thread::get_id();
    int depth = 1;
    bool isLent = false;  // and not in use: nobody may take it
    localTurn::Windows* windows = nullptr;
    Thread windowsThread;
    bool windowsAsked = false;

    bool isFree() const { return owner == Thread() && !isLent; }
    void own(int newDepth) {
        owner = std::this_thread::get_id();
        depth = newDepth;
    }
};

// Lives to the end of the process, longer than any thread.
Turn& turn() {
    static Turn& only = *new Turn;
    return only;
}

// The program's first thread has the turn from the start, whichever asks first.
[[maybe_unused]] const bool startedOnFirstThread = turn().depth == 1;

void take(int depth) {
    Turn& shared = turn();
    std::unique_lock lock(shared.mutex);
    if (shared.windows != nullptr && shared.windowsThread == std::this_thread::get_id()) {
        while (!shared.isFree()) {
            shared.windowsAsked = true;
            lock.unlock();
            shared.windows->wait();
            lock.lock();
        }
    } else {
        shared.becameFree.wait(lock, [&shared] { return shared.isFree(); });
    }
    shared.own(depth);
}

void giveUp() {
    Turn& shared = turn();
    localTurn::Windows* told = nullptr;
    {
        const std::lock_guard lock(shared.mutex);
        shared.owner = Thread();
        if (shared.windowsAsked) {
            shared.windowsAsked = false;
            told = shared.windows;
        }
    }
    shared.becameFree.notify_one();
    if (told != nullptr) {
        told->freed();
    }
}

void goDeeper() {
    ++turn().depth;
}

void comeBack() {
    assert(localTurn::isHeld());
    if (--turn().depth == 0) {
        giveUp();
    }
}

}  // namespace

bool localTurn::isHeld() {
    return turn().owner.load(std::memory_order_relaxed) == std::this_thread::get_id();
}

void localTurn::windowsInstall(Windows* windows) {
    Turn& shared = turn();
    const std::lock_guard lock(shared.mutex);
    shared.windows = windows;
    shared.windowsThread = std::this_thread::get_id();
    shared.windowsAsked = false;
}

localTurn::Hold::Hold() {
    isHeld() ? goDeeper() : take(1);
}

localTurn::Hold::~Hold() {
    comeBack();
}

localTurn::Attempt::Attempt() : held_(isHeld()) {
    if (held_) {
        goDeeper();
        return;
    }
    Turn& shared = turn();
    const std::lock_guard lock(shared.mutex);
    held_ = shared.isFree();
    if (held_) {
        shared.own(1);
    } else if (shared.windowsThread == std::this_thread::get_id()) {
        shared.windowsAsked = shared.windows != nullptr;
    }
}

localTurn::Attempt::~Attempt() {
    if (held_) {
        comeBack();
    }
}

localTurn::Pause::Pause() : depth_(isHeld() ? turn().depth : 0) {
    if (depth_ != 0) {
        giveUp();
    }
}

localTurn::Pause::~Pause() {
    if (depth_ != 0) {
        take(depth_);
    }
}

localTurn::Loan::Loan() : depth_(isHeld() ? turn().depth : 0) {
    if (depth_ != 0) {
        Turn& shared = turn();
        const std::lock_guard lock(shared.mutex);
        shared.owner = Thread();
        shared.isLent = true;
    }
}

localTurn::Loan::~Loan() {
    if (depth_ != 0) {
        Turn& shared = turn();
        const std::lock_guard lock(shared.mutex);
        shared.isLent = false;
        shared.own(depth_);
    }
}

localTurn::Loan::Use::Use(const Loan& loan) : lent_(loan.depth_ != 0) {
    if (lent_) {
        Turn& shared = turn();
        const std::lock_guard lock(shared.mutex);
        shared.isLent = false;
        shared.own(1);
    }
}

localTurn::Loan::Use::~Use() {
    if (lent_) {
        Turn& shared = turn();
        const std::lock_guard lock(shared.mutex);
        assert(shared.depth == 1);
        shared.owner = Thread();
        shared.isLent = true;
    }
}
