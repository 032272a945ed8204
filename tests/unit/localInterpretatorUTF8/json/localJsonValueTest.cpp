#include "localInterpretatorUTF8/json/localJsonValue.h"

#include <algorithm>

#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "json/jsonShape.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A class whose TOJSON answers what the object holds, or fails without a text.
struct writtenObject {
    std::int64_t linkCounter = 0;
    localText text;
    bool fails = false;
};

constexpr localMethodRow writtenMethods[] = {
    {u"TOSTRING", u"СТРОКА", "", [](localCall& call) { return call.give(u"as/text"); }},
    {u"TOJSON", u"", "",
     [](localCall& call) {
         const auto& object = *static_cast<writtenObject*>(call.object);
         call.give(object.text);
         return !object.fails || call.fail(localErrorTypeOUTOFRANGE);
     }},
};

constexpr localClassTable writtenTable = {
    .nameEng = u"WRITTEN/[1]",
    .nameRus = u"ЗАПИСАННЫЙ",
    .description = u"класс для проверок",
    .nativeName = u"writtenObject",
    .native = localNativeOf<writtenObject>(),
    .methods = writtenMethods,
    .attributes = {},
};

class localJsonValue : public jsonTest {
protected:
    static std::string written(const localValueDescription& value) {
        int status = localErrorTypeOK;
        localText text;
        EXPECT_TRUE(valueToJson(status, value, text));
        EXPECT_EQ(localErrorTypeOK, status);
        EXPECT_EQ(utf8(text), utf8(valueToJson(value)));
        return utf8(text);
    }
    static std::string written(const localValueList& list) {
        int status = localErrorTypeOK;
        localText text;
        EXPECT_TRUE(valueListToJson(status, list, text));
        EXPECT_EQ(utf8(text), utf8(valueListToJson(list)));
        return utf8(text);
    }
    static localValueList& bindList(localValueDescription& cell) {
        auto* list = new localValueList;
        cell.objectBind(list, localValueList::classDeclaration());
        return *list;
    }
    static writtenObject& bindWritten(localValueDescription& cell) {
        auto* object = new writtenObject;
        cell.objectBind(object, localTableClass<writtenTable>());
        return *object;
    }
};

class localJsonRestore : public jsonTest {
protected:
    // The shape of what a typed form gives.
    std::string restored(std::u16string_view form) {
        const std::string shape = outcome(form);
        EXPECT_TRUE(done) << utf8(form);
        EXPECT_EQ(localErrorTypeOK, status) << utf8(form);
        return shape;
    }
    int statusOf(std::u16string_view form) {
        outcome(form);
        EXPECT_FALSE(done) << utf8(form);
        return status;
    }
    std::string outcome(std::u16string_view form) {
        status = localErrorTypeOK;
        localInterpretatorUTF8::localPosition pos = 0;
        localSlot parsed;
        EXPECT_TRUE(localInterpretatorUTF8::scanStringParseJson(status, std::u16string(form), pos,
                                                                parsed.asResult()));
        output.clear();
        localSlot value;
        done = fromJsonValueList(status, localContextUTF8::globalContext,
                                 *localValueList::of(*parsed), value.asResult());
        return shapeOf(*value);
    }

    bool done = false;
    int status = localErrorTypeOK;
};

TEST(localJsonEscape, WritesABackslashBeforeWhatTheFormatEscapes) {
    EXPECT_EQ(R"(\'\"\\\/\t\n\r\f\b\[\]\{\})", utf8(jsonEscape(u"'\"\\/\t\n\r\f\b[]{}")));
}

TEST(localJsonEscape, LeavesTheRest) {
    EXPECT_EQ("", utf8(jsonEscape(u"")));
    EXPECT_EQ("абвёЁ abc 012 <>()", utf8(jsonEscape(u"абвёЁ abc 012 <>()")));
    EXPECT_EQ(std::u16string(u"\u0001\u000B"), jsonEscape(u"\u0001\u000B"));
    EXPECT_EQ(R"(a\/b\/\/c)", utf8(jsonEscape(u"a/b//c")));
}

