// The turn of the language among threads. The thread of the tests has it from the start.
#include "localInterpretatorUTF8/thread/localTurn.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "support/language.h"

namespace {

// Does it on another thread and comes back when it is done.
void elsewhere(const std::function<void()>& act) {
    std::thread(act).join();
}

bool isFreeElsewhere() {
    bool had = false;
    elsewhere([&] { had = static_cast<bool>(localTurn::Attempt()); });
    return had;
}

// A thread of windows without windows: work that is sent to it waits until it serves events.
class sentWork : public localTurn::Windows {
public:
    sentWork() { localTurn::windowsInstall(this); }
    ~sentWork() override { localTurn::windowsInstall(nullptr); }

    // One piece of work, or the news that the turn is free, whichever comes first.
    void wait() override {
        ++waits;
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return work_ || news_; });
        news_ = false;
        if (const auto work = std::exchange(work_, nullptr)) {
            lock.unlock();
            work();
            lock.lock();
            done_ = true;
            changed_.notify_all();
        }
    }
    void freed() override {
        const std::lock_guard lock(mutex_);
        ++freedCount;
        news_ = true;
        changed_.notify_all();
    }

    // Called on another thread; comes back when the work is done.
    void send(std::function<void()> work) {
        std::unique_lock lock(mutex_);
        done_ = false;
        work_ = std::move(work);
        changed_.notify_all();
        changed_.wait(lock, [this] { return done_; });
    }

    int waits = 0;
    int freedCount = 0;

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::function<void()> work_;
    bool news_ = false;
    bool done_ = false;
};

TEST(localTurn, theThreadOfMainHasItFromTheStart) {
    EXPECT_TRUE(localTurn::isHeld());
    bool heldElsewhere = true;
    elsewhere([&] { heldElsewhere = localTurn::isHeld(); });
    EXPECT_FALSE(heldElsewhere);
    EXPECT_FALSE(isFreeElsewhere());
}

TEST(localTurn, aPauseGivesItUpUntilItGoes) {
    {
        const localTurn::Pause pause;
        EXPECT_FALSE(localTurn::isHeld());
        EXPECT_TRUE(isFreeElsewhere());
        EXPECT_TRUE(isFreeElsewhere());
    }
    EXPECT_TRUE(localTurn::isHeld());
    EXPECT_FALSE(isFreeElsewhere());
}

TEST(localTurn, canBeEnteredAgainOnItsOwnThread) {
    const localTurn::Pause pause;
    {
        const localTurn::Hold outer;
        {
            const localTurn::Hold inner;
            const localTurn::Attempt innermost;
            EXPECT_TRUE(innermost);
        }
        EXPECT_TRUE(localTurn::isHeld());
        EXPECT_FALSE(isFreeElsewhere());
    }
    EXPECT_FALSE(localTurn::isHeld());
    EXPECT_TRUE(isFreeElsewhere());
}

TEST(localTurn, comesBackFromAPauseAsOftenAsItWasAskedFor) {
    const localTurn::Pause outside;
    std::optional<localTurn::Hold> outer(std::in_place);
    {
        const localTurn::Hold inner;
        {
            const localTurn::Pause pause;
            EXPECT_TRUE(isFreeElsewhere());
            const localTurn::Hold meanwhile;
            EXPECT_FALSE(isFreeElsewhere());
            const localTurn::Pause within;
            EXPECT_TRUE(isFreeElsewhere());
        }
        EXPECT_TRUE(localTurn::isHeld());
    }
    EXPECT_TRUE(localTurn::isHeld());
    EXPECT_FALSE(isFreeElsewhere());
    outer.reset();
    EXPECT_TRUE(isFreeElsewhere());
}

TEST(localTurn, aPauseOfAThreadWithoutItDoesNothing) {
    elsewhere([] {
        const localTurn::Pause pause;
        EXPECT_FALSE(localTurn::isHeld());
    });
    EXPECT_TRUE(localTurn::isHeld());
}

