#include "program/localManualBrief.h"

// MOFIFY is how the word stands in this text. Meant.
const std::u16string_view localManualBrief =
    uR"(В графическом режиме команда MANUAL открывает полное руководство.
******** КОМАНДЫ ********************
? <выражение>
    вычислить выражение и вывести значение, например:
    ? 2+2
CLEAR MEMORY [<шаблон>]
    удалить переменные, например:
    CLEA MEMO NU*
DEBUG <имя файла>
    выполнить программу по шагам, следующий шаг - команда STEP, например:
    DEBUG "primer.prg"
DIR 
    показать рабочий каталог, например:
    DIR
DISPLAY CLASS 
    показать классы, например:
    DISP CLAS
DISPLAY CONTEXT 
    показать функции, переменные и классы контекста, например:
    DISP CONT
DISPLAY FUNCTION 
    показать функции, можно с шаблоном имени, например:
    DISP FUNC STRING*
DISPLAY MEMORY [<шаблон>]
    показать переменные, например:
    DISP MEMO NU*
DO <имя файла>
    выполнить программу, например:
    DO "primer.prg"
EDIT COMMAND <имя файла>
    открыть файл в редакторе программ, например:
    EDIT COMM "primer.prg"
MOFIFY COMMAND <имя файла>
    открыть файл во внешнем редакторе, например:
    MODI COMM "primer.prg"
RUN [<команда> | <строка>] 
    запустить внешнюю программу, например:
    RUN notepad
****************************)";