TEST_F(localJsonValue, WritesANumberAsQuotedText) {
    localValueDescription value;
    EXPECT_EQ(R"({"t": "NUM","vP": "0","v": "0"})", written(value));
    value.setVal(-0.5);
    EXPECT_EQ(R"({"t": "NUM","vP": "-0.5","v": "-0.5"})", written(value));
    value.setVal(0.1);
    EXPECT_EQ(R"({"t": "NUM","vP": "0.10000000000000000555","v": "0.10000000000000000555"})",
              written(value));
}

TEST_F(localJsonValue, WritesATextEscaped) {
    localValueDescription value;
    value.setVal(localText(u"\"a\"\\/[ё]\n"));
    EXPECT_EQ(R"({"t": "STR","vP": "\"a\"\\\/\[ё\]\n","v": "\"a\"\\\/\[ё\]\n"})", written(value));
}

TEST_F(localJsonValue, WritesABooleanByItsSign) {
    localValueDescription value;
    value.setBoolean(true);
    EXPECT_EQ(R"({"t": "BOO","vP": "ИСТИНА","v": "true"})", written(value));
    value.setBoolean(false);
    EXPECT_EQ(R"({"t": "BOO","vP": "ЛОЖЬ","v": "false"})", written(value));
    value.num = -1.0;
    EXPECT_EQ(R"({"t": "BOO","vP": "ИСТИНА","v": "false"})", written(value));
}

TEST_F(localJsonValue, WritesNothingForAnUnknownType) {
    localValueDescription value;
    value.type = 17;
    EXPECT_EQ(R"({"t": "UNK","vP": " **** Error *** при вызове метода toString() ","v": })",
              written(value));
}

TEST_F(localJsonValue, WritesAnObjectOfNoClassWithoutAName) {
    localValueDescription value;
    value.type = localValueTypeOBJECT;
    EXPECT_EQ(R"({"t": "OBJ","tN": "","vP": "","v": ""})", written(value));
}

TEST_F(localJsonValue, WritesWhatTheMethodOfTheClassAnswers) {
    localValueDescription value;
    bindWritten(value).text = u"[{\"/\": }";
    EXPECT_EQ(R"({"t": "OBJ","tN": "WRITTEN\/\[1\]","vP": "as\/text","v": [{"/": }})",
              written(value));
}

TEST_F(localJsonValue, WritesTheTextOfAnObjectThatAnswersNothing) {
    localValueDescription value;
    writtenObject& object = bindWritten(value);
    const std::string asText =
        R"({"t": "OBJ","tN": "WRITTEN\/\[1\]","vP": "as\/text","v": "as\/text"})";
    EXPECT_EQ(asText, written(value));
    object.text = u"half";
    object.fails = true;
    EXPECT_EQ(asText, written(value));
}

TEST_F(localJsonValue, WritesTheTextOfAnObjectWithoutTheMethod) {
    localValueDescription value;
    value.objectBind(new localValueTable, localValueTable::classDeclaration());
    const std::string text = utf8(jsonEscape(value.toString()));
    EXPECT_EQ(R"({"t": "OBJ","tN": "VALUETABLE","vP": ")" + text + R"(","v": ")" + text + R"("})",
              written(value));
}

TEST_F(localJsonValue, WritesAnItemALine) {
    localValueList list;
    EXPECT_EQ("[\n]", written(list));
    list.valueAppend(1.0);
    EXPECT_EQ("[\n"
              R"({"p": "","v": {"t": "NUM","vP": "1","v": "1"}})"
              "\n]",
              written(list));
    list.valueAppend(localText(u"б"), u"ключ/'");
    EXPECT_EQ("[\n"
              R"({"p": "","v": {"t": "NUM","vP": "1","v": "1"}})"
              "\n"
              R"(,{"p": "ключ\/\'","v": {"t": "STR","vP": "б","v": "б"}})"
              "\n]",
              written(list));
}

