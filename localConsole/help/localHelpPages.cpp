#include "localConsole/help/localHelpPages.h"

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

constexpr std::u16string_view bodyStart = u"<body>\n";
constexpr std::u16string_view bodyEnd = u"</body>\n";
constexpr std::u16string_view lineBreak = u"<BR/>\n";
constexpr std::u16string_view mainLink = u"<a href=\"#main\">Главная</a><BR/>\n";

// The rules are as they are, "justyfy" and all; browsers pass over what they do not know.
std::u16string style() {
    return u"<style type=\"text/css\">\n"
           u"body {font-family: \"Arial Cyr\" ; font: 12pt ; font-weight:NONE; text-align:justyfy; "
           u"margin-left: 0px; margin-top: 0px; margin-right: 0px; margin-bottom: 0px; color:None; "
           u"background-color:None; }\n"
           u"functionName {font-family: \"Courier\"; font: 12pt bold; display:none; "
           u"font-weight:bold; color:NONE; }\n"
           u"i{font-family: \"Times New Roman\" ; font-weight:NONE; font-style: italic; "
           u"text-align:justyfy; margin-left: 0px; margin-top: 0px; margin-right: 0px; "
           u"margin-bottom: 0px; color:blue; background-color:None; }\n"
           u"a{color:green; display:inline;}\n"
           u"</style>\n";
}

std::u16string withoutMark(std::u16string_view pageKey) {
    return std::u16string(pageKey.starts_with(u'#') ? pageKey.substr(1) : pageKey);
}

std::u16string classKey(const std::u16string& name) {
    return u"#class:" + name;
}

std::u16string methodKey(const std::u16string& className, const std::u16string& method) {
    return classKey(className) + u":method:" + method;
}

std::u16string classLink(const std::u16string& name) {
    return u"<a href=\"" + classKey(name) + u"\" >класс " + name + u"</a>\n";
}

// A text; what is none is replaced by the word for its type.
std::u16string textOf(const localValueDescription& value) {
    return value.type == localValueTypeSTRING ? value.wStr.string() : value.typeName();
}

// A row of a JSON object: its key and its value.
std::u16string keyOf(const localValueTable& object, std::size_t row) {
    return textOf(object.cell(row, 0));
}
const localValueDescription& valueOf(const localValueTable& object, std::size_t row) {
    return object.cell(row, 1);
}

// The members of one object by key.
class Members {
public:
    explicit Members(const localValueTable& object) : object_(object) {}

    std::u16string text(std::u16string_view name) const {
        const localValueDescription* value = find(name);
        return value == nullptr ? std::u16string() : textOf(*value);
    }
    // Null when it is absent or no table.
    const localValueTable* table(std::u16string_view name) const {
        const localValueDescription* value = find(name);
        return value == nullptr ? nullptr : localValueTable::of(*value);
    }

private:
    const localValueDescription* find(std::u16string_view name) const {
        for (std::size_t row = 0; row < object_.rowsCount(); ++row) {
            if (keyOf(object_, row) == name) {
                return &valueOf(object_, row);
            }
        }
        return nullptr;
    }

    const localValueTable& object_;
};

// Calls `act` with key and value of each row of a table that may be missing.
template <class Act>
void eachRow(const localValueTable* object, Act act) {
    for (std::size_t row = 0; object != nullptr && row < object->rowsCount(); ++row) {
        act(keyOf(*object, row), valueOf(*object, row));
    }
}

// The same for rows whose value is a table.
template <class Act>
void eachTable(const localValueTable* object, Act act) {
    eachRow(object, [&](const std::u16string& key, const localValueDescription& value) {
        if (const localValueTable* const table = localValueTable::of(value)) {
            act(key, *table);
        }
    });
}

}  // namespace

localHelpPages::localHelpPages() {
    clear();
}

void localHelpPages::clear() {
    linksAreNames_ = false;
    pages_.clear();
    for (const char16_t* column : {u"Key", u"HTML", u"nameEn", u"nameRu"}) {
        pages_.columnAdd(column);
    }
}

void localHelpPages::add(const std::u16string& pageKey, const std::u16string& text,
                         const std::u16string& english, const std::u16string& russian) {
    const std::size_t row = pages_.rowAdd() - 1;
    pages_.cell(row, key).setVal(pageKey);
    pages_.cell(row, html).setVal(text);
    pages_.cell(row, nameEn).setVal(english);
    pages_.cell(row, nameRu).setVal(russian);
}

std::u16string localHelpPages::simplePage(std::u16string_view text) {
    std::u16string page = style();
    page += bodyStart;
    page += text;
    page += bodyEnd;
    return page;
}

