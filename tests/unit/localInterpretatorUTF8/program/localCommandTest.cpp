#include "localInterpretatorUTF8/program/localCommand.h"

#include <gmock/gmock.h>

#include <fstream>

#include "support/language.h"
#include "support/ownFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class localCommandTest : public languageTest {
protected:
    struct acted {
        bool done = false;
        int status = localErrorTypeOK;
        std::uint32_t pos = 0;
        std::vector<std::string> lines;
    };
    acted act(std::string_view line, localContextUTF8* scope, std::uint32_t from = 0) {
        const capturedOutput lines;
        acted outcome;
        outcome.pos = from;
        outcome.done = localInterpretatorUTF8::scanStringGetOperatorAndExec(
            outcome.status, wide(line), outcome.pos, scope, scope == nullptr);
        outcome.lines = lines.lines();
        return outcome;
    }
    acted act(std::string_view line) { return act(line, &context); }
    acted check(std::string_view line) { return act(line, nullptr); }

    static void write(const std::string& name, std::string_view text) {
        std::ofstream(name, std::ios::binary) << text;
    }

    const ownFolder folder;
    localContextUTF8 context;
};

using commandTest = localCommandTest;

TEST_F(commandTest, aContextMayBeMissingInCheckModeOnly) {
    int status = localErrorTypeOK;
    std::uint32_t pos = 0;
    EXPECT_HALT(
        localInterpretatorUTF8::scanStringGetOperatorAndExec(status, u"? 1", pos, nullptr, false),
        "localInterpretatorUTF8::scanStringGetOperatorAndExec() context may be NULL only in "
        "onlyCheck!");
}

TEST_F(commandTest, aQuestionMarkPrints) {
    EXPECT_THAT(act("? 2+2").lines, ElementsAre("4"));
    EXPECT_THAT(act("  // c\n ? 'Привет'").lines, ElementsAre("Привет"));
    EXPECT_THAT(act("1;? 5", &context, 2).lines, ElementsAre("5"));
    const acted failed = act("? 1/0");
    EXPECT_FALSE(failed.done);
    EXPECT_EQ(failed.status, 21);
    EXPECT_THAT(failed.lines, ElementsAre("ERROR!!! Деление на 0!"));
    const acted odd = act("? 'a'-'b'");
    EXPECT_FALSE(odd.done);
    EXPECT_EQ(odd.status, 54);
    EXPECT_THAT(odd.lines, ElementsAre("ERROR!!! Ок. Ошибки отсутствуют"));
}

TEST_F(commandTest, nothingIsDoneForALineWithoutAWord) {
    for (const char* line : {"", "   ", "// comment", "+1", ";", "(1)"}) {
        const acted got = act(line);
        EXPECT_TRUE(got.done) << line;
        EXPECT_EQ(got.status, 54) << line;
        EXPECT_TRUE(got.lines.empty()) << line;
    }
}

TEST_F(commandTest, assignments) {
    EXPECT_TRUE(act("x = 5").done);
    EXPECT_EQ(context.varToString(u"x"), u"5");
    EXPECT_TRUE(act("X = x + 1").done);
    EXPECT_EQ(context.varToString(u"x"), u"6");
    EXPECT_EQ(context.variables().size(), 1U);

    localContextUTF8 inner(&context);
    EXPECT_TRUE(act("x = 7", &inner).done);
    EXPECT_TRUE(inner.variables().empty()) << "the variable of the outer scope is set";
    EXPECT_EQ(context.varToString(u"x"), u"7");

    const acted failed = act("y = nosuch");
    EXPECT_FALSE(failed.done);
    EXPECT_EQ(failed.status, 37);
    EXPECT_THAT(failed.lines, ElementsAre("Syntax ERROR in line lineNumber!!!"));
    EXPECT_EQ(context.varToString(u"y"), u"0") << "declared with the number 0 before";
    EXPECT_TRUE(act("z = z").done);
    EXPECT_EQ(context.varToString(u"z"), u"0");
}

