// Runs of a program under DEBUG and TRACE on the calling thread, and the contract of their execute
// functions.
#include <gmock/gmock.h>

#include <iostream>
#include <memory>
#include <string>

#include "localConsole/debug/MyThread.h"
#include "localConsole/debug/localProcess.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localInterpretatorUTF8/value/localSlot.h"

using testing::HasSubstr;

namespace {

class watchedRun : public testing::Test {
protected:
    watchedRun() { localMemoryManager::start(); }

    std::string text(const char16_t* name) {
        return QString::fromStdU16String(context->varToString(name)).toStdString();
    }

    std::unique_ptr<localContextUTF8> context = std::make_unique<localContextUTF8>();
};

// A call on a thread that is no worker has nobody to wait for.
TEST_F(watchedRun, callOnTheWindowsThreadRunsThrough) {
    MyThread thread(u"", context.get());
    int status = localErrorTypeOK;
    EXPECT_TRUE(
        thread.call(status, u"a = 20;\nFOR i = 1 TO 2 DO\na = a+i;\nENDDO;\n", context.get()));
    EXPECT_EQ(text(u"a"), "23");
    EXPECT_FALSE(thread.isRunning());
}

TEST_F(watchedRun, aRunLeavesItsVariables) {
    const MyThread thread(u"", context.get());
    EXPECT_NE(context->varFind(u"thisThread"), nullptr);
    EXPECT_EQ(context->varFind(u"thisProcess"), nullptr);
    MyThread second(u"", context.get());
    int status = localErrorTypeOK;
    EXPECT_TRUE(second.call(status, u"a = 1;", context.get()));
    EXPECT_NE(context->varFind(u"thisProcess"), nullptr);
    EXPECT_EQ(context->variables().size(), 3U);
}

TEST_F(watchedRun, failuresAreTold) {
    MyThread thread(u"", context.get());
    int status = localErrorTypeOK;
    testing::internal::CaptureStdout();
    EXPECT_FALSE(thread.call(status, u"a = nothere;\n", context.get()));
    EXPECT_EQ(status, localErrorTypeATTRIBUTEWRONG);
    EXPECT_THAT(testing::internal::GetCapturedStdout(),
                HasSubstr("Неверный атрибут. func: call file: MyThread.cpp line: "));
}

TEST_F(watchedRun, compileFailuresAreToldAndRunNothing) {
    MyThread thread(u"", context.get());
    int status = localErrorTypeOK;
    testing::internal::CaptureStdout();
    EXPECT_FALSE(thread.call(status, u"a = 1;\nENDDO;\n", context.get()));
    EXPECT_EQ(status, localErrorTypeENDDO);
    EXPECT_THAT(testing::internal::GetCapturedStdout(),
                HasSubstr(" func: call file: MyThread.cpp"));
    EXPECT_EQ(context->varFind(u"a"), nullptr);
}

TEST_F(watchedRun, slotsAreGivenBack) {
    context.reset();
    const std::size_t used = localMemoryManager::manager->getUsedCount();
    context = std::make_unique<localContextUTF8>();
    {
        MyThread thread(u"", context.get());
        int status = localErrorTypeOK;
        EXPECT_TRUE(thread.call(status, u"FUNCTION f(n) RETURN n; ENDFUNCTION; a = f(1); RETURN 2;",
                                context.get()));
    }
    context.reset();
    EXPECT_EQ(localMemoryManager::manager->getUsedCount(), used);
}

TEST_F(watchedRun, aThreadThatNeverRanTakesStepsAndEnds) {
    MyThread thread(u"a = 1;", context.get());
    thread.fromConsole(u"STEP");
    thread.waitForStop();
    thread.programEnd();
    EXPECT_EQ(context->varFind(u"a"), nullptr);
}

TEST_F(watchedRun, tracingFunctionWithoutATraceShowsNothing) {
    localOperatorCompiled node(&localProcess::execute);
    node.type = localCompiledOperatorTypeRENURN;
    node.setExpression(u"(5)", false);
    int status = localErrorTypeOK;
    localSlot result;
    testing::internal::CaptureStdout();
    EXPECT_TRUE(
        localProcess::execute(status, context.get(), node, localArguments(), result.asResult()));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(status, localErrorTypeRETURN);
    EXPECT_EQ(result->toNumber(), 5);
}

using watchedRunDeathTest = watchedRun;

TEST_F(watchedRunDeathTest, resultMustBeNull) {
    const localOperatorCompiled node(&MyThread::execute);
    localValueDescription value;
    localValueDescription* result = &value;
    int status = localErrorTypeOK;
    EXPECT_EXIT(
        {
            std::cout.rdbuf(std::cerr.rdbuf());
            MyThread::execute(status, context.get(), node, localArguments(), result);
        },
        testing::ExitedWithCode(1),
        HasSubstr("Error!!!  MyThread::execute() result must be NULL! func: exit_FAILURE "));
}

}  // namespace
