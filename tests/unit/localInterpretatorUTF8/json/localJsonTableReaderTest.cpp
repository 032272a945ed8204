#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "json/jsonShape.h"

using namespace localInterpretatorUTF8;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class localJsonTableReader : public jsonTest {
protected:
    localJsonTableReader() {
        cell.objectBind(new localValueTable, localValueTable::classDeclaration());
    }
    void TearDown() override {
        cell.reset();
        jsonTest::TearDown();
    }

    bool read(std::u16string_view text) {
        status = localErrorTypeOK;
        output.clear();
        return scanStringGetValueTableFromJson(status, std::u16string(text), pos, cell);
    }
    // The lines of a text that must end in status 34.
    std::vector<std::string> faultLines(std::u16string_view text) {
        pos = 0;
        EXPECT_FALSE(read(text)) << utf8(text);
        EXPECT_EQ(localErrorTypeJSONPARSE, status);
        return output.lines();
    }
    localValueTable& table() { return *localValueTable::of(cell); }

    int status = localErrorTypeOK;
    localPosition pos = 0;
    localValueDescription cell;
};

TEST_F(localJsonTableReader, ReadsMembersIntoRows) {
    ASSERT_TRUE(read(u" { \"a\" : \"1\" , // one\n \"б\\/\" : \"\\u0416\" } rest"));
    EXPECT_EQ(localErrorTypeOK, status);
    EXPECT_EQ(41u, pos);
    EXPECT_EQ("{a: \"1\", б/: \"Ж\"}", shapeOf(table()));
    EXPECT_EQ("KEY", utf8(table().columnName(1)));
    EXPECT_EQ("VALUE", utf8(table().columnName(2)));
    EXPECT_EQ(2u, table().columnsCount());
    EXPECT_THAT(output.lines(), IsEmpty());
}

TEST_F(localJsonTableReader, AnEmptyObjectGivesNoRows) {
    EXPECT_TRUE(read(u"{ }"));
    EXPECT_EQ(0u, table().rowsCount());
    EXPECT_EQ(2u, table().columnsCount());
    EXPECT_EQ(3u, pos);
}

TEST_F(localJsonTableReader, AnInnerObjectIsATable) {
    ASSERT_TRUE(read(u"{\"a\":{\"b\":{},\"c\":{\"d\":\"e\"}},\"f\":\"g\"}"));
    EXPECT_EQ("{a: {b: {}, c: {d: \"e\"}}, f: \"g\"}", shapeOf(table()));
    EXPECT_EQ(1u, localValueTable::of(table().cell(0, 1))->linkCounter);
}

TEST_F(localJsonTableReader, KeepsRepeatedKeys) {
    ASSERT_TRUE(read(u"{\"a\":\"1\",\"a\":\"2\"}"));
    EXPECT_EQ("{a: \"1\", a: \"2\"}", shapeOf(table()));
}

TEST_F(localJsonTableReader, FillsTheFirstColumnsOfTheirNames) {
    ASSERT_TRUE(read(u"{\"a\":\"1\"}"));
    pos = 0;
    ASSERT_TRUE(read(u"{\"b\":\"2\"}"));
    EXPECT_EQ("{a: \"1\", b: \"2\"}", shapeOf(table()));
    EXPECT_EQ(4u, table().columnsCount());
}

TEST_F(localJsonTableReader, StartsAtThePosition) {
    pos = 3;
    ASSERT_TRUE(read(u"[1]{\"a\":\"1\"}"));
    EXPECT_EQ("{a: \"1\"}", shapeOf(table()));
}

TEST_F(localJsonTableReader, WantsAValueTable) {
    localValueDescription number;
    EXPECT_FALSE(scanStringGetValueTableFromJson(status, u"{}", pos, number));
    EXPECT_EQ(localErrorTypePARAMETERTYPE, status);
    localValueDescription list;
    list.objectBind(new localValueList, localValueList::classDeclaration());
    EXPECT_FALSE(scanStringGetValueTableFromJson(status, u"{}", pos, list));
    EXPECT_EQ(localErrorTypePARAMETERTYPE, status);
    EXPECT_EQ(0u, pos);
}

TEST_F(localJsonTableReader, WantsAnObject) {
    EXPECT_THAT(faultLines(u""), ElementsAre("ошибка в строке 1 позиция 0", ""));
    EXPECT_THAT(faultLines(u"\n [1]\n"), ElementsAre("ошибка в строке 2 позиция 1", " [1]"));
}

TEST_F(localJsonTableReader, ShowsTheLineOfASyntaxFault) {
    const std::string fault = "синтаксическая ошибка в строке 1 позиция ";
    EXPECT_THAT(faultLines(u"{a"), ElementsAre(fault + "1", "{a"));
    EXPECT_THAT(faultLines(u"{\"a"), ElementsAre(fault + "3", "{\"a"));
    EXPECT_THAT(faultLines(u"{\"a\" \"b\"}"), ElementsAre(fault + "5", "{\"a\" \"b\"}"));
    EXPECT_THAT(faultLines(u"{\"a\":1}"), ElementsAre(fault + "5", "{\"a\":1}"));
    EXPECT_THAT(faultLines(u"{\"a\":[]}"), ElementsAre(fault + "5", "{\"a\":[]}"));
    EXPECT_THAT(faultLines(u"{\"a\":\"b"), ElementsAre(fault + "7", "{\"a\":\"b"));
    EXPECT_THAT(faultLines(u"{\"a\":\"b\" ]"), ElementsAre(fault + "9", "{\"a\":\"b\" ]"));
    EXPECT_THAT(faultLines(u"{\"a\":\"b\",}"), ElementsAre(fault + "9", "{\"a\":\"b\",}"));
    EXPECT_THAT(faultLines(u"{\"a\":\"b\""), ElementsAre(fault + "8", "{\"a\":\"b\""));
    EXPECT_THAT(faultLines(u"{"), ElementsAre(fault + "1", "{"));
}

TEST_F(localJsonTableReader, AFaultInAnInnerObjectIsToldOnce) {
    EXPECT_THAT(faultLines(u"{\n\"a\": {\n  \"b\": 5\n}}"),
                ElementsAre("синтаксическая ошибка в строке 3 позиция 7", "  \"b\": 5"));
}

TEST_F(localJsonTableReader, NamesItselfInItsLines) {
    EXPECT_FALSE(read(u"{a}"));
    EXPECT_THAT(
        output.rawLines()[0],
        testing::HasSubstr(
            "1 func: scanStringGetValueTableFromJson file: localJsonTableReader.cpp line: "));
}

TEST_F(localJsonTableReader, KeepsRowsReadBeforeAFault) {
    faultLines(u"{\"a\":\"1\",\"b\":{\"c\":\"2\"},\"d\":{\"e\":3}}");
    EXPECT_EQ("{a: \"1\", b: {c: \"2\"}}", shapeOf(table()));
}

TEST_F(localJsonTableReader, DeepNestingIsAFault) {
    const int deepest = static_cast<int>(jsonDeepest);
    EXPECT_TRUE(read(wide(repeated("{\"a\":", deepest - 1) + "{}" + repeated("}", deepest - 1))));
    const auto lines = faultLines(wide(repeated("{\"a\":", 100000)));
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ("синтаксическая ошибка в строке 1 позиция 300000", lines[0]);
}

}  // namespace
