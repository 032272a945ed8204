#include "library/localTextSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

TEST(textSearch, findsTheFirstOccurrenceAtOrBehindAPlace) {
    const localTextSearch search(u"bc");
    EXPECT_EQ(search.find(u"abcabc", 0), 1U);
    EXPECT_EQ(search.find(u"abcabc", 1), 1U);
    EXPECT_EQ(search.find(u"abcabc", 2), 4U);
    EXPECT_EQ(search.find(u"abcabc", 5), localTextSearch::nowhere);
    EXPECT_EQ(search.find(u"abcabc", 99), localTextSearch::nowhere);
    EXPECT_EQ(search.find(u"", 0), localTextSearch::nowhere);
}

TEST(textSearch, findsAnEmptyPartWhereItLooks) {
    const localTextSearch search(u"");
    EXPECT_EQ(search.find(u"abc", 0), 0U);
    EXPECT_EQ(search.find(u"abc", 3), 3U);
    EXPECT_EQ(search.find(u"abc", 4), localTextSearch::nowhere);
}

// Two letters make many near misses, and parts around the length where the way of searching
// changes.
TEST(textSearch, findsPartsOfAnyLengthAsAPlainSearchDoes) {
    std::mt19937 random(1);
    int found = 0;
    for (int round = 0; round < 20000; ++round) {
        std::u16string text(random() % 120, u'a');
        for (char16_t& unit : text) {
            unit = random() % 8 == 0 ? u'b' : u'a';
        }
        std::u16string part(random() % 40, u'a');
        if (random() % 2 == 0 && part.size() < text.size()) {
            part = text.substr(random() % (text.size() - part.size()), part.size());
        } else if (!part.empty()) {
            part.back() = u'b';
        }
        const std::size_t from = random() % 20;
        const std::size_t wanted = text.find(part, from);
        ASSERT_EQ(localTextSearch(part).find(text, from), wanted);
        found += wanted != std::u16string::npos && part.size() > 16 ? 1 : 0;
    }
    EXPECT_GT(found, 1000);
}

}  // namespace