TEST_F(commandTest, anyOtherLineIsAnExpression) {
    EXPECT_TRUE(act("contextGet()").done);
    const acted unknown = act("nosuch");
    EXPECT_FALSE(unknown.done);
    EXPECT_EQ(unknown.status, 10);
    EXPECT_TRUE(unknown.lines.empty());
    EXPECT_EQ(act("  nosuch(1)").status, 27);
}

TEST_F(commandTest, checkModePutsThePositionBackForWhatIsNoCommand) {
    for (const char* line :
         {"x = 1", "  x", "nosuch(1)", "VAR x = 1", "DOO", "CLE MEMORY", "RUNS"}) {
        const acted got = check(line);
        EXPECT_TRUE(got.done) << line;
        EXPECT_EQ(got.pos, 0U) << line;
        EXPECT_TRUE(got.lines.empty()) << line;
    }
}

TEST_F(commandTest, checkModeMovesBehindACommandWithoutDoingIt) {
    write("program.prg", "? 'ran';");
    struct Row {
        std::string line;
        std::uint32_t pos;
    };
    const Row rows[] = {
        {"DO \"program.prg\" ;", 16},
        {"do program.prg ;", 15},
        {"HELP ;", 5},
        {"help;", 4},
        {"DIR ;", 4},
        {"DIRE ;", 5},
        {"DISPLAY FUNCTION x;", 19},
        {"DISP MEMO nu*;", 13},
        {"DISP CLAS ;", 9},
        {"DISP CONT;", 9},
        {"LOAD CLASS test;", 15},
        {"LOAD CONT;", 9},
        {"RUN notepad;", 11},
        {"RUN \"a\"+\"b\";", 11},
        {"QUIT ;", 5},
        {"EXIT;", 4},
    };
    for (const Row& row : rows) {
        const acted got = check(row.line);
        EXPECT_TRUE(got.done) << row.line;
        EXPECT_EQ(got.pos, row.pos) << row.line;
        const bool loads = row.line.starts_with("LOAD CLASS");
        EXPECT_EQ(got.lines, loads ? std::vector<std::string>{"Пытаемся загрузить класс  "}
                                   : std::vector<std::string>{})
            << row.line;
    }
    EXPECT_TRUE(host.calls.empty());
}

TEST_F(commandTest, doRunsAFileInTheSameContext) {
    write("program.prg", "x = 5;\n? 'ran';\nRETURN 2;");
    const acted got = act("DO program.prg");
    EXPECT_TRUE(got.done);
    EXPECT_EQ(got.status, 54) << "any value of the program counts as success";
    EXPECT_THAT(got.lines, ElementsAre("ran"));
    EXPECT_EQ(context.varToString(u"x"), u"5");
    EXPECT_TRUE(act("do \"program.prg\"").done);
}

TEST_F(commandTest, doFailures) {
    EXPECT_EQ(act("DO").status, 37);
    EXPECT_EQ(act("DO \"\"").status, 37);
    EXPECT_EQ(act("DO \"open").status, 37);
    const acted missing = act("DO nosuch.prg");
    EXPECT_FALSE(missing.done);
    EXPECT_EQ(missing.status, 23);
    EXPECT_THAT(missing.lines, ElementsAre("Error! ", "Файл не найден."));
    EXPECT_EQ(act("DO .").status, 23) << "a folder is no file";
    write("bad.prg", "x = 1/0;");
    const acted failed = act("DO bad.prg");
    EXPECT_FALSE(failed.done);
    EXPECT_EQ(failed.status, 21);
    EXPECT_EQ(failed.lines.back(), "Деление на 0!");
}

TEST_F(commandTest, aFileThatRunsItselfIsRefusedInTheEnd) {
    write("self.prg", "DO \"self.prg\";");
    const acted got = act("DO self.prg");
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 16);
    EXPECT_THAT(act("? 1").lines, ElementsAre("1"));
}

