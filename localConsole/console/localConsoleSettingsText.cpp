#include "console/localConsoleSettingsText.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace {

// Where a value stands in the text, and under which key; the key is empty in an array.
struct Member {
    std::string_view key;
    std::size_t begin;
    std::size_t end;
};

// Finds its way through a text of JSON without looking at what the values are. What is not JSON in
// between does no harm: nothing of it is changed.
class Finder {
public:
    Finder(std::string_view text, std::size_t place) : text_(text), place_(place) {}

    // The members of the object or array that begins here. Nothing when none does.
    std::optional<std::vector<Member>> members(char opening) {
        skipBlanks();
        if (!take(opening)) {
            return std::nullopt;
        }
        inside_ = place_;
        const bool isObject = opening == '{';
        const char closing = isObject ? '}' : ']';
        std::vector<Member> found;
        skipBlanks();
        if (take(closing)) {
            return found;
        }
        do {
            const std::optional<Member> member = memberFind(isObject);
            if (!member) {
                return std::nullopt;
            }
            found.push_back(*member);
            skipBlanks();
        } while (take(','));
        return take(closing) ? std::optional(found) : std::nullopt;
    }

    // Behind the opening bracket of the members that were found.
    std::size_t inside() const { return inside_; }

private:
    std::optional<Member> memberFind(bool hasKey) {
        skipBlanks();
        Member member{};
        if (hasKey) {
            const std::size_t quote = place_;
            if (!skipString()) {
                return std::nullopt;
            }
            member.key = text_.substr(quote + 1, place_ - quote - 2);
            skipBlanks();
            if (!take(':')) {
                return std::nullopt;
            }
            skipBlanks();
        }
        member.begin = place_;
        if (!skipValue()) {
            return std::nullopt;
        }
        member.end = place_;
        return member;
    }

    bool take(char wanted) {
        const bool stands = place_ < text_.size() && text_[place_] == wanted;
        place_ += stands ? 1 : 0;
        return stands;
    }

    // Comments count as blanks.
    void skipBlanks() {
        for (;;) {
            place_ = std::min(text_.find_first_not_of(" \t\n\f\r", place_), text_.size());
            if (!text_.substr(place_).starts_with("//")) {
                return;
            }
            place_ = std::min(text_.find('\n', place_), text_.size());
        }
    }

    bool skipString() {
        if (!take('"')) {
            return false;
        }
        for (; place_ < text_.size(); ++place_) {
            if (text_[place_] == '\\') {
                ++place_;
            } else if (take('"')) {
                return true;
            }
        }
        return false;
    }

    bool skipValue() {
        const std::size_t begin = place_;
        std::size_t open = 0;
        while (place_ < text_.size()) {
            const char sign = text_[place_];
            if (sign == '"') {
                if (!skipString()) {
                    return false;
                }
            } else if (sign == '{' || sign == '[') {
                ++open;
                ++place_;
            } else if (open > 0 && (sign == '}' || sign == ']')) {
                --open;
                ++place_;
            } else if (open > 0) {
                ++place_;
                skipBlanks();
                continue;
            } else {
                place_ = std::min(text_.find_first_of(" \t\n\f\r,]}", place_), text_.size());
            }
            if (open == 0) {
                break;
            }
        }
        return open == 0 && place_ > begin;
    }

    std::string_view text_;
    std::size_t place_;
    std::size_t inside_ = 0;
};

const Member* memberOf(const std::vector<Member>& members, std::string_view key) {
    const auto found = std::find_if(members.begin(), members.end(),
                                    [key](const Member& member) { return member.key == key; });
    return found == members.end() ? nullptr : &*found;
}

// The place of the value under a key in the array of a typed value list.
const Member* typedValueOf(std::string_view text, const Member& item, std::string_view key,
                           std::optional<std::vector<Member>>& parts) {
    parts = Finder(text, item.begin).members('{');
    if (!parts) {
        return nullptr;
    }
    const Member* const presentation = memberOf(*parts, "p");
    const bool isMeant =
        presentation != nullptr &&
        text.substr(presentation->begin, presentation->end - presentation->begin) ==
            '"' + std::string(key) + '"';
    return isMeant ? memberOf(*parts, "v") : nullptr;
}

void insertBehind(std::string& text, const std::vector<Member>& members, std::size_t inside,
                  const std::string& separator, const std::string& member) {
    if (members.empty()) {
        text.insert(inside, member);
    } else {
        text.insert(members.back().end, separator + member);
    }
}

bool typedNumberSet(std::string& text, const Member& list, std::string_view key,
                    const std::string& digits) {
    Finder finder(text, list.begin);
    const auto items = finder.members('[');
    if (!items) {
        return false;
    }
    const std::string value = R"({"t": "NUM","vP": ")" + digits + R"(","v": ")" + digits + "\"}";
    for (const Member& item : *items) {
        std::optional<std::vector<Member>> parts;
        if (const Member* const found = typedValueOf(text, item, key, parts)) {
            text.replace(found->begin, found->end - found->begin, value);
            return true;
        }
    }
    insertBehind(text, *items, finder.inside(), "\n,",
                 R"({"p": ")" + std::string(key) + R"(","v": )" + value + "}");
    return true;
}

}  // namespace

bool localSettingsNumberSet(std::string& text, std::string_view key, int number) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const std::size_t start = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    Finder finder(text, start);
    const auto members = finder.members('{');
    if (!members) {
        return false;
    }
    const std::string digits = std::to_string(number);
    if (memberOf(*members, "t") != nullptr) {
        const Member* const list = memberOf(*members, "v");
        return list != nullptr && typedNumberSet(text, *list, key, digits);
    }
    if (const Member* const found = memberOf(*members, key)) {
        text.replace(found->begin, found->end - found->begin, digits);
    } else {
        insertBehind(text, *members, finder.inside(), ", ",
                     '"' + std::string(key) + "\": " + digits);
    }
    return true;
}
