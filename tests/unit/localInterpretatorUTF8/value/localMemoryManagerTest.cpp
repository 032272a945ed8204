#include "localInterpretatorUTF8/value/localMemoryManager.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/library/localExtension.h"
#include "localInterpretatorUTF8/value/localCounters.h"
#include "support/countedClass.h"
#include "support/language.h"
#include "support/ownFolder.h"

namespace {

class localMemoryManagerTest : public languageTest {
protected:
    static localMemoryManager& store() { return *localMemoryManager::manager; }

    std::vector<localSlot> held;

    void holdAllFree() {
        while (store().getUsedCount() < localMemoryManager::slotCount) {
            held.push_back(localSlot::reserve());
        }
    }
};

using storeTest = localMemoryManagerTest;

std::vector<std::string> listingLines() {
    std::ostringstream stream;
    localMemoryManager::memoryDisplayData(stream);
    std::vector<std::string> lines;
    std::istringstream reader(stream.str());
    for (std::string line; std::getline(reader, line);) {
        lines.push_back(line);
    }
    return lines;
}

const char* const header = " [num]  [addr]  [links] [obj-links]";

TEST_F(storeTest, aReservedSlotIsTheNumberZeroWithOneLink) {
    const localSlot slot = localSlot::reserve();
    EXPECT_EQ(slot->linkCounter, 1U);
    EXPECT_EQ(slot->type, localValueTypeNUMBER);
    EXPECT_EQ(slot->num, 0.0);
    EXPECT_EQ(slot->toString().view(), u"0");
    EXPECT_EQ(store().getReservedCount(), 102400U);
}

TEST_F(storeTest, aSlotUsedBeforeIsEmptyAgain) {
    {
        const localSlot slot = localSlot::reserve();
        slot->setVal(u"stale");
        slot->objectBind(new countedObject, countedClass());
    }
    const localSlot slot = localSlot::reserve();
    EXPECT_EQ(slot->objClass, nullptr);
    EXPECT_EQ(slot->pointer, nullptr);
    EXPECT_TRUE(slot->wStr.empty());
    EXPECT_EQ(slot->toString().view(), u"0");
}

TEST_F(storeTest, aReleasedSlotIsGivenAgain) {
    localValueDescription* first = store().reserveSlot();
    localValueDescription::release(first);
    localValueDescription* second = store().reserveSlot();
    EXPECT_EQ(first, second);
    localValueDescription::release(second);
}

TEST_F(storeTest, theLowestFreeSlotIsAlwaysGiven) {
    for (int i = 0; i < 300; ++i) {
        held.push_back(localSlot::reserve());
    }
    std::vector<localValueDescription*> freed;
    std::mt19937 random(7);
    for (int i = 0; i < 100; ++i) {
        const std::size_t place = random() % held.size();
        freed.push_back(held[place].get());
        held.erase(held.begin() + static_cast<std::ptrdiff_t>(place));
    }
    std::sort(freed.begin(), freed.end());
    for (localValueDescription* wanted : freed) {
        held.push_back(localSlot::reserve());
        ASSERT_EQ(held.back().get(), wanted);
    }
}

TEST_F(storeTest, furtherLinksKeepTheSlot) {
    localValueDescription* slot = store().reserveSlot();
    const std::size_t used = store().getUsedCount();
    slot->setVal(u"shared");
    ++slot->linkCounter;
    localValueDescription::release(slot);
    EXPECT_EQ(slot->linkCounter, 1U);
    EXPECT_EQ(slot->toString().view(), u"shared");
    EXPECT_EQ(store().getUsedCount(), used);
    localValueDescription::release(slot);
    EXPECT_EQ(slot->linkCounter, 0U);
    EXPECT_EQ(store().getUsedCount(), used - 1);
}

TEST_F(storeTest, theLastLinkLetsGoOfTheObject) {
    const std::int64_t alive = countedObject::alive;
    localValueDescription* slot = store().reserveSlot();
    slot->objectBind(new countedObject, countedClass());
    ++slot->linkCounter;
    localValueDescription::release(slot);
    EXPECT_EQ(countedObject::alive, alive + 1);
    localValueDescription::release(slot);
    EXPECT_EQ(countedObject::alive, alive);
}

TEST_F(storeTest, releasingASlotTwiceHalts) {
    localValueDescription* slot = store().reserveSlot();
    localValueDescription::release(slot);
    EXPECT_HALT(localValueDescription::release(slot), "Error!!!  linkCounter cannot be negative!");
}

TEST_F(storeTest, allSlotsCanBeHeldAndGivenBack) {
    holdAllFree();
    EXPECT_EQ(store().getUsedCount(), 102400U);
    EXPECT_EQ(store().getReservedCount(), 102400U);
    // One free slot anywhere is found.
    for (const std::size_t place : {std::size_t{0}, held.size() / 2, held.size() - 1}) {
        localValueDescription* wanted = held[place].get();
        held[place].clear();
        held[place] = localSlot::reserve();
        EXPECT_EQ(held[place].get(), wanted);
    }
}

TEST_F(storeTest, theReservationPastTheLastSlotHalts) {
    holdAllFree();
    EXPECT_HALT(store().reserveSlot(),
                "Memory manager (localMemoryManager) overflow. Resize not available");
}

TEST_F(storeTest, aSecondStoreHalts) {
    EXPECT_EXIT(
        {
            std::cout.rdbuf(std::cerr.rdbuf());
            const localMemoryManager second;
        },
        testing::ExitedWithCode(1),
        testing::HasSubstr(" func: localMemoryManager file: localMemoryManager.cpp line: "));
}

TEST_F(storeTest, aLongStoreListsTotalsOnly) {
    const std::vector<std::string> lines = listingLines();
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines[0], header);
    EXPECT_EQ(lines[1], "all reserved 102400");
    EXPECT_EQ(lines[2], "used " + std::to_string(store().getUsedCount()));
    const std::string names[] = {"localContextUTF8",      "localClassDeclaration",
                                 "localValueDescription", "localValueList",
                                 "localValueTable",       "localDataBase",
                                 "localDataBaseTable",    "localDataBaseRecord"};
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_THAT(lines[3 + i], testing::MatchesRegex(names[i] + "::counterStaticTotal [0-9]+"));
    }
    EXPECT_EQ(lines[11], "");
    EXPECT_EQ(lines[12],
              "Внимание!!! При вызове из интерпретатора функции memoryDisplayData() два элемента "
              "данных добавляются самим интерпретатором.");
}

