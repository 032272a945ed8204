// Form files as text. What is written is what stands in the drawing; a form's name is always the
// same one; an Image's caption, a font's size in pixels and a module of nothing but blanks are not
// kept.
#pragma once

#include <optional>
#include <string>

class localFormMetadata;

// The whole document with its module, for fileWrite with codePageUtf8: letters that this writer
// cannot hold stand as character references. Nothing when the form holds a character that XML has
// no place for; `fault` then tells which, and where.
std::optional<std::u16string> localFormWriteWithModule(const localFormMetadata& form,
                                                       std::u16string& fault);

// The document without a module, as UTF-8; nothing as above.
std::optional<std::string> localFormWriteWithoutModule(const localFormMetadata& form,
                                                       std::u16string& fault);
