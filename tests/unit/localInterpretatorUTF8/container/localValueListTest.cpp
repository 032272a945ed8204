#include "localInterpretatorUTF8/container/localValueList.h"

#include <random>

#include "container/containers.h"

namespace {

static_assert(sizeof(localValueDescription) == 48, "what a value takes in a container");

class localValueListTest : public containerTest {
protected:
    // "presentation=text" of all items.
    static std::string itemsOf(const localValueList& list) {
        std::string text;
        for (const localValueListItem& item : list.items()) {
            text += (text.empty() ? "" : " ") + utf8(item.presentation) + "=" +
                    utf8(item.value.toString());
        }
        return text;
    }
};

TEST_F(localValueListTest, countsItselfWhileItLives) {
    const std::int64_t before = localValueList::counterStaticTotal;
    {
        const localValueList first;
        const localValueList second;
        EXPECT_EQ(localValueList::counterStaticTotal, before + 2);
        EXPECT_EQ(first.linkCounter, 0U);
        EXPECT_EQ(first.size(), 0U);
    }
    EXPECT_EQ(localValueList::counterStaticTotal, before);
}

TEST_F(localValueListTest, appendsEveryKindOfValueWithItsPresentation) {
    localValueList list;
    list.valueAppend(booleanCell(true), u"b");
    list.valueAppend(u"text", u"s");
    list.valueAppend(1.5, u"n");
    list.valueAppend(u"bare");
    auto* inner = new localValueList;
    list.valueAppend(inner, u"list");
    EXPECT_EQ(inner->linkCounter, 1U);
    EXPECT_EQ(localValueList::of(list.valueAt(5)), inner);
    list.valueRemove(5);
    EXPECT_EQ(itemsOf(list), "b=ИСТИНА s=text n=1.5 =bare");
}

TEST_F(localValueListTest, givesAnEmptyItemToFillInPlace) {
    localValueList list;
    localValueDescription& value = list.itemAppend(u"p");
    EXPECT_EQ(itemsOf(list), "p=0");
    value.setVal(u"filled");
    EXPECT_EQ(itemsOf(list), "p=filled");
}

TEST_F(localValueListTest, appendsAValueOfItsOwnWhileItMoves) {
    localValueList list;
    list.valueAppend(u"a text of some length");
    for (int i = 0; i < 1000; ++i) {
        list.valueAppend(list.valueAt(1));
    }
    EXPECT_EQ(list.size(), 1001U);
    for (const localValueListItem& item : list.items()) {
        ASSERT_EQ(item.value.wStr.view(), u"a text of some length");
    }
}

TEST_F(localValueListTest, insertsBeforeAPositionAndAppendsFromTheEndOn) {
    localValueList list;
    list.valueInsert(7, cellOf(u"b"), u"B");
    EXPECT_EQ(itemsOf(list), "B=b");
    list.valueInsert(0, cellOf(u"a"), u"A");
    list.valueInsert(3, cellOf(u"d"), u"D");
    list.valueInsert(3, cellOf(u"c"), u"C");
    list.valueInsert(99, cellOf(u"e"));
    EXPECT_EQ(itemsOf(list), "A=a B=b C=c D=d =e");
    list.valueInsert(1, list.valueAt(5), u"own");
    EXPECT_EQ(itemsOf(list), "own=e A=a B=b C=c D=d =e");
}

TEST_F(localValueListTest, removesOnlyPositionsThatAreThere) {
    localValueList list;
    EXPECT_FALSE(list.valueRemove(0));
    EXPECT_FALSE(list.valueRemove(1));
    for (const char16_t* text : {u"a", u"b", u"c", u"d"}) {
        list.valueAppend(text, text);
    }
    EXPECT_FALSE(list.valueRemove(0));
    EXPECT_FALSE(list.valueRemove(5));
    EXPECT_TRUE(list.valueRemove(1));
    EXPECT_TRUE(list.valueRemove(3));
    EXPECT_EQ(itemsOf(list), "b=b c=c");
}

TEST_F(localValueListTest, writesTheFirstItemOfAPresentationOrAppends) {
    localValueList list;
    EXPECT_EQ(list.valueSetByPresentation(cellOf(1), u"a"), 1U);
    EXPECT_EQ(list.valueSetByPresentation(cellOf(2), u"b"), 2U);
    list.valueAppend(3.0, u"a");
    EXPECT_EQ(list.valueSetByPresentation(cellOf(4), u"a"), 1U);
    EXPECT_EQ(itemsOf(list), "a=4 b=2 a=3");
}

TEST_F(localValueListTest, readsPresentationsOnlyWhereThereAreSome) {
    localValueList list;
    list.valueAppend(1.0, u"a");
    EXPECT_EQ(list.presentationGet(1).view(), u"a");
    EXPECT_TRUE(list.presentationGet(0).empty());
    EXPECT_TRUE(list.presentationGet(2).empty());
    EXPECT_FALSE(list.presentationSet(0, u"x"));
    EXPECT_FALSE(list.presentationSet(2, u"x"));
    EXPECT_TRUE(list.presentationSet(1, u"b"));
    EXPECT_EQ(itemsOf(list), "b=1");
    EXPECT_EQ(list.positionOf(u"a"), 0U);
    EXPECT_EQ(list.valueByPresentation(u"a"), nullptr);
    ASSERT_NE(list.valueByPresentation(u"b"), nullptr);
    EXPECT_EQ(list.valueByPresentation(u"b")->num, 1.0);
}

// Every lookup must agree with a walk over the items, whatever changed before it and whether the
// list stands on a table of presentations or not.
TEST_F(localValueListTest, findsTheFirstPresentationThroughAnyChanges) {
    for (const std::uint32_t texts : {3U, 40U, 2000U}) {
        std::mt19937 random(texts);
        const auto below = [&random](std::size_t limit) { return random() % limit; };
        const auto text = [&] {
            const std::string digits = std::to_string(below(texts));
            return std::u16string(digits.begin(), digits.end());
        };
        localValueList list;
        for (int i = 0; i < 300; ++i) {
            list.itemAppend(text());
        }
        for (int step = 0; step < 20000; ++step) {
            const std::size_t position = list.size() == 0 ? 0 : 1 + below(list.size());
            switch (below(step / 2000 % 2 == 0 ? 40 : 12)) {
                case 0:
                    list.valueInsert(position, cellOf(0.0), text());
                    break;
                case 1:
                    list.valueRemove(position);
                    break;
                case 2:
                case 3:
                    list.valueRemove(list.size());
                    break;
                case 4:
                case 5:
                    list.itemAppend(text());
                    break;
                case 6:
                case 7:
                    list.presentationSet(position, text());
                    break;
                case 8:
                    list.valueSetByPresentation(cellOf(1), text());
                    break;
                default: {
                    const std::u16string wanted = text();
                    std::size_t expected = 0;
                    for (std::size_t i = list.size(); i > 0; --i) {
                        if (list.items()[i - 1].presentation.view() == wanted) {
                            expected = i;
                        }
                    }
                    ASSERT_EQ(list.positionOf(wanted), expected) << "step " << step;
                }
            }
        }
    }
}

TEST_F(localValueListTest, findsEveryPresentationOfALongListFast) {
    localValueList list;
    constexpr int count = 200000;
    for (int i = 0; i < count; ++i) {
        const std::string digits = std::to_string(i);
        list.valueAppend(i, std::u16string(digits.begin(), digits.end()));
    }
    for (int i = count; i-- > 0;) {
        const std::string digits = std::to_string(i);
        ASSERT_EQ(list.positionOf(std::u16string(digits.begin(), digits.end())),
                  static_cast<std::size_t>(i) + 1);
    }
    list.clear();
    EXPECT_EQ(list.positionOf(u"5"), 0U);
}

TEST_F(localValueListTest, objectsInItCountExactly) {
    auto* object = new countedObject;
    cell.objectBind(object, countedClass());
    localValueList list;
    for (int i = 0; i < 10; ++i) {
        list.valueAppend(cell);
        list.valueInsert(1, cell);
    }
    EXPECT_EQ(object->linkCounter, 21);
    list.valueRemove(3);
    EXPECT_EQ(object->linkCounter, 20);
    list.valueAt(1).setVal(1.0);
    EXPECT_EQ(object->linkCounter, 19);
    list.valueSetByPresentation(cell, u"p");
    list.valueSetByPresentation(cell, u"p");
    EXPECT_EQ(object->linkCounter, 20);
    list.clear();
    EXPECT_EQ(object->linkCounter, 1);
}

TEST_F(localValueListTest, aListIsDeletedWithItsLastHolder) {
    const std::int64_t before = localValueList::counterStaticTotal;
    auto* list = new localValueList;
    cell.objectBind(list, localValueList::classDeclaration());
    auto* object = new countedObject;
    list->itemAppend().objectBind(object, countedClass());
    {
        const localValueDescription second(cell);
        EXPECT_EQ(list->linkCounter, 2U);
    }
    EXPECT_EQ(list->linkCounter, 1U);
    cell.reset();
    EXPECT_EQ(localValueList::counterStaticTotal, before);
}

TEST_F(localValueListTest, removingTheLastHolderOfAnotherListDeletesIt) {
    localValueList list;
    list.valueAppend(new localValueList);
    const std::int64_t before = localValueList::counterStaticTotal;
    list.valueRemove(1);
    EXPECT_EQ(localValueList::counterStaticTotal, before - 1);
}

TEST_F(localValueListTest, aChainOfAMillionListsGoesWithoutRecursion) {
    cell.objectBind(new localValueList, localValueList::classDeclaration());
    for (int i = 0; i < 1000000; ++i) {
        auto* outer = new localValueList;
        outer->itemAppend().take(cell);
        cell.objectBind(outer, localValueList::classDeclaration());
    }
    EXPECT_GE(localValueList::counterStaticTotal, 1000001);
    cell.reset();
}

TEST_F(localValueListTest, aListThatHoldsItselfStaysUntilItLetsGo) {
    const std::int64_t before = localValueList::counterStaticTotal;
    auto* list = new localValueList;
    {
        localValueDescription holder;
        holder.objectBind(list, localValueList::classDeclaration());
        list->valueAppend(holder);
        EXPECT_EQ(list->linkCounter, 2U);
    }
    EXPECT_EQ(list->linkCounter, 1U);
    EXPECT_EQ(localValueList::counterStaticTotal, before + 1);
    localValueDescription last(list->valueAt(1));
    list->clear();
    EXPECT_EQ(list->linkCounter, 1U);
    last.reset();
    EXPECT_EQ(localValueList::counterStaticTotal, before);
}

TEST_F(localValueListTest, itsTextTellsSizeHoldersAndAddress) {
    auto* list = new localValueList;
    cell.objectBind(list, localValueList::classDeclaration());
    list->valueAppend(1.0);
    const std::u16string wanted =
        u"Список значений [1] links [1] adr [" + addressText(list) + u"] ";
    EXPECT_EQ(utf8(list->toStringList()), utf8(wanted));
    EXPECT_EQ(utf8(cell.toString()), utf8(wanted));
}

TEST_F(localValueListTest, isFoundInAValueOnlyWhereItIs) {
    EXPECT_EQ(localValueList::of(cell), nullptr);
    cell.setVal(u"VALUELIST");
    EXPECT_EQ(localValueList::of(cell), nullptr);
    cell.objectBind(new localValueTable, localValueTable::classDeclaration());
    EXPECT_EQ(localValueList::of(cell), nullptr);
    auto* list = new localValueList;
    cell.objectBind(list, localValueList::classDeclaration());
    EXPECT_EQ(localValueList::of(cell), list);
    EXPECT_EQ(localValueTable::of(cell), nullptr);
}

}  // namespace
