#include "localInterpretatorUTF8/thread/localStackGuard.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

#include "support/language.h"

namespace {

struct descent {
    int depth = 0;
    int status = localErrorTypeOK;
};

// Goes down until the guard refuses. The frame is large, so that this takes few steps.
void descend(descent& way) {
    volatile char frame[4096];
    frame[0] = 1;
    if (!localStackGuard::enter(way.status, "descend")) {
        return;
    }
    ++way.depth;
    descend(way);
    frame[1] = frame[0];
}

TEST(localStackGuard, refusesNearTheEndWithStatus16AndOneLine) {
    const capturedOutput output;
    descent way;
    descend(way);
    EXPECT_GT(way.depth, 100);
    EXPECT_EQ(way.status, localErrorTypeCODE);
    ASSERT_EQ(output.rawLines().size(), 1U);
    EXPECT_THAT(output.rawLines()[0],
                testing::HasSubstr(" func: descend file: localStackGuardTest.cpp"));
}

TEST(localStackGuard, refusesAgainAfterTheFirstTimeAndLetsShallowCallsThrough) {
    const capturedOutput output;
    for (int i = 0; i < 3; ++i) {
        descent way;
        descend(way);
        EXPECT_EQ(way.status, localErrorTypeCODE);
        int status = localErrorTypeOK;
        EXPECT_TRUE(localStackGuard::enter(status, "shallow"));
        EXPECT_EQ(status, localErrorTypeOK);
    }
}

TEST(localStackGuard, knowsTheStackOfEveryThread) {
    const capturedOutput output;
    descent way;
    std::thread([&] { descend(way); }).join();
    EXPECT_GT(way.depth, 100);
    EXPECT_EQ(way.status, localErrorTypeCODE);
}

TEST(localStackGuard, leavesNoRoomToAThreadWhoseProgramsAreEnded) {
    const capturedOutput output;
    std::atomic<localStackGuard::Limit*> limit = nullptr;
    std::atomic<bool> ended = false;
    int status = localErrorTypeOK;
    bool entered = true;
    bool enteredBefore = false;
    std::thread worker([&] {
        int statusBefore = localErrorTypeOK;
        enteredBefore = localStackGuard::enter(statusBefore, "worker");
        limit = &localStackGuard::ownLimit();
        limit.notify_one();
        ended.wait(false);
        entered = localStackGuard::enter(status, "worker");
    });
    limit.wait(nullptr);
    localStackGuard::endPrograms(*limit);
    ended = true;
    ended.notify_one();
    worker.join();
    EXPECT_TRUE(enteredBefore);
    EXPECT_FALSE(entered);
    EXPECT_EQ(status, localErrorTypeCODE);
    EXPECT_TRUE(output.rawLines().empty());
    EXPECT_TRUE(localStackGuard::enter(status, "here"));
}

TEST(localStackGuard, leavesNoRoomToAThreadThatAsksOnlyAfterThat) {
    int status = localErrorTypeOK;
    bool entered = true;
    std::thread([&] {
        localStackGuard::endPrograms(localStackGuard::ownLimit());
        entered = localStackGuard::enter(status, "worker");
    }).join();
    EXPECT_FALSE(entered);
    EXPECT_EQ(status, localErrorTypeCODE);
}

}  // namespace
