// A small book of help pages. It is kept apart from the test's classes: Qt's meta object compiler
// does not get past such a text.
#pragma once

inline constexpr const char* helpBook = R"json({
"main": "<B>Склад и цены</B><BR/><BR/><a href=\"#class:CONTEXT\">Функции</a><BR/>
<a href=\"#class:Склад\">Склад</a><BR/><a href=\"#class:НЕТ\">Пропавшая</a><BR/>
<a href=\"#allPages\">Все страницы</a><BR/>",
"console": "Строка ввода.",
"class": {
"CONTEXT": {"text": "Общие функции языка.", "method": {
 "FORMAT": {"nameEn": "FORMAT", "nameRu": "ФОРМАТ",
  "syntax": "FORMAT(число, формат)\nФОРМАТ(число, формат)",
  "parameter": {"число": "что показать", "формат": "строка, как \"N10.2\""},
  "returnValue": "Строка: число в заданном виде.",
  "description": "Готовит число для печати: ширина, знаки после точки, разделители.
<BR/><B>Ошибки:</B> 31 - нужны 2 параметра; 33 - второй параметр не строка.",
  "example": "price = 1250.5;\n? FORMAT(price, \"N10.2\"); //    1250.50
IF price &gt; 1000 THEN\n    ? \"дорого\";\nENDIF;",
  "seeAlso": {"class:CONTEXT:method:100 %": "Проценты", "main": "Начало"}},
 "100 %": {"nameEn": "PERCENT", "nameRu": "ПРОЦЕНТ", "description": "Доля от суммы."}
}},
"Склад": {"text": "Остатки товаров."}
}})json";