TEST_F(storeTest, theListingGoesToStandardOutputByDefault) {
    const std::size_t lines = listingLines().size();
    localMemoryManager::memoryDisplayData();
    ASSERT_EQ(output.rawLines().size(), lines);
    EXPECT_EQ(output.rawLines()[0], header);
}

TEST_F(storeTest, theListingCountsWhatLives) {
    const auto valueLine = [] { return listingLines()[5]; };
    const std::string before = valueLine();
    const std::int64_t count = localValueDescription::counterStaticTotal;
    EXPECT_EQ(before, "localValueDescription::counterStaticTotal " + std::to_string(count));
    const localValueDescription one;
    EXPECT_EQ(valueLine(),
              "localValueDescription::counterStaticTotal " + std::to_string(count + 1));
    // Slots are counted all at once; reserving one makes no new cell.
    const localSlot slot = localSlot::reserve();
    EXPECT_EQ(localValueDescription::counterStaticTotal, count + 1);
    EXPECT_GE(count, 102400);
}

TEST_F(storeTest, theListingIsAppendedToAFile) {
    const ownFolder folder;
    localMemoryManager::dispToLog(u"listing.log");
    localMemoryManager::dispToLog(u"listing.log");
    std::u16string text;
    ASSERT_TRUE(fileRead(u"listing.log", text, localString::codePageUtf8));
    EXPECT_EQ(std::count(text.begin(), text.end(), u'\n'), 25);
    EXPECT_EQ(text.find(u" [num]  [addr]"), 0U);
    localMemoryManager::dispToLog(u"no/such/folder/listing.log");
    EXPECT_THAT(output.rawLines(), testing::ElementsAre(testing::StartsWith(
                                       "Logfile [no/such/folder/listing.log] open ERROR! func: "
                                       "dispToLog file: ")));
}

