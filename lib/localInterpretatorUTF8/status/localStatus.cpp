#include "localInterpretatorUTF8/status/localStatus.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "localInterpretatorUTF8/text/localNumberText.h"

namespace {

constexpr std::array<std::u16string_view, 55> messages = [] {
    std::array<std::u16string_view, 55> text{};
    text[2] = u"Непредвиденное использование зарезарвированного слова КонецЦикла (EndDo)";
    text[3] = u"Непредвиденное использование зарезарвированного слова КонецФункции (EndFunction)";
    text[4] = u"Непредвиденное использование зарезарвированного слова КонецЕсли (EndIf)";
    text[7] = u"Выход за границы массива.";
    text[8] =
        u"Атрибут не может быть прочитан. Возможно в декларации класса для него не установлена "
        u"функция GET.";
    text[9] =
        u"Атрибут не может быть установлен. Возможно в декларации класса для него не установлена "
        u"функция SET.";
    text[10] = u"Неверный атрибут.";
    text[11] = u"Не задан конструктор для каласса.";
    text[12] = u"Не задан статический метод для каласса.";
    text[13] = u"Не задан статический атрибут для каласса.";
    text[14] = u"Неизвестный класс.";
    text[15] = u"Встретился оператор ВОЗВРАТ (return) без возвращаемого значения.";
    text[16] = u"Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.";
    text[17] = u"Неизвестная команда.";
    text[18] = u"Контекст не задан.";
    text[19] = u"Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла.";
    text[20] = u"Команда CONTINUE (ПРОДОЛЖИТЬ) встретилась вне цикла.";
    text[21] = u"Деление на 0!";
    text[22] = u"Ошибка соединения с базой данных.";
    text[23] = u"Файл не найден.";
    text[24] = u"Неизвестная функция.";
    text[26] = u"Метод существует, но моожет быть применен только в графической версии.";
    text[27] =
        u"Метод не существует. Возможно в декларации класса для него не установлена функция EXEC.";
    text[28] = u"Ошибка при создании объекта.";
    text[30] = u"Объект неизвестного класса!";
    text[31] = u"Неверное количество параметров!";
    text[32] = u"Параметр неверен (недопустимое значение)!";
    text[33] = u"Неверный тип параметра (-ов)!";
    text[34] = u"Ошибка разбора формата JSON!";
    text[35] =
        u"Ошибка восстановления значения из строки JSON. В частности возникает когда в списке "
        u"значений после парсинга JSON не хватает информации для воззтановления ValueDescription. ";
    text[36] =
        u"Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов";
    text[37] = u"Синтаксическая ошибка.";
    text[39] = u"Синтаксическая ошибка. Ожидается \"=\"";
    text[40] = u"Синтаксическая ошибка. Ожидается \"(\"";
    text[41] = u"Синтаксическая ошибка. Ожидается \")\"";
    text[42] = u"Синтаксическая ошибка. Ожидается \";\"";
    text[43] = u"Синтаксическая ошибка. Ожидается ключевое слово \"ЦИКЛ\" (\"do\") ";
    text[44] = u"Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЦИКЛА\" (\"enddo\") ";
    text[45] = u"Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЕСЛИ\" (\"endif\") ";
    text[46] =
        u"Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦФУНКЦИИ\" (\"endfunction\") ";
    text[47] = u"Синтаксическая ошибка. Ожидается ключевое слово \"ТОГДА\" (\"then\") ";
    text[48] = u"Синтаксическая ошибка. Ожидается ключевое слово \"ПО\" (\"to\") ";
    text[49] = u"Неизвестный тип!";
    text[50] = u"Неверный тип операнда (-ов)!";
    text[51] = u"Значение не является объектом.";
    text[52] = u"Переменная не существует.";
    text[53] = u"Переменная не может быть задекларирована повторно.";
    text[54] = u"Ок. Ошибки отсутствуют";
    return text;
}();

}  // namespace

localStatusWords::localStatusWords(int status) {
    if (status >= 0 && static_cast<std::size_t>(status) < messages.size()) {
        words_ = messages[static_cast<std::size_t>(status)];
    }
    if (words_.empty()) {
        constexpr std::u16string_view unknown = u"Неизвестный статус возврата ном: ";
        char digits[16];
        const char* const digitsEnd = std::to_chars(digits, digits + sizeof digits, status).ptr;
        char16_t* const behindText = std::copy(unknown.begin(), unknown.end(), unknown_.data());
        const char16_t* const end = std::copy<const char*>(digits, digitsEnd, behindText);
        words_ = {unknown_.data(), static_cast<std::size_t>(end - unknown_.data())};
    }
}

std::u16string statusMessage(int status) {
    return std::u16string(localStatusWords(status));
}

bool statusAfterBody(int& status, int statusOfCaller) {
    switch (status) {
        case localErrorTypeOK:
        case localErrorTypeRETURN:
            status = statusOfCaller;
            return true;
        case localErrorTypeBREAK:
            status = localErrorTypeBREAKOUTSIDELOOP;
            return false;
        case localErrorTypeCONTINUE:
            status = localErrorTypeCONTINUEOUTSIDELOOP;
            return false;
        default:
            return false;
    }
}

std::uint32_t lineOfPosition(std::u16string_view text, std::uint32_t position,
                             std::uint32_t& lineStart) {
    std::uint32_t line = 1;
    lineStart = 0;
    if (text.empty()) {
        return line;
    }
    const std::size_t last = position < text.size() ? position : text.size() - 1;
    for (std::size_t feed = text.find(u'\n'); feed != std::u16string_view::npos && feed <= last;
         feed = text.find(u'\n', feed + 1)) {
        ++line;
        lineStart = static_cast<std::uint32_t>(feed + 1);
    }
    return line;
}

std::u16string positionText(std::u16string_view text, std::uint32_t position) {
    if (position >= text.size()) {
        return u"Unabel resolve pos " + numberToString(position) + u" in line with length " +
               numberToString(static_cast<double>(text.size()));
    }
    std::uint32_t lineStart = 0;
    const std::uint32_t line = lineOfPosition(text, position, lineStart);
    return u"pos :" + numberToString(position) + u"( line:" + numberToString(line) + u", pos: " +
           numberToString(position - lineStart) + u")";
}
