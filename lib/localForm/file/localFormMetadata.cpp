#include "localForm/file/localFormMetadata.h"

#include <QDomDocument>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <optional>

#include "file/localFormNames.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localVCL/text/localVclText.h"

namespace {

struct Kind {
    std::u16string_view name;
    std::uint32_t mask;
};

// By number.
constexpr std::array<Kind, 6> kinds{{
    {u"Button", 0x123},
    {u"Edit", 0x21},
    {u"Frame", 0x3},
    {u"Image", 0x23},
    {u"Label", 0x123},
    {u"Table", 0},
}};

const Kind& kindOf(localFormWidgetKind kind) {
    return kinds[static_cast<std::size_t>(kind)];
}

std::optional<localFormWidgetKind> kindByName(const QString& name) {
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (localVclText(name) == kinds[i].name) {
            return static_cast<localFormWidgetKind>(i);
        }
    }
    return std::nullopt;
}

// A form has three levels; the toolkit tears documents down by recursion.
constexpr int deepest = 200;
constexpr qint64 longestFile = qint64{1} << 28;
constexpr qint64 pieceLength = qint64{1} << 16;
constexpr float largestPointSize = 1000;

struct Fault {
    QString reason;
    qint64 line;
    qint64 column;
};

void writeFault(std::u16string_view fileName, const Fault& fault) {
    std::cerr << localVclQString(fileName).toStdString() << ": line " << fault.line << ", column "
              << fault.column << ": " << fault.reason.toStdString() << std::endl;
}

std::optional<QByteArray> readFile(std::u16string_view fileName) {
    std::FILE* const opened = localPlatform::openFile(fileName, "rb");
    if (opened == nullptr) {
        return std::nullopt;
    }
    QFile file;
    if (!file.open(opened, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        return std::nullopt;
    }
    // In pieces: the toolkit asks at once for all the room that it may need, and a device has no
    // length.
    QByteArray bytes;
    for (QByteArray piece = file.read(pieceLength); !piece.isEmpty() && bytes.size() <= longestFile;
         piece = file.read(pieceLength)) {
        bytes += piece;
    }
    return file.error() != QFileDevice::NoError || bytes.size() > longestFile
               ? std::nullopt
               : std::optional(std::move(bytes));
}

// What keeps the bytes from being a document.
std::optional<Fault> faultOf(const QByteArray& bytes) {
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd();) {
        reader.readNext();
        depth += int(reader.isStartElement()) - int(reader.isEndElement());
        if (depth > deepest) {
            reader.raiseError(QStringLiteral("Elements stand too deep in each other."));
        }
    }
    if (!reader.hasError()) {
        return std::nullopt;
    }
    return Fault{reader.errorString(), reader.lineNumber(), reader.columnNumber()};
}

std::u16string textOf(const QDomElement& element, const QString& name) {
    return element.attribute(name).toStdU16String();
}

std::int32_t numberOf(const QDomElement& element, const QString& name) {
    return element.attribute(name).toInt();
}

bool switchOf(const QDomElement& element, const QString& name) {
    return numberOf(element, name) == 1;
}

void readFont(const QDomElement& element, localFormWidgetDescription& widget) {
    namespace names = localFormNames;
    widget.font.setFamily(element.attribute(names::fontFamily));
    const float size = element.attribute(names::fontPointSize).toFloat();
    // The toolkit has no font without a size, and none that fills more than a screen.
    if (std::isfinite(size) && size > 0) {
        widget.font.setPointSizeF(double{std::min(size, largestPointSize)});
    }
    widget.font.setWeight(switchOf(element, names::fontBold) ? QFont::Bold : QFont::Normal);
    widget.font.setStyle(switchOf(element, names::fontItalic) ? QFont::StyleItalic
                                                              : QFont::StyleNormal);
    widget.fontColor = QColor::fromString(element.attribute(names::fontColor));
}

void readType(const QDomElement& element, localFormWidgetDescription& widget) {
    namespace names = localFormNames;
    widget.valueType = textOf(element, names::valueType);
    widget.length = numberOf(element, names::length);
    widget.decimals = numberOf(element, names::decimals);
    widget.unlimited = switchOf(element, names::unlimited);
    widget.multiline = switchOf(element, names::multiline);
}

}  // namespace

std::uint32_t localFormPropertyMask(localFormWidgetKind kind) {
    return kindOf(kind).mask;
}

std::u16string_view localFormWidgetKindName(localFormWidgetKind kind) {
    return kindOf(kind).name;
}

localFormMetadata::localFormMetadata(std::u16string_view fileName) {
    origin_ = Origin::broken;
    const std::optional<QByteArray> bytes = readFile(fileName);
    if (!bytes) {
        writeFault(fileName, {QStringLiteral("The file cannot be read."), 0, 0});
        return;
    }
    if (const std::optional<Fault> fault = faultOf(*bytes)) {
        writeFault(fileName, *fault);
        return;
    }
    QDomDocument document;
    QString reason;
    int line = 0;
    int column = 0;
    if (!document.setContent(*bytes, &reason, &line, &column)) {
        writeFault(fileName, {reason, line, column});
        return;
    }
    read(document);
    if (origin_ == Origin::foreign) {
        const QDomElement root = document.documentElement();
        writeFault(fileName, {QStringLiteral("This is no form: <") + root.tagName() + u'>',
                              root.lineNumber(), root.columnNumber()});
    }
}

localFormMetadata::localFormMetadata(const QDomDocument& document) {
    read(document);
}

void localFormMetadata::read(const QDomDocument& document) {
    w = 100;
    h = 100;
    widgets.clear();
    module.clear();
    const QDomElement root = document.documentElement();
    origin_ = root.tagName() == localFormNames::root ? Origin::form : Origin::foreign;
    for (QDomElement child = root.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == localFormNames::form) {
            readForm(child);
        } else if (child.tagName() == localFormNames::module) {
            module = child.text().toStdU16String();
        }
    }
}

void localFormMetadata::readForm(const QDomElement& form) {
    w = numberOf(form, localFormNames::w);
    h = numberOf(form, localFormNames::h);
    for (QDomElement list = form.firstChildElement(localFormNames::widgets); !list.isNull();
         list = list.nextSiblingElement(localFormNames::widgets)) {
        // Whatever their tag. Meant.
        for (QDomElement widget = list.firstChildElement(); !widget.isNull();
             widget = widget.nextSiblingElement()) {
            readWidget(widget);
        }
    }
}

void localFormMetadata::readWidget(const QDomElement& element) {
    namespace names = localFormNames;
    const std::optional<localFormWidgetKind> kind = kindByName(element.attribute(names::kind));
    if (!kind) {
        return;
    }
    auto widget = std::make_unique<localFormWidgetDescription>();
    widget->kind = *kind;
    widget->details = textOf(element, names::details);
    widget->x = numberOf(element, names::x);
    widget->y = numberOf(element, names::y);
    widget->width = numberOf(element, names::w);
    widget->height = numberOf(element, names::h);
    widget->identifier = textOf(element, names::identifier);
    const std::uint32_t mask = localFormPropertyMask(*kind);
    if ((mask & localFormPropertyCAPTION) != 0) {
        widget->caption = textOf(element, names::caption);
    }
    if ((mask & localFormPropertyFORMULA) != 0) {
        widget->formula = textOf(element, names::formula);
    }
    if ((mask & localFormPropertyFONT) != 0) {
        readFont(element, *widget);
    }
    if (*kind == localFormWidgetKind::Edit) {
        readType(element, *widget);
    }
    widgets.push_back(std::move(widget));
}
