// The names of the form file, each once for reader and writer.
#pragma once

#include <QString>

namespace localFormNames {

inline const QString documentType = QStringLiteral("localForm");
inline const QString root = QStringLiteral("FormMd");
inline const QString form = QStringLiteral("Form");
inline const QString name = QStringLiteral("Name");
inline const QString widgets = QStringLiteral("Widgets");
inline const QString widget = QStringLiteral("Widget");
inline const QString module = QStringLiteral("Module");

inline const QString kind = QStringLiteral("WidgetType");
inline const QString valueType = QStringLiteral("Type");
inline const QString length = QStringLiteral("Len");
inline const QString decimals = QStringLiteral("Dec");
inline const QString unlimited = QStringLiteral("Unlimited");
inline const QString multiline = QStringLiteral("Multiline");
inline const QString details = QStringLiteral("details");
inline const QString identifier = QStringLiteral("Identifier");
inline const QString caption = QStringLiteral("Caption");
inline const QString fontFamily = QStringLiteral("fontFamily");
inline const QString fontPixelSize = QStringLiteral("fontPixelSize");
inline const QString fontPointSize = QStringLiteral("fontPointSizeF");
inline const QString fontBold = QStringLiteral("fontBold");
inline const QString fontItalic = QStringLiteral("fontItalic");
inline const QString fontColor = QStringLiteral("fontColor");
inline const QString formula = QStringLiteral("Formula");
inline const QString x = QStringLiteral("x");
inline const QString y = QStringLiteral("y");
inline const QString w = QStringLiteral("w");
inline const QString h = QStringLiteral("h");

}  // namespace localFormNames
