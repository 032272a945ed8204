// A form as its file describes it: size, widgets, module. Knows no widget.
//
// The file is XML, <FormMd><Form w h><Widgets><Widget .../></Widgets></Form><Module/></FormMd>.
// Running forms and the designer are built from what is read here; localFormWriter.h writes.
#pragma once

#include <QColor>
#include <QFont>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QDomDocument;
class QDomElement;

// The numbers index the table of property masks.
enum class localFormWidgetKind : std::int32_t { Button, Edit, Frame, Image, Label, Table };

// Which attributes mean something for a kind.
enum localFormProperty : std::uint32_t {
    localFormPropertyCAPTION = 1U << 1,
    localFormPropertyFORMULA = 1U << 5,
    localFormPropertyFONT = 1U << 8,
};
// A Table has none of them: its mask is 0.
std::uint32_t localFormPropertyMask(localFormWidgetKind kind);

// The kind as the file names it.
std::u16string_view localFormWidgetKindName(localFormWidgetKind kind);

// Places and sizes are those of the widget, in pixels.
struct localFormWidgetDescription {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 10;
    localFormWidgetKind kind = localFormWidgetKind::Label;
    std::u16string identifier;
    std::u16string caption;
    std::u16string formula;
    QFont font;
    QColor fontColor;        // invalid where the file names none
    std::u16string details;  // of a Table: its grid's layout as JSON
    std::u16string valueType;
    std::int32_t length = 10;
    std::int32_t decimals = 0;
    bool unlimited = false;
    bool multiline = false;
};

class localFormMetadata {
public:
    // What a file was. One that is foreign - XML, but its document element is another - is read as
    // if it were a form.
    enum class Origin { none, form, foreign, broken };

    localFormMetadata() = default;
    // A file that cannot be read or is no XML gives the defaults. For such a file and a foreign one
    // a line on the standard error stream names file, line and column.
    explicit localFormMetadata(std::u16string_view fileName);
    explicit localFormMetadata(const QDomDocument& document);
    virtual ~localFormMetadata() = default;
    localFormMetadata(localFormMetadata&&) = default;
    localFormMetadata& operator=(localFormMetadata&&) = default;

    // Fills this object from a document; what it held before goes.
    void read(const QDomDocument& document);

    Origin origin() const { return origin_; }

    // The reader fills neither of the two names.
    std::u16string formName;
    std::u16string secondName;
    std::int32_t w = 100;
    std::int32_t h = 100;
    std::vector<std::unique_ptr<localFormWidgetDescription>> widgets;  // in file order
    std::u16string module;

private:
    void readForm(const QDomElement& form);
    void readWidget(const QDomElement& element);

    Origin origin_ = Origin::none;
};