bool localHelpPages::parseHelpFromJson(const std::u16string& text) {
    localSlot book = localSlot::reserve();
    book->objectBind(new localValueTable, localValueTable::classDeclaration());
    int status = localErrorTypeOK;
    localInterpretatorUTF8::localPosition pos = 0;
    if (!localInterpretatorUTF8::scanStringGetValueTableFromJson(status, text, pos, *book)) {
        writeLine(statusMessage(status));
        return false;
    }
    clear();
    eachRow(localValueTable::of(*book), [this](const std::u16string& name,
                                               const localValueDescription& value) {
        if (name == u"main") {
            add(u"#main", simplePage(textOf(value)), u"main page", u"главная страница");
        } else if (name == u"console" || name == u"remarks") {
            // The English name is as it is.
            add(u"#" + name, simplePage(textOf(value)), name + u" lkjhlkj", name + u" страница");
        } else if (name == u"class") {
            eachTable(localValueTable::of(value),
                      [this](const std::u16string& className, const localValueTable& members) {
                          addClass(className, members);
                      });
        } else if (name == u"method") {
            writeLine(value.toString());
        }
    });
    return true;
}

void localHelpPages::pagesFromList(const localValueList& list) {
    clear();
    linksAreNames_ = true;
    for (const localValueListItem& item : list.items()) {
        const std::u16string name = item.presentation.string();
        add(u"#" + withoutMark(name), item.value.toString().string(), name, name);
    }
}

void localHelpPages::addClass(const std::u16string& name, const localValueTable& members) {
    const Members facts(members);
    std::u16string body(mainLink);
    body += lineBreak;
    body += name;
    body += lineBreak;
    body += lineBreak;
    body += u"Это класс " + name;
    body += lineBreak;
    body += lineBreak;
    body += facts.text(u"text");
    body += lineBreak;
    body += lineBreak;
    body += u"Доступные методы:<BR/>\n";
    body += lineBreak;
    const localValueTable* const methods = facts.table(u"method");
    eachTable(methods, [&](const std::u16string& method, const localValueTable&) {
        body += u"&nbsp;&nbsp;&nbsp;&nbsp;<a href=\"#" + withoutMark(methodKey(name, method)) +
                u"\">" + method + u"()</a><BR/>\n";
    });
    add(classKey(name), simplePage(body), name, name);
    eachTable(methods, [&](const std::u16string& method, const localValueTable& table) {
        addMethod(name, method, table);
    });
}

void localHelpPages::addMethod(const std::u16string& className, const std::u16string& method,
                               const localValueTable& members) {
    const Members facts(members);
    const std::u16string english = facts.text(u"nameEn");
    const std::u16string russian = facts.text(u"nameRu");
    std::u16string body(mainLink);
    body += lineBreak;
    body += u"<pre>" + classLink(className) + u"</pre>";
    body += u"<i>метод</i> <functionName>" + english +
            u"</functionName> <i>или</i> <functionName>" + russian +
            u"</functionName> <BR/><BR/>\n";
    body += u"<i><B>Синтаксис:</B></i> <BR/><BR/>\n";
    body += u"<pre>" + facts.text(u"syntax") + u"</pre>";
    body += lineBreak;
    body += u"<i><B>Параметры:</B></i> <BR/>\n";
    eachRow(facts.table(u"parameter"),
            [&](const std::u16string& name, const localValueDescription& description) {
                body += u"&lt;" + name + u"&gt; - " + textOf(description);
                body += lineBreak;
            });
    body += lineBreak;
    body += u"<i><B>Возвращаемое значение:</B></i><BR/>\n";
    body += facts.text(u"returnValue");
    body += u"<BR>\n";
    body += lineBreak;
    body += u"<i><B>Описание:</B></i><BR/>\n";
    body += facts.text(u"description");
    body += u"<BR>\n";
    body += lineBreak;
    body += u"<i><B>Пример:</B></i><BR>\n";
    body += lineBreak;
    body += u"<pre>" + facts.text(u"example") + u"<BR>\n</pre>";
    body += u"<i><B>Ссылки:</B></i><BR>\n";
    body += lineBreak;
    body += classLink(className);
    body += lineBreak;
    eachRow(facts.table(u"seeAlso"),
            [&](const std::u16string& target, const localValueDescription& text) {
                body += u"<a href=\"#" + target + u"\" > " + textOf(text) + u"</a>\n";
                body += lineBreak;
            });
    add(methodKey(className, method), simplePage(body), english, russian);
}

std::u16string localHelpPages::page(std::u16string_view pageKey) const {
    for (std::size_t row = 0; row < pages_.rowsCount(); ++row) {
        if (pages_.cell(row, key).wStr.view() == pageKey) {
            return pages_.cell(row, html).wStr.string();
        }
    }
    return {};
}

std::u16string localHelpPages::keyOfLink(std::u16string_view link) const {
    return linksAreNames_ ? u"#" + withoutMark(link) : std::u16string(link);
}

std::u16string localHelpPages::allPages() const {
    std::u16string body(mainLink);
    body += lineBreak;
    body += u"Это полный список страниц. <BR/>\n";
    body += lineBreak;
    body += u"Доступные страницы:<BR/>\n";
    body += lineBreak;
    for (std::size_t row = 0; row < pages_.rowsCount(); ++row) {
        body += u"<a href=\"#" + withoutMark(pages_.cell(row, key).wStr) + u"\">" +
                pages_.cell(row, nameRu).wStr.string() + u"</a><BR/>\n";
    }
    return simplePage(body);
}
