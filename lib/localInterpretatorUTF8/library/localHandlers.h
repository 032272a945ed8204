// The handlers behind the rows of the library's table, by theme. Each starts with arguments that
// fit its pattern.
#pragma once

#include "localInterpretatorUTF8/value/localMethodTable.h"

namespace localHandlers {

// Strings.
bool chr(localCall& call);
bool findFromOffset(localCall& call);
bool formatValue(localCall& call);
bool stringOf(localCall& call);
bool stringLen(localCall& call);
bool stringPartFind(localCall& call);
bool stringPartLeft(localCall& call);
bool stringPartRight(localCall& call);
bool stringPartReplace(localCall& call);
bool stringToUpper(localCall& call);
bool stringTrimAll(localCall& call);
bool stringTrimL(localCall& call);
bool stringTrimR(localCall& call);

// Numbers.
bool absoluteValue(localCall& call);
bool integerPart(localCall& call);
bool largest(localCall& call);
bool smallest(localCall& call);
bool numberOf(localCall& call);
bool piConstant(localCall& call);
bool randomNumber(localCall& call);
bool rounded(localCall& call);
bool squareRoot(localCall& call);

// Types and conversion.
bool iif(localCall& call);
bool isEmptyValue(localCall& call);
bool valueIsEmpty(localCall& call);
bool isValueList(localCall& call);
bool isValueTable(localCall& call);
bool isWindows(localCall& call);
bool valueTypeAsString(localCall& call);
bool contextToString(localCall& call);
bool contextToStringForTest(localCall& call);

// JSON.
bool parseJson(localCall& call);
bool valueFromJson(localCall& call);
bool valueToJson(localCall& call);

// Files.
bool base64AppendToFile(localCall& call);
bool base64FromFile(localCall& call);
bool fileDelete(localCall& call);
bool fileExist(localCall& call);
bool files(localCall& call);
bool moduleLoad(localCall& call);
bool pathExist(localCall& call);
bool stringAppendToFile(localCall& call);
bool stringFromFile(localCall& call);

// The process, its clock and its output.
bool binaryPath(localCall& call);
bool cwd(localCall& call);
bool dateTimeSystemGetAsString(localCall& call);
bool logWriteValue(localCall& call);
bool message(localCall& call);
bool seconds20000101(localCall& call);
bool secondsThisProcess(localCall& call);

// Objects and classes.
bool classLoad(localCall& call);
bool classLoaded(localCall& call);
bool contextGet(localCall& call);
bool createObject(localCall& call);

// Dialogs.
bool dateChooseAsString(localCall& call);
bool messageBox(localCall& call);
bool stringShow(localCall& call);

// Display.
bool classDisplay(localCall& call);
bool classesDisplay(localCall& call);
bool functionsDisplay(localCall& call);
bool memoryDisplay(localCall& call);
bool memoryDisplayData(localCall& call);
bool memoryDisplayVars(localCall& call);

// Developer entries.
bool test(localCall& call);
bool testTextBrowser(localCall& call);
bool test00001(localCall& call);

}  // namespace localHandlers
