// The text is put together here and not by the toolkit's document, which gives attributes out in an
// order of chance: a form that was saved twice would be two different files.
#include "localForm/file/localFormWriter.h"

#include <QString>

#include "file/localFormNames.h"
#include "localForm/file/localFormMetadata.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localVCL/text/localVclText.h"

namespace {

namespace names = localFormNames;

enum class Letters { ofFileWriter, all };

// The first character that XML has no place for: a control sign, half of a surrogate pair, or one
// of the two units that are no characters.
std::optional<char16_t> unwritable(std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        const bool hasNext = i + 1 < text.size();
        if (QChar::isHighSurrogate(unit) && hasNext && QChar::isLowSurrogate(text[i + 1])) {
            ++i;
        } else if (QChar::isSurrogate(unit) || unit >= 0xFFFE ||
                   (unit < u' ' && unit != u'\t' && unit != u'\n' && unit != u'\r')) {
            return unit;
        }
    }
    return std::nullopt;
}

bool isHeldByFileWriter(char16_t unit) {
    char bytes[2];
    return unit < 128 || localString::toUtf8(unit, bytes) == 2;
}

// Writes element after element and remembers the first character that cannot stand in one.
class Writer {
public:
    Writer(const localFormMetadata& form, Letters letters) : letters_(letters) {
        text_ += u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE ";
        text_ += localVclText(names::documentType);
        text_ += u">\n<";
        text_ += localVclText(names::root);
        text_ += u">\n";
        writeForm(form);
    }

    void writeModule(std::u16string_view module) {
        open(1, names::module);
        text_ += u'>';
        if (isWritable(module, names::module)) {
            putEscaped(module, u"\r&<>");
        }
        close(0, names::module);
    }

    std::u16string finished() {
        close(0, names::root);
        return std::move(text_);
    }
    const std::u16string& fault() const { return fault_; }

private:
    void writeForm(const localFormMetadata& form) {
        open(1, names::form);
        put(names::name, u"Проба");  // Whatever the form. Meant.
        putNumber(names::w, form.w);
        putNumber(names::h, form.h);
        text_ += u">\n";
        open(2, names::widgets);
        text_ += u">\n";
        for (const auto& widget : form.widgets) {
            writeWidget(*widget);
        }
        close(2, names::widgets);
        close(1, names::form);
    }

    void writeWidget(const localFormWidgetDescription& widget) {
        open(3, names::widget);
        put(names::kind, localFormWidgetKindName(widget.kind));
        if (widget.kind == localFormWidgetKind::Edit) {
            put(names::valueType, widget.valueType);
            putNumber(names::length, static_cast<std::uint32_t>(widget.length));
            putNumber(names::decimals, static_cast<std::uint32_t>(widget.decimals));
            putNumber(names::unlimited, int{widget.unlimited});
            putNumber(names::multiline, int{widget.multiline});
        }
        if (widget.kind == localFormWidgetKind::Table) {
            put(names::details, widget.details);
        }
        put(names::identifier, widget.identifier);
        const std::uint32_t mask = localFormPropertyMask(widget.kind);
        if ((mask & localFormPropertyCAPTION) != 0) {
            // A picture has the attribute and nothing to put there. Meant.
            const bool hasCaption = widget.kind != localFormWidgetKind::Image;
            put(names::caption, hasCaption ? widget.caption : std::u16string());
        }
        if ((mask & localFormPropertyFONT) != 0) {
            putFont(widget);
        }
        if ((mask & localFormPropertyFORMULA) != 0) {
            put(names::formula, widget.formula);
        }
        putNumber(names::x, widget.x);
        putNumber(names::y, widget.y);
        putNumber(names::w, widget.width);
        putNumber(names::h, widget.height);
        text_ += u"/>\n";
    }

    void putFont(const localFormWidgetDescription& widget) {
        const QFont& font = widget.font;
        put(names::fontFamily, localVclText(font.family()));
        putNumber(names::fontPixelSize, font.pixelSize());
        put(names::fontPointSize, localVclText(QString::number(font.pointSizeF(), 'f', 5)));
        putNumber(names::fontBold, int{font.weight() > QFont::Normal});
        putNumber(names::fontItalic, int{font.style() != QFont::StyleNormal});
        put(names::fontColor, localVclText(widget.fontColor.name()));
    }

    void open(std::size_t depth, const QString& name) {
        text_.append(depth, u' ');
        text_ += u'<';
        text_ += localVclText(name);
    }
    void close(std::size_t depth, const QString& name) {
        text_.append(depth, u' ');
        text_ += u"</";
        text_ += localVclText(name);
        text_ += u">\n";
    }

    template <class Number>
    void putNumber(const QString& name, Number number) {
        put(name, localVclText(QString::number(number)));
    }
    void put(const QString& name, std::u16string_view value) {
        text_ += u' ';
        text_ += localVclText(name);
        text_ += u"=\"";
        if (isWritable(value, name)) {
            // Blanks that are no spaces would be read as spaces.
            putEscaped(value, u"\t\n\r&<>\"");
        }
        text_ += u'"';
    }

    void putEscaped(std::u16string_view text, std::u16string_view escaped) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const char16_t unit = text[i];
            const bool isHeld = letters_ == Letters::all || isHeldByFileWriter(unit);
            if (isHeld && escaped.find(unit) == std::u16string_view::npos) {
                text_ += unit;
            } else if (QChar::isHighSurrogate(unit)) {
                putReference(QChar::surrogateToUcs4(unit, text[++i]));
            } else {
                putReference(unit);
            }
        }
    }
    void putReference(char32_t character) {
        switch (character) {
            case U'&':
                text_ += u"&amp;";
                break;
            case U'<':
                text_ += u"&lt;";
                break;
            case U'>':
                text_ += u"&gt;";
                break;
            case U'"':
                text_ += u"&quot;";
                break;
            default:
                text_ += u"&#";
                text_ += localVclText(QString::number(std::uint32_t{character}));
                text_ += u';';
        }
    }

    bool isWritable(std::u16string_view text, const QString& where) {
        const std::optional<char16_t> unit = unwritable(text);
        if (unit && fault_.empty()) {
            fault_ = QStringLiteral("%1: XML не может хранить символ U+%2")
                         .arg(where)
                         .arg(uint{*unit}, 4, 16, QLatin1Char('0'))
                         .toStdU16String();
        }
        return !unit;
    }

    Letters letters_;
    std::u16string text_;
    std::u16string fault_;
};

}  // namespace

std::optional<std::u16string> localFormWriteWithModule(const localFormMetadata& form,
                                                       std::u16string& fault) {
    Writer writer(form, Letters::ofFileWriter);
    writer.writeModule(form.module);
    fault = writer.fault();
    return fault.empty() ? std::optional(writer.finished()) : std::nullopt;
}

std::optional<std::string> localFormWriteWithoutModule(const localFormMetadata& form,
                                                       std::u16string& fault) {
    Writer writer(form, Letters::all);
    fault = writer.fault();
    return fault.empty() ? std::optional(localVclQString(writer.finished()).toStdString())
                         : std::nullopt;
}
