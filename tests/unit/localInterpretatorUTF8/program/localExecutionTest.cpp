#include <gmock/gmock.h>

#include "program/programTest.h"
#include "support/countedClass.h"

namespace {

using testing::ElementsAre;

class localExecutionTest : public programTest {
protected:
    localExecutionTest() {
        context.varDeclare(u"o").value->objectBind(new countedObject, countedClass());
    }
    bool load(std::string_view text, int& status) {
        const capturedOutput unseen;
        return textLoad(status, wide(text), &context);
    }
};

using executionTest = localExecutionTest;

// Programs
// -----------------------------------------------------------------------------------------

TEST_F(executionTest, valuesOfPrograms) {
    struct Row {
        std::string text;
        bool isOne;
    };
    const Row rows[] = {
        {"", true},
        {"// nothing", true},
        {"x = 5;", true},
        {"RETURN 1;", true},
        {"RETURN 1; RETURN 2;", true},
        {"RETURN 2;", false},
        {"RETURN 0;", false},
        {"RETURN '1';", false},
        {"RETURN 1=1;", false},
        {"RETURN 2-1;", true},
        {"IF 1 THEN RETURN 7; ENDIF;", false},
        {"WHILE 1 DO RETURN 7; ENDDO;", false},
        {"FOR i=1 TO 9 DO IF i=5 THEN RETURN i; ENDIF; ENDDO;", false},
        {"FUNCTION f() RETURN 7; ENDFUNCTION; f();", true},
    };
    for (const Row& row : rows) {
        const ran got = run(row.text);
        EXPECT_TRUE(got.done) << row.text;
        EXPECT_TRUE(got.lines.empty()) << row.text;
        EXPECT_EQ(got.status == 58, !row.isOne) << row.text << " status " << got.status;

        int status = localErrorTypeOK;
        EXPECT_EQ(load(row.text, status), row.isOne) << row.text;
        EXPECT_EQ(status, row.isOne ? 54 : 57) << row.text;
    }
}

TEST_F(executionTest, aProgramThatFailsLeavesItsStatus) {
    struct Row {
        std::string text;
        int status;
        std::vector<std::string> lines;
    };
    const std::string divided = "Деление на 0!";
    // The one line that names its file and no function.
    const std::string returned =
        "localCompiledOperatorTypeRENURN with expression [(1/0)] file: localExecution.cpp line:";
    const Row rows[] = {
        {"x = 1/0;", 21, {"", ">> X=1/0; ", "ERROR!!! " + divided, divided}},
        {"o.fail();",
         7,
         {"", ">> fail() in );", "ERROR!!! Выход за границы массива.", "", ">> =o.fail(); ",
          "ERROR!!! Выход за границы массива.", "Выход за границы массива."}},
        {"? 1/0;",
         21,
         {"1/0", "ERROR!!! " + divided + " in  expression.", "Expression below: 1/0 in  expression",
          divided}},
        {"RETURN 1/0;", 21, {returned, "ERROR!!!", divided}},
        {"WHILE 1/0 DO ENDDO;", 21, {"ERROR!!!", divided}},
        {"IF 1/0 THEN ENDIF;", 21, {"", ">> = 1/0; ", "ERROR!!! " + divided, divided}},
        {"IF 0 THEN ELSEIF 1/0 THEN ENDIF;",
         21,
         {"", ">> = 1/0; ", "ERROR!!! " + divided, divided}},
        {"x = 'a'-'b';",
         54,
         {"", ">> X='a'-'b'; ", "ERROR!!! Ок. Ошибки отсутствуют", "Ок. Ошибки отсутствуют"}},
        {"VAR x=1; VAR x=2;", 53, {"Переменная не может быть задекларирована повторно."}},
        {"IF 1 THEN ENDIF;", 54, {"Ок. Ошибки отсутствуют"}},  // a chosen branch without statements
        {"WHILE 1 DO ENDDO;", 54, {"Ок. Ошибки отсутствуют"}},
        {"FUNCTION f() BREAK; ENDFUNCTION; f();",
         19,
         {"", ">> f() in );", "ERROR!!! Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла.", "",
          ">> =f(); ", "ERROR!!! Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла.",
          "Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла."}},
    };
    for (const Row& row : rows) {
        ran got = run(row.text);
        EXPECT_FALSE(got.done) << row.text;
        EXPECT_EQ(got.status, row.status) << row.text;
        if (!got.lines.empty() && got.lines.front().starts_with(returned)) {
            got.lines.front().resize(got.lines.front().find_last_of(' '));
        }
        EXPECT_EQ(got.lines, row.lines) << row.text;
        context.varRemoveAll();
        context.varDeclare(u"o").value->objectBind(new countedObject, countedClass());
    }
}

TEST_F(executionTest, theLinesOfAFaultNameTheirFunction) {
    int status = localErrorTypeOK;
    EXPECT_FALSE(textExec(status, u"x = 1/0;", &context));
    const std::vector<std::string> lines = output.rawLines();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_THAT(lines[1], testing::HasSubstr("; "
                                             " func: execute file: localExecution.cpp line: "));
    EXPECT_THAT(lines[2], testing::HasSubstr("! func: execute file: localExecution.cpp line: "));
    EXPECT_THAT(lines[3], testing::HasSubstr("! func: textExec file: localProgram.cpp line: "));
}

TEST_F(executionTest, aFaultOfCompilingIsToldWithItsPlace) {
    struct Row {
        std::string text;
        std::vector<std::string> lines;
    };
    const Row rows[] = {
        {"x=1;\n  y 2;\nz=3;", {"  y 2;", "Синтаксическая ошибка.", "line: 2 pos: 4", "char: 50"}},
        {"x=1", {"x=1", "Синтаксическая ошибка. Ожидается \";\"", "line: 1 pos: 2", "char: 49"}},
        {"IF 1 THEN",
         {"IF 1 THEN", "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЕСЛИ\" (\"endif\") ",
          "line: 1 pos: 9", "char: 0"}},
        {"ELSE", {"ELSE", "Неизвестный статус возврата ном: 0", "line: 1 pos: 4", "char: 0"}},
        {"\n\nENDDO;",
         {"ENDDO;", "Непредвиденное использование зарезарвированного слова КонецЦикла (EndDo)",
          "line: 3 pos: 5", "char: 59"}},
        {"QUIT ;", {"QUIT ;", "Неизвестный статус возврата ном: 5", "line: 1 pos: 6", "char: 0"}},
    };
    for (const Row& row : rows) {
        const ran got = run(row.text);
        EXPECT_FALSE(got.done) << row.text;
        EXPECT_EQ(got.lines, row.lines) << row.text;
    }
}

TEST_F(executionTest, aFaultOfCompilingIsToldUnderTheNameOfItsFunction) {
    int status = localErrorTypeOK;
    EXPECT_FALSE(textExec(status, u"x", &context));
    EXPECT_THAT(output.rawLines()[2], testing::HasSubstr(" func: textExec file: "));
    EXPECT_THAT(output.rawLines()[3], testing::HasSubstr(" func: textExec file: "));
    output.clear();
    status = localErrorTypeOK;
    EXPECT_FALSE(textLoad(status, u"x", &context));
    EXPECT_EQ(status, 37);
    EXPECT_THAT(output.rawLines()[2], testing::HasSubstr(" func: textLoad file: "));
}

TEST_F(executionTest, aFaultOfCompilingRunsNothing) {
    EXPECT_TRUE(run("? 1; x").lines[0] != "1");
    EXPECT_EQ(run("y = 1; x").status, 37);
    EXPECT_EQ(context.varFind(u"y"), nullptr);
}

TEST_F(executionTest, compilingThatFailsWithoutStatusSaysNothingMore) {
    const ran got = run("f(1,);");
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 54);
    EXPECT_THAT(
        got.lines,
        ElementsAre("Error scanStringGetNameTokenAndEvaluete() ожидается  параметр в позиции 4",
                    ");", "Ок. Ошибки отсутствуют"));
}