TEST_F(commandTest, helpWritesTheBriefManual) {
    const acted got = act("help");
    EXPECT_TRUE(got.done);
    ASSERT_GT(got.lines.size(), 20U);
    EXPECT_THAT(got.lines[0], HasSubstr("MANUAL"));
    EXPECT_EQ(got.lines[1], "******** КОМАНДЫ ********************");
    EXPECT_EQ(got.lines.back(), "****************************");
    std::vector<std::string> commands;
    for (const std::string& line : got.lines) {
        if (!line.starts_with(" ") && !line.starts_with("*")) {
            commands.push_back(line);
        }
    }
    commands.erase(commands.begin());
    EXPECT_THAT(commands,
                ElementsAre("? <выражение>", "CLEAR MEMORY [<шаблон>]", "DEBUG <имя файла>", "DIR ",
                            "DISPLAY CLASS ", "DISPLAY CONTEXT ", "DISPLAY FUNCTION ",
                            "DISPLAY MEMORY [<шаблон>]", "DO <имя файла>",
                            "EDIT COMMAND <имя файла>", "MOFIFY COMMAND <имя файла>",
                            "RUN [<команда> | <строка>] "));
    std::string all;
    for (const std::string& line : got.lines) {
        all += line + "\n";
    }
    for (const char* example : {"? 2+2", "CLEA MEMO NU*", "DISP MEMO NU*", "RUN notepad"}) {
        EXPECT_THAT(all, HasSubstr(example));
    }
}

TEST_F(commandTest, clearRemovesAllVariablesWhateverThePattern) {
    for (const char* line : {"CLEAR MEMORY", "clea memo", "CLEAR MEMORY a*", "CLEA MEMORY a"}) {
        act("a = 1");
        act("b = 2");
        EXPECT_TRUE(act(line).done) << line;
        EXPECT_TRUE(context.variables().empty()) << line;
    }
    EXPECT_EQ(act("CLEAR").status, 37);
    EXPECT_EQ(act("CLEAR MEM").status, 37);
    EXPECT_EQ(act("CLEAR CLASS").status, 37);
    EXPECT_FALSE(check("CLEAR MEMORY").done);
}

TEST_F(commandTest, listings) {
    act("number = 1");
    act("text = 'a'");
    const auto first = [&](const char* line) { return act(line).lines; };
    std::vector<std::string> lines = first("DISP MEMO nu*");
    EXPECT_EQ(lines[1], "СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [nu*]");
    EXPECT_THAT(lines[3], HasSubstr(" var [NUMBER] : "));
    EXPECT_THAT(lines[4], StartsWith("в том числе"));
    lines = first("DISPLAY FUNCTION CREATE* ");
    EXPECT_EQ(lines[1], "СПИСОК ФУНКЦИЙ с шаблоном имени [CREATE*]");
    EXPECT_EQ(lines.back(), "0 CREATEOBJECT() ");
    lines = first("display clas");
    EXPECT_EQ(lines[0], "СПИСОК КЛАССОВ ");
    EXPECT_EQ(act("DISPLAY").status, 37);
    EXPECT_EQ(act("DISPLAY FUN").status, 37);

    // Functions, variables, classes, in that order.
    for (const char* line : {"DISPLAY CONTEXT", "LOAD CONT"}) {
        lines = first(line);
        const auto at = [&](const std::string& head) {
            return std::find(lines.begin(), lines.end(), head) - lines.begin();
        };
        EXPECT_EQ(at("СПИСОК ФУНКЦИЙ "), 1) << line;
        EXPECT_LT(at("СПИСОК ФУНКЦИЙ "), at("СПИСОК ПЕРЕМЕННЫХ *************** ")) << line;
        EXPECT_LT(at("СПИСОК ПЕРЕМЕННЫХ *************** "), at("СПИСОК КЛАССОВ ")) << line;
        EXPECT_LT(at("СПИСОК КЛАССОВ "), static_cast<std::ptrdiff_t>(lines.size())) << line;
    }
}

TEST_F(commandTest, aPatternEndsAtTheFirstUnitThatIsNoPartOfOne) {
    const acted got = act("DISP MEMO a?b*c d");
    EXPECT_TRUE(got.done);
    EXPECT_EQ(got.pos, 15U);
    EXPECT_EQ(got.lines[1], "СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [a?b*c]");
}

