#include "localInterpretatorUTF8/value/localSlot.h"

#include <gmock/gmock.h>

#include "support/language.h"

namespace {

class localSlotTest : public languageTest {
protected:
    static std::size_t used() { return localMemoryManager::manager->getUsedCount(); }
};

TEST_F(localSlotTest, givesItsLinkBackWhenItGoes) {
    const std::size_t before = used();
    {
        const localSlot slot = localSlot::reserve();
        EXPECT_TRUE(slot);
        EXPECT_EQ(used(), before + 1);
    }
    EXPECT_EQ(used(), before);
}

TEST_F(localSlotTest, anEmptyOneHoldsNothing) {
    localSlot slot;
    EXPECT_FALSE(slot);
    EXPECT_EQ(slot.get(), nullptr);
    slot.clear();
}

TEST_F(localSlotTest, movingHandsTheLinkOn) {
    const std::size_t before = used();
    localSlot first = localSlot::reserve();
    localValueDescription* value = first.get();
    localSlot second = std::move(first);
    EXPECT_EQ(second.get(), value);
    EXPECT_FALSE(first);  // NOLINT(bugprone-use-after-move): promised
    EXPECT_EQ(used(), before + 1);
    localSlot third = localSlot::reserve();
    third = std::move(second);
    EXPECT_EQ(third.get(), value);
    EXPECT_EQ(used(), before + 1) << "what the target held went back";
    EXPECT_EQ(value->linkCounter, 1U);
}

TEST_F(localSlotTest, sharingTakesALinkOfItsOwn) {
    const std::size_t before = used();
    localSlot first = localSlot::reserve();
    first->setVal(7.0);
    localSlot second = localSlot::share(*first);
    EXPECT_EQ(second.get(), first.get());
    EXPECT_EQ(first->linkCounter, 2U);
    EXPECT_EQ(used(), before + 1);
    first.clear();
    EXPECT_EQ(second->linkCounter, 1U);
    EXPECT_EQ(second->num, 7.0) << "the value lives until the last link is given back";
    second.clear();
    EXPECT_EQ(used(), before);
}

TEST_F(localSlotTest, asResultIsEmptiedFirst) {
    const std::size_t before = used();
    localSlot slot = localSlot::reserve();
    localValueDescription*& result = slot.asResult();
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(used(), before);
    result = localMemoryManager::manager->reserveSlot();
    EXPECT_EQ(slot.get(), result);
}

TEST_F(localSlotTest, handingOverLeavesTheLinkToTheCaller) {
    localSlot slot = localSlot::reserve();
    localValueDescription* value = slot.handOver();
    EXPECT_FALSE(slot);
    EXPECT_EQ(value->linkCounter, 1U);
    localValueDescription::release(value);
}

}  // namespace
