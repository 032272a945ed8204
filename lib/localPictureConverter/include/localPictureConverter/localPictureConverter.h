// Pictures from one form into another. Needs neither an application nor a display.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// A rectangle of a picture in pixels, no number of it below 0. A width or height that is left out,
// or is too large, reaches to the picture's edge.
struct localPictureArea {
    int x = 0;
    int y = 0;
    std::optional<int> width;
    std::optional<int> height;
};

namespace localPictureConverter {

// A picture file's bytes, in any format that the toolkit reads, as base64 text of a PNG; empty when
// they are no picture.
std::u16string pngAsBase64(std::string_view file);

// Cuts an area out of a picture in base64 text, as base64 text of a PNG. A text that is no picture
// counts as one without pixels; an area without pixels gives an empty text. Nothing when the area
// starts beyond the width or the height.
std::optional<std::u16string> partAsBase64(std::u16string_view picture,
                                           const localPictureArea& area);

}  // namespace localPictureConverter
