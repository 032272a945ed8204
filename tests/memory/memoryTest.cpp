// Memory runs out at each request in turn, for every function, every method, every kind of
// statement and typed line. Each time the operation must end in success or in status 16 with one
// line, with the values as they were before or as they are after it, and the next statement works.
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <streambuf>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/classes/localClassForTest.h"
#include "localInterpretatorUTF8/classes/localDateTime.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "memory/failingMemory.h"
#include "memory/memoryCase.h"
#include "memory/memoryState.h"
#ifdef KORVO_DATABASE
#include "localDb/localDb.h"
#include "localDb/localDbExtension.h"
#include "localDb/script/localDataBase.h"
#include "localDb/script/localDataBaseRecord.h"
#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/text/localString.h"
#endif
#ifdef KORVO_SHEETS
#include "localSxl/script/localSxlExtension.h"
#include "localSxl/sheet/localSxlSheet.h"
#endif

namespace {

std::u16string wide(std::string_view text) {
    return localPlatform::fileNameFromBytes(text);
}

// The standard output stream as a text, without a request for memory.
class keptOutput : public std::streambuf {
public:
    keptOutput() : before_(std::cout.rdbuf(this)) { clear(); }
    ~keptOutput() override { std::cout.rdbuf(before_); }
    keptOutput(const keptOutput&) = delete;
    keptOutput& operator=(const keptOutput&) = delete;

    void clear() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }
    std::string text() const { return {pbase(), pptr()}; }

private:
    std::array<char, 1 << 18> bytes_;
    std::streambuf* before_;
};

// Answers at once.
class answeringHost : public localHost {
public:
    answeringHost() { install(this); }
    ~answeringHost() override { install(nullptr); }
    answeringHost(const answeringHost&) = delete;
    answeringHost& operator=(const answeringHost&) = delete;

    bool hasScreen() const override { return true; }
    bool showMessage(const localReport&) override { return true; }
    bool showText(std::u16string_view, std::u16string_view) override { return true; }
    std::optional<std::u16string> chooseDate(std::u16string_view) override {
        return u"a date of the calendar";
    }
    bool showList(std::u16string_view, const std::vector<std::u16string>&) override { return true; }
    std::optional<std::size_t> chooseRow(std::u16string_view, const std::vector<std::u16string>&,
                                         std::size_t) override {
        return 1;
    }
    bool startProgram(std::u16string_view) override { return true; }
    bool openOutsideEditor(std::u16string_view) override { return true; }
    bool openEditor(std::u16string_view, localString::possibleCodePage) override { return true; }
};

