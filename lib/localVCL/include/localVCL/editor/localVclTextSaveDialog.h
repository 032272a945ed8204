// The save dialog that all windows with a text have in common.
#pragma once

#include <QString>

#include <string>
#include <string_view>

#include "localInterpretatorUTF8/text/localString.h"

class QWidget;

// Asks for a file and writes the text there in a code page. Gives the file's name, empty when
// nothing was chosen or the writing failed, which the file writer has reported.
std::u16string localVclTextSaveDialog(localString::possibleCodePage codePage,
                                      std::u16string_view text, const QString& title,
                                      const QString& filter, const QString& directory,
                                      QWidget* parent = nullptr);
