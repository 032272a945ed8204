// The one status that every operation of the interpreter carries by reference, and its words.
//
// It is 54 before work starts. An operation that fails returns false and leaves its code here.
// Codes 0 to 4 tell the compiler which word ended a block, 55 to 58 carry control flow, 5 asks the
// console to close.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

enum localErrorType : int {
    localErrorTypeELSE = 0,
    localErrorTypeELSEIF = 1,
    localErrorTypeENDDO = 2,
    localErrorTypeENDFUNCTION = 3,
    localErrorTypeENDIF = 4,
    localErrorTypeQUIT = 5,
    localErrorTypeOUTOFRANGE = 7,
    localErrorTypeATTRIBUTENOTREADABLE = 8,
    localErrorTypeATTRIBUTENOTWRITEABLE = 9,
    localErrorTypeATTRIBUTEWRONG = 10,
    localErrorTypeNOCONSTRUCTOR = 11,
    localErrorTypeNOSTATICMETHOD = 12,
    localErrorTypeNOSTATICATTRIBUTE = 13,
    localErrorTypeCLASSUNKNOWN = 14,
    localErrorTypeRETURNWITHOUTVALUE = 15,
    localErrorTypeCODE = 16,
    localErrorTypeCOMMANDUNKNOWN = 17,
    localErrorTypeNOCONTEXT = 18,
    localErrorTypeBREAKOUTSIDELOOP = 19,
    localErrorTypeCONTINUEOUTSIDELOOP = 20,
    localErrorTypeDIVISIONBYZERO = 21,
    localErrorTypeDATABASECONNECTION = 22,
    localErrorTypeFILENOTFOUND = 23,
    localErrorTypeFUNCTIONUNKNOWN = 24,
    localErrorTypeGRAPHICONLY = 26,
    localErrorTypeMETHODUNKNOWN = 27,
    localErrorTypeOBJECTCREATION = 28,
    localErrorTypeSTATICCALL = 29,
    localErrorTypeOBJECTCLASSUNKNOWN = 30,
    localErrorTypePARAMETERCOUNT = 31,
    localErrorTypePARAMETERVALUE = 32,
    localErrorTypePARAMETERTYPE = 33,
    localErrorTypeJSONPARSE = 34,
    localErrorTypeJSONRESTORE = 35,
    localErrorTypePRECISION = 36,
    localErrorTypeSYNTAX = 37,
    localErrorTypeCOLONEXPECTED = 38,
    localErrorTypeEQUALEXPECTED = 39,
    localErrorTypeOPENPARENTHESISEXPECTED = 40,
    localErrorTypeCLOSEPARENTHESISEXPECTED = 41,
    localErrorTypeSEMICOLONEXPECTED = 42,
    localErrorTypeDOEXPECTED = 43,
    localErrorTypeENDDOEXPECTED = 44,
    localErrorTypeENDIFEXPECTED = 45,
    localErrorTypeENDFUNCTIONEXPECTED = 46,
    localErrorTypeTHENEXPECTED = 47,
    localErrorTypeTOEXPECTED = 48,
    localErrorTypeTYPEUNKNOWN = 49,
    localErrorTypeOPERANDTYPE = 50,
    localErrorTypeNOTOBJECT = 51,
    localErrorTypeVARIABLEUNKNOWN = 52,
    localErrorTypeVARIABLEDECLAREDTWICE = 53,
    localErrorTypeOK = 54,
    localErrorTypeBREAK = 55,
    localErrorTypeCONTINUE = 56,
    localErrorTypeRETURN = 57,
    localErrorTypeRESULTNOTONE = 58,
};

// What an attribute read of the test class leaves for a name it does not know. A text, not a code.
inline constexpr std::u16string_view localErrorTypeATTRIBUTEunknown =
    u"localErrorTypeATTRIBUTEunknown";

// The words of a status; a code without words gives "Неизвестный статус возврата ном: " and the
// code. They ask for no memory, so that a line can tell of memory that ran out.
class localStatusWords {
public:
    explicit localStatusWords(int status);
    localStatusWords(const localStatusWords&) = delete;
    localStatusWords& operator=(const localStatusWords&) = delete;
    operator std::u16string_view() const { return words_; }

private:
    std::u16string_view words_;
    std::array<char16_t, 48> unknown_;
};

// The same as a text of its own.
std::u16string statusMessage(int status);

// What a function's end makes of the status its body left: normal end and RETURN give back the
// status that the caller had, a BREAK or continue that escapes becomes 19 or 20. True when the call
// succeeded.
bool statusAfterBody(int& status, int statusOfCaller);

// The line of a position, from 1, and where that line starts. A position past the end counts as the
// last code unit; a line feed counts into the line that it opens.
std::uint32_t lineOfPosition(std::u16string_view text, std::uint32_t position,
                             std::uint32_t& lineStart);

// The place of a fault, as "pos :17( line:2, pos: 5)". The column of a line feed is the 32-bit
// difference below zero, 4294967295. Meant.
std::u16string positionText(std::u16string_view text, std::uint32_t position);