TEST_F(localJsonValue, WritesListsInLists) {
    localValueDescription outer;
    localValueDescription inner;
    bindList(outer).valueAppend(&bindList(inner), u"x");
    localValueList::of(outer)->valueAppend(2.0);
    const std::string innerText = utf8(jsonEscape(inner.toString()));
    const std::string outerText = utf8(jsonEscape(outer.toString()));
    const std::string items = "[\n"
                              R"({"p": "x","v": {"t": "OBJ","tN": "VALUELIST","vP": ")" +
                              innerText + "\",\"v\": [\n]}}\n" +
                              R"(,{"p": "","v": {"t": "NUM","vP": "2","v": "2"}})" + "\n]";
    EXPECT_EQ(items, written(*localValueList::of(outer)));
    EXPECT_EQ(R"({"t": "OBJ","tN": "VALUELIST","vP": ")" + outerText + R"(","v": )" + items + "}",
              written(outer));
}

TEST_F(localJsonValue, WritesAListThatStandsInTwoPlacesTwice) {
    localValueDescription outer;
    localValueDescription inner;
    bindList(inner).valueAppend(7.0);
    bindList(outer).valueAppend(inner);
    localValueList::of(outer)->valueAppend(inner);
    const std::string text = written(outer);
    const std::string seven = R"("v": "7")";
    EXPECT_NE(text.find(seven), text.rfind(seven));
}

TEST_F(localJsonValue, RefusesAListThatHoldsItself) {
    localValueDescription outer;
    localValueDescription inner;
    localValueList& list = bindList(outer);
    list.valueAppend(&bindList(inner));
    localValueList::of(inner)->valueAppend(1.0);
    localValueList::of(inner)->valueAppend(outer);
    output.clear();
    int status = localErrorTypeOK;
    localText text(u"before");
    EXPECT_FALSE(valueListToJson(status, list, text));
    EXPECT_EQ(localErrorTypeCODE, status);
    EXPECT_TRUE(text.empty());
    EXPECT_THAT(output.lines(), ElementsAre("Список значений содержит сам себя!"));
    status = localErrorTypeOK;
    EXPECT_FALSE(valueToJson(status, outer, text));
    EXPECT_EQ(localErrorTypeCODE, status);
    EXPECT_TRUE(valueToJson(outer).empty());
    list.clear();
}

TEST_F(localJsonValue, WritesAnyDepth) {
    constexpr int depth = 200000;
    localValueDescription outermost;
    bindList(outermost);
    for (int i = 1; i < depth; ++i) {
        localValueDescription next;
        bindList(next).itemAppend().take(outermost);
        outermost.take(next);
    }
    int status = localErrorTypeOK;
    localText text;
    ASSERT_TRUE(valueToJson(status, outermost, text));
    EXPECT_TRUE(text.view().ends_with(u"\n]}}\n]}}\n]}"));
    EXPECT_EQ(2 * depth - 1, std::ranges::count(text.view(), u'\n'));
}

TEST_F(localJsonRestore, RestoresNumbers) {
    EXPECT_EQ("-2.5", restored(uR"({"t": "NUM","vP": "x","v": "-2.5"})"));
    EXPECT_EQ("3", restored(uR"({"t": "NUM","v": 3})"));
    EXPECT_EQ("1", restored(uR"({"t": "NUM","v": true})"));
    EXPECT_EQ("0", restored(uR"({"t": "NUM"})"));
}

TEST_F(localJsonRestore, WithoutAMnemonicTheValueIsANumber) {
    EXPECT_EQ("12", restored(uR"({"v": "12abc"})"));
    EXPECT_EQ("12", restored(uR"({"t": "", "v": 12})"));
    EXPECT_EQ("12", restored(uR"({"t": 5, "v": 12})"));
    EXPECT_EQ("0", restored(u"[]"));
}

