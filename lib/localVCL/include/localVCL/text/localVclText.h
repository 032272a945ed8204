// Texts of the language and texts of the toolkit, which hold the same code units.
#pragma once

#include <QString>

#include <string>
#include <string_view>

inline QString localVclQString(std::u16string_view text) {
    return QString(reinterpret_cast<const QChar*>(text.data()), qsizetype(text.size()));
}

// A view that holds as long as the text does.
inline std::u16string_view localVclText(QStringView text) {
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}