TEST(localTurn, aThreadWaitsForIt) {
    bool first = true;
    bool inOrder = false;
    const localTurn::Pause outside;
    std::optional<localTurn::Hold> turn(std::in_place);
    std::thread other([&] {
        const localTurn::Hold waited;
        inOrder = !first;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    first = false;
    turn.reset();
    other.join();
    EXPECT_TRUE(inOrder);
}

TEST(localTurn, keepsTwoThreadsThatContendApart) {
    constexpr int rounds = 20000;
    int count = 0;  // of no atomic kind
    const auto work = [&count] {
        for (int i = 0; i < rounds; ++i) {
            const localTurn::Hold turn;
            ++count;
            if (i % 100 == 0) {
                const localTurn::Pause pause;
                std::this_thread::yield();
            }
            ++count;
        }
    };
    std::thread other(work);
    {
        const localTurn::Pause outside;
        work();
        other.join();
    }
    EXPECT_EQ(count, 4 * rounds);
}

// --- loans

TEST(localTurn, isLentForAPieceOfWork) {
    {
        const localTurn::Hold deeper;
        const localTurn::Loan loan;
        EXPECT_FALSE(localTurn::isHeld());
        EXPECT_FALSE(isFreeElsewhere());
        elsewhere([&] {
            const localTurn::Loan::Use lent(loan);
            EXPECT_TRUE(localTurn::isHeld());
            const localTurn::Hold again;
            EXPECT_FALSE(isFreeElsewhere());
        });
        EXPECT_FALSE(localTurn::isHeld());
        EXPECT_FALSE(isFreeElsewhere());
    }
    EXPECT_TRUE(localTurn::isHeld());
    EXPECT_FALSE(isFreeElsewhere());
}

TEST(localTurn, lentWorkMayPause) {
    bool inPause = false;
    bool behindPause = true;
    bool heldBehindPause = false;
    {
        const localTurn::Loan loan;
        elsewhere([&] {
            const localTurn::Loan::Use lent(loan);
            {
                const localTurn::Pause pause;
                inPause = isFreeElsewhere();
            }
            heldBehindPause = localTurn::isHeld();
            behindPause = isFreeElsewhere();
        });
    }
    EXPECT_TRUE(inPause);
    EXPECT_TRUE(heldBehindPause);
    EXPECT_FALSE(behindPause);
    EXPECT_TRUE(localTurn::isHeld());
}

TEST(localTurn, isLentOn) {
    const localTurn::Loan loan;
    elsewhere([&] {
        const localTurn::Loan::Use lent(loan);
        {
            const localTurn::Loan second;
            elsewhere([&] {
                const localTurn::Loan::Use lentOn(second);
                EXPECT_TRUE(localTurn::isHeld());
            });
        }
        EXPECT_TRUE(localTurn::isHeld());
    });
}

TEST(localTurn, aThreadWithoutItLendsNothing) {
    const localTurn::Pause outside;
    {
        const localTurn::Loan loan;
        elsewhere([&] {
            const localTurn::Loan::Use lent(loan);
            EXPECT_FALSE(localTurn::isHeld());
        });
        EXPECT_TRUE(isFreeElsewhere());
    }
    EXPECT_FALSE(localTurn::isHeld());
}

// --- the windows' thread

TEST(localTurn, tellsTheWindowsThreadOnceThatItIsFree) {
    const localTurn::Pause outside;
    sentWork windows;
    elsewhere([&] { const localTurn::Hold nobodyAsked; });
    EXPECT_EQ(windows.freedCount, 0);

    std::mutex order;
    std::unique_lock asked(order);
    std::atomic<bool> holds = false;
    std::thread other([&] {
        const localTurn::Hold turn;
        holds = true;
        holds.notify_one();
        const std::lock_guard waitForTheQuestions(order);
    });
    holds.wait(false);
    EXPECT_FALSE(localTurn::Attempt());
    EXPECT_FALSE(localTurn::Attempt());
    EXPECT_EQ(windows.freedCount, 0);
    asked.unlock();
    other.join();
    EXPECT_EQ(windows.freedCount, 1);
    EXPECT_TRUE(localTurn::Attempt());
}

TEST(localTurn, isToldToBeFreeWhenItIsGivenUpForAWhile) {
    const localTurn::Pause outside;
    sentWork windows;
    std::atomic<int> step = 0;
    std::thread other([&] {
        const localTurn::Hold turn;
        step = 1;
        step.notify_one();
        step.wait(1);
        const localTurn::Pause pause;
        step = 3;
        step.notify_one();
    });
    step.wait(0);
    EXPECT_FALSE(localTurn::Attempt());
    step = 2;
    step.notify_one();
    step.wait(2);
    other.join();
    EXPECT_EQ(windows.freedCount, 1);
}

// Blocking here would never end: the worker waits for this thread.
TEST(localTurn, theWindowsThreadServesTheWorkerWhileItWaits) {
    const localTurn::Pause outside;
    sentWork windows;
    std::atomic<bool> holds = false;
    int served = 0;
    bool onTurn = false;
    std::thread worker([&] {
        const localTurn::Hold turn;
        holds = true;
        holds.notify_one();
        for (int i = 0; i < 10; ++i) {
            const localTurn::Loan loan;
            windows.send([&] {
                const localTurn::Loan::Use lent(loan);
                const localTurn::Hold again;
                onTurn = localTurn::isHeld();
                ++served;
            });
        }
    });
    holds.wait(false);
    {
        const localTurn::Hold turn;
        EXPECT_EQ(served, 10);
        EXPECT_TRUE(onTurn);
        EXPECT_GE(windows.waits, 10);
    }
    worker.join();
}

// --- the doors

#ifndef NDEBUG
using localTurnDeathTest = languageTest;

TEST_F(localTurnDeathTest, theDoorsOfTheLanguageAskForIt) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    localContextUTF8 context;
    const std::function<void()> doors[] = {
        [] { localSlot::reserve(); },
        [&] { evaluate("1+1", &context); },
        [] { check("1+1"); },
        [&] {
            int status = localErrorTypeOK;
            localSlot result;
            context.funcExec(status, u"PI", localArguments(), result.asResult());
        },
        [] { const localContextUTF8 scope; },
        [&] {
            int status = localErrorTypeOK;
            void* object = &context;
            const localArguments none;
            localSlot result;
            localContextUTF8::classDeclaration()->methodExec(status, &context, object, u"PI", &none,
                                                             result.asResult());
        },
    };
    for (const auto& door : doors) {
        EXPECT_DEATH(elsewhere(door), "isHeld");
    }
}
#endif

}  // namespace
