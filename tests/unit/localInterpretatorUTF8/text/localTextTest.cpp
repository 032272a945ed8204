#include "localInterpretatorUTF8/text/localText.h"

#include <gmock/gmock.h>

#include <new>

namespace {

const char16_t* unitsOf(const localText& text) {
    return text.view().data();
}

TEST(localText, aNewTextIsEmpty) {
    const localText text;
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.size(), 0U);
    EXPECT_EQ(text.view(), u"");
    EXPECT_TRUE(text == localText(u""));
}

TEST(localText, aCopySharesTheUnits) {
    const localText text = u"длинный текст";
    const localText copy = text;
    EXPECT_EQ(copy, text);
    EXPECT_EQ(unitsOf(copy), unitsOf(text));
}

TEST(localText, aMovedTextIsEmpty) {
    localText text = u"abc";
    const localText moved = std::move(text);
    EXPECT_EQ(moved.view(), u"abc");
    EXPECT_TRUE(text.empty());  // NOLINT(bugprone-use-after-move): that state is promised
}

TEST(localText, assigningToItselfChangesNothing) {
    localText text = u"abc";
    const localText& same = text;
    text = same;
    EXPECT_EQ(text.view(), u"abc");
    localText& moved = text;
    text = std::move(moved);
    EXPECT_EQ(text.view(), u"abc");
}

TEST(localText, assigningAShorterViewOfTheSameBufferShortens) {
    localText text = u"abc";
    text.append(u"x");
    localText longer = text;
    longer.append(u"yz");
    longer = text;
    EXPECT_EQ(longer.view(), u"abcx");
}

TEST(localText, appendingDoesNotShowInOtherHolders) {
    localText first = u"ab";
    first.append(u"c");
    localText second = first;
    second.append(u"d");
    EXPECT_EQ(first.view(), u"abc");
    EXPECT_EQ(second.view(), u"abcd");
}

TEST(localText, twoHoldersThatAppendBranch) {
    localText stem = u"stem";
    stem.append(u"-");
    localText left = stem;
    localText right = stem;
    left.append(u"left");
    right.append(u"right");
    EXPECT_EQ(stem.view(), u"stem-");
    EXPECT_EQ(left.view(), u"stem-left");
    EXPECT_EQ(right.view(), u"stem-right");
    stem.append(u"again");
    EXPECT_EQ(left.view(), u"stem-left");
    EXPECT_EQ(stem.view(), u"stem-again");
}

TEST(localText, theLastHolderAppendsInPlace) {
    localText text = u"0123456789";
    text.append(u"a");
    const char16_t* before = unitsOf(text);
    text.append(u"b");
    EXPECT_EQ(unitsOf(text), before);
    EXPECT_EQ(text.view(), u"0123456789ab");
}

TEST(localText, appendingATextToItselfDoubles) {
    for (const std::size_t length : {1U, 3U, 16U, 100U}) {
        const std::u16string once(length, u'ж');
        localText text = once;
        text.append(text);
        EXPECT_EQ(text.view(), once + once);
        text.append(text);
        EXPECT_EQ(text.view(), once + once + once + once);
    }
}

TEST(localText, appendingAPartOfItselfIsSafe) {
    localText text = u"abcdef";
    for (int i = 0; i < 20; ++i) {
        const std::u16string wanted = text.string() + u"bcd";
        text.append(text.view().substr(1, 3));
        ASSERT_EQ(text.view(), wanted);
    }
}

TEST(localText, appendingNothingChangesNothing) {
    localText text;
    text.append(u"");
    EXPECT_TRUE(text.empty());
    text.append(u"a");
    text.append({});
    EXPECT_EQ(text.view(), u"a");
}

TEST(localText, manyAppendsGiveTheWholeText) {
    localText text;
    std::u16string wanted;
    for (int i = 0; i < 100000; ++i) {
        const char16_t unit[] = {static_cast<char16_t>(u'а' + i % 32), u'\0'};
        text.append(unit);
        wanted += unit;
    }
    EXPECT_EQ(text.view(), wanted);
}

TEST(localText, clearingLeavesOtherHoldersAlone) {
    localText text = u"abc";
    const localText copy = text;
    text.clear();
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(copy.view(), u"abc");
    text.append(u"new");
    EXPECT_EQ(text.view(), u"new");
}

TEST(localText, zeroUnitsAreUnitsLikeOthers) {
    const std::u16string units(u"a\0b", 3);
    localText text = units;
    text.append(units);
    EXPECT_EQ(text.view(), units + units);
}

TEST(localText, aTextPastTheLongestIsRefused) {
    localText text = u"a";
    // The view is never read: its length alone is too much.
    const std::u16string_view tooLong(text.view().data(), localText::maxLength);
    EXPECT_THROW(text.append(tooLong), std::bad_alloc);
    EXPECT_EQ(text.view(), u"a");
}

}  // namespace
