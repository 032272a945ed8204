#include <gmock/gmock.h>

#include "program/programTest.h"

namespace {

class localDumpTest : public programTest {
protected:
    std::vector<std::string> dumped(std::string_view text) {
        const compiled program = compile(text);
        EXPECT_TRUE(program.done);
        const capturedOutput lines;
        program.root->dump();
        return lines.lines();
    }
};

TEST_F(localDumpTest, anEmptyProgram) {
    EXPECT_THAT(dumped(""), testing::ElementsAre(
                                "[0]  // start localCompiledOperatorTypeBLOCK with indent=0",
                                testing::StartsWith("..... [0]  localCompiledOperatorTypeRENURN "),
                                "[0]  // finish localCompiledOperatorTypeBLOCK with indent=0"));
}

TEST_F(localDumpTest, statements) {
    const std::vector<std::string> lines = dumped("x = 1;\n"
                                                  "f(2);\n"
                                                  "? x+1;\n"
                                                  "BREAK;\n"
                                                  "DISPLAY CLASS;\n");
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_EQ(lines[1], "..... [0]  X=1; ");
    EXPECT_EQ(lines[2], "..... [7]  f(2); ");
    EXPECT_EQ(lines[3], "..... [13]  ? (x+1) ; ");
    EXPECT_EQ(lines[4], "..... [20]  BREAK ; ");
    EXPECT_EQ(lines[5], "..... [27]  DISPLAY CLASS; ");
}

TEST_F(localDumpTest, conditionals) {
    const std::vector<std::string> lines = dumped("IF a THEN ? 1; ELSEIF b THEN ELSE ? 3; ENDIF;");
    EXPECT_THAT(lines,
                testing::ElementsAre(
                    testing::_, "..... [0]  localCompiledOperatorTypeIF ",
                    "..... [0]  if  ( a) then ",
                    "..... ..... [0]  // start localCompiledOperatorTypeBLOCK with indent=2",
                    "..... ..... ..... [10]  ? (1) ; ",
                    "..... ..... [0]  // finish localCompiledOperatorTypeBLOCK with indent=2",
                    "..... [0]  elseif  ( b) then ",
                    "..... ..... [0]  // start localCompiledOperatorTypeBLOCK with indent=2",
                    "..... ..... [0]  // finish localCompiledOperatorTypeBLOCK with indent=2",
                    "..... [0]  else ",
                    "..... ..... [0]  // start localCompiledOperatorTypeBLOCK with indent=2",
                    "..... ..... ..... [34]  ? (3) ; ",
                    "..... ..... [0]  // finish localCompiledOperatorTypeBLOCK with indent=2",
                    "..... [0]  endif; ", testing::_, testing::_));
}

TEST_F(localDumpTest, loops) {
    const compiled program = compile("WHILE x DO ? 1; ENDDO;");
    output.clear();
    program.root->dump();
    const std::vector<std::string> lines = output.rawLines();
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_THAT(lines[1], testing::MatchesRegex(
                              "..... .0.  while .x. do func: COUT file: localDump.cpp line: "
                              "[0-9]+"));
    EXPECT_EQ(lines[2], "..... ..... [0]  // start localCompiledOperatorTypeBLOCK with indent=2");
    EXPECT_EQ(lines[5], "..... [0]  enddo; ");
}

TEST_F(localDumpTest, functionsStandBeforeTheStatements) {
    const std::vector<std::string> lines = dumped("? 1; FUNCTION f() ? 2; ENDFUNCTION;");
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_THAT(lines[1], testing::StartsWith(
                              "..... [5]  // start localCompiledOperatorTypeBLOCK with indent=1"));
    EXPECT_EQ(lines[2], "..... ..... [18]  ? (2) ; ");
    EXPECT_EQ(lines[5], "..... [0]  ? (1) ; ");
}

TEST_F(localDumpTest, kindsThatNoWordProduces) {
    localOperatorCompiled node;
    node.pos = 4;
    node.dump(1);
    node.type = localCompiledOperatorTypeCONTINUE;
    node.dump();
    EXPECT_THAT(output.rawLines(), testing::ElementsAre("..... [4]  localCompiledOperatorTypeNONE ",
                                                        "[4]  localCompiledOperatorTypeBLOCK "));
}

}  // namespace