std::size_t countOf(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

constexpr std::string_view memoryLine = "Недостаточно памяти! func: ";

// What an operation came to.
struct outcome {
    bool done = false;
    int status = localErrorTypeOK;
    std::string result;
    std::string state;
    std::string counts;
    std::string output;
};

std::ostream& operator<<(std::ostream& stream, const outcome& shown) {
    return stream << (shown.done ? "done" : "failed") << ", status " << shown.status << "\nresult "
                  << shown.result << "\nstate " << shown.state << "counts " << shown.counts
                  << "\noutput " << shown.output;
}

#ifdef KORVO_DATABASE
void makeDataFile() {
    constexpr std::u16string_view file = u"data.sqlite";
    const localDbConnection connection(u"maker");
    EXPECT_TRUE(localDbConnection::open(connection.name(), file));
    for (
        const std::u16string_view sql :
        {u"create table Goods (id INTEGER PRIMARY KEY, CODE CHAR(9), descr CHAR(40))",
         u"insert into Goods (CODE,descr) values ('001','Nails that are longer than a text without "
         u"the heap'),('002',null)"}) {
        QSqlQuery query;
        EXPECT_TRUE(localDb::dbQueryExec(connection.name(), sql, query));
    }
    localDb::applicationSetDataFullFileName(file);
    for (const auto declaration :
         {localDataBase::classDeclaration, localDataBaseTable::classDeclaration,
          localDataBaseRecord::classDeclaration}) {
        declaration();
    }
}
#endif

class memoryTest : public testing::TestWithParam<memoryCase> {
protected:
    memoryTest() {
        if (localContextUTF8::globalContext == nullptr) {
#ifdef KORVO_DATABASE
            localExtensionAdd(localDbExtension);
            makeDataFile();
#endif
            int status = localErrorTypeOK;
            localContextUTF8::createGlobal(status).release();  // lives to the end of the process
        }
        // Classes are made at their first use.
        localDateTime::classDeclaration();
        localClassForTest::classDeclaration();
#ifdef KORVO_SHEETS
        localExtensionAdd(localSxlExtension);
#endif
        localSlot::reserve();
    }

    // What stands when the operation begins.
    struct setting {
        localContextUTF8 context;
        std::u16string text;
        localSlot result;
        localOperatorCompiled root;
    };

    std::unique_ptr<setting> made() {
        auto stage = std::make_unique<setting>();
        localContextUTF8& context = stage->context;
        context.varDeclare(u"date").value->objectBind(new localDateTime,
                                                      localDateTime::classDeclaration());
        stage->text = wide(GetParam().text);
        int status = localErrorTypeOK;
        if (!GetParam().setup.empty()) {
            EXPECT_TRUE(textLoad(status, wide(GetParam().setup), &context)) << output_.text();
        }
        output_.clear();
        return stage;
    }

    static bool run(setting& stage, int& status) {
        std::uint32_t pos = 0;
        switch (GetParam().kind) {
            case memoryCase::Kind::expression:
                return localInterpretatorUTF8::scanStringGetExpressionAndEvaluete(
                    status, stage.text, pos, stage.result.asResult(), &stage.context, false);
            case memoryCase::Kind::line:
                return localInterpretatorUTF8::scanStringGetOperatorAndExec(status, stage.text, pos,
                                                                            &stage.context, false);
            case memoryCase::Kind::program:
                return textExec(status, stage.text, &stage.context);
            case memoryCase::Kind::check:
                return programCompile(status, stage.text, stage.root, "check");
        }
        return false;
    }

    outcome seen(setting& stage, bool done, int status) {
        outcome now;
        now.done = done;
        now.status = status;
        now.output = output_.text();
        if (stage.result) {
            now.result = memoryStateOf(*stage.result);
            stage.result.clear();
        }
        now.state = memoryState(stage.context);
        now.counts = memoryCounts();
        return now;
    }

    // One try; `refused` takes how many requests failed.
    outcome tried(setting& stage, std::size_t number, failingMemory::Mode mode,
                  std::size_t& refused) {
        int status = localErrorTypeOK;
        output_.clear();
        failingMemory::begin(number, mode);
        const bool done = run(stage, status);
        refused = failingMemory::end();
        return seen(stage, done, status);
    }

    // True where the operation came to the same as with all the memory it wants.
    static bool isWhole(const outcome& got, const outcome& whole) {
        const bool varies = GetParam().varies;
        return got.done == whole.done && got.status == whole.status && got.state == whole.state &&
               got.counts == whole.counts &&
               (varies || (got.result == whole.result && got.output == whole.output));
    }

    static bool isRefusal(const outcome& got, const outcome& before, const outcome& whole) {
        const memoryCase& given = GetParam();
        const bool told = countOf(got.output, memoryLine) == 1;
        const bool statusFits =
            (!got.done &&
             (got.status == localErrorTypeCODE || got.status == given.insteadStatus)) ||
            (!given.insteadResult.empty() && got.result.ends_with(given.insteadResult));
        const bool valuesFit = given.severalChanges ||
                               (got.state == before.state && got.counts == before.counts) ||
                               (got.state == whole.state && got.counts == whole.counts);
        return told && statusFits && valuesFit;
    }

    void expectAtEachRequest(failingMemory::Mode mode) {
        const std::string countsBefore = memoryCounts();
        std::size_t unlimited = 0;
        const outcome whole = tried(*made(), 0, failingMemory::Mode::once, unlimited);
        constexpr std::size_t most = 20000;
        std::size_t number = 0;
        for (std::size_t refused = 1; refused != 0 && number < most && !HasFailure();) {
            ++number;
            std::unique_ptr<setting> stage = made();
            const outcome before = seen(*stage, true, localErrorTypeOK);
            const outcome got = tried(*stage, number, mode, refused);
            if (refused == 0) {
                EXPECT_TRUE(isWhole(got, whole)) << got << "\nwanted " << whole;
            } else {
                EXPECT_TRUE(isWhole(got, whole) || isRefusal(got, before, whole))
                    << "request " << number << (mode == failingMemory::Mode::once ? "" : " and on")
                    << ": " << got << "\nbefore " << before << "\nwith memory " << whole;
            }
            int status = localErrorTypeOK;
            EXPECT_TRUE(textLoad(status, u"after = \"a\"+\"b\"; RETURN STRINGLEN(after)-1;",
                                 &stage->context))
                << status << " behind request " << number;
            stage.reset();
            EXPECT_EQ(memoryCounts(), countsBefore) << "behind request " << number;
        }
        EXPECT_LT(number, most);
    }

    keptOutput output_;
    answeringHost host_;
};

TEST_P(memoryTest, failsOnce) {
    expectAtEachRequest(failingMemory::Mode::once);
}

TEST_P(memoryTest, failsFromThereOn) {
    expectAtEachRequest(failingMemory::Mode::fromThereOn);
}

std::string testName(const testing::TestParamInfo<memoryCase>& info) {
    std::string name;
    for (const char unit : info.param.name) {
        name += std::isalnum(static_cast<unsigned char>(unit)) != 0 ? unit : '_';
    }
    return name;
}

std::set<std::string> namesOf(const std::vector<memoryCase>& cases) {
    std::set<std::string> names;
    for (const memoryCase& each : cases) {
        names.insert(each.name);
    }
    return names;
}

void expectACaseForEachMember(const std::vector<localClassDeclaration*>& classes,
                              const std::vector<memoryCase>& cases) {
    const std::set<std::string> names = namesOf(cases);
    for (const localClassDeclaration* declaration : classes) {
        for (const auto& member : declaration->members()) {
            const bool isRussian = std::any_of(member->name.begin(), member->name.end(),
                                               [](char16_t unit) { return unit > u'~'; });
            const std::string name = member->name.empty()   ? "new"
                                     : member->name == u"~" ? "end"
                                                            : localString::toUtf8(member->name);
            const std::string key = localString::toUtf8(declaration->nameEng) + "." + name;
            EXPECT_TRUE(isRussian || names.contains(key)) << key;
        }
    }
}

#ifdef KORVO_DATABASE
INSTANTIATE_TEST_SUITE_P(database, memoryTest, testing::ValuesIn(databaseCases()), testName);

TEST(memoryCases, everyMemberOfTheDataFileHasOne) {
    expectACaseForEachMember({localDataBase::classDeclaration(),
                              localDataBaseTable::classDeclaration(),
                              localDataBaseRecord::classDeclaration()},
                             databaseCases());
}
#else
INSTANTIATE_TEST_SUITE_P(function, memoryTest, testing::ValuesIn(functionCases()), testName);
INSTANTIATE_TEST_SUITE_P(member, memoryTest, testing::ValuesIn(memberCases()), testName);
INSTANTIATE_TEST_SUITE_P(statement, memoryTest, testing::ValuesIn(statementCases()), testName);
INSTANTIATE_TEST_SUITE_P(line, memoryTest, testing::ValuesIn(lineCases()), testName);

#ifdef KORVO_SHEETS
INSTANTIATE_TEST_SUITE_P(sheet, memoryTest, testing::ValuesIn(sheetCases()), testName);
#endif

// What a process makes at its first use: the store, the global context, tables of names, classes.
constexpr std::string_view firstProgram =
    "CLASSLOAD(\"TEST\"); o = CREATEOBJECT(\"TEST\"); l = CREATEOBJECT(\"VALUELIST\"); "
    "l.VALUEADD(o); t = CREATEOBJECT(\"VALUETABLE\"); t.COLUMNADD(\"a\"); t.ROWADD(); "
    "t.VALUESET(1, 1, VALUETOJSON(l)); ? t.VALUEGET(1, 1); LOGWRITE(\"a\"); DISPLAY CLASS; "
    "FUNCTION f() RETURN PARSEJSON(\"[1]\"); ENDFUNCTION; x = f(); RETURN 1;";

enum childEnd { endedWhole, endedRefused, endedWrong };

// In a process of its own.
childEnd startedAnew(std::size_t number, failingMemory::Mode mode) {
    keptOutput output;
    const std::u16string program = wide(firstProgram);
    const auto run = [&program] {
        int status = localErrorTypeOK;
        localGuarded(status, "start", [&] {
            localContextUTF8 context;
            return textLoad(status, program, &context);
        });
        return status;
    };
    failingMemory::begin(number, mode);
    const int status = run();
    const std::size_t refused = failingMemory::end();
    const bool told = countOf(output.text(), memoryLine) == 1;
    const std::int64_t contexts = localContextUTF8::globalContext == nullptr ? 0 : 1;
    const bool inOrder = localContextUTF8::counterStaticTotal == contexts &&
                         localValueList::counterStaticTotal == 0 &&
                         localValueTable::counterStaticTotal == 0 &&
                         (localMemoryManager::manager == nullptr ||
                          localMemoryManager::manager->getUsedCount() == 0);
    const bool ranOut = status == localErrorTypeCODE && told && refused != 0;
    if (!inOrder || (status != localErrorTypeOK && !ranOut)) {
        std::cerr << "request " << number << ": status " << status << "\n" << output.text();
        return endedWrong;
    }
    if (run() != localErrorTypeOK) {
        return endedWrong;
    }
    return refused == 0 ? endedWhole : endedRefused;
}

TEST(memoryAtTheStart, aProcessGoesOnFromWhereItFailed) {
    ASSERT_EQ(localMemoryManager::manager, nullptr) << "must be the first test of its process";
    for (const auto mode : {failingMemory::Mode::once, failingMemory::Mode::fromThereOn}) {
        int ended = endedRefused;
        std::size_t number = 0;
        while (ended == endedRefused) {
            ++number;
            const pid_t child = fork();
            if (child == 0) {
                _exit(startedAnew(number, mode));
            }
            int state = 0;
            ASSERT_EQ(waitpid(child, &state, 0), child);
            ASSERT_TRUE(WIFEXITED(state)) << "signal behind request " << number;
            ended = WEXITSTATUS(state);
        }
        EXPECT_EQ(ended, endedWhole) << "request " << number;
        EXPECT_GT(number, 500U);
    }
}

TEST(failingMemoryTest, refusesTheRequestOfThatNumberInBothWays) {
    const std::u16string_view words = u"a text";
    for (const auto mode : {failingMemory::Mode::once, failingMemory::Mode::fromThereOn}) {
        localText first;
        localText second;
        bool threwFirst = false;
        bool threwSecond = false;
        bool threwThird = false;
        failingMemory::begin(2, mode);
        first.append(words);
        try {
            second.append(words);
        } catch (const std::bad_alloc&) {
            threwFirst = true;
        }
        try {
            std::make_unique<localText>();
        } catch (const std::bad_alloc&) {
            threwSecond = true;
        }
        try {
            second.append(words);
        } catch (const std::bad_alloc&) {
            threwThird = true;
        }
        const std::size_t refused = failingMemory::end();
        const bool andOn = mode == failingMemory::Mode::fromThereOn;
        EXPECT_EQ(first.view(), words);
        EXPECT_TRUE(threwFirst);
        EXPECT_EQ(threwSecond, andOn);
        EXPECT_EQ(threwThird, andOn);
        EXPECT_EQ(refused, andOn ? 3U : 1U);
        second = words;
        EXPECT_EQ(second.view(), words);
    }
}

TEST(memoryCases, everyFunctionHasOne) {
    const std::set<std::string> names = namesOf(functionCases());
    for (const localMethodRow& row : localLibrary::rows()) {
        EXPECT_TRUE(names.contains(localString::toUtf8(row.english)))
            << localString::toUtf8(row.english);
    }
}

TEST(memoryCases, everyMemberHasOne) {
    expectACaseForEachMember(
        {localValueList::classDeclaration(), localValueTable::classDeclaration(),
         localClassForTest::classDeclaration(), localDateTime::classDeclaration()},
        memberCases());
}

#ifdef KORVO_SHEETS
TEST(memoryCases, everyMemberOfSheetsHasOne) {
    expectACaseForEachMember({localSxlSheet::classDeclaration()}, sheetCases());
}
#endif

void collectTypes(const localOperatorCompiled& node, std::set<std::int32_t>& types) {
    types.insert(node.type);
    for (const localOperatorCompiled& child : node.operators) {
        collectTypes(child, types);
    }
}

TEST(memoryCases, everyKindOfStatementHasOne) {
    std::set<std::int32_t> types;
    for (const memoryCase& each : statementCases()) {
        if (each.kind == memoryCase::Kind::program && !each.name.starts_with("fault")) {
            int status = localErrorTypeOK;
            localOperatorCompiled root;
            ASSERT_TRUE(programCompile(status, wide(each.text), root, "check")) << each.name;
            collectTypes(root, types);
        }
    }
    for (std::int32_t type = localCompiledOperatorTypeBLOCK; type <= localCompiledOperatorTypeWHILE;
         ++type) {
        // No keyword produces it.
        EXPECT_TRUE(type == localCompiledOperatorTypeCONTINUE || types.contains(type)) << type;
    }
}
#endif

}  // namespace
