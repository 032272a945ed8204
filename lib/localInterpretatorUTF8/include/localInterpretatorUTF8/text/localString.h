// Bytes to wide text and back. Bytes exist only at files, the console and system calls.
//
// The conversions know ASCII and Russian by design: they are short tables and no general encoders.
// What they cannot write becomes byte 255, what they cannot read becomes the code unit 255.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace localString {

// The encoding of a text in a file.
enum possibleCodePage : int {
    codePageNative = 0,  // as codePageUtf8
    codePageBase64 = 1,  // the file's bytes as base64 text
    codePageCP1251 = 2,
    codePageCP866 = 3,
    codePageUtf8 = 4,
};

// "CP866" or "CP1251", cut short to no fewer than 4 letters, in any case and with blanks around;
// any other name means UTF-8.
possibleCodePage codePageFromName(std::u16string_view name);

std::string toBytes(std::u16string_view text, possibleCodePage codePage);
std::u16string fromBytes(std::string_view bytes, possibleCodePage codePage);

inline std::string toUtf8(std::u16string_view text) {
    return toBytes(text, codePageUtf8);
}
inline std::u16string fromUtf8(std::string_view bytes) {
    return fromBytes(bytes, codePageUtf8);
}

// One code unit as UTF-8, for who must not ask for memory. Gives the number of bytes.
std::size_t toUtf8(char16_t unit, char (&bytes)[2]);

// Base64 (RFC 4648, with padding) of bytes, and back; units outside the alphabet are passed over.
std::u16string toBase64(std::string_view bytes);
std::string fromBase64(std::u16string_view text);

}  // namespace localString
