#include "memory/memoryCase.h"

#include <ostream>

namespace {

const std::string function = "FUNCTION f(a, b) VAR c = a; WHILE c<b DO c = c+1; ENDDO; RETURN "
                             "STRING(c)+\" and some more text\"; ENDFUNCTION; ";
const std::string longName = "name_that_is_longer_than_what_a_name_holds_without_the_heap_and_more";
// As many as are searched without a table of names.
const std::string variables = "a1=1; a2=2; a3=3; a4=4; a5=5; a6=6; a7=7; a8=8; ";

std::vector<memoryCase> programs() {
    return {
        {.name = "assignment",
         .text = "x = \"a text longer than before\"+\" and longer\";",
         .setup = "x = 1;"},
        {.name = "assignment to a new variable", .text = "a9 = 1/3;", .setup = variables},
        {.name = "assignment to a long name", .text = longName + " = 1;"},
        {.name = "declaration", .text = "VAR x = \"a text\";"},
        {.name = "expression",
         .text = "l.VALUEADD(\"a text\");",
         .setup = "l = CREATEOBJECT(\"VALUELIST\");"},
        {.name = "print", .text = "? \"a text of some length\"+STRING(0.1);"},
        {.name = "print of an object",
         .text = "? l;",
         .setup = "l = CREATEOBJECT(\"VALUELIST\");",
         .varies = true},
        {.name = "command", .text = "DISPLAY CLASS;"},
        {.name = "if",
         .text = "IF x=1 THEN x = \"yes\"; ELSEIF x=2 THEN x = 3; ELSE x = 4; ENDIF;",
         .setup = "x = 1;"},
        {.name = "while", .text = "WHILE x<3 DO x = x+5; ENDDO;", .setup = "x = 1;"},
        {.name = "break", .text = "WHILE x<3 DO x = 2; BREAK; ENDDO;", .setup = "x = 1;"},
        {.name = "for",
         .text = "FOR i=1 TO 4 DO x = x+\"text\"; ENDDO;",
         .setup = "x = \"\";",
         .severalChanges = true},
        {.name = "return", .text = "RETURN STRING(0.1)+\" of a long text\";"},
        {.name = "functions",
         .text = "FUNCTION f1() ENDFUNCTION; FUNCTION f2() ENDFUNCTION; FUNCTION f3(a, b) RETURN "
                 "a; ENDFUNCTION; FUNCTION f4() ENDFUNCTION; FUNCTION f5() ENDFUNCTION; FUNCTION "
                 "f6() ENDFUNCTION; FUNCTION f7() ENDFUNCTION; FUNCTION f8() ENDFUNCTION; FUNCTION "
                 "f9() FUNCTION inner() RETURN 1; ENDFUNCTION; RETURN inner(); ENDFUNCTION;",
         .setup = function},
        {.name = "call of a function", .text = "x = f(1, 3);", .setup = "x = 1; " + function},
        {.name = "call that nests",
         .text = "x = fib(5);",
         .setup = "x = 1; FUNCTION fib(n) IF n<2 THEN RETURN STRING(n); ENDIF; RETURN "
                  "fib(n-1)+\" and \"+fib(n-2); ENDFUNCTION;"},
        {.name = "call with many arguments",
         .text = "x = f(1,2,3,4,5,6,7,8,9,10);",
         .setup = "x = 1; FUNCTION f(b1,b2,b3,b4,b5,b6,b7,b8,b9,c1) VAR d1 = \"a\"; VAR d2 = d1; "
                  "RETURN b1+c1; ENDFUNCTION;"},
        {.name = "fault of a program", .text = "x = 1/0;", .setup = "x = 1;"},
        {.name = "fault of a function",
         .text = "x = STRINGPARTFIND(\"text\", \"t\", -1);",
         .setup = "x = 1;"},
        {.name = "fault of a text", .text = "x = \"a text that does not end;", .setup = "x = 1;"},
        {.name = "fault of a statement", .text = "x = 1; IF x THEN x 2; ENDIF;", .setup = "x = 1;"},
        {.name = "unknown variable", .text = "x = unknown_name;", .setup = "x = 1;"},
    };
}

}  // namespace

std::vector<memoryCase> statementCases() {
    std::vector<memoryCase> cases = programs();
    for (memoryCase& each : cases) {
        each.kind = memoryCase::Kind::program;
    }
    memoryCase checked = cases.front();
    checked.name = "all, compiled only";
    checked.kind = memoryCase::Kind::check;
    checked.text.clear();
    for (const memoryCase& each : cases) {
        if (!each.name.starts_with("fault")) {
            checked.text += each.text + "\n";
        }
    }
    cases.push_back(checked);
    return cases;
}

std::vector<memoryCase> lineCases() {
    const std::string file =
        "x = 1; FILEDELETE(\"case.prg\"); STRINGAPPENDTOFILE(\"x = \"+CHR(34)+\""
        "a text of some length\"+CHR(34)+\"; // words of a comment\", "
        "\"case.prg\");";
    std::vector<memoryCase> cases = {
        {.name = "print", .text = "? \"a text\"+STRING(1/3)"},
        {.name = "assignment", .text = "x = STRING(1/3)", .setup = "x = 1;", .insteadStatus = 37},
        {.name = "assignment to a new variable", .text = "a9 = 1", .setup = variables},
        {.name = "expression",
         .text = "l.VALUEADD(\"a text\")",
         .setup = "l = CREATEOBJECT(\"VALUELIST\");"},
        {.name = "CLEAR MEMORY", .text = "CLEAR MEMORY a*", .setup = variables},
        {.name = "DIR", .text = "DIR"},
        {.name = "DISPLAY CLASS", .text = "DISPLAY CLASS"},
        {.name = "DISPLAY CONTEXT", .text = "DISPLAY CONTEXT", .setup = "x = 1;", .varies = true},
        {.name = "DISPLAY FUNCTION", .text = "DISPLAY FUNCTION S*", .varies = true},
        {.name = "DISPLAY MEMORY", .text = "DISPLAY MEMORY x*", .setup = "x = 1;", .varies = true},
        {.name = "DO", .text = "DO \"case.prg\"", .setup = file},
        {.name = "DO of no file", .text = "DO \"a file that is nowhere to be found\""},
        {.name = "EDIT", .text = "EDIT COMMAND CP1251 \"case.prg\"", .setup = file},
        {.name = "EDIT of a new file",
         .text = "EDIT COMMAND \"case.txt\"",
         .setup = "FILEDELETE(\"case.txt\");"},
        {.name = "HELP", .text = "HELP"},
        {.name = "LOAD CLASS", .text = "LOAD CLASS VALUETABLE"},
        {.name = "MODIFY", .text = "MODIFY COMMAND \"case.prg\"", .setup = file},
        {.name = "QUIT", .text = "QUIT"},
        {.name = "RUN", .text = "RUN \"a program\"+\" with words\""},
        {.name = "long word", .text = longName},
    };
    for (memoryCase& each : cases) {
        each.kind = memoryCase::Kind::line;
    }
    return cases;
}

void PrintTo(const memoryCase& given, std::ostream* stream) {
    *stream << given.name;
}
