#include "text/localDbText.h"

std::u16string localDbQuotesDoubled(std::u16string_view text, char16_t quote) {
    std::u16string doubled;
    doubled.reserve(text.size());
    for (std::size_t at = text.find(quote); at != std::u16string_view::npos;
         at = text.find(quote)) {
        doubled.append(text.substr(0, at)).append(2, quote);
        text.remove_prefix(at + 1);
    }
    return doubled.append(text);
}

std::u16string localDbQuoted(std::u16string_view text, char16_t quote) {
    return quote + localDbQuotesDoubled(text, quote) + quote;
}
