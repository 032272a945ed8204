#include "index/localDbPasses.h"

#include "support/localDbTest.h"

namespace {

using testing::ElementsAre;
using Kind = localDbKeyValue::Kind;
constexpr auto forward = localDbDirection::forward;
constexpr auto backward = localDbDirection::backward;
constexpr auto byField = localDbTermForm::byField;
constexpr auto byName = localDbTermForm::byName;

const std::vector<localDbKeyColumn> abc{
    {.name = u"a", .numeric = true}, {.name = u"b", .numeric = true}, {.name = u"c"}};

std::vector<std::string> passes(const std::vector<localDbKeyColumn>& columns, const localDbKey& key,
                                std::size_t fixed = 0, localDbDirection direction = forward,
                                localDbTermForm form = byField) {
    std::vector<std::string> all;
    for (const auto& condition : localDbPassConditions(columns, key, fixed, direction, form)) {
        all.push_back(narrow(condition));
    }
    return all;
}

TEST(localDbPasses, aFullKeyGivesAPassAColumnAndOneMore) {
    EXPECT_THAT(passes(abc, {u"1", u"2", u"3"}),
                ElementsAre("(a=01) and (b=02) and (c='3')", "(a=01) and (b=02) and (c>'3')",
                            "(a=01) and (b>02)", "(a>01)"));
}

TEST(localDbPasses, aTextKeyIsQuoted) {
    EXPECT_THAT(passes({{.name = u"code"}}, {u"A10"}), ElementsAre("(code='A10')", "(code>'A10')"));
}

TEST(localDbPasses, fewerValuesGiveFewerPasses) {
    EXPECT_THAT(passes(abc, {u"1"}), ElementsAre("(a=01)", "(a>01)"));
    EXPECT_THAT(passes(abc, {}), ElementsAre(""));
}

TEST(localDbPasses, valuesPastTheColumnsAreLeftOut) {
    EXPECT_THAT(passes({{.name = u"a"}}, {u"1", u"2"}), ElementsAre("(a='1')", "(a>'1')"));
}

TEST(localDbPasses, noPassGoesPastTheFixedColumns) {
    EXPECT_THAT(passes(abc, {u"7", u"0", u"x"}, 1),
                ElementsAre("(a=07) and (b=00) and (c='x')", "(a=07) and (b=00) and (c>'x')",
                            "(a=07) and (b>00)"));
    EXPECT_THAT(passes(abc, {u"7"}, 1), ElementsAre("(a=07)"));
    EXPECT_THAT(passes(abc, {}, 1), ElementsAre());
}

TEST(localDbPasses, bareNumbersHaveAZeroInFront) {
    EXPECT_THAT(passes({{.name = u"a", .numeric = true}}, {u""}), ElementsAre("(a=0)", "(a>0)"));
    EXPECT_THAT(passes({{.name = u"a", .numeric = true}}, {u" -5 "}),
                ElementsAre("(a=0-5)", "(a>0-5)"));
}

TEST(localDbPasses, byNameOnlyIdIsBare) {
    EXPECT_THAT(passes({{.name = u"a", .numeric = true}, {.name = u"id", .numeric = true}},
                       {u"1", u" 2 "}, 0, forward, byName),
                ElementsAre("(a='1')  and (id=02) ", "(a='1')  and (id>02) ", "(a>'1') "));
    EXPECT_THAT(passes({{.name = u"tov.id", .numeric = true}}, {u"2"}, 0, backward, byName),
                ElementsAre("(tov.id='2') ", "(tov.id<'2') "));
}

TEST(localDbPasses, aQuoteInAValueBreaksTheStatement) {
    EXPECT_THAT(passes({{.name = u"a"}}, {u"it's"}), ElementsAre("(a='it's')", "(a>'it's')"));
}

TEST(localDbPasses, nothingComesBeforeNull) {
    const std::vector<localDbKeyColumn> ab{{.name = u"a", .nullable = true},
                                           {.name = u"b", .nullable = true}};
    const localDbKeyValue null(u"", Kind::null);
    EXPECT_THAT(passes(ab, {null, null}),
                ElementsAre("(a is null) and (b is null)", "(a is null) and (b is not null)",
                            "(a is not null)"));
    EXPECT_THAT(passes(ab, {u"x", null}, 0, backward),
                ElementsAre("(a='x') and (b is null)", "(a<'x')", "(a is null)"));
    EXPECT_THAT(passes(ab, {null, u"x"}, 0, backward),
                ElementsAre("(a is null) and (b='x')", "(a is null) and (b<'x')",
                            "(a is null) and (b is null)"));
    // Walked forward, a descending column ends with NULL.
    EXPECT_THAT(passes({{.name = u"a", .descending = true, .nullable = true}}, {u"x"}),
                ElementsAre("(a='x')", "(a<'x')", "(a is null)"));
    EXPECT_THAT(passes({{.name = u"a", .descending = true, .nullable = true}}, {u"x"}, 0, backward),
                ElementsAre("(a='x')", "(a>'x')"));
}

TEST(localDbPasses, aColumnWithoutATypeComparesAsItsValuesDo) {
    const std::vector<localDbKeyColumn> a{
        {.name = u"a", .affinity = localDbKeyColumn::Affinity::none}};
    const auto equality = [&](const localDbKeyValue& value) { return passes(a, {value})[0]; };
    EXPECT_EQ(equality({u"5", Kind::number}), "(a=5)");
    EXPECT_EQ(equality({u"5", Kind::text}), "(a='5')");
    EXPECT_EQ(equality({u"it's", Kind::text}), "(a='it''s')");
    EXPECT_EQ(equality({u"00ff", Kind::bytes}), "(a=X'00ff')");
    EXPECT_EQ(equality({u"-inf", Kind::number}), "(a=-9e999)");
    EXPECT_EQ(equality(u"5"), "(a=5)");
    EXPECT_EQ(equality(u"5 kg"), "(a='5 kg')");
}

TEST(localDbPasses, aColumnThatHoldsAnotherKindOfValueStillFindsIt) {
    const std::vector<localDbKeyColumn> a{{.name = u"a", .numeric = true}};
    EXPECT_EQ(passes(a, {{u"abc", Kind::text}})[0], "(a='abc')");
    EXPECT_EQ(passes(a, {{u"41", Kind::bytes}})[0], "(a=X'41')");
    EXPECT_EQ(passes(a, {{u"inf", Kind::number}})[0], "(a=9e999)");
}

TEST(localDbPasses, aCollationIsSaidWhereTheColumnHasAnother) {
    EXPECT_THAT(passes({{.name = u"a", .collation = u"NOCASE", .collationSaid = true}}, {u"x"}),
                ElementsAre("(a collate NOCASE='x')", "(a collate NOCASE>'x')"));
    const localDbKeyValue null(u"", Kind::null);
    EXPECT_THAT(passes({{.name = u"a", .collation = u"NOCASE", .collationSaid = true}}, {null}),
                ElementsAre("(a is null)", "(a collate NOCASE>='')"));
    EXPECT_THAT(passes({{.name = u"a",
                         .affinity = localDbKeyColumn::Affinity::number,
                         .collation = u"NOCASE",
                         .collationSaid = true}},
                       {null}),
                ElementsAre("(a is null)", "(a collate NOCASE>=-9e999)"));
}

}  // namespace
