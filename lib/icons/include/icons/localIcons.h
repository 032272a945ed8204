// The pictures of the visual layer, built into the program.
#pragma once

#include <QString>

// The resource path of a picture, "logoKV_3232.png" or "204.bmp", to be opened like a file.
QString localIconPath(const QString& fileName);
