#include "localInterpretatorUTF8/json/localJsonReader.h"

#include "json/jsonShape.h"

using namespace localInterpretatorUTF8;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct parsedJson {
    bool done = false;
    int status = localErrorTypeOK;
    localPosition pos = 0;
    std::string shape;
    std::vector<std::string> lines;
};

parsedJson parse(std::u16string_view text, localPosition from = 0) {
    const capturedOutput lines;
    parsedJson outcome;
    outcome.pos = from;
    localSlot value;
    outcome.done =
        scanStringParseJson(outcome.status, std::u16string(text), outcome.pos, value.asResult());
    outcome.shape = shapeOf(*value);
    outcome.lines = lines.lines();
    return outcome;
}

// The shape of a text that must be read without a fault.
std::string shape(std::u16string_view text) {
    const parsedJson outcome = parse(text);
    EXPECT_TRUE(outcome.done) << utf8(text);
    EXPECT_EQ(localErrorTypeOK, outcome.status);
    EXPECT_THAT(outcome.lines, IsEmpty());
    return outcome.shape;
}

// The lines of a text that must end in status 34.
std::vector<std::string> faultLines(std::u16string_view text) {
    const parsedJson outcome = parse(text);
    EXPECT_FALSE(outcome.done) << utf8(text);
    EXPECT_EQ(localErrorTypeJSONPARSE, outcome.status) << utf8(text);
    return outcome.lines;
}

struct jsonStringToken {
    std::string text;
    localPosition pos;
};

jsonStringToken stringToken(std::u16string_view text) {
    localPosition pos = 0;
    const std::string token = utf8(scanStringGetJsonStringToken(std::u16string(text), pos));
    return {token, pos};
}

class localJsonReader : public jsonTest {};
class localJsonString : public jsonTest {};

TEST_F(localJsonString, EndsOnTheClosingQuote) {
    const jsonStringToken token = stringToken(u"один\" rest");
    EXPECT_EQ("один", token.text);
    EXPECT_EQ(4u, token.pos);
}

TEST_F(localJsonString, EndsWithTheTextWhenThereIsNoQuote) {
    const jsonStringToken token = stringToken(u"abc");
    EXPECT_EQ("abc", token.text);
    EXPECT_EQ(3u, token.pos);
    EXPECT_EQ("", stringToken(u"").text);
}

