#include "localInterpretatorUTF8/status/localStatus.h"

#include <gmock/gmock.h>

#include <map>

#include "support/language.h"

namespace {

const std::map<int, std::string> messages = {
    {2, "Непредвиденное использование зарезарвированного слова КонецЦикла (EndDo)"},
    {3, "Непредвиденное использование зарезарвированного слова КонецФункции (EndFunction)"},
    {4, "Непредвиденное использование зарезарвированного слова КонецЕсли (EndIf)"},
    {7, "Выход за границы массива."},
    {8,
     "Атрибут не может быть прочитан. Возможно в декларации класса для него не установлена функция "
     "GET."},
    {9, "Атрибут не может быть установлен. Возможно в декларации класса для него не установлена "
        "функция SET."},
    {10, "Неверный атрибут."},
    {11, "Не задан конструктор для каласса."},
    {12, "Не задан статический метод для каласса."},
    {13, "Не задан статический атрибут для каласса."},
    {14, "Неизвестный класс."},
    {15, "Встретился оператор ВОЗВРАТ (return) без возвращаемого значения."},
    {16, "Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику."},
    {17, "Неизвестная команда."},
    {18, "Контекст не задан."},
    {19, "Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла."},
    {20, "Команда CONTINUE (ПРОДОЛЖИТЬ) встретилась вне цикла."},
    {21, "Деление на 0!"},
    {22, "Ошибка соединения с базой данных."},
    {23, "Файл не найден."},
    {24, "Неизвестная функция."},
    {26, "Метод существует, но моожет быть применен только в графической версии."},
    {27, "Метод не существует. Возможно в декларации класса для него не установлена функция EXEC."},
    {28, "Ошибка при создании объекта."},
    {30, "Объект неизвестного класса!"},
    {31, "Неверное количество параметров!"},
    {32, "Параметр неверен (недопустимое значение)!"},
    {33, "Неверный тип параметра (-ов)!"},
    {34, "Ошибка разбора формата JSON!"},
    {35,
     "Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений "
     "после парсинга JSON не хватает информации для воззтановления ValueDescription. "},
    {36,
     "Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов"},
    {37, "Синтаксическая ошибка."},
    {39, "Синтаксическая ошибка. Ожидается \"=\""},
    {40, "Синтаксическая ошибка. Ожидается \"(\""},
    {41, "Синтаксическая ошибка. Ожидается \")\""},
    {42, "Синтаксическая ошибка. Ожидается \";\""},
    {43, "Синтаксическая ошибка. Ожидается ключевое слово \"ЦИКЛ\" (\"do\") "},
    {44, "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЦИКЛА\" (\"enddo\") "},
    {45, "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЕСЛИ\" (\"endif\") "},
    {46, "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦФУНКЦИИ\" (\"endfunction\") "},
    {47, "Синтаксическая ошибка. Ожидается ключевое слово \"ТОГДА\" (\"then\") "},
    {48, "Синтаксическая ошибка. Ожидается ключевое слово \"ПО\" (\"to\") "},
    {49, "Неизвестный тип!"},
    {50, "Неверный тип операнда (-ов)!"},
    {51, "Значение не является объектом."},
    {52, "Переменная не существует."},
    {53, "Переменная не может быть задекларирована повторно."},
    {54, "Ок. Ошибки отсутствуют"},
};

TEST(localStatus, everyCodeHasItsWordsOrIsUnknown) {
    for (int status = -2; status <= 200; ++status) {
        const auto known = messages.find(status);
        const std::string wanted =
            known != messages.end() ? known->second
                                    : "Неизвестный статус возврата ном: " + std::to_string(status);
        EXPECT_EQ(utf8(statusMessage(status)), wanted);
    }
}

TEST(localStatus, theFixedCodes) {
    EXPECT_EQ(localErrorTypeOK, 54);
    EXPECT_EQ(localErrorTypeBREAK, 55);
    EXPECT_EQ(localErrorTypeCONTINUE, 56);
    EXPECT_EQ(localErrorTypeRETURN, 57);
    EXPECT_EQ(localErrorTypeRESULTNOTONE, 58);
    EXPECT_EQ(utf8(localErrorTypeATTRIBUTEunknown), "localErrorTypeATTRIBUTEunknown");
}

TEST(localStatus, theEndOfABodyMapsTheStatus) {
    struct Row {
        int body;
        int wanted;  // with 7 as the status of the caller
        bool success;
    };
    const Row rows[] = {{54, 7, true},   {57, 7, true},   {55, 19, false}, {56, 20, false},
                        {58, 58, false}, {21, 21, false}, {5, 5, false},   {37, 37, false}};
    for (const Row& row : rows) {
        int status = row.body;
        EXPECT_EQ(statusAfterBody(status, 7), row.success) << row.body;
        EXPECT_EQ(status, row.wanted) << row.body;
    }
}

TEST(localStatus, lineOfPosition) {
    struct Row {
        std::u16string_view text;
        std::uint32_t position, line, lineStart;
    };
    const Row rows[] = {
        {u"", 0, 1, 0},          {u"", 5, 1, 0},          {u"abc", 0, 1, 0},
        {u"abc", 2, 1, 0},       {u"abc", 99, 1, 0},      {u"ab\ncd", 1, 1, 0},
        {u"ab\ncd", 2, 2, 3},  // the line feed counts into the line that it opens
        {u"ab\ncd", 3, 2, 3},    {u"ab\ncd", 99, 2, 3},   {u"ab\n", 99, 2, 3},
        {u"\n\n\n", 0, 2, 1},    {u"\n\n\n", 1, 3, 2},    {u"\n\n\n", 2, 4, 3},
        {u"a\n\nb\nc", 3, 3, 3}, {u"a\n\nb\nc", 5, 4, 5},
    };
    for (const Row& row : rows) {
        std::uint32_t lineStart = 99;
        EXPECT_EQ(lineOfPosition(row.text, row.position, lineStart), row.line)
            << utf8(row.text) << " at " << row.position;
        EXPECT_EQ(lineStart, row.lineStart) << utf8(row.text) << " at " << row.position;
    }
}

TEST(localStatus, positionText) {
    struct Row {
        std::u16string_view text;
        std::uint32_t position;
        std::string wanted;
    };
    const Row rows[] = {
        {u"first line.\nsecond", 17, "pos :17( line:2, pos: 5)"},
        {u"first line.\nsecond", 0, "pos :0( line:1, pos: 0)"},
        {u"first line.\nsecond", 10, "pos :10( line:1, pos: 10)"},
        {u"first line.\nsecond", 11, "pos :11( line:2, pos: 4294967295)"},
        {u"first line.\nsecond", 12, "pos :12( line:2, pos: 0)"},
        {u"first line.\nsecond", 18, "Unabel resolve pos 18 in line with length 18"},
        {u"", 0, "Unabel resolve pos 0 in line with length 0"},
        {u"a", 7, "Unabel resolve pos 7 in line with length 1"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(utf8(positionText(row.text, row.position)), row.wanted);
    }
}

}  // namespace
