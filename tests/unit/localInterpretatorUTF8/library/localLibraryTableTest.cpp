#include <gmock/gmock.h>

#include <new>
#include <set>
#include <stdexcept>

#include "library/libraryCall.h"
#include "localInterpretatorUTF8/library/localExtension.h"

namespace {

class libraryTableTest : public libraryTest {
protected:
    static void fill(std::u16string_view english, localHandler handler) {
        const localExtensionFunction functions[] = {{english, handler}};
        localExtensionAdd({.name = u"test", .functions = functions});
    }
};

TEST_F(libraryTableTest, hasEveryNameOnce) {
    std::set<std::u16string_view> names;
    std::size_t count = 0;
    for (const localMethodRow& row : localLibrary::rows()) {
        for (const std::u16string_view name : {row.english, row.russian}) {
            if (!name.empty()) {
                names.insert(name);
                ++count;
                EXPECT_EQ(toUpper(name), name) << utf8(name);
            }
        }
    }
    EXPECT_EQ(names.size(), count);
    EXPECT_EQ(count, 133U);
}

TEST_F(libraryTableTest, theClassOfContextsHasAMemberForEachName) {
    std::size_t methods = 0;
    std::size_t attributes = 0;
    for (const auto& member : localContextUTF8::classDeclaration()->members()) {
        ++(member->methodFunction != nullptr ? methods : attributes);
    }
    EXPECT_EQ(methods, 133U);
    EXPECT_EQ(attributes, 4U);
    EXPECT_EQ(localContextUTF8::classDeclaration()->memberFind(u"V1ALUETOSTRING"), nullptr);
    EXPECT_EQ(localContextUTF8::classDeclaration()->memberFind(u"TOSTRING"), nullptr);
}

TEST_F(libraryTableTest, onlyTwoFunctionsAreSwitchedOff) {
    std::vector<std::string> without;
    for (const localMethodRow& row : localLibrary::rows()) {
        if (row.handler == nullptr) {
            without.push_back(utf8(row.english));
        }
    }
    EXPECT_THAT(without, testing::ElementsAre("VALUETOSTRING", "USERDIR"));
}

TEST_F(libraryTableTest, aCallWithoutArgumentsAtAllIsAFaultOfTheCaller) {
    localContextUTF8 context;
    int status = localErrorTypeOK;
    localSlot result;
    EXPECT_FALSE(localLibrary::call(status, &context, u"PI", nullptr, result.asResult()));
    EXPECT_EQ(status, localErrorTypeCODE);
    EXPECT_TRUE(result);
}

TEST_F(libraryTableTest, anUnknownNameKeepsTheResultReserved) {
    const libraryOutcome outcome = call(u"NOSUCH");
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(outcome.status, localErrorTypeMETHODUNKNOWN);
    EXPECT_TRUE(outcome.result);
}

// Filled rows stay filled, so these run in processes of their own.
TEST_F(libraryTableTest, aHigherLibraryBringsItsFunction) {
    EXPECT_EQ(call(u"COLOR", u"red").status, localErrorTypeGRAPHICONLY);
    EXPECT_IN_FRESH_PROCESS({
        fill(u"COLOR", [](localCall& facts) { return facts.give(42.0); });
        const libraryOutcome outcome = call(u"ЦВЕТ", u"red");
        EXPECT_TRUE(outcome.done);
        EXPECT_EQ(outcome.result->num, 42.0);
    });
}

TEST_F(libraryTableTest, memoryThatRunsOutEndsTheCallOnly) {
    EXPECT_IN_FRESH_PROCESS({
        fill(u"COLOR", [](localCall&) -> bool { throw std::bad_alloc(); });
        EXPECT_EQ(call(u"COLOR", u"red").status, localErrorTypeCODE);
        fill(u"FORMEDIT", [](localCall&) -> bool { throw std::length_error("too long"); });
        const libraryOutcome outcome = call(u"FORMEDIT", u"form");
        EXPECT_FALSE(outcome.done);
        EXPECT_EQ(outcome.status, localErrorTypeCODE);
        EXPECT_THAT(output.lines(),
                    testing::ElementsAre("Недостаточно памяти!", "Недостаточно памяти!"));
    });
}

}  // namespace
