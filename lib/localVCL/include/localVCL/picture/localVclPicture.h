// Pictures as base64 text, and the pictures that came with the program. On the windows' thread
// only.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

// The picture that a base64 text holds, in any format the toolkit reads; null when it holds none.
QPixmap localVclPixmapFromBase64(QStringView text);
// The picture as base64 text of a PNG; empty for a null picture.
QString localVclPixmapToBase64(const QPixmap& pixmap);

// A picture by its file name: from the program's folder, else built into the program.
QPixmap localVclPixmap(const QString& fileName);
// The program's own icon, "logoKV_3232.png".
QIcon localVclProgramIcon();
