#include <gmock/gmock.h>

#include <fstream>

#include "program/programTest.h"

namespace {

class localCompilerTest : public programTest {};

using compilerTest = localCompilerTest;

TEST_F(compilerTest, operatorCodesAreFixed) {
    EXPECT_EQ(localCompiledOperatorTypeNONE, 0);
    EXPECT_EQ(localCompiledOperatorTypeBLOCK, 1);
    EXPECT_EQ(localCompiledOperatorTypeBREAK, 2);
    EXPECT_EQ(localCompiledOperatorTypeCONTINUE, 3);
    EXPECT_EQ(localCompiledOperatorTypeCOMMAND, 4);
    EXPECT_EQ(localCompiledOperatorTypeASSIGN, 5);
    EXPECT_EQ(localCompiledOperatorTypeIF, 6);
    EXPECT_EQ(localCompiledOperatorTypePRINT, 7);
    EXPECT_EQ(localCompiledOperatorTypeRENURN, 8);
    EXPECT_EQ(localCompiledOperatorTypeWHILE, 9);
}

TEST_F(compilerTest, trees) {
    const std::string end = " RETURN [(1)]}";
    struct Row {
        std::string text;
        std::string tree;
    };
    const Row rows[] = {
        {"", "BLOCK{RETURN [(1)]}"},
        {"  // nothing\n", "BLOCK{RETURN [(1)]}"},
        {"x = 1;", "BLOCK{ASSIGN X [1]" + end},
        {"x=1 ;// tail", "BLOCK{ASSIGN X [1]" + end},
        {"Счёт = ёж + 1;", "BLOCK{ASSIGN СЧЁТ [ёж + 1]" + end},
        {"VAR x = 1;", "BLOCK{ASSIGN VAR X [1]" + end},
        {"var x = 1;", "BLOCK{ASSIGN VAR X [1]" + end},
        {"Переменная x = 1;", "BLOCK{ASSIGN VAR X [1]" + end},
        {"ПЕРЕ x = 1;", "BLOCK{ASSIGN VAR X [1]" + end},
        {"1a = 2;", "BLOCK{ASSIGN 1A [2]" + end},
        {"? 1+2;", "BLOCK{PRINT [1+2]" + end},
        {"?x;?y;", "BLOCK{PRINT [x] PRINT [y]" + end},
        {"PRINT;", "BLOCK{RETURN [(1)]}"},
        {"BREAK;", "BLOCK{BREAK" + end},
        {"прервать;", "BLOCK{BREAK" + end},
        {"RETURN 5;", "BLOCK{RETURN [(5)]" + end},
        {"Возврат  x+1 ;", "BLOCK{RETURN [(x+1)]" + end},
        {"f(1,2);", "BLOCK{ASSIGN [f(1,2)]" + end},
        {"a.b.c(1);", "BLOCK{ASSIGN [a.b.c(1)]" + end},
        {"a.b = 1;", "BLOCK{ASSIGN [a.b = 1]" + end},
        {"a.b;", "BLOCK{ASSIGN [a.b]" + end},
        {"f (1);", ""},  // the expression stops at the parenthesis
        {"IF x THEN ELSE ENDIF;", "BLOCK{IF{BLOCK [ x]{} BLOCK{}}" + end},
        {"IF x THEN ? 1; ENDIF;", "BLOCK{IF{BLOCK [ x]{PRINT [1]}}" + end},
        {"ЕСЛИ x ТОГДА ? 1; ИНАЧЕЕСЛИ y ТОГДА ? 2; ИНАЧЕЕСЛИ z ТОГДА ? 3; ИНАЧЕ ? 4; КОНЕЦЕСЛИ;",
         "BLOCK{IF{BLOCK [ x]{PRINT [1]} BLOCK [ y]{PRINT [2]} BLOCK [ z]{PRINT [3]} "
         "BLOCK{PRINT [4]}}" +
             end},
        {"WHILE x<3 DO x=x+1; ENDDO;", "BLOCK{WHILE [(x<3)]{BLOCK{ASSIGN X [x+1]}}" + end},
        {"Пока x Цикл КонецЦикла;", "BLOCK{WHILE [(x)]{BLOCK{}}" + end},
        {"FOR i = 1 TO 3+n DO ? i; ENDDO;",
         "BLOCK{ASSIGN I [ 1] WHILE [I<=( 3+n)]{BLOCK{PRINT [i]} ASSIGN I [I+1]}" + end},
        {"Для Сч=a По b Цикл КонецЦикла;",
         "BLOCK{ASSIGN СЧ [a] WHILE [СЧ<=( b)]{BLOCK{} ASSIGN СЧ [СЧ+1]}" + end},
        {"FUNCTION f() ENDFUNCTION;", "BLOCK{FUNCTION F=BLOCK F{RETURN [(1.0)]} RETURN [(1)]}"},
        {"Процедура Ёж(a, // c\n Б) ? a; КонецПроцедуры; ? 1;",
         "BLOCK{FUNCTION ЁЖ=BLOCK ЁЖ(A,Б){PRINT [a] RETURN [(1.0)]} PRINT [1]" + end},
        {"FUNCTION f(a) RETURN a; ENDPROCEDURE;",
         "BLOCK{FUNCTION F=BLOCK F(A){RETURN [(a)] RETURN [(1.0)]} RETURN [(1)]}"},
        {"function f() function g() endfunction; endfunction;",
         "BLOCK{FUNCTION F=BLOCK F{FUNCTION G=BLOCK G{RETURN [(1.0)]} RETURN [(1.0)]} "
         "RETURN [(1)]}"},
        {"function f() endfunction; function f() ? 2; endfunction;",
         "BLOCK{FUNCTION F=BLOCK F{RETURN [(1.0)]} FUNCTION F=BLOCK F{PRINT [2] RETURN [(1.0)]} "
         "RETURN [(1)]}"},
        {"IF x THEN FUNCTION f() ENDFUNCTION; ENDIF;",
         "BLOCK{IF{BLOCK [ x]{FUNCTION F=BLOCK F{RETURN [(1.0)]}}}" + end},
        {"DISPLAY CLASS;", "BLOCK{COMMAND [DISPLAY CLASS]" + end},
        {" disp memo nu*;", "BLOCK{COMMAND [disp memo nu*]" + end},
        {"HELP ;", "BLOCK{COMMAND [HELP ]" + end},
        {"DIR ;", "BLOCK{COMMAND [DIR ]" + end},
        {"LOAD CLASS test;", "BLOCK{COMMAND [LOAD CLASS test]" + end},
        {"RUN notepad;", "BLOCK{COMMAND [RUN notepad]" + end},
        {"RUN \"a\" + \"b\";", "BLOCK{COMMAND [RUN \"a\" + \"b\"]" + end},
    };
    for (const Row& row : rows) {
        const compiled got = compile(row.text);
        if (row.tree.empty()) {
            EXPECT_FALSE(got.done) << row.text;
            continue;
        }
        EXPECT_TRUE(got.done) << row.text;
        EXPECT_EQ(got.status, 54) << row.text;
        EXPECT_EQ(shape(*got.root), row.tree) << row.text;
    }
}

TEST_F(compilerTest, positionsAreThoseOfTheStatements) {
    const compiled got = compile("x=1;\n"
                                 "IF x THEN ? x; ELSE ? 2; ENDIF;\n"
                                 "FOR i=1 TO 2 DO ? i; ENDDO;\n"
                                 " WHILE x DO BREAK; ENDDO;\n"
                                 "FUNCTION f() ? 3; ENDFUNCTION;\n");
    EXPECT_EQ(shape(*got.root, true),
              "BLOCK@0{FUNCTION F=BLOCK@91 F{PRINT@104 [3] RETURN@109 [(1.0)]} "
              "ASSIGN@0 X [1] "
              "IF@5{BLOCK@5 [ x]{PRINT@15 [x]} BLOCK@5{PRINT@25 [2]}} "
              "ASSIGN@37 I [1] "
              "WHILE@37 [I<=( 2)]{BLOCK@37{PRINT@53 [i]} ASSIGN@37 I [I+1]} "
              "WHILE@66 [(x)]{BLOCK@66{BREAK@77}} "
              "RETURN@91 [(1)]}");
}

TEST_F(compilerTest, aTerminatorThatNobodyOpenedRisesToTheTop) {
    struct Row {
        std::string word;
        int status;
    };
    for (const Row& row : {Row{"ELSE", 0},
                           {"Иначе", 0},
                           {"ELSEIF", 1},
                           {"ИначеЕсли", 1},
                           {"ENDDO", 2},
                           {"КонецЦикла", 2},
                           {"ENDFUNCTION", 3},
                           {"ENDPROCEDURE", 3},
                           {"КонецФункции", 3},
                           {"КонецПроцедуры", 3},
                           {"ENDIF", 4},
                           {"КонецЕсли", 4}}) {
        const compiled got = compile("? 1; " + row.word + "; ? 2;");
        EXPECT_TRUE(got.done) << row.word;
        EXPECT_EQ(got.status, row.status) << row.word;
    }
}

TEST_F(compilerTest, faults) {
    struct Row {
        std::string text;
        int status;
        std::uint32_t pos;
    };
    const Row rows[] = {
        // Semicolons.
        {"? 1", 42, 2},
        {"? 1 ? 2;", 38, 7},
        {"x = 1", 42, 4},
        {"PRINT x;", 42, 4},
        {"BREAK", 42, 4},
        {"IF x THEN ENDIF", 42, 14},
        {"WHILE x DO ENDDO", 42, 15},
        {"FUNCTION f() ENDFUNCTION", 42, 23},
        {";", 37, 0},
        {"x=1;;", 37, 4},
        // Assignments and declarations.
        {"x", 37, 1},
        {"x;", 37, 1},
        {"x 1;", 37, 2},
        {"x y = 1;", 37, 2},
        {"x =;", 37, 3},
        {"x = 1+;", 37, 6},
        {"VAR x;", 37, 5},
        {"VAR = 1;", 37, 4},
        {"VAR", 37, 3},
        {"ПЕР x = 1;", 37, 4},
        {"ПЕРЕМЕННАЯЯ x = 1;", 37, 12},
        {"HELP;", 37, 4},
        {"DIR;", 37, 3},
        {"f(1;", 37, 3},
        {"f(1", 41, 3},
        {"a.b(;", 37, 4},
        {"?;", 37, 1},
        {"? (1;", 41, 4},
        {"? 12345678901234567;", 36, 19},
        {"? \"abc;", 37, 7},
        {"? 1?2;", 38, 5},
        // Conditionals.
        {"IF", 45, 2},
        {"IF ;", 37, 3},
        {"IF x ? 1; ENDIF;", 38, 8},
        {"IF x ; ENDIF;", 47, 5},
        {"IF x TH ? 1; ENDIF;", 47, 7},
        {"IF x THEN ? 1;", 45, 14},
        {"IF x THEN ? 1; ELSE ? 2;", 45, 24},
        {"IF x THEN ELSE", 45, 14},
        {"IF x THEN ENDDO;", 37, 15},  // what follows is read as the next condition
        {"IF x THEN ELSEIF ENDIF;", 47, 22},
        // Loops.
        {"FOR", 39, 3},
        {"FOR i 1 TO 2 DO ENDDO;", 39, 6},
        {"FOR i=1 DO ENDDO;", 48, 10},
        {"FOR i=1 TO 2 ENDDO;", 43, 18},
        {"FOR i= TO 2 DO ENDDO;", 48, 11},
        {"FOR i=1 TO ; DO ENDDO;", 37, 11},
        {"FOR i=1 TO 2 DO ? i;", 44, 20},
        {"FOR i=1 TO 2 DO ENDIF;", 44, 21},
        {"WHILE", 37, 5},
        {"WHILE x ENDDO;", 43, 13},
        {"WHILE x DO ? 1;", 44, 15},
        {"WHILE x DO ENDIF;", 44, 16},
        {"WHILE x DO ELSE", 44, 15},
        // RETURN.
        {"RETURN;", 15, 6},
        {"RETURN // c\n ;", 15, 13},
        {"RETURN", 37, 6},
        {"RETURN +;", 37, 7},
        // Functions.
        {"FUNCTION f ENDFUNCTION;", 40, 10},
        {"FUNCTION f", 40, 10},
        {"FUNCTION f(a b) ENDFUNCTION;", 40, 13},
        {"FUNCTION f(a", 40, 12},
        {"FUNCTION f(,a) ENDFUNCTION;", 16, 11},
        {"FUNCTION f(a,) ENDFUNCTION;", 16, 13},
        {"FUNCTION f(a=1) ENDFUNCTION;", 40, 12},
        {"FUNCTION f() ? 1;", 46, 17},
        {"FUNCTION f() ENDIF;", 46, 18},
        // Commands.
        {"DO \"no-such-file.prg\";", 23, 21},
        {"DO no-such-file.prg;", 23, 20},
        {"DO ;", 23, 4},
        {"CLEAR MEMORY;", 18, 12},
        {"CLEAR ;", 37, 6},
        {"DISPLAY nothing;", 37, 15},
        {"QUIT ;", 5, 6},
    };
    for (const Row& row : rows) {
        const compiled got = compile(row.text);
        EXPECT_FALSE(got.done) << row.text;
        EXPECT_EQ(got.status, row.status) << row.text;
        EXPECT_EQ(got.pos, row.pos) << row.text;
    }
}

TEST_F(compilerTest, faultsAreWrittenWhereTheyAreFound) {
    struct Row {
        std::string text;
        std::vector<std::string> lines;
    };
    const std::string failed = "ERROR!!!";
    const std::string syntax = "Синтаксическая ошибка.";
    const Row rows[] = {
        {"? +;", {failed}},
        {"IF + THEN ENDIF;", {failed}},
        {"FOR i=+ TO 2 DO ENDDO;", {failed}},
        {"FOR i=1 TO + DO ENDDO;", {failed}},
        {"WHILE + DO ENDDO;", {failed}},
        {"RETURN +;", {failed}},
        {"RETURN;",
         {"Внимание!!! Команда RETURN (ВОЗВРАТ) должна ВСЕГДА иметь возвращаемое значение!"}},
        {"FUNCTION f(+) ENDFUNCTION;", {" Ошибка считывания аргумента !!! "}},
        {"x = 1+;", {";", syntax}},
        {"f(1+);", {");", syntax}},
        {"f(1", {"ожидается  ')' в позиции 3", "", "Синтаксическая ошибка. Ожидается \")\""}},
        {"DISPLAY nothing;", {" Ошибка компиляции запрограммированной команды (оператора) !!! "}},
        {"x;", {}},
        {"? 1", {}},
        {"IF x ; ENDIF;", {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(compile(row.text).lines, row.lines) << row.text;
    }
}

TEST_F(compilerTest, theLinesEndInTheTailOfTextCompile) {
    std::uint32_t pos = 0;
    int status = localErrorTypeOK;
    localOperatorCompiled root;
    EXPECT_FALSE(textCompile(status, u"RETURN;", pos, &root));
    EXPECT_THAT(output.text(),
                testing::MatchesRegex(".*значение! func: textCompile file: localCompiler.cpp line: "
                                      "[0-9]+\n"));
}

TEST_F(compilerTest, aNodeMustBeGiven) {
    std::uint32_t pos = 0;
    int status = localErrorTypeOK;
    EXPECT_FALSE(textCompile(status, u"? 1;", pos, nullptr));
    EXPECT_EQ(status, 16);
    EXPECT_EQ(output.lines(),
              std::vector<std::string>{
                  "Для компиляции необходимо передавать уже инициализированный объект будущего "
                  "влока, который определяет функцию обработки "});
}

TEST_F(compilerTest, compilingBeginsAtThePositionAndEmptiesTheNode) {
    localOperatorCompiled root;
    root.type = localCompiledOperatorTypeIF;
    root.operators.emplace_back();
    std::uint32_t pos = 4;
    int status = localErrorTypeOK;
    EXPECT_TRUE(textCompile(status, u"???;x=1;", pos, &root));
    EXPECT_EQ(shape(root), "BLOCK{ASSIGN X [1] RETURN [(1)]}");
}

bool another(int& status, localContextUTF8* context, const localOperatorCompiled& node,
             const localArguments& args, localValueDescription*& result) {
    return localOperatorCompiled::execute(status, context, node, args, result);
}

void expectFunction(const localOperatorCompiled& node, localExecuteFunction function) {
    EXPECT_EQ(node.executeFunction, function);
    for (const localOperatorCompiled& child : node.operators) {
        expectFunction(child, function);
    }
    for (const auto& [name, body] : node.functions) {
        expectFunction(*body, function);
    }
}

TEST_F(compilerTest, everyNodeTakesTheExecuteFunctionOfTheRoot) {
    const std::u16string text =
        u"FUNCTION f(a) IF a THEN ? 1; ELSE ? 2; ENDIF; ENDFUNCTION; x=1; f(x); DISPLAY CLASS;"
        u"FOR i=1 TO 2 DO WHILE x DO BREAK; ENDDO; ENDDO; RETURN 1;";
    for (const localExecuteFunction function : {localExecuteFunction{nullptr}, &another}) {
        localOperatorCompiled root(function);
        std::uint32_t pos = 0;
        int status = localErrorTypeOK;
        ASSERT_TRUE(textCompile(status, text, pos, &root));
        expectFunction(root, function == nullptr ? &localOperatorCompiled::execute : function);
    }
}

TEST_F(compilerTest, namesAreLookedUpByTheHashOfTheirCapitals) {
    const compiled got = compile("Имя = 1;");
    EXPECT_EQ(got.root->operators[0].nameHash, nameHash(u"ИМЯ"));
}

TEST_F(compilerTest, aCommandThatLoadsAFileIsTriedWhileCompiling) {
    std::ofstream("exists.prg") << "this is no program";
    EXPECT_TRUE(compile("DO \"exists.prg\";").done) << "the file is opened, not compiled";
    std::ofstream("exists.prg;") << "x";
    const compiled got = compile("DO exists.prg;\n? 1;");
    // The name takes the semicolon, and the statement then has none.
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 42);
    EXPECT_TRUE(compile("DO exists.prg ;").done);
}

TEST_F(compilerTest, anEditorCommandCreatesItsFileWhileCompiling) {
    EXPECT_FALSE(localPlatform::pathExists(u"created.prg"));
    EXPECT_TRUE(compile("MODIFY COMMAND \"created.prg\";").done);
    EXPECT_TRUE(localPlatform::pathExists(u"created.prg"));
    EXPECT_EQ(host.calls, std::vector<std::string>{"openOutsideEditor created.prg"});
}

TEST_F(compilerTest, nestingTooDeepIsRefused) {
    std::string deep;
    for (int i = 0; i < 100000; ++i) {
        deep += "IF 1 THEN ";
    }
    const compiled got = compile(deep);
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 16);
    EXPECT_LE(got.lines.size(), 2U) << "one line, and that of the construct it stopped in";
    EXPECT_TRUE(compile("IF 1 THEN IF 1 THEN ENDIF; ENDIF;").done);
}

TEST_F(compilerTest, deepBlocksThatFitAreCompiled) {
    std::string text;
    for (int i = 0; i < 500; ++i) {
        text += "WHILE 1 DO ";
    }
    for (int i = 0; i < 500; ++i) {
        text += "ENDDO; ";
    }
    EXPECT_TRUE(compile(text).done);
}

}  // namespace
