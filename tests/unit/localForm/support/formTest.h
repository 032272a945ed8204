// What the tests of form files share: files, random forms, and forms as lines to compare.
#pragma once

#include <gmock/gmock.h>

#include <QFile>
#include <QString>

#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "localForm/file/localFormMetadata.h"
#include "localForm/file/localFormWriter.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localVCL/text/localVclText.h"

namespace formTest {

inline constexpr std::u16string_view fileName = u"form.xml";

inline std::string narrow(std::u16string_view text) {
    return localVclQString(text).toStdString();
}

inline void write(const QByteArray& bytes) {
    QFile file(localVclQString(fileName));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

inline localFormMetadata read(const QByteArray& bytes) {
    write(bytes);
    return localFormMetadata(fileName);
}

// What was written to the standard error stream in the meantime.
class toldErrors {
public:
    toldErrors() : before_(std::cerr.rdbuf(text_.rdbuf())) {}
    ~toldErrors() { std::cerr.rdbuf(before_); }
    toldErrors(const toldErrors&) = delete;
    toldErrors& operator=(const toldErrors&) = delete;

    std::string text() const { return text_.str(); }

private:
    std::ostringstream text_;
    std::streambuf* before_;
};

// What the running form and the designer get of a form, a line a fact.
inline std::vector<std::string> facts(const localFormMetadata& form) {
    const auto number = [](auto value) { return std::to_string(value); };
    std::vector<std::string> lines{number(form.w) + "x" + number(form.h), narrow(form.module)};
    for (const auto& widget : form.widgets) {
        lines.push_back(narrow(localFormWidgetKindName(widget->kind)) + " at " + number(widget->x) +
                        "," + number(widget->y) + " " + number(widget->width) + "x" +
                        number(widget->height));
        for (const auto& text : {widget->identifier, widget->caption, widget->formula,
                                 widget->details, widget->valueType}) {
            lines.push_back(narrow(text));
        }
        lines.push_back(
            widget->font.family().toStdString() + " " +
            QString::number(widget->font.pointSizeF(), 'f', 5).toStdString() +
            (widget->font.bold() ? " bold" : "") + (widget->font.italic() ? " italic " : " ") +
            (widget->fontColor.isValid() ? widget->fontColor.name().toStdString() : "no colour"));
        lines.push_back(number(widget->length) + "." + number(widget->decimals) +
                        (widget->unlimited ? " unlimited" : "") +
                        (widget->multiline ? " multiline" : ""));
    }
    return lines;
}

// The form as the file gives it back that the writer with a module makes.
inline localFormMetadata byWriterWithModule(const localFormMetadata& form) {
    std::u16string fault;
    const std::optional<std::u16string> text = localFormWriteWithModule(form, fault);
    EXPECT_EQ(narrow(fault), "");
    return read(QByteArray::fromStdString(
        localString::toBytes(text.value_or(u""), localString::codePageUtf8)));
}
inline localFormMetadata byWriterWithoutModule(const localFormMetadata& form) {
    std::u16string fault;
    const std::optional<std::string> text = localFormWriteWithoutModule(form, fault);
    EXPECT_EQ(narrow(fault), "");
    return read(QByteArray::fromStdString(text.value_or("")));
}

// Forms of all kinds of widgets with all facts that a file keeps.
class randomForms {
public:
    explicit randomForms(unsigned seed) : random_(seed) {}

    localFormMetadata next() {
        localFormMetadata form;
        form.w = number(-3, 3000);
        form.h = number(0, 3000);
        form.module = text();
        if (localVclQString(form.module).trimmed().isEmpty()) {
            form.module.clear();
        }
        for (int count = number(0, 8); count > 0; --count) {
            form.widgets.push_back(std::make_unique<localFormWidgetDescription>(widget()));
        }
        return form;
    }

    int number(int least, int most) {
        return std::uniform_int_distribution<>(least, most)(random_);
    }

    // Of letters, signs of XML, line ends, letters that no code page of the language has and
    // characters of two units.
    std::u16string text() {
        static constexpr std::u16string_view pieces[] = {
            u"a",       u"Ж",    u"ё",    u" ",      u"\n", u"\t",  u"\r",    u"\r\n",
            u"<",       u">",    u"&",    u"\"",     u"'",  u"]]>", u"№",     u"«»",
            u"—",       u"\x7F", u"\x85", u"\x2028", u"ÿ",  u"é",   u"日",    u"😀",
            u"&#8470;", u"<!--", u"-->",  u"{",      u"}",  u"\\",  u"\xFFFD"};
        std::u16string made;
        for (int count = number(0, 12); count > 0; --count) {
            made += pieces[static_cast<std::size_t>(number(0, int(std::size(pieces)) - 1))];
        }
        return made;
    }

private:
    localFormWidgetDescription widget() {
        localFormWidgetDescription made;
        made.kind = static_cast<localFormWidgetKind>(number(0, 5));
        made.x = number(-100, 3000);
        made.y = number(-100, 3000);
        made.width = number(0, 3000);
        made.height = number(0, 3000);
        made.identifier = text();
        const std::uint32_t mask = localFormPropertyMask(made.kind);
        if ((mask & localFormPropertyCAPTION) != 0 && made.kind != localFormWidgetKind::Image) {
            made.caption = text();
        }
        if ((mask & localFormPropertyFORMULA) != 0) {
            made.formula = text();
        }
        if ((mask & localFormPropertyFONT) != 0) {
            made.font.setFamily(localVclQString(text()));
            made.font.setPointSizeF(number(1, 4000) / 16.0);
            made.font.setBold(number(0, 1) == 1);
            made.font.setItalic(number(0, 1) == 1);
            made.fontColor = QColor(number(0, 255), number(0, 255), number(0, 255));
        }
        if (made.kind == localFormWidgetKind::Edit) {
            made.valueType = text();
            made.length = number(0, 100);
            made.decimals = number(0, 20);
            made.unlimited = number(0, 1) == 1;
            made.multiline = number(0, 1) == 1;
        }
        if (made.kind == localFormWidgetKind::Table) {
            made.details = text();
        }
        return made;
    }

    std::mt19937 random_;
};

}  // namespace formTest