TEST_F(localJsonRestore, RestoresTexts) {
    EXPECT_EQ("\"a/\"б\"\"", restored(uR"({"t": "STR","v": "a\/\"б\""})"));
    EXPECT_EQ("\"5\"", restored(uR"({"t": "STR","v": 5})"));
    EXPECT_EQ("\"ИСТИНА\"", restored(uR"({"t": "STR","v": true})"));
    EXPECT_EQ("\"\"", restored(uR"({"t": "STR"})"));
}

TEST_F(localJsonRestore, TakesTheFirstOfRepeatedKeys) {
    EXPECT_EQ("\"1\"", restored(uR"({"t": "STR","t": "NUM","v": "1","v": "2"})"));
}

TEST_F(localJsonRestore, ABooleanThatWasWrittenComesBackAsZero) {
    EXPECT_EQ("0", restored(uR"({"t": "BOO","vP": "ИСТИНА","v": "true"})"));
    EXPECT_THAT(output.rawLines(),
                ElementsAre(testing::StartsWith(
                    "Это булево!!! func: fromJsonValueList file: localJsonRestore.cpp line: ")));
    EXPECT_EQ("0", restored(uR"({"t": "BOO","v": "false"})"));
    EXPECT_EQ("0", restored(uR"({"t": "BOO"})"));
}

TEST_F(localJsonRestore, ABooleanWithABareValueIsANumber) {
    EXPECT_EQ("1", restored(uR"({"t": "BOO","v": true})"));
    EXPECT_EQ("1", restored(uR"({"t": "BOO","v": 7})"));
    EXPECT_EQ("0", restored(uR"({"t": "BOO","v": -7})"));
    EXPECT_EQ("0", restored(uR"({"t": "BOO","v": false})"));
}

TEST_F(localJsonRestore, RestoresListsInLists) {
    EXPECT_EQ("[]", restored(uR"({"t": "OBJ","tN": "VALUELIST","v": []})"));
    EXPECT_EQ("[x: [y: \"z\", []], 1]", restored(uR"({"t": "OBJ","tN": "ValueList","v": [
                  {"p": "x","v": {"t": "OBJ","tN": "СПИСОКЗНАЧЕНИЙ","v": [
                      {"p": "y","v": {"t": "STR","v": "z"}},
                      {"p": "","v": {"t": "OBJ","tN": " VALUELIST","v": [ ]}}]}},
                  {"p": "","v": {"t": "NUM","v": "1"}}]})"));
}

TEST_F(localJsonRestore, AWrittenListComesBack) {
    localValueDescription value;
    value.objectBind(new localValueList, localValueList::classDeclaration());
    localValueList& list = *localValueList::of(value);
    list.valueAppend(5.0, u"n");
    list.valueAppend(localText(u"т/е\\к\"с\tт"), u"s/'");
    localValueDescription inner;
    inner.objectBind(new localValueList, localValueList::classDeclaration());
    localValueList::of(inner)->valueAppend(-1.0);
    list.valueAppend(inner, u"l");
    list.itemAppend(u"b").setBoolean(true);
    EXPECT_EQ("[n: 5, s/': \"т/е\\к\"с\tт\", l: [-1], b: 0]", restored(valueToJson(value)));
}

TEST_F(localJsonRestore, BracketsComeBackWithABackslash) {
    localValueDescription value;
    value.setVal(localText(u"a[1]{'}"));
    EXPECT_EQ("\"a\\[1\\]\\{'\\}\"", restored(valueToJson(value)));
}

TEST_F(localJsonRestore, AnObjectNeedsAnObjectAsContent) {
    EXPECT_EQ(localErrorTypeJSONRESTORE, statusOf(uR"({"t": "OBJ","tN": "VALUELIST"})"));
    EXPECT_EQ(localErrorTypeJSONRESTORE, statusOf(uR"({"t": "OBJ","tN": "VALUELIST","v": "x"})"));
}

TEST_F(localJsonRestore, AnObjectNeedsAKnownClass) {
    EXPECT_EQ(localErrorTypeCLASSUNKNOWN, statusOf(uR"({"t": "OBJ","v": []})"));
    EXPECT_EQ(localErrorTypeCLASSUNKNOWN, statusOf(uR"({"t": "OBJ","tN": "NOSUCH","v": []})"));
}