TEST_F(executionTest, aBreakOutsideAnyLoopEndsTheProgramWithoutCrash) {
    const ran got = run("? 1; BREAK; ? 2;");
    EXPECT_THAT(got.lines, ElementsAre("1"));
    EXPECT_FALSE(got.done && got.status == 54);
}

TEST_F(executionTest, programsRunUnderTheWaitCursor) {
    run("? 1;");
    EXPECT_THAT(host.calls,
                ElementsAre("cursor wait", "cursor restored", "cursor wait", "cursor restored"));
    host.calls.clear();
    run("x = 1/0;");
    EXPECT_THAT(host.calls,
                ElementsAre("cursor wait", "cursor restored", "cursor wait", "cursor restored"));
    host.calls.clear();
    run("x");
    EXPECT_THAT(host.calls, ElementsAre("cursor wait", "cursor restored"));
}

TEST_F(executionTest, variablesStayBehindAFault) {
    run("a = 1; b = 2; c = 1/0; d = 4;");
    EXPECT_EQ(context.varToString(u"a"), u"1");
    EXPECT_EQ(context.varToString(u"b"), u"2");
    EXPECT_EQ(context.varFind(u"c"), nullptr);
    EXPECT_EQ(context.varFind(u"d"), nullptr);
}

TEST_F(executionTest, functionsOutliveTheirProgram) {
    EXPECT_TRUE(run("FUNCTION double(n) RETURN n*2; ENDFUNCTION;").done);
    EXPECT_THAT(run("? double(21);").lines, ElementsAre("42"));
}

