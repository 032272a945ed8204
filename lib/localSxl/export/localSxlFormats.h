// One function for each format a sheet is exported in.
#pragma once

#include <cstdint>
#include <string>

class localSxlSheet;

// What rows and columns the usual spreadsheets have.
inline constexpr std::uint32_t localSxlMostRows = 1048576;
inline constexpr std::uint32_t localSxlMostColumns = 16384;

// Whether all cells lie within these bounds; the fault names them if not.
bool localSxlWithinBounds(const localSxlSheet& sheet, std::u16string& fault);

// Each writes a whole file under a name of the system. False with a fault, or with none for a file
// that cannot be written.
bool localSxlWriteCsv(const localSxlSheet& sheet, const std::string& file, std::u16string& fault);
bool localSxlWriteHtml(const localSxlSheet& sheet, const std::string& file, std::u16string& fault);
bool localSxlWritePdf(const localSxlSheet& sheet, const std::string& file, std::u16string& fault);
bool localSxlWriteXlsx(const localSxlSheet& sheet, const std::string& file, std::u16string& fault);