TEST_F(localJsonRestore, OtherClassesAreNotRestored) {
    EXPECT_EQ(localErrorTypeJSONRESTORE, statusOf(uR"({"t": "OBJ","tN": "VALUETABLE","v": []})"));
    EXPECT_THAT(output.rawLines(),
                ElementsAre(testing::StartsWith("Разбор jsonList для VALUETABLE не реализован! "
                                                "func: fromJsonValueList file: ")));
}

TEST_F(localJsonRestore, TellsOfAnUnknownMnemonic) {
    EXPECT_EQ(localErrorTypeJSONRESTORE, statusOf(uR"({"t": "UNK","v": "1"})"));
    EXPECT_THAT(output.rawLines(),
                ElementsAre(testing::StartsWith("typeMnemo=UNK func: fromJsonValueList file: ")));
    EXPECT_EQ(localErrorTypeJSONRESTORE, statusOf(uR"({"t": "num","v": "1"})"));
}

TEST_F(localJsonRestore, AnyFaultOfAnItemIsAFaultOfTheList) {
    for (const auto* item :
         {u"5", u"{\"p\": \"x\"}", u"{\"v\": {\"t\": \"NUM\"}}", u"{\"p\": \"x\",\"v\": 5}",
          u"{\"p\": \"x\",\"v\": {\"t\": \"UNK\"}}",
          u"{\"p\": \"x\",\"v\": {\"t\": \"OBJ\",\"tN\": \"NOSUCH\",\"v\": []}}",
          u"{\"p\": \"x\",\"v\": {\"t\": \"OBJ\",\"tN\": \"VALUELIST\",\"v\": [5]}}"}) {
        EXPECT_EQ(localErrorTypeJSONRESTORE,
                  statusOf(std::u16string(u"{\"t\": \"OBJ\",\"tN\": \"VALUELIST\",\"v\": [") +
                           item + u"]}"))
            << utf8(item);
    }
}

TEST_F(localJsonRestore, KeepsTheItemsBeforeAFault) {
    EXPECT_EQ("[a: 1]", outcome(uR"({"t": "OBJ","tN": "VALUELIST","v": [
                  {"p": "a","v": {"v": 1}}, {"p": "b","v": 2}]})"));
    EXPECT_FALSE(done);
}

TEST_F(localJsonRestore, RestoresTheDeepestListThatIsRead) {
    constexpr int depth = static_cast<int>(localInterpretatorUTF8::jsonDeepest) / 3;
    localValueDescription outermost;
    outermost.objectBind(new localValueList, localValueList::classDeclaration());
    for (int i = 1; i < depth; ++i) {
        localValueDescription next;
        auto* list = new localValueList;
        next.objectBind(list, localValueList::classDeclaration());
        list->itemAppend().take(outermost);
        outermost.take(next);
    }
    const std::u16string text = valueToJson(outermost).string();
    localInterpretatorUTF8::localPosition pos = 0;
    localSlot parsed;
    ASSERT_TRUE(localInterpretatorUTF8::scanStringParseJson(status, text, pos, parsed.asResult()));
    localSlot value;
    ASSERT_TRUE(fromJsonValueList(status, localContextUTF8::globalContext,
                                  *localValueList::of(*parsed), value.asResult()));
    int levels = 1;
    for (const localValueList* list = localValueList::of(*value); list->size() == 1;
         list = localValueList::of(list->items()[0].value)) {
        ++levels;
    }
    EXPECT_EQ(depth, levels);
}

TEST_F(localJsonRestore, HaltsOnAResultThatIsNotNull) {
    const localValueList list;
    localSlot taken = localSlot::reserve();
    localValueDescription* result = taken.get();
    EXPECT_HALT(fromJsonValueList(status, localContextUTF8::globalContext, list, result),
                "localValueDescription::fromJsonValueList() result must be NULL!");
}

}  // namespace