TEST_F(executionTest, aFunctionMayDefineItselfAnew) {
    EXPECT_THAT(run("FUNCTION f() FUNCTION f() RETURN 1; ENDFUNCTION; ? f(); RETURN 2; ENDFUNCTION;"
                    "? f();")
                    .lines,
                ElementsAre("1", "2"));
}

TEST_F(executionTest, surplusArgumentsAreIgnoredAndMissingOnesFail) {
    const std::string function = "FUNCTION f(a,b) RETURN a+b; ENDFUNCTION; ";
    EXPECT_THAT(run(function + "? f(1,2,3);").lines, ElementsAre("3"));
    EXPECT_EQ(run(function + "? f(1);").status, 31);
    EXPECT_EQ(run(function + "? f();").status, 31);
}

TEST_F(executionTest, endlessRecursionIsRefused) {
    const ran got = run("FUNCTION f(n) RETURN f(n+1); ENDFUNCTION; f(1);");
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 16);
    EXPECT_EQ(run("? 1;").lines, std::vector<std::string>{"1"});
}

TEST_F(executionTest, objectsOfAProgramGoWithItsScope) {
    const std::int64_t alive = countedObject::alive;
    {
        localContextUTF8 scope(&context);
        int status = localErrorTypeOK;
        EXPECT_TRUE(textExec(status, u"a = o; b = a; VAR o = b; a = 1; ? o.add(1,2);", &scope));
        EXPECT_EQ(output.text(), "3\n");
    }
    EXPECT_EQ(countedObject::alive, alive);
    EXPECT_EQ(context.varFind(u"o")->value->objectLinks(), 1);
}

// Nodes
// --------------------------------------------------------------------------------------------

class nodeTest : public executionTest {
protected:
    struct outcome {
        bool done;
        int status;
        std::string text;
    };
    outcome runNode(const localOperatorCompiled& node, localArguments args = {}) {
        outcome got{};
        localSlot result;
        got.status = localErrorTypeSYNTAX;  // running sets its own status first
        got.done = node.executeFunction(got.status, &context, node, args, result.asResult());
        got.text = result ? utf8(result->toString()) : "none";
        return got;
    }
    static localOperatorCompiled node(int type, std::u16string_view expression = {}) {
        localOperatorCompiled made;
        made.type = type;
        made.setExpression(expression, true);
        return made;
    }
};