TEST_F(localJsonString, ResolvesEscapesOfOneLetter) {
    EXPECT_EQ("'\"\\/", stringToken(uR"(\'\"\\\/")").text);
    EXPECT_EQ("\t\n\r\f\b", stringToken(uR"(\t\n\r\f\b")").text);
}

TEST_F(localJsonString, ResolvesFourHexadecimalDigits) {
    EXPECT_EQ("Ж", stringToken(uR"(\u0416")").text);
    EXPECT_EQ("aяЯb", stringToken(uR"(a\u044f\u042Fb")").text);
    EXPECT_EQ("A7", stringToken(uR"(\u00417")").text);
}

TEST_F(localJsonString, KeepsAnIncompleteCode) {
    EXPECT_EQ("\\u041", stringToken(uR"(\u041")").text);
    EXPECT_EQ("\\u04G6", stringToken(uR"(\u04G6")").text);
    EXPECT_EQ("\\u", stringToken(uR"(\u)").text);
    EXPECT_EQ("\\u12\n", stringToken(uR"(\u12\n)").text);
}

TEST_F(localJsonString, KeepsTheBackslashOfOtherUnits) {
    EXPECT_EQ("\\[\\]\\{\\}\\q", stringToken(uR"(\[\]\{\}\q")").text);
}

TEST_F(localJsonString, KeepsABackslashAtTheEnd) {
    const jsonStringToken token = stringToken(u"ab\\");
    EXPECT_EQ("ab\\", token.text);
    EXPECT_EQ(3u, token.pos);
}

TEST_F(localJsonString, AnEscapedQuoteDoesNotEndIt) {
    const jsonStringToken token = stringToken(uR"(a\"b" c")");
    EXPECT_EQ("a\"b", token.text);
    EXPECT_EQ(4u, token.pos);
}

TEST_F(localJsonReader, ReadsScalarsOfAnArrayWithoutPresentations) {
    EXPECT_EQ("[1, \"a\", ИСТИНА, ЛОЖЬ, 0]", shape(u"[1, \"a\", true, false, null]"));
}

TEST_F(localJsonReader, GivesTheTypesOfTheLanguage) {
    int status = localErrorTypeOK;
    localPosition pos = 0;
    localSlot value;
    ASSERT_TRUE(scanStringParseJson(status, u"[1,\"1\",true,null,{}]", pos, value.asResult()));
    const localValueList& list = *localValueList::of(*value);
    EXPECT_EQ(localValueTypeNUMBER, list.items()[0].value.type);
    EXPECT_EQ(localValueTypeSTRING, list.items()[1].value.type);
    EXPECT_EQ(localValueTypeBOOLEAN, list.items()[2].value.type);
    EXPECT_EQ(localValueTypeNUMBER, list.items()[3].value.type);
    EXPECT_EQ(1u, localValueList::of(list.items()[4].value)->linkCounter);
    EXPECT_EQ(1u, list.linkCounter);
}

TEST_F(localJsonReader, KeepsKeysInOrderWithRepeatedOnes) {
    EXPECT_EQ("[b: 1, a: 2, b: 3]", shape(u"{\"b\":1,\"a\":2,\"b\":3}"));
    EXPECT_EQ("[a/\"б\": 1, 5]", shape(uR"({"a\/\"б\"":1,"":5})"));
}

TEST_F(localJsonReader, ReadsListsInLists) {
    EXPECT_EQ("[[], [], [1, [2, [x: [3]]], 4]]", shape(u"[[],{},[1,[2,{\"x\":[3]}],4]]"));
    EXPECT_EQ("[a: [b: [c: []]], d: 1]", shape(u"{\"a\":{\"b\":{\"c\":[]}},\"d\":1}"));
}

TEST_F(localJsonReader, PassesOverBlanksAndComments) {
    EXPECT_EQ("[a: 1, b: []]", shape(u" \t\r\n\f{ // head\n \"a\" \n : // value\n 1 , // next\r\n"
                                     u"\"b\" : [ // none\n ] // last\n }"));
}

TEST_F(localJsonReader, StopsBehindTheBracket) {
    const parsedJson outcome = parse(u"xx [1] ]garbage", 2);
    EXPECT_TRUE(outcome.done);
    EXPECT_EQ(6u, outcome.pos);
    EXPECT_EQ(2u, parse(u"{}").pos);
    EXPECT_EQ(2u, parse(u"[]").pos);
}

TEST_F(localJsonReader, AnOpeningBracketAtTheEndIsAnEmptyList) {
    EXPECT_EQ("[]", shape(u"["));
    EXPECT_EQ("[]", shape(u" [ // nothing"));
    EXPECT_THAT(faultLines(u"{"), ElementsAre("Json Unabel resolve pos 1 in line with length 1"));
    EXPECT_THAT(faultLines(u"[["), ElementsAre("Json Unabel resolve pos 2 in line with length 2"));
}

TEST_F(localJsonReader, ReadsNumbersOfTheLanguage) {
    EXPECT_EQ("[0, -5, 0.5, -0.25, -7, 12]", shape(u"[0,-5,0.5,-.25,- 7,012]"));
    EXPECT_EQ("[1234567890123456]", shape(u"[1234567890123456]"));
    EXPECT_EQ("[-0]", shape(u"[-]"));
}

TEST_F(localJsonReader, ThereIsNoExponent) {
    EXPECT_THAT(faultLines(u"[1e5]"), ElementsAre("Json pos :2( line:1, pos: 2)"));
}

TEST_F(localJsonReader, ATooLongNumberIsAFault) {
    const parsedJson outcome = parse(u"[1, 12345678901234567]");
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(localErrorTypePRECISION, outcome.status);
    EXPECT_THAT(outcome.lines, ElementsAre("Json pos :21( line:1, pos: 21)"));
    EXPECT_THAT(faultLines(u"[[12345678901234567]]"),
                ElementsAre("Json pos :19( line:1, pos: 19)", "Json pos :19( line:1, pos: 19)"));
}

TEST_F(localJsonReader, RefusesWhatIsNoList) {
    EXPECT_THAT(faultLines(u""), ElementsAre("Json Unabel resolve pos 0 in line with length 0"));
    EXPECT_THAT(faultLines(u"5"), ElementsAre("Json pos :0( line:1, pos: 0)"));
    EXPECT_THAT(faultLines(u" // no\n  \"a\""), ElementsAre("Json pos :9( line:2, pos: 2)"));
}

TEST_F(localJsonReader, AFaultInAKeyHasNoLine) {
    for (const auto* text : {u"{a:1}", u"{1:1}", u"{\"a", u"{\"a\"", u"{\"a\" 1}", u"{\"a\",}",
                             u"{\"a\":1,}", u"{\"a\":1, ", u"{]"}) {
        EXPECT_THAT(faultLines(text), IsEmpty()) << utf8(text);
    }
    EXPECT_THAT(faultLines(u"[{a:1}]"), ElementsAre("Json pos :2( line:1, pos: 2)"));
}

TEST_F(localJsonReader, AStringMustEnd) {
    EXPECT_THAT(faultLines(u"[\"abc"),
                ElementsAre("Json Unabel resolve pos 5 in line with length 5"));
    EXPECT_THAT(faultLines(u"[\"abc\\\"]"),
                ElementsAre("Json Unabel resolve pos 8 in line with length 8"));
}

TEST_F(localJsonReader, TellsOfAnUnknownWord) {
    EXPECT_THAT(faultLines(u"{\"key\": True}"),
                ElementsAre("84 char :[T]", "i=12 Error!!!  Read string =[True] key : [key]"));
    EXPECT_THAT(faultLines(u"[nulls]"),
                ElementsAre("110 char :[n]", "i=6 Error!!!  Read string =[nulls] key : []"));
    EXPECT_THAT(faultLines(u"[1,]"),
                ElementsAre("93 char :[]]", "i=3 Error!!!  Read string =[] key : []"));
    EXPECT_THAT(faultLines(u"[.5]"),
                ElementsAre("46 char :[.]", "i=1 Error!!!  Read string =[] key : []"));
    EXPECT_THAT(faultLines(u"{\"a\":"),
                ElementsAre("0 char :[]", "i=5 Error!!!  Read string =[] key : [a]"));
}

TEST_F(localJsonReader, TheBracketsMustMatch) {
    EXPECT_THAT(faultLines(u"[1}"), ElementsAre("Json pos :2( line:1, pos: 2)"));
    EXPECT_THAT(faultLines(u"{\"a\":1]"), ElementsAre("Json pos :6( line:1, pos: 6)"));
    EXPECT_THAT(faultLines(u"[1 2]"), ElementsAre("Json pos :3( line:1, pos: 3)"));
    EXPECT_THAT(faultLines(u"[1"), ElementsAre("Json Unabel resolve pos 2 in line with length 2"));
    EXPECT_THAT(faultLines(u"[1,"), ElementsAre("Json Unabel resolve pos 3 in line with length 3"));
}

TEST_F(localJsonReader, EachListAroundAFaultTellsOfIt) {
    EXPECT_THAT(faultLines(u"[\n[{\"a\":[1;]}]]"),
                ElementsAre("Json pos :10( line:2, pos: 8)", "Json pos :10( line:2, pos: 8)",
                            "Json pos :10( line:2, pos: 8)", "Json pos :10( line:2, pos: 8)"));
}

TEST_F(localJsonReader, NamesItselfInItsLines) {
    int status = localErrorTypeOK;
    localPosition pos = 0;
    localSlot value;
    output.clear();
    EXPECT_FALSE(scanStringParseJson(status, u"[oops", pos, value.asResult()));
    ASSERT_EQ(2u, output.rawLines().size());
    for (const std::string& line : output.rawLines()) {
        EXPECT_THAT(line, testing::HasSubstr(
                              "] func: scanStringParseJson file: localJsonReader.cpp line: "));
    }
}

TEST_F(localJsonReader, KeepsWhatWasReadBeforeAFault) {
    const parsedJson outcome = parse(u"{\"a\":1,\"b\":[2,3],\"c\":[4,;]}");
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ("[a: 1, b: [2, 3]]", outcome.shape);
    EXPECT_EQ("[]", parse(u"5").shape);
}

TEST_F(localJsonReader, TakesOneSlotForAnyNumberOfLists) {
    int status = localErrorTypeOK;
    localPosition pos = 0;
    localSlot value;
    const std::size_t used = localMemoryManager::manager->getUsedCount();
    ASSERT_TRUE(scanStringParseJson(status, wide("[[]" + repeated(",[1]", 110000) + "]"), pos,
                                    value.asResult()));
    EXPECT_EQ(used + 1, localMemoryManager::manager->getUsedCount());
    EXPECT_EQ(110001u, localValueList::of(*value)->size());
}

TEST_F(localJsonReader, ReadsDeepNesting) {
    const int deepest = static_cast<int>(jsonDeepest);
    const std::u16string text =
        wide(repeated("[", deepest - 1) + "[7]" + repeated("]", deepest - 1));
    int status = localErrorTypeOK;
    localPosition pos = 0;
    localSlot value;
    ASSERT_TRUE(scanStringParseJson(status, text, pos, value.asResult()));
    int depth = 0;
    const localValueDescription* inner = value.get();
    while (const localValueList* list = localValueList::of(*inner)) {
        ASSERT_EQ(1u, list->size());
        inner = &list->items()[0].value;
        ++depth;
    }
    EXPECT_EQ(deepest, depth);
    EXPECT_EQ(7.0, inner->num);
}

TEST_F(localJsonReader, RefusesTooDeepNesting) {
    const int deepest = static_cast<int>(jsonDeepest);
    EXPECT_THAT(faultLines(wide(repeated("[", deepest + 1) + repeated("]", deepest + 1))),
                ElementsAre("Json pos :60000( line:1, pos: 60000)"));
    EXPECT_THAT(faultLines(wide(repeated("[", 100000) + repeated("]", 100000))),
                ElementsAre("Json pos :60000( line:1, pos: 60000)"));
    EXPECT_THAT(faultLines(wide(repeated("{\"a\":", 100000))),
                ElementsAre("Json pos :300000( line:1, pos: 300000)"));
}

TEST_F(localJsonReader, HaltsOnAResultThatIsNotNull) {
    int status = localErrorTypeOK;
    localPosition pos = 0;
    localSlot taken = localSlot::reserve();
    localValueDescription* result = taken.get();
    EXPECT_HALT(scanStringParseJson(status, u"[]", pos, result),
                "localInterpretatorUTF8::scanStringParseJson() result must be NULL!");
}

}  // namespace
