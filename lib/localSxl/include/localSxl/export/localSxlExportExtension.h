// SHOW where there is no window: the sheet that a program shows is exported.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

// SHOW of the classes TABLEDOCUMENT and VALUETABLE. Comes behind localSxlExtension. The file is
// that of the variable KORVO_EXPORT of the environment; what is shown last stands in it. Status 16,
// with a line that tells why, for a sheet that cannot be exported.
extern const localExtension localSxlExportExtension;
