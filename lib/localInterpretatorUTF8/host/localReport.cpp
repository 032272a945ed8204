#include "localInterpretatorUTF8/host/localReport.h"

#include <string_view>

#include "localInterpretatorUTF8/text/localCharacters.h"

namespace {

struct NamedLetter {
    std::u16string_view name;
    char16_t letter;
};
constexpr NamedLetter namedLetters[] = {
    {u"&lt;", u'<'}, {u"&gt;", u'>'}, {u"&amp;", u'&'}, {u"&quot;", u'"'}, {u"&nbsp;", u' '},
};

bool isLatin(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

// The length of the tag that the text begins with; 0 when "<" stands there for itself.
std::size_t tagLength(std::u16string_view text) {
    const std::size_t name = text.size() > 1 && text[1] == u'/' ? 2 : 1;
    if (name >= text.size() || !isLatin(text[name])) {
        return 0;
    }
    const std::size_t end = text.find(u'>');
    return end == std::u16string_view::npos ? 0 : end + 1;
}

bool beginsLine(std::u16string_view tag) {
    std::size_t end = 1;
    while (isLatin(tag[end])) {
        ++end;
    }
    const std::u16string name = toUpper(tag.substr(1, end - 1));
    return name == u"BR" || name == u"P";
}

}  // namespace

std::u16string localReport::plainText() const {
    if (form == Form::plain) {
        return text;
    }
    std::u16string plain;
    std::u16string_view rest = text;
    while (!rest.empty()) {
        std::size_t taken = 1;
        char16_t letter = rest.front();
        if (letter == u'<' && tagLength(rest) != 0) {
            taken = tagLength(rest);
            if (beginsLine(rest.substr(0, taken))) {
                plain += u'\n';
            }
        } else {
            for (const NamedLetter& named : namedLetters) {
                if (rest.starts_with(named.name)) {
                    taken = named.name.size();
                    letter = named.letter;
                }
            }
            plain += letter;
        }
        rest.remove_prefix(taken);
    }
    return plain;
}