TEST_F(nodeTest, kindsThatNoWordProduces) {
    outcome got = runNode(node(localCompiledOperatorTypeNONE));
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 54);
    EXPECT_EQ(output.lines(), std::vector<std::string>{"localCompiledOperatorTypeNONE "});
    got = runNode(node(localCompiledOperatorTypeCONTINUE));
    EXPECT_TRUE(got.done);
    EXPECT_EQ(got.status, 56);
}

TEST_F(nodeTest, aBreakTravelsUpWithoutValue) {
    const outcome got = runNode(node(localCompiledOperatorTypeBREAK));
    EXPECT_TRUE(got.done);
    EXPECT_EQ(got.status, 55);
    EXPECT_EQ(got.text, "none");
}

TEST_F(nodeTest, aContinueDoesNotStopABlockAndEscapesAFunctionWithStatus20) {
    localOperatorCompiled block = node(localCompiledOperatorTypeBLOCK);
    block.operators.push_back(node(localCompiledOperatorTypeCONTINUE));
    block.operators.push_back(node(localCompiledOperatorTypePRINT, u"1"));
    EXPECT_TRUE(runNode(block).done);
    EXPECT_EQ(output.text(), "1\n");

    const auto body = std::make_shared<localOperatorCompiled>(node(localCompiledOperatorTypeBLOCK));
    body->name = localText(u"F");
    body->operators.push_back(node(localCompiledOperatorTypeCONTINUE));
    context.funcAdd(u"f", body);
    EXPECT_EQ(evaluate("f()", &context).status, 20);
}

TEST_F(nodeTest, aBlockHoldsTheValueOfItsLastChild) {
    localOperatorCompiled block = node(localCompiledOperatorTypeBLOCK);
    for (const char16_t* text : {u"1", u"2"}) {
        block.operators.push_back(node(localCompiledOperatorTypeASSIGN, text));
    }
    EXPECT_EQ(runNode(block).text, "2");
    block.operators.push_back(node(localCompiledOperatorTypeRENURN, u"3"));
    block.operators.push_back(node(localCompiledOperatorTypeASSIGN, u"4"));
    const outcome got = runNode(block);
    EXPECT_EQ(got.text, "3");
    EXPECT_EQ(got.status, 57);
}

TEST_F(nodeTest, aBlockWithoutStatementsFailsWithStatus54) {
    localOperatorCompiled block = node(localCompiledOperatorTypeBLOCK);
    outcome got = runNode(block);
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 54);
    // Its functions are in force all the same.
    block.functions.emplace_back(localText(u"F"), std::make_shared<localOperatorCompiled>());
    runNode(block);
    int steps = 0;
    EXPECT_NE(context.funcFind(u"F", steps), nullptr);
    EXPECT_EQ(steps, 0);
    block.name = localText(u"BODY");
    got = runNode(block);
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 54);
}

TEST_F(nodeTest, aFunctionBodyHasAScopeOfItsOwnBelowTheCaller) {
    localOperatorCompiled body = node(localCompiledOperatorTypeBLOCK);
    body.name = localText(u"BODY");
    body.arguments.emplace_back(u"A");
    localOperatorCompiled assign = node(localCompiledOperatorTypeASSIGN, u"a*2");
    assign.name = localText(u"LOCAL");
    assign.nameHash = nameHash(u"LOCAL");
    body.operators.push_back(assign);
    body.operators.push_back(node(localCompiledOperatorTypeRENURN, u"local+caller"));
    context.varDeclare(u"caller").value->setVal(100.0);

    localValueDescription argument;
    argument.setVal(21.0);
    localValueDescription* const values[] = {&argument};
    const outcome got = runNode(body, values);
    EXPECT_EQ(got.text, "142");
    EXPECT_EQ(got.status, 57);
    EXPECT_EQ(context.varFind(u"LOCAL"), nullptr);
    EXPECT_EQ(argument.toString().view(), u"21");
    EXPECT_EQ(runNode(body).status, 31);
}