TEST_F(commandTest, quitAsksForTheEnd) {
    for (const char* line : {"QUIT", "exit", "Quit"}) {
        const acted got = act(line);
        EXPECT_TRUE(got.done) << line;
        EXPECT_EQ(got.status, 5) << line;
    }
    EXPECT_EQ(check("QUIT").status, 5);
    EXPECT_EQ(act("QUI").status, 10) << "no command";
}

TEST_F(commandTest, theHostOpensEditors) {
    EXPECT_TRUE(act("MODIFY COMMAND new.prg").done);
    EXPECT_TRUE(act("modi comm \"a b.prg\"").done);
    EXPECT_TRUE(act("EDIT COMMAND new.prg").done);
    EXPECT_TRUE(act("EDIT COMM CP1251 new.prg").done);
    EXPECT_TRUE(act("EDIT COMM cp866 new.prg").done);
    EXPECT_TRUE(act("EDIT COMM UTF8 new.prg").done);
    EXPECT_TRUE(act("EDIT COMM utf8.prg").done);
    EXPECT_THAT(host.calls,
                ElementsAre("openOutsideEditor new.prg", "openOutsideEditor a b.prg",
                            "openEditor new.prg code page 4", "openEditor new.prg code page 2",
                            "openEditor new.prg code page 3", "openEditor new.prg code page 4",
                            testing::_));
    // A file that is not there is made, holding a line end; one that is there stays.
    std::ifstream made("new.prg");
    std::string text((std::istreambuf_iterator<char>(made)), std::istreambuf_iterator<char>());
    EXPECT_EQ(text, "\n");
    write("old.prg", "? 1;");
    EXPECT_TRUE(act("MODI COMM old.prg").done);
    std::ifstream old("old.prg");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(old), {}), "? 1;");
}

TEST_F(commandTest, editorFailures) {
    EXPECT_EQ(act("EDIT").status, 37);
    EXPECT_EQ(act("EDIT FILE x").status, 37);
    EXPECT_EQ(act("EDIT COMMAND").status, 37);
    EXPECT_EQ(act("MODIFY COMMAND").status, 37);
    EXPECT_EQ(act("MODIFY x.prg").status, 37);
    EXPECT_EQ(act("EDIT COMMAND no/such/folder/x.prg").status, 23);
    host.opens = false;
    EXPECT_EQ(act("EDIT COMMAND new.prg").status, 26);
    EXPECT_EQ(act("MODI COMM new.prg").status, 26);
}

TEST_F(commandTest, theHostStartsPrograms) {
    EXPECT_TRUE(act("RUN notepad").done);
    EXPECT_TRUE(act("RUN notepad.exe").done);
    EXPECT_TRUE(act("RUN \"dir\\\\x\" + ' y'").done);
    EXPECT_TRUE(act("run \"a b\"").done);
    EXPECT_THAT(host.calls, ElementsAre("startProgram notepad", "startProgram notepad",
                                        "startProgram dir//x y", "startProgram a b"));
    EXPECT_EQ(act("RUN \"a\"+").status, 37);
    host.calls.clear();
    EXPECT_TRUE(act("DIR").done);
    EXPECT_TRUE(act("direct").done);
    EXPECT_THAT(host.calls, ElementsAre("showDirectory", "showDirectory"));
}

TEST_F(commandTest, classesAreLoaded) {
    const acted unknown = act("LOAD CLASS nosuchclass");
    EXPECT_FALSE(unknown.done);
    EXPECT_EQ(unknown.status, 14);
    EXPECT_THAT(unknown.lines, ElementsAre("Пытаемся загрузить класс  ",
                                           "Пытаемся загрузить класс [nosuchclass] "));
    const acted loaded = act("LOAD CLAS test");
    EXPECT_TRUE(loaded.done);
    ASSERT_GE(loaded.lines.size(), 5U);
    EXPECT_EQ(loaded.lines[2], "Класс [test] загружен!");
    EXPECT_EQ(loaded.lines[3], "СПИСОК КЛАССОВ ");
    EXPECT_EQ(act("LOAD").status, 37);
    EXPECT_EQ(act("LOAD FILE").status, 37);
}

}  // namespace
