#include "localInterpretatorUTF8/classes/localDateTime.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ctime>

#include "support/language.h"

namespace {

class localDateTimeTest : public languageTest {
protected:
    localDateTimeTest() { zone("UTC"); }
    ~localDateTimeTest() override { zone("UTC"); }
    static void zone(const char* name) {
        setenv("TZ", name, 1);
        tzset();
    }
};

TEST_F(localDateTimeTest, textOfAMoment) {
    const std::pair<std::int64_t, const char*> rows[] = {
        {0, "19700101:00:00:00"},          {1794738896, "20261115:10:34:56"},
        {951782399, "20000228:23:59:59"},  {951782400, "20000229:00:00:00"},
        {4102444800, "21000101:00:00:00"},
    };
    for (const auto& [seconds, text] : rows) {
        EXPECT_EQ(localDateTime(seconds).toStringAscii(), text);
    }
}

TEST_F(localDateTimeTest, theTextIsThatOfLocalTime) {
    zone("MSK-3");
    EXPECT_EQ(localDateTime(0).toStringAscii(), "19700101:03:00:00");
}

TEST_F(localDateTimeTest, aNewMomentIsNow) {
    const std::time_t before = std::time(nullptr);
    const localDateTime moment;
    EXPECT_GE(moment.now, before);
    EXPECT_LE(moment.now, std::time(nullptr));
}

TEST_F(localDateTimeTest, theClassDate) {
    localClassDeclaration& declaration = *localDateTime::classDeclaration();
    EXPECT_EQ(utf8(declaration.summary()), "ДАТА (DATE)  - класс ДАТА ");
    EXPECT_EQ(utf8(declaration.nameShort), "Дата");
    int status = localErrorTypeOK;
    void* object = nullptr;
    localSlot made;
    ASSERT_TRUE(declaration.methodExec(status, nullptr, object, u"", nullptr, made.asResult()));
    EXPECT_EQ(utf8(made->typeName()), "ДАТА");
    EXPECT_THAT(utf8(made->toString()), testing::MatchesRegex("[0-9]{8}(:[0-9][0-9]){3}"));

    object = made->pointer;
    const localArguments none;
    localValueDescription* const one[] = {made.get()};
    const localArguments withOne(one);
    const auto call = [&](void* target, std::u16string_view name, const localArguments* args) {
        status = localErrorTypeOK;
        localSlot result;
        declaration.methodExec(status, nullptr, target, name, args, result.asResult());
        return status;
    };
    EXPECT_EQ(call(object, u"toString", &none), 54);
    EXPECT_EQ(call(object, u"строка", &none), 27);
    EXPECT_EQ(call(object, u"toString", &withOne), 31);
    EXPECT_EQ(call(object, u"toString", nullptr), 16);
    EXPECT_EQ(call(object, u"year", &none), 27);
    EXPECT_EQ(call(nullptr, u"toString", &none), 29);

    // The method function knows the Russian name, too, though no member leads there.
    localSlot text;
    const localMethodFunction method = declaration.memberFind(u"TOSTRING")->methodFunction;
    EXPECT_TRUE(method(status, nullptr, object, u"СТРОКА", &none, text.asResult()));
    EXPECT_EQ(utf8(text->toString()), utf8(made->toString()));
}

TEST_F(localDateTimeTest, noProgramReachesTheClass) {
    EXPECT_EQ(localContextUTF8::globalContext->classFind(u"DATE"), nullptr);
    EXPECT_EQ(evaluate("CREATEOBJECT('DATE')", localContextUTF8::globalContext).status, 14);
    EXPECT_EQ(evaluate("CLASSLOAD('DATE')", localContextUTF8::globalContext).status, 14);
}

TEST_F(localDateTimeTest, aResultThatIsNotNullHalts) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    void* object = nullptr;
    const localMethodFunction method =
        localDateTime::classDeclaration()->memberFind(u"")->methodFunction;
    EXPECT_HALT(method(status, nullptr, object, u"", nullptr, result),
                "localDateTime::classImplementationMethodFunction() result must be NULL!");
}

}  // namespace
