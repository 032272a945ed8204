#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "library/libraryCall.h"
#include "localInterpretatorUTF8/file/localFile.h"

namespace {

using displayFunctionsTest = libraryTest;

TEST_F(displayFunctionsTest, theListingDoesNotCountItsOwnResult) {
    const std::size_t used = localMemoryManager::manager->getUsedCount();
    const libraryOutcome outcome = call(u"MEMORYDISPLAYDATA");
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(outcome.result->linkCounter, 1U);
    EXPECT_EQ(outcome.result->num, 1.0);
    EXPECT_THAT(output.rawLines(), testing::Contains("used " + std::to_string(used)));
}

TEST_F(displayFunctionsTest, itsResultIsASlotThatNobodyElseHolds) {
    const libraryOutcome outcome = call(u"MEMORYDISPLAYDATA");
    const localSlot other = localSlot::reserve();
    EXPECT_NE(other.get(), outcome.result.get());
}

TEST_F(displayFunctionsTest, aLogThatCannotBeOpenedIsToldInALine) {
    const std::filesystem::path log = utf8(logFileName());
    std::filesystem::remove(log);
    std::filesystem::create_directory(log);
    EXPECT_TRUE(call(u"LOGWRITE", u"line").done);
    EXPECT_TRUE(call(u"MEMORYDISPLAYDATA", 1.0).done);
    EXPECT_TRUE(call(u"MEMORYDISPLAYVARS", u"*", 1.0).done);
    std::filesystem::remove(log);
    const std::string line = "Logfile [" + log.string() + "] open ERROR!";
    EXPECT_THAT(output.lines(), testing::ElementsAre(line, line, line));
}

TEST_F(displayFunctionsTest, aContextAnswersWithItsAddress) {
    localContextUTF8 context;
    localSlot value = localSlot::reserve();
    value->objectBind(&context, localContextUTF8::classDeclaration());
    EXPECT_EQ(value->toString().view(),
              u"объект класса [КОНТЕКСТ] по адресу [" + addressText(&context) + u"]");
}

TEST_F(displayFunctionsTest, aContextThatHasGoneHasNoText) {
    localSlot value = localSlot::reserve();
    {
        localContextUTF8 context;
        value->objectBind(&context, localContextUTF8::classDeclaration());
    }
    EXPECT_TRUE(value->toString().empty());
}

}  // namespace
