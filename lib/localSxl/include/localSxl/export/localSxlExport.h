// Sheets for other programs and for paper: PDF, HTML, CSV, XLSX.
//
// What a format can hold is kept: widths, heights, fonts, colours, alignment, pictures. The work
// goes by cells; rows between them that hold nothing cost nothing where the format lets them. A
// cell beyond what a format has room for is a fault.
#pragma once

#include <string>
#include <string_view>

class localSxlSheet;

// Writes the file in the format of its name's ending, through a file beside it: a failure leaves
// the old one. `fault` tells a person why it could not be. PDF needs an application.
bool localSxlExport(const localSxlSheet& sheet, std::u16string_view fileName,
                    std::u16string& fault);
