// Wide texts of the system, texts of the toolkit, and statements put together from pieces.
#pragma once

#include <QString>

#include <string>
#include <string_view>

inline QString localDbQString(std::u16string_view text) {
    return QStringView(text).toString();
}

// A view that holds as long as the text does.
inline std::u16string_view localDbView(QStringView text) {
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

inline std::u16string localDbNumber(qint64 number) {
    return QString::number(number).toStdU16String();
}

template <typename... Pieces>
std::u16string localDbWords(const Pieces&... pieces) {
    std::u16string text;
    text.reserve((std::u16string_view(pieces).size() + ...));
    (text.append(std::u16string_view(pieces)), ...);
    return text;
}

// The texts with a separator between them.
template <typename Texts>
std::u16string localDbJoined(const Texts& texts, std::u16string_view separator) {
    std::u16string joined;
    for (const auto& text : texts) {
        if (&text != &*std::begin(texts)) {
            joined += separator;
        }
        joined += text;
    }
    return joined;
}

// A text between quotes, with those inside it doubled.
std::u16string localDbQuoted(std::u16string_view text, char16_t quote = u'\'');
// A text with its single quotes doubled.
std::u16string localDbQuotesDoubled(std::u16string_view text, char16_t quote = u'\'');