TEST_F(nodeTest, conditionsGoByTheNumberOfAnyValue) {
    struct Row {
        std::u16string_view condition;
        bool chosen;
    };
    context.varDeclare(u"stale").value->setVal(u"text");
    for (const Row& row : {Row{u"1", true},
                           {u"0.1", true},
                           {u"0", false},
                           {u"-1", false},
                           {u"'text'", false},
                           {u"'1'", false},
                           {u"TRUE", true},
                           {u"FALSE", false},
                           {u"o", false}}) {
        output.clear();
        localOperatorCompiled branch = node(localCompiledOperatorTypeBLOCK, row.condition);
        branch.operators.push_back(node(localCompiledOperatorTypePRINT, u"'chosen'"));
        localOperatorCompiled choice = node(localCompiledOperatorTypeIF);
        choice.operators.push_back(branch);
        EXPECT_TRUE(runNode(choice).done);
        EXPECT_EQ(output.text(), row.chosen ? "chosen\n" : "") << utf8(row.condition);
    }
}

TEST_F(nodeTest, failedCommandsWriteTheirLines) {
    const outcome got = runNode(node(localCompiledOperatorTypeCOMMAND, u"CLEAR nothing"));
    EXPECT_FALSE(got.done);
    EXPECT_EQ(got.status, 37);
    EXPECT_THAT(output.lines(),
                ElementsAre("=CLEAR nothing; ", "Синтаксическая ошибка.", "ERROR!!!"));
}

TEST_F(nodeTest, aQuitCommandDoesNotStopItsBlock) {
    localOperatorCompiled block = node(localCompiledOperatorTypeBLOCK);
    block.operators.push_back(node(localCompiledOperatorTypeCOMMAND, u"QUIT"));
    block.operators.push_back(node(localCompiledOperatorTypePRINT, u"1"));
    const outcome got = runNode(block);
    EXPECT_TRUE(got.done);
    EXPECT_EQ(got.status, 54);
    EXPECT_EQ(output.text(), "1\n");
}

TEST_F(nodeTest, aResultThatIsNotNullHalts) {
    localValueDescription cell;
    localValueDescription* result = &cell;
    int status = localErrorTypeOK;
    const localOperatorCompiled block = node(localCompiledOperatorTypeBLOCK);
    EXPECT_HALT(localOperatorCompiled::execute(status, &context, block, {}, result),
                "localOperatorCompiled::execute() result must be NULL!");
}

// Each node is entered through its function, so a variant of it sees every statement.
std::vector<std::uint32_t>& seenPositions() {
    static std::vector<std::uint32_t> positions;
    return positions;
}
bool watchingExecute(int& status, localContextUTF8* context, const localOperatorCompiled& node,
                     const localArguments& args, localValueDescription*& result) {
    seenPositions().push_back(node.pos);
    return localOperatorCompiled::execute(status, context, node, args, result);
}

TEST_F(executionTest, aVariantOfTheExecuteFunctionSeesEveryNode) {
    seenPositions().clear();
    localOperatorCompiled root(watchingExecute);
    int status = localErrorTypeOK;
    ASSERT_TRUE(programCompile(
        status, u"FUNCTION f() RETURN 1; ENDFUNCTION;\nx=1;\nIF x THEN x=f(); ENDIF;", root,
        "test"));
    localSlot result;
    EXPECT_TRUE(root.executeFunction(status, &context, root, {}, result.asResult()));
    EXPECT_THAT(seenPositions(), ElementsAre(0, 36, 41, 41, 51, 0, 13, 41));
}

}  // namespace