TEST_F(storeTest, higherLibrariesPutTheirCountersIn) {
    EXPECT_EQ(localCounters().size(), 8U);
    static std::int64_t records = 0;
    records = 41;
    const std::int64_t* const before = localCounters()[7].total;
    localCounter brought[] = {{"localDataBaseRecord::counterStaticTotal", &records}};
    localExtensionAdd({.name = u"test", .counters = brought});
    EXPECT_EQ(listingLines()[10], "localDataBaseRecord::counterStaticTotal 41");
    ++records;
    EXPECT_EQ(listingLines()[10], "localDataBaseRecord::counterStaticTotal 42");
    brought[0].total = before;
    localExtensionAdd({.name = u"test", .counters = brought});
    EXPECT_EQ(listingLines().size(), 13U);
}

TEST(localMemoryManager, theFirstReservationBuildsTheStoreAndGivesSlotZero) {
    EXPECT_IN_FRESH_PROCESS({
        EXPECT_EQ(localMemoryManager::manager, nullptr);
        std::ostringstream stream;
        localMemoryManager::memoryDisplayData(stream);
        EXPECT_EQ(stream.str(), "localMemoryManager::manager not created yet!\n");
        localMemoryManager::start();
        localMemoryManager* const store = localMemoryManager::manager;
        EXPECT_NE(store, nullptr);
        localMemoryManager::start();
        EXPECT_EQ(localMemoryManager::manager, store);
        EXPECT_EQ(store->getReservedCount(), 0U);
        localValueDescription* const first = store->reserveSlot();
        EXPECT_EQ(store->getReservedCount(), 102400U);
        localValueDescription* const second = store->reserveSlot();
        EXPECT_EQ(second, first + 1);
        localValueDescription::release(first);
        EXPECT_EQ(store->reserveSlot(), first);
    });
}

TEST(localMemoryManager, aShortenedStoreListsItsSlots) {
    EXPECT_IN_FRESH_PROCESS({
        localMemoryManager::manager = new localMemoryManager(4);
        localMemoryManager& store = *localMemoryManager::manager;
        localValueDescription* const number = store.reserveSlot();
        localValueDescription* const object = store.reserveSlot();
        localValueDescription* const bare = store.reserveSlot();
        int native = 0;
        bare->objectBind(&native, nullptr);
        number->setVal(2.5);
        ++number->linkCounter;
        object->objectBind(new countedObject, countedClass());
        const localValueDescription copy(*object);
        const std::vector<std::string> lines = listingLines();
        EXPECT_EQ(lines.size(), 17U);
        const auto address = [](const void* slot) { return utf8(addressText(slot)); };
        EXPECT_EQ(lines[1], " [0]  [" + address(number) + "]  [2] " + utf8(number->dump()));
        // The text of an object is asked for in a slot of its own, the fourth.
        EXPECT_EQ(lines[2], " [1]  [" + address(object) + "]  [1]  [2] " + utf8(object->dump()));
        // An object that is not counted has no count to show.
        EXPECT_EQ(lines[3], " [2]  [" + address(bare) + "]  [1] " + utf8(bare->dump()));
        EXPECT_THAT(lines[4],
                    testing::MatchesRegex(" \\[3\\]  \\[0x[0-9a-f]+\\]  \\[0\\]  address: .*"
                                          "Type: \\[ЧИСЛО\\].*Val: \\[0\\] "));
        EXPECT_EQ(lines[5], "all reserved 4");
        EXPECT_EQ(lines[6], "used 3");
    });
}

TEST(localMemoryManager, aShortenedStoreEndsAtItsCapacity) {
    EXPECT_HALT_IN_FRESH_PROCESS(
        {
            localMemoryManager::manager = new localMemoryManager(130);
            for (int i = 0; i < 130; ++i) {
                localMemoryManager::manager->reserveSlot();
            }
            std::cerr << "130 reserved\n";
            localMemoryManager::manager->reserveSlot();
        },
        "Memory manager (localMemoryManager) overflow. Resize not available");
}

TEST(localMemoryManager, listingsEndAt256Slots) {
    for (const std::size_t capacity : {256U, 257U}) {
        EXPECT_IN_FRESH_PROCESS({
            localMemoryManager::manager = new localMemoryManager(capacity);
            localMemoryManager::manager->reserveSlot();
            EXPECT_EQ(listingLines().size(), capacity == 256 ? 13U + 256U : 13U);
        });
    }
}

}  // namespace
